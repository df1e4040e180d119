#pragma once

#include "store/rowsource.h"

#include <QString>
#include <functional>
#include <memory>

struct DataStore;

/// Loads all tables, one statement after another, into the lists and tables in memory.
class TableLoader final
{
public:
    /// Opens the rows of a statement; throws RuntimeError, 0x80040E37 for a table that does not exist.
    using OpenRows = std::function<std::unique_ptr<RowSource>(const QString &statement)>;

    /// @p onMissingTable is called when the table of a step is missing.
    TableLoader(DataStore &data, OpenRows openRows, std::function<void()> onMissingTable);

    /// Number of the current step, advanced by the caller. It alone decides where the rows go; the statement
    /// does not.
    int LoadCounter = 1;

    /// Runs the step of LoadCounter over the rows of @p statement. Reports a missing table through
    /// onMissingTable; any other failure ends the step silently and keeps the rows read so far.
    void LoadTable(const QString &statement);

    /// Moves @p rows into @p data as step @p step of the TableCatalog says. A failure is a RuntimeError, and
    /// what was filled by then stays. A table with fewer rows than its groups need fails at the read past its
    /// end, as does one whose groups start over.
    static void fill(int step, RowSource &rows, DataStore &data);

private:
    int runStep(const QString &statement);

    DataStore &m_data;
    OpenRows m_openRows;
    std::function<void()> m_onMissingTable;
};
