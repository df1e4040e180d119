#pragma once

#include "store/rowlist.h"

#include <QList>
#include <QString>
#include <QStringList>

class ReportPage;
struct RowLists;

/// Width of the column in per cent of the table, and its title with its trailing blanks.
struct ReportColumn
{
    int width;
    const char *title; ///< UTF-8
};

/// The title cell of a column. @p attribute is added to its tag, after the width.
QString titleCell(const ReportColumn &column, const QString &attribute = {});

QStringList titleCells(const QList<ReportColumn> &columns);

/// A condition on a row of a list; rows count from 0.
using RowTest = bool (*)(const RowList &list, int row);

bool lacksText(const RowList &list, int row);

/// True if all sub-items @p Numbers are empty.
template<int... Numbers>
bool lacks(const RowList &list, int row)
{
    return (list.cell(row, Numbers).isEmpty() && ...);
}

/// How to write a list as a data table. Further sub-items are not written.
struct ReportTable
{
    QStringList head;            ///< title cells
    int subItems;                ///< how many are written after the text of the row
    RowTest isSkipped = nullptr; ///< null: no row. A skipped row does not switch the row class
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

/// A table under its own heading, which ends with a line break.
struct ReportSection
{
    const char *heading; ///< UTF-8
    const RowList &(*list)(const RowLists &);
    ReportTable table;
};

void writeSection(ReportPage &page, const RowLists &lists, const ReportSection &section);
