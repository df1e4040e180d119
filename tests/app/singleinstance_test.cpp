#include "app/program.h"
#include "app/singleinstance.h"
#include "tests/support/scripteddesktop.h"
#include "tests/support/testclass.h"

#include <QDir>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <future>

using Previous = SingleInstance::Previous;

/// Instances of one process stand in for those of several: they share nothing but the socket.
class SingleInstanceTest final : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;

    QStringList sockets() const { return QDir(m_folder->path()).entryList(QDir::System); }

    /// A later instance calls from a thread of its own, as another process would. An answer is only written
    /// while our event loop runs.
    Previous call() const
    {
        auto answer = std::async(std::launch::async,
                                 [this] { return SingleInstance(m_folder->path()).activatePrevious(); });
        const std::chrono::seconds now(0);
        static_cast<void>(QTest::qWaitFor([&] { return answer.wait_for(now) == std::future_status::ready; }));
        return answer.get();
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder->path()));
    }

    void eachLaterInstanceIsAnswered()
    {
        for (const char *variable : {"XDG_RUNTIME_DIR", "TMPDIR"}) { // the session's folder, or any other
            qunsetenv("XDG_RUNTIME_DIR");
            qputenv(variable, QFile::encodeName(m_folder->path()));
            {
                SingleInstance first(m_folder->path());
                const QSignalSpy calls(&first, &SingleInstance::activated);
                QCOMPARE(first.activatePrevious(), Previous::None);
                first.listen();
                QCOMPARE(sockets().size(), 1);
                QVERIFY(!(QFile::permissions(m_folder->filePath(sockets().constFirst())) &
                          (QFile::WriteGroup | QFile::WriteOther)));
                QCOMPARE(SingleInstance(m_folder->path() + "/..").activatePrevious(), Previous::None);

                for (int count = 1; count <= 4; ++count) {
                    QCOMPARE(call(), Previous::Answered);
                    QCOMPARE(calls.size(), count);
                }
            }
            QCOMPARE(sockets(), QStringList());
        }
        qunsetenv("TMPDIR");
    }

    void anInstanceThatEndsIsNoPrevious()
    {
        SingleInstance first(m_folder->path());
        first.listen();
        const QString socket = m_folder->filePath(sockets().constFirst());
        first.close();
        QCOMPARE(call(), Previous::None);

        QLocalServer ending;
        QVERIFY(ending.listen(socket));
        connect(&ending, &QLocalServer::newConnection, this,
                [&] { ending.nextPendingConnection()->abort(); });
        QCOMPARE(call(), Previous::None);
    }

    void aSilentInstanceIsReported()
    {
        SingleInstance hung(m_folder->path());
        hung.listen(); // and no event loop runs
        ScriptedDesktop desktop;
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, Main(desktop, m_folder->path()));
        QCOMPARE(desktop.boxes.size(), 1);
        QVERIFY(desktop.boxes.constFirst().first.contains("does not answer"));
    }

    void withoutASocketItRunsAlone()
    {
        // Nobody may write there; a path that is too long.
        for (const QString &folder : {QString("/proc"), m_folder->filePath(QString(200, 'x'))}) {
            QDir().mkpath(folder);
            qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder));
            SingleInstance first(m_folder->path());
            QCOMPARE(first.activatePrevious(), Previous::None);
            first.listen();
            QCOMPARE(SingleInstance(m_folder->path()).activatePrevious(), Previous::None);
            QCOMPARE(sockets(), QStringList());
        }
    }
};

const TestClass<SingleInstanceTest> singleInstanceTest;
#include "singleinstance_test.moc"
