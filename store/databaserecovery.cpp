#include "store/databaserecovery.h"

#include "core/desktop.h"
#include "core/filecopy.h"
#include "store/databaseconnection.h"
#include "store/databasepassword.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char *Database = "/Data/Database_uk.mdb";
constexpr const char *Original = "/Backup/Database_uk_origin.rbk";

// Deliberately without "_uk": after a missing table the copy goes to a file that the program does not open,
// so the next start finds the same database and asks again.
constexpr const char *CopyAfterMissingTable = "/Data/Database.mdb";

} // namespace

DatabaseRecovery::DatabaseRecovery(Desktop &desktop, DatabaseConnection &connection, QString appFolder)
    : m_desktop(desktop), m_connection(connection), m_appFolder(std::move(appFolder))
{}

QString DatabaseRecovery::path(const char *below) const
{
    return m_appFolder + QLatin1StringView(below);
}

void DatabaseRecovery::ConnectDatabase()
{
    bool trapped = false;
    try {
        if (open())
            return;
        offerAfterFailedOpen();
    } catch (const RuntimeError &) {
        trapped = true; // opening failed, or the copy after an open without an error: ask (again)
    }
    if (trapped)
        offerAfterFailedOpen();
}

// False if opening reported success but left the connection closed.
bool DatabaseRecovery::open()
{
    m_connection.Open(path(Database), QString(), DatabasePassword);
    return m_connection.State() == DatabaseConnection::StateOpen;
}

void DatabaseRecovery::DisconnectDatabase()
{
    m_connection.Close();
}

void DatabaseRecovery::offerAfterFailedOpen()
{
    if (!userWantsOriginal())
        m_desktop.endProcess(0);
    reinstallAs(path(Database));
}

void DatabaseRecovery::offerAfterMissingTable()
{
    if (!userWantsOriginal())
        m_desktop.endProcess(0);
    DisconnectDatabase();
    reinstallAs(path(CopyAfterMissingTable));
}

bool DatabaseRecovery::userWantsOriginal()
{
    const auto question =
        u"Impossible to connect to the database! Do you want to reinstall the original database?"_s;
    return m_desktop.messageBox(question, Desktop::Critical + Desktop::YesNo) == Desktop::Yes;
}

void DatabaseRecovery::reinstallAs(const QString &destination)
{
    copyFileOver(path(Original), destination);
    m_desktop.messageBox(u"The original database was successfully reinstalled! Changes will be "
                         "effective after restating the program."_s,
                         Desktop::Information);
    m_desktop.endProcess(0);
}
