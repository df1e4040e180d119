#pragma once

#include "store/jet/jetfile.h"

#include <optional>

/// The connection to the program's database. It is open during start-up only.
///
/// Opening reads the whole file into memory and lets go of it, so nobody else is kept from the file.
class DatabaseConnection final
{
    Q_DISABLE_COPY_MOVE(DatabaseConnection)

public:
    static constexpr int StateClosed = 0;
    static constexpr int StateOpen = 1;

    DatabaseConnection() = default;

    /// @p user is empty or "Admin", the one account of a database without a workgroup. RuntimeError: a number
    /// of the file system if the file cannot be read, DatabaseFailure if it is no database, is damaged or
    /// refuses user or password, ObjectOpen if the connection is open already.
    void Open(const QString &path, const QString &user, const QString &password);

    int State() const { return m_file ? StateOpen : StateClosed; }

    /// Closing one that is not open is RuntimeError ObjectClosed. Recordsets that are open stay readable.
    void Close();

    /// RuntimeError ObjectClosed unless the connection is open.
    const JetFile &file() const;

private:
    std::optional<JetFile> m_file;
};
