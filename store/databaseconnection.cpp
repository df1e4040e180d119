#include "store/databaseconnection.h"

#include "core/runtimeerror.h"

void DatabaseConnection::Open(const QString &path, const QString &user, const QString &password)
{
    if (m_file)
        throw RuntimeError(ErrorNumber::ObjectOpen, path);
    if (!user.isEmpty() && user.compare(QLatin1StringView("Admin"), Qt::CaseInsensitive) != 0)
        throw RuntimeError(ErrorNumber::DatabaseFailure, user);
    m_file = JetFile::open(path, password);
}

void DatabaseConnection::Close()
{
    file();
    m_file.reset();
}

const JetFile &DatabaseConnection::file() const
{
    if (!m_file)
        throw RuntimeError(ErrorNumber::ObjectClosed);
    return *m_file;
}
