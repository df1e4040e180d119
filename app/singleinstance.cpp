#include "app/singleinstance.h"

#include "core/platform.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>

using namespace Qt::StringLiterals;

namespace {

constexpr int AnswerMilliseconds = 3000;
constexpr char Answer = 1;

QString nameFor(const QString &appFolder)
{
    const QString whose = QDir::homePath() + u'\n' + QFileInfo(appFolder).canonicalFilePath();
    const QByteArray hash = QCryptographicHash::hash(whose.toUtf8(), QCryptographicHash::Sha256).toHex();
    return u"alembra-"_s + QLatin1StringView(hash.first(16));
}

} // namespace

SingleInstance::SingleInstance(const QString &appFolder) : m_socket(Platform::socketPath(nameFor(appFolder)))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

SingleInstance::Previous SingleInstance::activatePrevious() const
{
    const QDeadlineTimer end(AnswerMilliseconds);
    QLocalSocket socket;
    socket.connectToServer(m_socket);
    const bool answered = socket.waitForConnected(int(end.remainingTime())) &&
                          socket.waitForReadyRead(int(end.remainingTime()));
    if (answered)
        return Previous::Answered;
    // An instance that ends closes the connection.
    return end.hasExpired() ? Previous::Silent : Previous::None;
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(m_socket);
    m_server.listen(m_socket);
}

void SingleInstance::answer()
{
    while (QLocalSocket *caller = m_server.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->write(&Answer, sizeof Answer);
        caller->disconnectFromServer(); // once the answer is out
        Q_EMIT activated();
    }
}
