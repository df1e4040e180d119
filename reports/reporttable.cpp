#include "reports/reporttable.h"

#include "reports/reportpage.h"

using namespace Qt::StringLiterals;

QString titleCell(const ReportColumn &column, const QString &attribute)
{
    return uR"(<td width="%1%"%2><b>%3</b></td>)"_s.arg(QString::number(column.width), attribute,
                                                        column.title);
}

QStringList titleCells(const QList<ReportColumn> &columns)
{
    QStringList cells;
    for (const ReportColumn &column : columns)
        cells << titleCell(column);
    return cells;
}

bool lacksText(const RowList &list, int row)
{
    return list.cell(row, 0).isEmpty();
}

void writeTable(ReportPage &page, const RowList &list, const ReportTable &table)
{
    page.openTable(table.head);
    for (int row = 0; row < list.rowCount(); ++row) {
        if (table.isSkipped && table.isSkipped(list, row))
            continue;
        page.startRow();
        if (!table.isPlain || table.isPlain(list, row))
            page.cell(list.cell(row, 0));
        else
            page.cell("<span style=margin-left:30px;>" + list.text(row) + "</span>");
        for (int number = 1; number <= table.subItems; ++number)
            page.cell(list.cell(row, number));
        page.endRow();
    }
    page.closeTable();
}

void writeSection(ReportPage &page, const RowLists &lists, const ReportSection &section)
{
    page.sectionHeading(section.heading);
    writeTable(page, section.list(lists), section.table);
}
