#include "update/qtupdatenetwork.h"

#include <QElapsedTimer>
#include <QFile>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

const QByteArray Good = "[ALEMBRA]\r\nVersion=1.1.0\r\n";

QByteArray answer(const QByteArray &content, const QByteArray &status = "200 OK",
                  const QByteArray &fields = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(content.size()) +
           "\r\nConnection: close\r\n" + fields + "\r\n" + content;
}

/// A web server on this computer that answers each path in its own way, most of them badly.
class Server final : public QTcpServer
{
public:
    Server()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                m_request += socket->readAll();
                if (m_request.endsWith("\r\n\r\n"))
                    reply(*socket);
            });
        });
        if (!listen(QHostAddress::LocalHost))
            qFatal("no server");
    }

    QString address(const QString &path) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(QString::number(serverPort()), path);
    }

    QByteArray secretFile;
    QByteArray lastRequest;

private:
    void reply(QTcpSocket &socket)
    {
        lastRequest = std::exchange(m_request, {});
        const QByteArray path = lastRequest.split(' ').at(1);
        if (path == "/slow")
            return void(socket.write("HTTP/1.1 200 OK\r\nContent-Length: 26\r\n\r\n[ALEMBRA]"));
        if (path == "/trickle")
            return trickle(socket);
        socket.write(content(path));
        socket.disconnectFromHost();
    }

    QByteArray content(const QByteArray &path) const
    {
        if (path == "/good")
            return answer(Good);
        if (path == "/without-length")
            return "HTTP/1.0 200 OK\r\n\r\n" + Good;
        if (path == "/empty")
            return answer({});
        if (path == "/huge")
            return answer(QByteArray(8'000'000, 'x'));
        if (path == "/endless")
            return "HTTP/1.0 200 OK\r\n\r\n" + QByteArray(8'000'000, 'x');
        if (path == "/huge-head")
            return answer(Good, "200 OK", "Filler: " + QByteArray(200'000, 'x') + "\r\n");
        if (path == "/in-pieces")
            return "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nsome \r\n0\r\n\r\n";
        if (path == "/truncated")
            return answer(Good + Good).chopped(Good.size());
        if (path == "/moved")
            return answer({}, "302 Found", "Location: /good\r\n");
        if (path == "/moved-in-a-circle")
            return answer({}, "302 Found", "Location: /moved-in-a-circle\r\n");
        if (path == "/moved-to-a-file")
            return answer({}, "302 Found", "Location: file://" + secretFile + "\r\n");
        if (path == "/missing")
            return answer(Good, "404 Not Found");
        if (path == "/broken")
            return answer(Good, "500 Internal Server Error");
        if (path == "/no-http")
            return "220 ready\r\n" + Good;
        return {};
    }

    // One more byte before anybody grows impatient, for ever.
    static void trickle(QTcpSocket &socket)
    {
        socket.write("HTTP/1.0 200 OK\r\n\r\n");
        auto *timer = new QTimer(&socket);
        connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("x"); });
        timer->start(20);
    }

    QByteArray m_request;
};

} // namespace

class UpdateNetworkTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
    void onlyAWholeAnswerReachesTheDisk_data();
    void onlyAWholeAnswerReachesTheDisk();
    void asksForTheNewestCopy();
    void otherAddressesFetchNothing_data();
    void otherAddressesFetchNothing();
    void aPathThatCannotBeWrittenStaysAsItIs();

private:
    QString target() const { return m_folder.filePath(QStringLiteral("Tempo.net")); }
    void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QTemporaryDir m_folder;
};

void UpdateNetworkTest::onlyAWholeAnswerReachesTheDisk_data()
{
    QTest::addColumn<bool>("arrives");
    QTest::addColumn<QByteArray>("content");
    const auto row = [](const char *path, bool arrives, const QByteArray &content = {}) {
        QTest::newRow(path) << arrives << content;
    };
    row("/good", true, Good);
    row("/without-length", true, Good);
    row("/empty", true);
    row("/moved", true, Good);
    row("/huge", false);
    row("/endless", false);
    row("/huge-head", false);
    row("/in-pieces", false);
    row("/slow", false);
    row("/trickle", false);
    row("/truncated", false);
    row("/moved-in-a-circle", false);
    row("/moved-to-a-file", false);
    row("/missing", false);
    row("/broken", false);
    row("/no-http", false);
    row("/hangs-up", false);
}

void UpdateNetworkTest::onlyAWholeAnswerReachesTheDisk()
{
    QFETCH(bool, arrives);
    QFETCH(QByteArray, content);
    Server server;
    server.secretFile = m_folder.filePath(QStringLiteral("secret")).toUtf8();
    write(QString::fromUtf8(server.secretFile), "secret");
    write(target(), "left behind by an earlier check");
    QtUpdateNetwork network({std::chrono::milliseconds(600), 64 * 1024});
    QElapsedTimer clock;
    clock.start();

    network.download(server.address(QString::fromUtf8(QTest::currentDataTag())), target());

    QVERIFY(clock.elapsed() < 5000);
    QFile file(target());
    QCOMPARE(file.exists(), arrives);
    if (arrives) {
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), content);
    }
}

void UpdateNetworkTest::asksForTheNewestCopy()
{
    Server server;
    QtUpdateNetwork().download(server.address(QStringLiteral("/good")), target());
    QVERIFY2(server.lastRequest.contains("Cache-Control: no-cache"), server.lastRequest.constData());
}

void UpdateNetworkTest::otherAddressesFetchNothing_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("empty") << QString();
    QTest::newRow("no address") << QStringLiteral("www example org");
    QTest::newRow("file") << QStringLiteral("file://") + m_folder.filePath(QStringLiteral("secret"));
    QTest::newRow("data") << QStringLiteral("data:text/plain,secret");
    QTest::newRow("nobody answers") << QStringLiteral("http://127.0.0.1:1/versions_fr.ini");
}

void UpdateNetworkTest::otherAddressesFetchNothing()
{
    QFETCH(QString, address);
    write(m_folder.filePath(QStringLiteral("secret")), "secret");
    write(target(), "left behind by an earlier check");
    QtUpdateNetwork().download(address, target());
    QVERIFY(!QFile::exists(target()));
}

void UpdateNetworkTest::aPathThatCannotBeWrittenStaysAsItIs()
{
    Server server;
    const QString folder = m_folder.filePath(QStringLiteral("folder"));
    QVERIFY(QDir().mkpath(folder + QStringLiteral("/inside")));
    QtUpdateNetwork().download(server.address(QStringLiteral("/good")), folder);
    QVERIFY(QFileInfo::exists(folder + QStringLiteral("/inside")));
}

QTEST_MAIN(UpdateNetworkTest)
#include "update_network_test.moc"
