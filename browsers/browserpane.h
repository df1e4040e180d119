#pragma once

#include "widgets/controlarray.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"
#include "widgets/titleframe.h"

#include <QRadioButton>
#include <QTabBar>

class RowList;

/// A pane with lists, and with tabs and option buttons that choose among them.
class BrowserPane : public ModulePanel
{
    Q_OBJECT

public:
    using ModulePanel::ModulePanel;

protected:
    RowListView *makeList(const QString &name, RowList &list, const QList<ListColumn> &columns,
                          const QRect &place, QWidget *parent);

    QTabBar *makeTabs(const QString &name, const QStringList &captions, const QRect &place, QWidget *parent);

    /// Makes @p options one choice, side by side from @p place on. The first is on.
    void placeOptions(const QList<QRadioButton *> &options, const QPoint &place);

    /// The same with new options of @p array, by index and caption.
    void addOptions(ControlArray<QRadioButton> &array, const QList<QPair<int, QString>> &captions,
                    const QPoint &place, QWidget *parent);

    /// Shows the lists and titles that the tabs and options choose. Runs by itself when an option is clicked;
    /// a pane connects its tabs to it, and calls it once when the controls are there.
    void showChoice();

    /// What showChoice() shows and hides, by each control's own setting. A list may stay on beneath another.
    virtual void applyChoice() = 0;

private:
    void keepFocusOffCoveredControls();
};
