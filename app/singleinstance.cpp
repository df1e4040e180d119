#include "app/singleinstance.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QLocalSocket>
#include <unistd.h>

namespace {

// Where the answer of a running instance would take longer, it hangs, and a second one must not hang with it.
constexpr int AnswerMilliseconds = 1000;

QString socketName(const QString &appFolder)
{
    const QString canonical = QFileInfo(appFolder).canonicalFilePath();
    const QByteArray folder =
        QCryptographicHash::hash(canonical.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    const QString name = QStringLiteral("alembra-%1-%2").arg(getuid()).arg(QLatin1StringView(folder));
    // The user's own folder where the session has one: nobody else can put a socket there.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QFileInfo(runtime).isDir() ? runtime + QLatin1Char('/') + name : name;
}

} // namespace

SingleInstance::SingleInstance(const QString &appFolder) : m_name(socketName(appFolder))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *caller = m_server.nextPendingConnection())
            connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        Q_EMIT activated();
    });
}

// The call itself is the message: there is nothing else to say.
bool SingleInstance::activatePrevious()
{
    QLocalSocket socket;
    socket.connectToServer(m_name);
    if (!socket.waitForConnected(AnswerMilliseconds))
        return false;
    socket.disconnectFromServer();
    return true;
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(m_name);
    m_server.listen(m_name); // without a socket the program runs all the same, only not alone
}
