#include "app/csvaction.h"

#include "app/listactions.h"
#include "app/ownactions.h"
#include "core/csv.h"
#include "core/filecopy.h"
#include "core/fileerrors.h"
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

} // namespace

CsvAction::CsvAction(const OwnActions &actions, const ListActions &lists, Module1 &module, Desktop &desktop)
    : m_lists(lists), m_desktop(desktop), m_dialog({"CSV", {"*.csv"}}, module, desktop)
{
    QAction &action = actions.action(OwnAction::SaveCsv);
    connect(&action, &QAction::triggered, this, &CsvAction::save);
    connect(&lists, &ListActions::changed, &action,
            [&action](const RowListView *list) { action.setEnabled(list && list->model()->rowCount() > 0); });
}

void CsvAction::save()
{
    const RowListView *list = m_lists.list();
    const QByteArray bytes = Csv::write(list->cells());
    const QString name = list->accessibleName().replace(u'/', u'-'); // "Acid/base couples"
    try {
        m_dialog.choose([&name] { return name; });
        writeFileOver(bytes, m_dialog.FileName());
    } catch (const RuntimeError &error) {
        if (error.number() != ErrorNumber::DialogCancelled)
            m_desktop.messageBox(
                u"The table is not saved: '%1' cannot be written."_s.arg(m_dialog.FileName()) + reason(error),
                Desktop::Warning);
    }
}
