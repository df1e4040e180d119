#pragma once

#include "store/jet/jetfile.h"

#include <optional>

/// The connection to the program's database. It is open during start-up only.
///
/// Opening reads the whole file into memory and closes it, so the file is free for other programs.
class DatabaseConnection final
{
    Q_DISABLE_COPY_MOVE(DatabaseConnection)

public:
    static constexpr int StateClosed = 0;
    static constexpr int StateOpen = 1;

    DatabaseConnection() = default;

    /// @p user is empty or "Admin", the only account of a database without a workgroup. RuntimeError: a file
    /// error if the file cannot be read, DatabaseFailure if it is not a database, is damaged or refuses the
    /// user or the password, ObjectOpen if the connection is already open.
    void Open(const QString &path, const QString &user, const QString &password);

    int State() const { return m_file ? StateOpen : StateClosed; }

    /// RuntimeError ObjectClosed unless the connection is open. Open recordsets stay readable.
    void Close();

    /// RuntimeError ObjectClosed unless the connection is open.
    const JetFile &file() const;

private:
    std::optional<JetFile> m_file;
};
