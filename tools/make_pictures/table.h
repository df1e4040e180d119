// One table of data/: tab-separated text in UTF-8, a header row of column names, one row for each record.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <stdexcept>

/// Why the pictures cannot be made, ready to print: "<file>:<line>: <reason>" where a table is at fault.
class PictureError : public std::runtime_error
{
public:
    explicit PictureError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

/// A table in memory. Rows count from 0, the first below the header; empty cells are empty texts.
class Table
{
public:
    /// Throws PictureError if @p file cannot be read, a row has another number of cells than the header, or
    /// one of @p columns is missing.
    static Table read(const QString &file, const QStringList &columns);

    int rowCount() const { return int(m_rows.size()); }

    /// The cell of a column that was named when reading.
    QString cell(int row, const QString &column) const;

    /// The cell as a number; a cell that is none is an error.
    double number(int row, const QString &column) const;

    /// The first row whose @p column reads @p text, or -1.
    int find(const QString &column, const QString &text) const;

    /// Ends the work with an error that names the file and the line of @p row.
    [[noreturn]] void fail(int row, const QString &reason) const;

private:
    QString m_file;
    QHash<QString, int> m_columns;
    QList<QStringList> m_rows;
};
