#pragma once

#include "store/rowlist.h"

#include <QList>
#include <QString>
#include <QStringList>

class ReportPage;
struct RowLists;

struct ReportColumn
{
    int width;         ///< per cent of the table
    const char *title; ///< UTF-8; trailing blanks count
};

/// The title cell of a column. @p attribute is appended to its tag.
QString titleCell(const ReportColumn &column, const QString &attribute = {});

QStringList titleCells(const QList<ReportColumn> &columns);

/// A condition on a row of a list; rows count from 0.
using RowTest = bool (*)(const RowList &list, int row);

bool lacksText(const RowList &list, int row);

/// Whether all sub-items @p Numbers are empty.
template<int... Numbers>
bool lacks(const RowList &list, int row)
{
    return (list.cell(row, Numbers).isEmpty() && ...);
}

/// How to write a list as a data table.
struct ReportTable
{
    QStringList head;  ///< title cells
    int subItems;      ///< number of cells after the text of the row
    RowTest isSkipped; ///< null: no row is. A skipped row does not alternate the row class
    RowTest isPlain;   ///< whether the first cell is not indented; null: all

    ReportTable(QStringList titles, int lastSubItem, RowTest skipped = nullptr, RowTest plain = nullptr)
        : head(std::move(titles)), subItems(lastSubItem), isSkipped(skipped), isPlain(plain)
    {}

    /// One cell per column.
    ReportTable(const QList<ReportColumn> &columns, RowTest skipped = nullptr, RowTest plain = nullptr)
        : ReportTable(titleCells(columns), int(columns.size()) - 1, skipped, plain)
    {}
};

void writeTable(ReportPage &page, const RowList &list, const ReportTable &table);

/// A table with a heading.
struct ReportSection
{
    const char *heading; ///< UTF-8
    const RowList &(*list)(const RowLists &);
    ReportTable table;
};

void writeSection(ReportPage &page, const RowLists &lists, const ReportSection &section);
