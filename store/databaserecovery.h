#pragma once

#include <QString>

class DatabaseConnection;
class Desktop;

/// Opening the database at start, and the two offers to put the delivered one back.
///
/// Both end the program: on No at once, on Yes after the copy and its message. A copy that fails is the
/// RuntimeError of copyFileOver, for the caller to report.
class DatabaseRecovery final
{
public:
    /// @p appFolder is the program folder, without a separator at its end.
    DatabaseRecovery(Desktop &desktop, DatabaseConnection &connection, QString appFolder);

    /// Returns only with an open connection.
    void ConnectDatabase();

    /// Closes the connection; RuntimeError 3704 if it is not open.
    void DisconnectDatabase();

    /// For a load step whose table is missing. Never returns.
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
