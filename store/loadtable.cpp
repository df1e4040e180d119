#include "store/loadtable.h"

#include "core/runtimeerror.h"
#include "store/datastore.h"
#include "store/loadsteps.h"

TableLoader::TableLoader(DataStore &data, OpenRows openRows, std::function<void()> onMissingTable)
    : m_data(data), m_openRows(std::move(openRows)), m_onMissingTable(std::move(onMissingTable))
{}

void TableLoader::LoadTable(const QString &statement)
{
    const int lastError = runStep(statement);
    if (LoadCounter == 1)
        m_data.SolventCount = m_data.lists.ListView1.rowCount();
    if (lastError == ErrorNumber::TableNotFound)
        m_onMissingTable();
}

// The number of the error that cut the step short, or 0.
int TableLoader::runStep(const QString &statement)
{
    try {
        const std::unique_ptr<RowSource> rows = m_openRows(statement);
        LoadSteps::run(LoadCounter, *rows, m_data);
        return 0;
    } catch (const RuntimeError &error) {
        return error.number(); // a step that fails leaves what it has and says nothing
    }
}
