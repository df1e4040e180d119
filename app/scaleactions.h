#pragma once

#include "core/scale.h"

#include <QList>
#include <QObject>
#include <QPointer>

class Form1;
class LaterTables;
class OwnActions;
class QAction;
class frmScale;

/// "Zoom in", "Zoom out", "Default size" and "Fit to screen" of the menu bar. Each proposes a size in
/// `frmScale`.
class ScaleActions final : public QObject
{
    Q_OBJECT

public:
    ScaleActions(const OwnActions &actions, const Scale &scale, LaterTables &tables, Form1 &form);

private:
    void addAction(QAction &action, int (ScaleActions::*proposed)() const);
    int larger() const { return Scale::larger(percent()); }
    int smaller() const { return Scale::smaller(percent()); }
    int byDesktop() const { return m_scale.byDesktop; }
    int fitting() const;

    int percent() const;
    void propose(int percent);
    void startAgain(int percent);

    const Scale m_scale;
    LaterTables &m_tables;
    Form1 &m_form;
    QList<QAction *> m_actions;
    QPointer<frmScale> m_window; ///< null while not open
};
