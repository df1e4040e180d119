#include "update/qtupdatenetwork.h"

#include <QCursor>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QNetworkAccessManager>
#include <QNetworkInterface>
#include <QNetworkReply>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <optional>

namespace {

constexpr int MostRedirections = 5;

class WaitingPointer final
{
    Q_DISABLE_COPY_MOVE(WaitingPointer)

public:
    WaitingPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitingPointer() { QGuiApplication::restoreOverrideCursor(); }
};

QNetworkRequest requestFor(const QString &address)
{
    QNetworkRequest request{QUrl(address, QUrl::StrictMode)};
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setRawHeader("Cache-Control", "no-cache");
    request.setRawHeader("Pragma", "no-cache");
    request.setMaximumRedirectsAllowed(MostRedirections);
    return request;
}

/// What @p address holds; nothing unless all of it arrives within the limits.
std::optional<QByteArray> fetch(const QString &address, const QtUpdateNetwork::Limits &limits)
{
    const QNetworkRequest request = requestFor(address);
    if (!request.url().scheme().startsWith(QLatin1StringView("http")))
        return std::nullopt;
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.get(request));
    QByteArray content;
    QEventLoop loop;
    QTimer::singleShot(limits.time, reply.get(), &QNetworkReply::abort);
    QObject::connect(reply.get(), &QNetworkReply::readyRead, reply.get(), [&] {
        content += reply->readAll();
        if (content.size() > limits.bytes)
            reply->abort();
    });
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply->isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);

    if (!reply->isFinished() || reply->error() != QNetworkReply::NoError)
        return std::nullopt;
    content += reply->readAll();
    return content.size() > limits.bytes ? std::nullopt : std::optional(content);
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
    const WaitingPointer pointer;
    QFile file(path);
    file.remove();
    const std::optional<QByteArray> content = fetch(address, m_limits);
    if (!content || !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    const bool whole = file.write(*content) == content->size() && file.flush();
    file.close();
    if (!whole)
        file.remove();
}
