#include "store/databaserecovery.h"

#include "store/databaseconnection.h"
#include "tests/support/filetrouble.h"
#include "tests/support/scripteddesktop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString Question =
    QStringLiteral("Impossible to connect to the database! Do you want to reinstall the original database?");
const QString Success =
    QStringLiteral("The original database was successfully reinstalled! Changes will be effective "
                   "after restating the program.");

} // namespace

class DatabaseRecoveryTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void yesPutsTheOriginalBackAndEnds();
    void aLockedDatabaseIsAskedAbout_data();
    void aLockedDatabaseIsAskedAbout();
    void noEndsAndLeavesTheFile();
    void aCopyThatFailsAfterTheErrorsQuestionIsReported();
    void missingTableCopiesToTheFileNobodyOpens();
    void aGoodDatabaseConnectsWithoutAWord();

private:
    // The status that the process ended with, or -1.
    template<class Step>
    int endOf(Step step)
    {
        try {
            step();
        } catch (const ProcessEnded &end) {
            return end.status;
        }
        return -1;
    }

    QString path(const char *below) const { return m_folder->filePath(QLatin1StringView(below)); }

    void put(const char *below, const QByteArray &content) const
    {
        QFile file(path(below));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray contentOf(const char *below) const
    {
        QFile file(path(below));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void DatabaseRecoveryTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("Data")));
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("Backup")));
    put("Backup/Database_uk_origin.rbk", "original");
}

void DatabaseRecoveryTest::yesPutsTheOriginalBackAndEnds()
{
    ScriptedDesktop desktop;
    desktop.answers = {Desktop::Yes};
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, m_folder->path());

    QCOMPARE(endOf([&] { recovery.ConnectDatabase(); }), 0);

    QCOMPARE(desktop.boxes, (QList<QPair<QString, int>>{{Question, 20}, {Success, 64}}));
    QCOMPARE(contentOf("Data/Database_uk.mdb"), QByteArray("original"));
}

void DatabaseRecoveryTest::aLockedDatabaseIsAskedAbout_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("record lock") << int(LockElsewhere::Record);
    QTest::newRow("lock of the whole file") << int(LockElsewhere::WholeFile);
}

void DatabaseRecoveryTest::aLockedDatabaseIsAskedAbout()
{
    QFETCH(const int, kind);
    QVERIFY(
        QFile::copy(QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb"), path("Data/Database_uk.mdb")));
    const LockElsewhere lock(path("Data/Database_uk.mdb"), LockElsewhere::Kind(kind));
    QVERIFY(lock.isLocked());
    ScriptedDesktop desktop;
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, m_folder->path());

    QCOMPARE(endOf([&] { recovery.ConnectDatabase(); }), 0);

    QCOMPARE(desktop.boxes, (QList<QPair<QString, int>>{{Question, 20}}));
}

void DatabaseRecoveryTest::noEndsAndLeavesTheFile()
{
    put("Data/Database_uk.mdb", "no database");
    ScriptedDesktop desktop;
    desktop.answers = {Desktop::No};
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, m_folder->path());

    QCOMPARE(endOf([&] { recovery.ConnectDatabase(); }), 0);

    QCOMPARE(desktop.boxes.size(), 1);
    QCOMPARE(contentOf("Data/Database_uk.mdb"), QByteArray("no database"));
}

void DatabaseRecoveryTest::aCopyThatFailsAfterTheErrorsQuestionIsReported()
{
    QVERIFY(QFile::remove(path("Backup/Database_uk_origin.rbk")));
    put("Data/Database_uk.mdb", "no database");
    ScriptedDesktop desktop;
    desktop.answers = {Desktop::Yes, Desktop::Yes};
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, m_folder->path());

    try {
        recovery.ConnectDatabase();
        QFAIL("the failed copy was swallowed");
    } catch (const RuntimeError &error) {
        QCOMPARE(error.number(), ErrorNumber::FileNotFound);
    }
    QCOMPARE(desktop.boxes.size(), 1);
    QCOMPARE(contentOf("Data/Database_uk.mdb"), QByteArray("no database"));
}

void DatabaseRecoveryTest::missingTableCopiesToTheFileNobodyOpens()
{
    QVERIFY(
        QFile::copy(QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb"), path("Data/Database_uk.mdb")));
    const QByteArray before = contentOf("Data/Database_uk.mdb");
    ScriptedDesktop desktop;
    desktop.answers = {Desktop::Yes};
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, m_folder->path());
    recovery.ConnectDatabase();

    QCOMPARE(endOf([&] { recovery.offerAfterMissingTable(); }), 0);

    QCOMPARE(connection.State(), DatabaseConnection::StateClosed);
    QCOMPARE(contentOf("Data/Database.mdb"), QByteArray("original"));
    QCOMPARE(contentOf("Data/Database_uk.mdb"), before);
    QCOMPARE(desktop.boxes, (QList<QPair<QString, int>>{{Question, 20}, {Success, 64}}));
}

void DatabaseRecoveryTest::aGoodDatabaseConnectsWithoutAWord()
{
    QVERIFY(
        QFile::copy(QStringLiteral(ALEMBRA_FOLDER "/Data/Database_uk.mdb"), path("Data/Database_uk.mdb")));
    ScriptedDesktop desktop;
    DatabaseConnection connection;
    DatabaseRecovery recovery(desktop, connection, m_folder->path());

    recovery.ConnectDatabase();
    QCOMPARE(connection.State(), DatabaseConnection::StateOpen);
    recovery.DisconnectDatabase();

    QCOMPARE(desktop.boxes.size(), 0);
    QVERIFY_THROWS_EXCEPTION(RuntimeError, recovery.DisconnectDatabase());
}

QTEST_GUILESS_MAIN(DatabaseRecoveryTest)
#include "databaserecovery_test.moc"
