#include "tests/support/programfolder.h"

#include <QProcess>
#include <QTest>
#include <csignal>

/// The real executable in processes of its own: one instance for a folder, and the report of a failed start.
class ProcessTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSecondStartEndsInFavourOfTheFirst();
    void aKilledInstanceDoesNotBlockTheNext();
    void foldersDoNotKnowOfOneAnother();
    void aFailedStartIsReportedOnStandardError();

private:
    // In a session of its own, whose folder for sockets is gone afterwards.
    std::unique_ptr<QProcess> start(const ProgramFolder &folder)
    {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_session.path());
        process->setProcessEnvironment(environment);
        process->setProgram(folder.executable());
        process->start();
        process->waitForStarted();
        return process;
    }

    // Whether the process ends by itself within @p milliseconds.
    static bool ends(QProcess &process, int milliseconds) { return process.waitForFinished(milliseconds); }

    bool answers(const ProgramFolder &folder)
    {
        const std::unique_ptr<QProcess> second = start(folder);
        const bool ended = ends(*second, 10000) && second->exitStatus() == QProcess::NormalExit;
        const bool quiet =
            second->readAllStandardError().isEmpty() && second->readAllStandardOutput().isEmpty();
        second->kill();
        second->waitForFinished();
        return ended && quiet && second->exitCode() == 0;
    }

    const QTemporaryDir m_session;
};

void ProcessTest::aSecondStartEndsInFavourOfTheFirst()
{
    const ProgramFolder folder;
    const std::unique_ptr<QProcess> first = start(folder);
    QTest::qWait(1000);

    QVERIFY(answers(folder));

    QCOMPARE(first->state(), QProcess::Running);
    first->kill();
    first->waitForFinished();
}

void ProcessTest::aKilledInstanceDoesNotBlockTheNext()
{
    const ProgramFolder folder;
    const std::unique_ptr<QProcess> killed = start(folder);
    QTest::qWait(1000);
    ::kill(pid_t(killed->processId()), SIGKILL);
    QVERIFY(ends(*killed, 10000));

    const std::unique_ptr<QProcess> next = start(folder);
    QVERIFY(!ends(*next, 1500));
    QVERIFY(answers(folder));
    next->kill();
    next->waitForFinished();
}

void ProcessTest::foldersDoNotKnowOfOneAnother()
{
    const ProgramFolder one;
    const ProgramFolder other;
    const std::unique_ptr<QProcess> first = start(one);
    QTest::qWait(1000);
    const std::unique_ptr<QProcess> second = start(other);
    QVERIFY(!ends(*second, 1500));
    for (QProcess *process : {first.get(), second.get()}) {
        process->kill();
        process->waitForFinished();
    }
}

void ProcessTest::aFailedStartIsReportedOnStandardError()
{
    const ProgramFolder folder;
    QVERIFY(QFile::remove(folder.path(QStringLiteral("options_uk.ini"))));
    const std::unique_ptr<QProcess> process = start(folder);
    process->setReadChannel(QProcess::StandardError);
    QVERIFY(process->waitForReadyRead(10000));
    const QString report = QString::fromUtf8(process->readAllStandardError());
    process->kill();
    process->waitForFinished();
    QVERIFY2(report.startsWith(QStringLiteral("Run-time error '53':\n\nFile not found")), qPrintable(report));
    QVERIFY(report.contains(folder.path(QStringLiteral("options_uk.ini"))));
}

QTEST_GUILESS_MAIN(ProcessTest)
#include "process_test.moc"
