#pragma once

#include <QObject>

class DatabaseRecovery;
class TableLoader;
struct DataStore;

/// The four tables that are not read at start-up, of resistors and reactions (load steps 32 to 35). They are
/// read when the user asks for them.
class LaterTables final : public QObject
{
    Q_OBJECT

public:
    LaterTables(DataStore &store, TableLoader &loader, DatabaseRecovery &recovery);

    bool areRead() const { return m_read; }

    /// Opens the database, runs the four steps and closes it, with the questions of a start: a database that
    /// cannot be opened or lacks a table ends the program. Does nothing if the tables are read already.
    /// RuntimeError if the original database cannot be put back.
    void read();

    /// After the database has been replaced: empties the lists, whose rows are no longer those of the file.
    void forget();

Q_SIGNALS:
    /// The result of areRead() has changed.
    void changed();

private:
    void setRead(bool read);

    DataStore &m_store;
    TableLoader &m_loader;
    DatabaseRecovery &m_recovery;
    bool m_read = false;
};
