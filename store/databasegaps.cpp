#include "store/databasegaps.h"

#include "core/runtimeerror.h"
#include "store/jet/jetfile.h"
#include "store/tablecatalog.h"

using namespace Qt::StringLiterals;

namespace {

QStringList missingOf(int step, const JetFile &database)
{
    const QString name = TableCatalog::table(step);
    if (!database.tables().contains(name, Qt::CaseInsensitive))
        return {u"There is no table %1."_s.arg(name)};
    QStringList gaps;
    const JetDefinition table = database.table(name);
    for (const QString &column : TableCatalog::columns(step)) {
        if (!table.find(column))
            gaps << u"The table %1 has no column %2."_s.arg(name, column);
    }
    return gaps;
}

QStringList otherRowCountOf(int step, const JetFile &database)
{
    const QString name = TableCatalog::table(step);
    const int expected = TableCatalog::rowCount(step);
    const int rows = expected ? int(database.table(name).rowCount) : 0;
    if (rows == expected)
        return {};
    return {u"The table %1 has %2 rows instead of %3."_s.arg(name).arg(rows).arg(expected)};
}

template<class GapsOf>
QStringList ofAllSteps(GapsOf gapsOf, const JetFile &database)
{
    QStringList gaps;
    for (int step = TableCatalog::FirstStep; step <= TableCatalog::LastStep; ++step) {
        // A damaged or missing table is not a gap of this kind.
        ignoringErrors([&] { gaps += gapsOf(step, database); });
    }
    return gaps;
}

} // namespace

QStringList DatabaseGaps::missing(const JetFile &database)
{
    return ofAllSteps(missingOf, database);
}

QStringList DatabaseGaps::otherRowCounts(const JetFile &database)
{
    return ofAllSteps(otherRowCountOf, database);
}
