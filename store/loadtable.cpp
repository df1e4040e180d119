#include "store/loadtable.h"

#include "core/runtimeerror.h"
#include "store/datastore.h"
#include "store/tablecatalog.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

using TableCatalog::Group;
using TableCatalog::Surplus;

/// The rows of one step on their way into the store.
class StepRun
{
public:
    StepRun(int step, RowSource &rows, DataStore &data)
        : m_step(TableCatalog::at(step)), m_allFields(TableCatalog::columns(step).size()), m_rows(rows),
          m_data(data), m_tally(data.tallies.rows[size_t(step)])
    {
        std::iota(m_allFields.begin(), m_allFields.end(), 0);
        for (int group = 0; group < m_step.groups.size(); ++group) {
            if (m_step.groups[group].list)
                m_step.groups[group].list(data.lists).setOrigin({step, group});
        }
    }

    void all()
    {
        takeGroups();
        if (m_step.surplus == Surplus::ToFirstGroup)
            takeRest(m_step.groups.constFirst());
        while (m_step.surplus == Surplus::StartsOver && !m_rows.atEnd())
            takeGroups();
    }

private:
    void takeGroups()
    {
        for (const Group &group : m_step.groups) {
            for (int row = 0; row < group.rows; ++row)
                take(group);
        }
    }

    void takeRest(const Group &group)
    {
        while (!m_rows.atEnd())
            take(group);
    }

    void take(const Group &group)
    {
        if (group.list)
            append(group.list(m_data.lists), group.fields.isEmpty() ? m_allFields : group.fields);
        if (m_step.handler)
            m_step.handler(m_rows, m_data, m_row);
        ++m_tally;
        ++m_row;
        m_rows.moveNext();
    }

    void append(RowList &list, const QList<int> &fields) const
    {
        list.append(m_rows.field(fields.constFirst()));
        for (qsizetype cell = 1; cell < fields.size(); ++cell)
            list.appendSubItem(m_rows.field(fields[cell]));
    }

    const TableCatalog::Step &m_step;
    QList<int> m_allFields;
    RowSource &m_rows;
    DataStore &m_data;
    int &m_tally;
    int m_row = 0;
};

void explainEmptyLists(const TableCatalog::Step &step, const QString &column, RowLists &lists)
{
    for (const Group &group : step.groups) {
        if (group.list)
            group.list(lists).setWhyEmpty(
                u"The database has no column %1: it was made for another version of Alembra.\n"
                "To put the original database back, choose Restore in the options, tab Database."_s.arg(
                    column));
    }
}

} // namespace

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
        fill(LoadCounter, *m_openRows(statement), m_data);
        return 0;
    } catch (const RuntimeError &error) {
        // A step that fails keeps its rows and says nothing, but a list without a column says so itself.
        if (error.number() == ErrorNumber::ColumnNotFound)
            explainEmptyLists(TableCatalog::at(LoadCounter), error.subject(), m_data.lists);
        return error.number();
    }
}

void TableLoader::fill(int step, RowSource &rows, DataStore &data)
{
    StepRun(step, rows, data).all();
}
