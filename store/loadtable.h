#pragma once

#include "store/rowsource.h"

#include <QString>
#include <functional>
#include <memory>

struct DataStore;

/// The load of all tables, one statement after another, into the lists and tables in memory.
class TableLoader final
{
public:
    /// Opens the rows of a statement; throws RuntimeError, 0x80040E37 for a table that does not exist.
    using OpenRows = std::function<std::unique_ptr<RowSource>(const QString &statement)>;

    /// @p onMissingTable is called when a step found its table missing.
    TableLoader(DataStore &data, OpenRows openRows, std::function<void()> onMissingTable);

    /// Number of the step in progress. The caller moves it; it decides what becomes of the rows, not the
    /// statement.
    int LoadCounter = 1;

    /// Runs the step of LoadCounter over the rows of @p statement. Only a missing table is told to anybody;
    /// every other failure ends the step in silence, with the rows so far.
    void LoadTable(const QString &statement);

private:
    int runStep(const QString &statement);

    DataStore &m_data;
    OpenRows m_openRows;
    std::function<void()> m_onMissingTable;
};
