#include "tests/support/files.h"
#include "tests/support/filetrouble.h"
#include "update/qtupdatenetwork.h"

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace {

const QByteArray Good = "[ALEMBRA]\r\nVersion=1.1.0\r\n";

QByteArray answer(const QByteArray &content, const QByteArray &status = "200 OK",
                  const QByteArray &fields = {})
{
    return "HTTP/1.1 " + status + "\r\nContent-Length:" + QByteArray::number(content.size()) +
           "\r\nConnection: close\r\n" + fields + "\r\n" + content;
}

/// A web server on this computer that answers "/good" well, every other request with `reply`, and goes on
/// with one byte after the other where `endless` is set.
class Server final : public QTcpServer
{
public:
    QByteArray reply;
    bool hangsUp = true;
    bool endless = false;
    QByteArray request;

    Server()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                request += socket->readAll();
                if (request.endsWith("\r\n\r\n"))
                    answerTo(*socket);
            });
        });
        if (!listen(QHostAddress::LocalHost))
            qFatal("no server");
    }

    QString address(const QString &path) const
    {
        return QString("http://127.0.0.1:%1/").arg(serverPort()) + path;
    }

private:
    void answerTo(QTcpSocket &socket)
    {
        const bool good = request.contains("GET /good ");
        socket.write(good ? answer(Good) : reply);
        request = good ? request : QByteArray();
        if (good || hangsUp)
            return socket.disconnectFromHost();
        auto *timer = new QTimer(&socket);
        connect(timer, &QTimer::timeout, &socket, [this, &socket] { socket.write(endless ? "x" : ""); });
        timer->start(20);
    }
};

} // namespace

class NetworkTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
    void init() { writeFile(m_target, "from an earlier check"); }

    void onlyAWholeAnswerReachesTheDisk()
    {
        const QByteArray head = "HTTP/1.0 200 OK\r\n\r\n";
        writeFile(m_folder.filePath("secret"), "secret");
        const QByteArray secret = "Location: file://" + m_folder.filePath("secret").toUtf8() + "\r\n";
        const struct
        {
            const char *what;
            QByteArray reply;
            std::optional<QByteArray> arrives = {};
        } rows[] = {
            {"good", answer(Good), Good},
            {"without length", head + Good, Good},
            {"empty", answer({}), ""},
            {"moved", answer({}, "302 Found", "Location: /good\r\n"), Good},
            {"huge", answer(QByteArray(8'000'000, 'x'))},
            {"endless", head + QByteArray(8'000'000, 'x')},
            {"huge head", answer(Good, "200 OK", "Filler: " + QByteArray(200'000, 'x') + "\r\n")},
            {"chunked", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nsome \r\n0\r\n\r\n"},
            {"slow", "HTTP/1.1 200 OK\r\nContent-Length: 26\r\n\r\n[ALEMBRA]"},
            {"trickle", head},
            {"truncated", answer(Good + Good).chopped(Good.size())},
            {"in a circle", answer({}, "302 Found", "Location: /circle\r\n")},
            {"moved to a file", answer({}, "302 Found", secret)},
            {"missing", answer(Good, "404 Not Found")},
            {"broken", answer(Good, "500 Internal Server Error")},
            {"no HTTP", "220 ready\r\n" + Good},
            {"hangs up", {}},
        };
        for (const auto &row : rows) {
            init();
            Server server;
            server.reply = row.reply;
            server.endless = row.what == QByteArray("trickle");
            server.hangsUp = !server.endless && row.what != QByteArray("slow");
            QtUpdateNetwork({std::chrono::milliseconds(600), 64 * 1024})
                .download(server.address("path"), m_target);
            QVERIFY2(QFile::exists(m_target) == row.arrives.has_value(), row.what);
            if (row.arrives)
                QCOMPARE(readFile(m_target), *row.arrives);
        }
    }

    void asksForTheNewestCopy()
    {
        const Server server;
        QtUpdateNetwork().download(server.address("good"), m_target);
        QVERIFY2(server.request.contains("Cache-Control: no-cache"), server.request.constData());
        {
            const FullDisk disk(4); // half a file is none
            QtUpdateNetwork().download(server.address("good"), m_target);
        }
        QVERIFY(!QFile::exists(m_target));
        // A path that cannot be written stays as it is.
        const QString folder = m_folder.filePath("folder");
        writeFile(folder + "/inside", "");
        QtUpdateNetwork().download(server.address("good"), folder);
        QVERIFY(QFileInfo::exists(folder + "/inside"));
    }

    void otherAddressesFetchNothing()
    {
        writeFile(m_folder.filePath("secret"), "secret");
        for (const QString &address :
             {QString(), QString("www example org"), "file://" + m_folder.filePath("secret"),
              QString("data:text/plain,secret"), QString("http://127.0.0.1:1/versions_fr.ini")}) {
            init();
            QtUpdateNetwork().download(address, m_target);
            QVERIFY2(!QFile::exists(m_target), qPrintable(address));
        }
    }

private:
    QTemporaryDir m_folder;
    const QString m_target = m_folder.filePath("Tempo.net");
};

const TestClass<NetworkTest> networkTest;
#include "network_test.moc"
