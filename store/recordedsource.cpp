#include "store/recordedsource.h"

#include "core/runtimeerror.h"
#include "store/databaseconnection.h"
#include "store/databasepassword.h"
#include "store/recordset.h"

using namespace Qt::StringLiterals;

namespace {

// The columns of @p row and then its source, as the database @p path has them. RuntimeError as Recordset.
QStringList readRow(const TableRow &row, const QString &path)
{
    DatabaseConnection connection;
    connection.Open(path, {}, DatabasePassword);
    const QString columns = row.columns.join(u',');
    Recordset rows(u"SELECT %1,source FROM %2"_s.arg(columns, row.table), connection);
    for (int before = 0; before < row.row; ++before)
        rows.moveNext();
    QStringList texts;
    for (int column = 0; column <= row.columns.size(); ++column)
        texts << rows.field(column).toString();
    return texts;
}

bool isInOriginal(const QStringList &texts, const TableRow &row, const QString &appFolder)
{
    try {
        return readRow(row, appFolder + "/Backup/Database_uk_origin.rbk"_L1) == texts;
    } catch (const RuntimeError &error) {
        return error.number() != ErrorNumber::PastEnd; // without an original nothing is known
    }
}

} // namespace

RecordedSource RecordedSource::of(const TableRow &row, const QString &appFolder)
{
    if (row.table.isEmpty())
        return {};
    try {
        const QStringList texts = readRow(row, appFolder + "/Data/Database_uk.mdb"_L1);
        if (texts.first(row.texts.size()) != row.texts)
            return {Kind::OtherRow, {}, false};
        if (texts.constLast().isEmpty())
            return {};
        return {Kind::Recorded, texts.constLast(), !isInOriginal(texts, row, appFolder)};
    } catch (const RuntimeError &error) {
        const bool none =
            error.number() == ErrorNumber::ColumnNotFound || error.number() == ErrorNumber::InvalidNull;
        const bool shorter = error.number() == ErrorNumber::PastEnd;
        return {none ? Kind::None : shorter ? Kind::OtherRow : Kind::Unreadable, {}, false};
    }
}
