#pragma once

#include "browsers/effects.h"
#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"
#include "widgets/titleframe.h"

#include <QHash>
#include <QRadioButton>
#include <QTabBar>

class RowList;

/// What the panes with lists share: lists and titles made by name, and the handlers that switch among them.
class BrowserPane : public ModulePanel
{
    Q_OBJECT

public:
    using ModulePanel::ModulePanel;

protected:
    RowListView *makeList(const QString &name, RowList &list, const QList<ListColumn> &columns,
                          const QRect &place, QWidget *parent);

    /// The tab strip @p name with the given captions; each change runs @p handler with the tab's number
    /// from 1.
    QTabBar *makeTabs(const QString &name, const QStringList &captions, const QRect &place,
                      const std::function<void(int)> &handler, QWidget *parent);

    /// Makes @p options one choice, of which the first is on, in a row from @p place on.
    void placeOptions(const QList<QRadioButton *> &options, const QPoint &place);

    /// Carries out @p effects. What other controls cover then takes no part in the Tab order, for it is still
    /// on.
    void apply(const Effects &effects);

    /// The same with the entry of @p table for @p number, if there is one.
    void apply(const EffectTable &table, int number);

private:
    bool holds(const Effect &effect);
    QWidget &control(const QString &name);
    void keepFocusOffCoveredControls();

    QHash<QString, QWidget *> m_controls;
};
