#include "app/csvaction.h"

#include "app/listactions.h"
#include "app/ownactions.h"
#include "core/csv.h"
#include "core/filecopy.h"
#include "core/fileerrors.h"
#include "reports/savedialog.h"
#include "widgets/rowlistview.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace {

QString reason(const RuntimeError &error)
{
    switch (error.number()) {
    case ErrorNumber::DiskFull:
        return u"\n\nReason: the disk is full."_s;
    case ErrorNumber::PathNotFound:
        return u"\n\nReason: there is no such folder."_s;
    default:
        return FileErrors::reasonNotWritable(error.subject());
    }
}

void save(const RowListView &list, Module1 &module, Desktop &desktop)
{
    const QByteArray bytes = Csv::write(list.cells());
    const QString name = list.accessibleName().replace(u'/', u'-'); // "Acid/base couples"
    SaveDialog dialog({"CSV", {"*.csv"}}, module, desktop);
    try {
        dialog.choose([&name] { return name; });
        writeFileOver(bytes, dialog.FileName());
    } catch (const RuntimeError &error) {
        if (error.number() != ErrorNumber::DialogCancelled)
            desktop.messageBox(u"The table is not saved: '%1' cannot be written."_s.arg(dialog.FileName()) +
                                   reason(error),
                               Desktop::Warning);
    }
}

} // namespace

void connectCsvAction(const OwnActions &actions, const ListActions &lists, Module1 &module, Desktop &desktop)
{
    QAction &action = actions.action(OwnAction::SaveCsv);
    QObject::connect(&action, &QAction::triggered, &lists,
                     [&lists, &module, &desktop] { save(*lists.list(), module, desktop); });
    QObject::connect(&lists, &ListActions::changed, &action, [&action](const RowListView *list) {
        action.setEnabled(list && list->model()->rowCount() > 0);
    });
}
