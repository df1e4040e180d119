#pragma once

#include "store/databasepassword.h"
#include "store/databaserecovery.h"
#include "store/datastore.h"
#include "store/latertables.h"
#include "store/loadtable.h"
#include "store/recordset.h"
#include "store/tablecatalog.h"

#include <QTest>

/// Runs load step @p step over the delivered database.
inline void loadDelivered(int step, DataStore &store)
{
    DatabaseConnection connection;
    connection.Open(QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb"), {}, DatabasePassword);
    TableLoader loader(
        store, [&](const QString &statement) { return std::make_unique<Recordset>(statement, connection); },
        [] { QFAIL("a missing table"); });
    loader.LoadCounter = step;
    loader.LoadTable(TableCatalog::statement(step));
}

/// The tables that a start leaves unread, in the delivered database.
class UnreadTables final
{
public:
    UnreadTables(DataStore &store, Desktop &desktop)
        : m_recovery(desktop, m_connection, QStringLiteral(ALEMBRA_FOLDER)),
          m_loader(
              store,
              [this](const QString &statement) {
                  return std::make_unique<Recordset>(statement, m_connection);
              },
              [this] { m_recovery.offerAfterMissingTable(); }),
          tables(store, m_loader, m_recovery)
    {}

private:
    DatabaseConnection m_connection;
    DatabaseRecovery m_recovery;
    TableLoader m_loader;

public:
    LaterTables tables;
};
