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

namespace {

TableRow rowInQuestion(const RowListView *list, const PaneSwitch &panes)
{
    if (list && list->selectedRow() >= 0)
        return list->tableRow(list->selectedRow());
    const ModulePanel *pane = panes.shownPanel();
    return pane ? pane->currentRow() : TableRow();
}

} // namespace

void connectSourceAction(const OwnActions &actions, const ListActions &lists, const PaneSwitch &panes,
                         const Module1 &module, Desktop &desktop, QWidget &form)
{
    QObject::connect(
        &actions.action(OwnAction::WhereFrom), &QAction::triggered, &form,
        [&lists, &panes, &module, &desktop, &form] {
            const RowListView *list = lists.list();
            QWidget &owner = list ? *list->window() : form;
            (new frmSource(rowInQuestion(list, panes), module.AppFolder, desktop, owner))->showAboveOwner();
        });
}
