#pragma once

#include "store/rowlist.h"

#include <QList>
#include <QString>
#include <QStringList>

class ReportPage;
struct RowLists;

/// Width of the column in per cent of the table and its title, blanks at the end included.
struct ReportColumn
{
    int width;
    const char *title; ///< UTF-8
};

/// The title cell of one column; with @p attribute its tag holds that behind the width.
QString titleCell(const ReportColumn &column, const QString &attribute = {});

QStringList titleCells(const QList<ReportColumn> &columns);

/// What may be asked of a row, from 0, of a list.
using RowTest = bool (*)(const RowList &list, int row);

bool lacksText(const RowList &list, int row);

/// True if all sub-items @p Numbers are empty.
template<int... Numbers>
bool lacks(const RowList &list, int row)
{
    return (list.cell(row, Numbers).isEmpty() && ...);
}

/// How a list becomes a data table. Sub-items beyond those named are not written.
struct ReportTable
{
    QStringList head;            ///< title cells
    int subItems;                ///< written behind the row's text, from 1
    RowTest isSkipped = nullptr; ///< null: no row. A skipped row leaves the row class alone
    RowTest isPlain = nullptr;   ///< rows whose first cell is not indented; null: all

    ReportTable(QStringList titles, int lastSubItem, RowTest skipped = nullptr, RowTest plain = nullptr)
        : head(std::move(titles)), subItems(lastSubItem), isSkipped(skipped), isPlain(plain)
    {}

    /// A row's text and as many sub-items as there are further columns.
    ReportTable(const QList<ReportColumn> &columns, RowTest skipped = nullptr, RowTest plain = nullptr)
        : ReportTable(titleCells(columns), int(columns.size()) - 1, skipped, plain)
    {}
};

void writeTable(ReportPage &page, const RowList &list, const ReportTable &table);

/// A table under a heading of its own, the line break in it.
struct ReportSection
{
    const char *heading; ///< UTF-8
    const RowList &(*list)(const RowLists &);
    ReportTable table;
};

void writeSection(ReportPage &page, const RowLists &lists, const ReportSection &section);
