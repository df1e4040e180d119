#include "app/sourceaction.h"

#include "app/copyactions.h"
#include "app/ownactions.h"
#include "app/paneswitch.h"
#include "core/module1.h"
#include "sidewindows/frmsource.h"
#include "store/tablerow.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QAction>
#include <QApplication>

SourceAction::SourceAction(const OwnActions &actions, const CopyActions &lists, const PaneSwitch &panes,
                           const Module1 &module, Desktop &desktop, QWidget &form)
    : m_lists(lists), m_panes(panes), m_module(module), m_desktop(desktop), m_form(form)
{
    QAction &action = actions.action(OwnAction::WhereFrom);
    action.setShortcutVisibleInContextMenu(true);
    connect(&action, &QAction::triggered, this, &SourceAction::open);
    // Lists are made when their pane is first shown. A right click gives the list the focus before its menu.
    connect(qApp, &QApplication::focusChanged, this, [&action](QWidget *, QWidget *now) {
        auto *list = qobject_cast<RowListView *>(now);
        if (list && !list->actions().contains(&action))
            list->addAction(&action);
    });
}

void SourceAction::open()
{
    const RowListView *list = m_lists.list();
    QWidget &owner = list ? *list->window() : m_form;
    (new frmSource(rowInQuestion(), m_module.AppFolder, m_desktop, owner))->showAboveOwner();
}

TableRow SourceAction::rowInQuestion() const
{
    const RowListView *list = m_lists.list();
    if (list && list->selectedRow() >= 0)
        return list->tableRow(list->selectedRow());
    const ModulePanel *pane = m_panes.shownPanel();
    return pane ? pane->currentRow() : TableRow();
}
