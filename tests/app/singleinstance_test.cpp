#include "app/singleinstance.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A local socket that knows nothing of ours, as another process would have it.
class ForeignSocket final
{
    Q_DISABLE_COPY_MOVE(ForeignSocket)

public:
    explicit ForeignSocket(const QByteArray &path, int kind = 0)
        : m_descriptor(::socket(AF_UNIX, SOCK_STREAM | kind, 0))
    {
        qstrncpy(m_address.sun_path, path.constData(), sizeof m_address.sun_path);
    }
    ~ForeignSocket() { ::close(m_descriptor); }

    bool bind() const { return ::bind(m_descriptor, address(), sizeof m_address) == 0; }
    bool listen(int waiting) const { return ::listen(m_descriptor, waiting) == 0; }
    bool connect() const { return ::connect(m_descriptor, address(), sizeof m_address) == 0; }

private:
    const sockaddr *address() const { return reinterpret_cast<const sockaddr *>(&m_address); }

    const int m_descriptor;
    sockaddr_un m_address{.sun_family = AF_UNIX, .sun_path = {}};
};

} // namespace

/// Instances of one process stand in for those of several: they share nothing but the socket.
class SingleInstanceTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void eachLaterInstanceCallsTheFirst_data();
    void eachLaterInstanceCallsTheFirst();
    void aStaleSocketIsReplaced();
    void aHungInstanceDoesNotHangTheNext();
    void withoutASocketItRunsAlone_data();
    void withoutASocketItRunsAlone();
    void otherUsersAreNotListenedTo();

private:
    QStringList sockets() const { return QDir(m_folder->path()).entryList(QDir::System); }
    /// Where the socket of an instance for the folder is.
    QByteArray path() const
    {
        SingleInstance instance(m_folder->path());
        instance.listen();
        return QFile::encodeName(m_folder->filePath(sockets().value(0)));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void SingleInstanceTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder->path()));
}

void SingleInstanceTest::eachLaterInstanceCallsTheFirst_data()
{
    QTest::addColumn<bool>("session");
    QTest::newRow("in the session's folder") << true;
    QTest::newRow("in the folder for temporary files") << false;
}

void SingleInstanceTest::eachLaterInstanceCallsTheFirst()
{
    QFETCH(const bool, session);
    if (!session) {
        qunsetenv("XDG_RUNTIME_DIR");
        qputenv("TMPDIR", QFile::encodeName(m_folder->path()));
    }
    {
        const mode_t usual = ::umask(0);
        SingleInstance first(m_folder->path());
        QSignalSpy calls(&first, &SingleInstance::activated);
        QVERIFY(!first.activatePrevious());
        first.listen();
        ::umask(usual);
        QCOMPARE(sockets().size(), 1);
        struct stat status
        {
        };
        QCOMPARE(::stat(QFile::encodeName(m_folder->filePath(sockets().constFirst())).constData(), &status),
                 0);
        QCOMPARE(status.st_mode & 0777U, 0600U);

        QVERIFY(SingleInstance(m_folder->path()).activatePrevious());
        QVERIFY(SingleInstance(m_folder->path()).activatePrevious());
        QTRY_COMPARE(calls.size(), 2);
        QVERIFY(!SingleInstance(m_folder->path() + QStringLiteral("/..")).activatePrevious());
    }
    qunsetenv("TMPDIR");
    QCOMPARE(sockets(), QStringList());
}

void SingleInstanceTest::aStaleSocketIsReplaced()
{
    const QByteArray path = this->path();
    QVERIFY(ForeignSocket(path).bind());
    SingleInstance next(m_folder->path());
    QVERIFY(!next.activatePrevious());
    next.listen();
    QVERIFY(SingleInstance(m_folder->path()).activatePrevious());
}

void SingleInstanceTest::aHungInstanceDoesNotHangTheNext()
{
    const QByteArray path = this->path();
    const ForeignSocket hung(path);
    QVERIFY(hung.bind() && hung.listen(0));
    const ForeignSocket waiting(path, SOCK_NONBLOCK);
    const ForeignSocket refused(path, SOCK_NONBLOCK);
    QVERIFY(waiting.connect() && !refused.connect());

    SingleInstance next(m_folder->path());
    QVERIFY(!next.activatePrevious());
    next.listen();
    QVERIFY(SingleInstance(m_folder->path()).activatePrevious());
}

void SingleInstanceTest::withoutASocketItRunsAlone_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("nobody may write there") << QStringLiteral("/proc");
    QTest::newRow("a path that is too long") << m_folder->filePath(QString(200, QLatin1Char('x')));
}

void SingleInstanceTest::withoutASocketItRunsAlone()
{
    QFETCH(const QString, folder);
    QDir().mkpath(folder);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder));
    SingleInstance first(m_folder->path());
    QVERIFY(!first.activatePrevious());
    first.listen();
    QVERIFY(!SingleInstance(m_folder->path()).activatePrevious());
    QCOMPARE(sockets(), QStringList());
}

// The permissions keep them out; should these be changed, they are still not heard.
void SingleInstanceTest::otherUsersAreNotListenedTo()
{
    if (::getuid() != 0)
        QSKIP("only root can be somebody else");
    const QByteArray path = this->path();
    SingleInstance first(m_folder->path());
    QSignalSpy calls(&first, &SingleInstance::activated);
    first.listen();
    QCOMPARE(::chmod(QFile::encodeName(m_folder->path()).constData(), 0755), 0);
    QCOMPARE(::chmod(path.constData(), 0666), 0);
    const pid_t other = ::fork();
    if (other == 0)
        ::_exit(::setuid(12345) == 0 && ForeignSocket(path).connect() ? 0 : 1);
    int status = -1;
    QCOMPARE(::waitpid(other, &status, 0), other);
    QCOMPARE(status, 0);

    QVERIFY(SingleInstance(m_folder->path()).activatePrevious());
    QTRY_VERIFY(!calls.isEmpty());
    QTest::qWait(50);
    QCOMPARE(calls.size(), 1);
}

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "singleinstance_test.moc"
