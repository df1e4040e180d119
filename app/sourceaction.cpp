#include "app/sourceaction.h"

#include "app/listactions.h"
#include "app/ownactions.h"
#include "app/paneswitch.h"
#include "core/module1.h"
#include "sidewindows/frmsource.h"
#include "store/tablerow.h"
#include "widgets/modulepanel.h"
#include "widgets/rowlistview.h"

#include <QAction>

SourceAction::SourceAction(const OwnActions &actions, const ListActions &lists, const PaneSwitch &panes,
                           const Module1 &module, Desktop &desktop, QWidget &form)
    : m_lists(lists), m_panes(panes), m_module(module), m_desktop(desktop), m_form(form)
{
    connect(&actions.action(OwnAction::WhereFrom), &QAction::triggered, this, &SourceAction::open);
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
