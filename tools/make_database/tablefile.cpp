#include "tools/make_database/tablefile.h"

#include "core/codepage.h"
#include "tools/tables/table.h"

namespace {

constexpr qsizetype LongestCell = 255;

// The reason why @p cell cannot go into the database; empty if it can.
QString faultOf(const QString &cell, bool anyCharacters)
{
    if (cell.size() > LongestCell)
        return QStringLiteral("%1 characters, %2 is the limit").arg(cell.size()).arg(LongestCell);
    for (const QChar c : cell) {
        if (c < u' ')
            return QStringLiteral("a control character");
        if (!anyCharacters && !CodePage::contains(c))
            return QStringLiteral("\"%1\", which reports cannot print").arg(c);
    }
    return {};
}

} // namespace

TableData TableFile::read(const QString &path, const TableRules &rules)
{
    const Table table = Table::read(path);
    if (table.columns() != rules.columns)
        table.fail(-1,
                   QStringLiteral("the columns must be %1").arg(rules.columns.join(QStringLiteral(", "))));
    if (rules.rows != 0 && table.rowCount() != rules.rows) {
        table.fail(table.rowCount() - 1,
                   QStringLiteral("%1 rows, but %2 are needed").arg(table.rowCount()).arg(rules.rows));
    }
    for (int row = 0; row < table.rowCount(); ++row) {
        for (qsizetype column = 0; column < rules.columns.size(); ++column) {
            const QString fault = faultOf(table.rows()[row][column], rules.anyCharacters);
            if (!fault.isEmpty())
                table.fail(row, rules.columns[column] + QStringLiteral(": ") + fault);
        }
    }
    return {rules.name, path, table.columns(), table.rows()};
}
