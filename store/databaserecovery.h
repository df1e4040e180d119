#pragma once

#include <QString>

class DatabaseConnection;
class Desktop;

/// Opens the database at start, and offers to restore the delivered one if it cannot be opened or lacks a
/// table.
///
/// Both offers end the program: on No at once, on Yes after the copy and its message. If the copy fails, the
/// RuntimeError of copyFileOver reaches the caller.
class DatabaseRecovery final
{
public:
    /// @p appFolder is the program folder, without a separator at its end.
    DatabaseRecovery(Desktop &desktop, DatabaseConnection &connection, QString appFolder);

    /// Returns only with an open connection.
    void ConnectDatabase();

    /// Closes the connection; RuntimeError 3704 if it is not open.
    void DisconnectDatabase();

    /// Called when the table of a load step is missing. Never returns.
    void offerAfterMissingTable();

private:
    bool open();
    void offerAfterFailedOpen();
    bool userWantsOriginal();
    void reinstallAs(const QString &destination);
    QString path(const char *below) const;

    Desktop &m_desktop;
    DatabaseConnection &m_connection;
    const QString m_appFolder;
};
