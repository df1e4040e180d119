#include "update/qtupdatenetwork.h"

#include <QCursor>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QNetworkInterface>
#include <QScopeGuard>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <optional>

// Not with QNetworkAccessManager, which does not limit the size of an answer's head.
namespace {

constexpr int MostRedirections = 5;
constexpr qint64 MostHeadBytes = 16'384;

struct Answer
{
    int status = 0;
    QByteArray location;
    std::optional<qint64> length; ///< of the content, if known
    QByteArray content;
};

bool isEncrypted(const QUrl &url)
{
    return url.scheme() == u"https";
}

bool canBeAsked(const QUrl &url)
{
    return (url.scheme() == u"http" || isEncrypted(url)) && !url.host().isEmpty();
}

// In HTTP 1.0 the content has no chunks: it ends with the connection.
QByteArray requestFor(const QUrl &url)
{
    const QByteArray host = url.adjusted(QUrl::RemoveUserInfo).authority(QUrl::FullyEncoded).toLatin1();
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray query = url.query(QUrl::FullyEncoded).toLatin1();
    return "GET " + (path.isEmpty() ? "/" : path) + (query.isEmpty() ? "" : '?' + query) +
           " HTTP/1.0\r\nHost: " + host +
           "\r\nCache-Control: no-cache\r\nPragma: no-cache\r\nConnection: close\r\n\r\n";
}

/// What the server at @p url sends until it closes the connection; nothing if that is not before @p end or is
/// more than @p mostBytes.
std::optional<QByteArray> receive(const QUrl &url, qint64 mostBytes, const QDeadlineTimer &end)
{
    QSslSocket socket;
    QEventLoop loop;
    QByteArray bytes;
    QTimer::singleShot(std::chrono::milliseconds(end.remainingTime()), &loop, &QEventLoop::quit);
    const auto ends = [&](auto signal) {
        QObject::connect(&socket, signal, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    };
    ends(&QSslSocket::disconnected);
    ends(&QSslSocket::errorOccurred);
    QObject::connect(&socket, isEncrypted(url) ? &QSslSocket::encrypted : &QSslSocket::connected, &loop,
                     [&] { socket.write(requestFor(url)); });
    QObject::connect(&socket, &QSslSocket::readyRead, &loop, [&] {
        bytes += socket.readAll();
        if (bytes.size() > mostBytes)
            loop.quit();
    });
    if (isEncrypted(url))
        socket.connectToHostEncrypted(url.host(), quint16(url.port(443)));
    else
        socket.connectToHost(url.host(), quint16(url.port(80)));
    loop.exec(QEventLoop::ExcludeUserInputEvents);

    const bool whole = socket.error() == QAbstractSocket::RemoteHostClosedError && bytes.size() <= mostBytes;
    return whole ? std::optional(bytes) : std::nullopt;
}

std::optional<Answer> parse(const QByteArray &bytes)
{
    const qsizetype headSize = bytes.indexOf("\r\n\r\n");
    if (headSize < 0 || !bytes.startsWith("HTTP/1."))
        return std::nullopt;
    QList<QByteArray> lines = bytes.first(headSize).split('\n');
    Answer answer;
    answer.status = lines.takeFirst().mid(9, 3).toInt();
    answer.content = bytes.sliced(headSize + 4);
    for (const QByteArray &line : std::as_const(lines)) {
        const qsizetype colon = line.indexOf(':');
        const QByteArray name = line.left(colon).trimmed().toLower();
        const QByteArray value = line.mid(colon + 1).trimmed();
        if (name == "location")
            answer.location = value;
        else if (name == "content-length")
            answer.length = value.toLongLong();
        else if (name == "transfer-encoding")
            return std::nullopt; // unknown in HTTP 1.0
    }
    return answer;
}

/// The content at @p address; nothing unless it arrives completely and within the limits.
std::optional<QByteArray> fetch(const QString &address, const QtUpdateNetwork::Limits &limits)
{
    const QDeadlineTimer end(limits.time);
    QUrl url(address, QUrl::StrictMode);
    for (int redirections = 0; canBeAsked(url) && redirections <= MostRedirections; ++redirections) {
        const std::optional<QByteArray> bytes = receive(url, MostHeadBytes + limits.bytes, end);
        const std::optional<Answer> answer = bytes ? parse(*bytes) : std::nullopt;
        if (!answer)
            return std::nullopt;
        const qint64 size = answer->content.size();
        if (answer->status == 200)
            return size <= limits.bytes && size == answer->length.value_or(size)
                       ? std::optional(answer->content)
                       : std::nullopt;
        if (answer->status / 100 != 3 || answer->location.isEmpty())
            return std::nullopt;
        const bool encrypted = isEncrypted(url);
        url = url.resolved(QUrl::fromEncoded(answer->location, QUrl::StrictMode));
        if (encrypted && !isEncrypted(url))
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace

bool QtUpdateNetwork::isConnected() const
{
    constexpr QNetworkInterface::InterfaceFlags Alive =
        QNetworkInterface::IsUp | QNetworkInterface::IsRunning;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    return std::any_of(interfaces.begin(), interfaces.end(), [&](const QNetworkInterface &interface) {
        return (interface.flags() & (Alive | QNetworkInterface::IsLoopBack)) == Alive;
    });
}

void QtUpdateNetwork::download(const QString &address, const QString &path)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto restoreCursor = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    QFile file(path);
    file.remove();
    const std::optional<QByteArray> content = fetch(address, m_limits);
    if (!content || !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    const bool complete = file.write(*content) == content->size() && file.flush();
    file.close();
    if (!complete)
        file.remove();
}
