#include "tools/make_database/tablefile.h"

#include "core/codepage.h"
#include "tools/tables/table.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestCell = 255;

// The reason why @p cell cannot go into the database; empty if it can.
QString faultOf(const QString &cell, bool anyCharacters)
{
    if (cell.size() > LongestCell)
        return u"%1 characters, %2 is the limit"_s.arg(cell.size()).arg(LongestCell);
    for (const QChar c : cell) {
        if (c < u' ')
            return u"a control character"_s;
        if (!anyCharacters && !CodePage::contains(c))
            return u"\"%1\", which reports cannot print"_s.arg(c);
    }
    return {};
}

} // namespace

TableData TableFile::read(const QString &path, const TableRules &rules)
{
    const Table table = Table::read(path);
    if (table.columns() != rules.columns)
        table.fail(-1, u"the columns must be %1"_s.arg(rules.columns.join(u", "_s)));
    if (rules.rows != 0 && table.rowCount() != rules.rows) {
        table.fail(table.rowCount() - 1,
                   u"%1 rows, but %2 are needed"_s.arg(table.rowCount()).arg(rules.rows));
    }
    for (int row = 0; row < table.rowCount(); ++row) {
        for (qsizetype column = 0; column < rules.columns.size(); ++column) {
            const QString fault = faultOf(table.rows()[row][column], rules.anyCharacters);
            if (!fault.isEmpty())
                table.fail(row, rules.columns[column] + u": "_s + fault);
        }
    }
    return {rules.name, path, table.columns(), table.rows()};
}
