#pragma once

#include "tools/tables/builderror.h"

#include <QString>
#include <QStringList>

/// One table of data/: tab-separated UTF-8 without quoting, a header row of column names, a line feed at the
/// end of each line.
///
/// Rows count from 0, the first one below the header; empty cells are empty texts.
class Table final
{
public:
    /// BuildError if @p file cannot be read, is not valid UTF-8, or a row and the header differ in their
    /// number of cells.
    static Table read(const QString &file);

    const QStringList &columns() const { return m_columns; }
    const QList<QStringList> &rows() const { return m_rows; }
    int rowCount() const { return int(m_rows.size()); }

    /// BuildError if there is no such column.
    QString cell(int row, const char *column) const;

    /// The cell as a number; BuildError if it is not one.
    double number(int row, const char *column) const;

    /// The first row whose @p column reads @p text, or -1.
    int find(const char *column, const QString &text) const;

    /// Throws a BuildError at the line of @p row, or of the header for row -1.
    [[noreturn]] void fail(int row, const QString &reason) const;

private:
    explicit Table(QString file) : m_file(std::move(file)) {}

    QString m_file;
    QStringList m_columns;
    QList<QStringList> m_rows;
};
