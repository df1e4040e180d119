#include "store/latertables.h"

#include "store/databaserecovery.h"
#include "store/datastore.h"
#include "store/loadtable.h"
#include "store/tablecatalog.h"

namespace {

constexpr int FirstStep = TableCatalog::LastStepAtStart + 1;

QList<RowList *> listsOf(RowLists &lists)
{
    QList<RowList *> all{&lists.Combo4};
    for (const int list : {4, 5, 6, 7, 8, 9})
        all << &lists.Combo2[list];
    for (const int list : {28, 29, 31})
        all << &lists.ListView3[list];
    return all;
}

} // namespace

LaterTables::LaterTables(DataStore &store, TableLoader &loader, DatabaseRecovery &recovery)
    : m_store(store), m_loader(loader), m_recovery(recovery)
{}

void LaterTables::read()
{
    if (m_read)
        return;
    m_recovery.ConnectDatabase();
    for (int step = FirstStep; step <= TableCatalog::LastStep; ++step) {
        m_loader.LoadCounter = step;
        m_loader.LoadTable(TableCatalog::statement(step));
    }
    m_recovery.DisconnectDatabase();
    for (RowList *list : listsOf(m_store.lists))
        list->filled();
    setRead(true);
}

void LaterTables::forget()
{
    if (!m_read)
        return;
    for (RowList *list : listsOf(m_store.lists))
        list->clear();
    m_store.tables.ResistorColourData = {};
    for (int step = FirstStep; step <= TableCatalog::LastStep; ++step)
        m_store.tallies.rows[size_t(step)] = 0;
    setRead(false);
}

void LaterTables::setRead(bool read)
{
    m_read = read;
    Q_EMIT changed();
}
