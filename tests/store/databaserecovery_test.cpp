#include "store/databaserecovery.h"

#include "store/databaseconnection.h"
#include "tests/support/files.h"
#include "tests/support/filetrouble.h"
#include "tests/support/scripteddesktop.h"

#include <QTemporaryDir>

class DatabaseRecoveryTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_connection = std::make_unique<DatabaseConnection>();
        m_desktop.boxes.clear();
        m_recovery = std::make_unique<DatabaseRecovery>(m_desktop, *m_connection, m_folder->path());
        writeFile(path("Backup/Database_uk_origin.rbk"), "original");
        writeFile(database(), readFile(ALEMBRA_FOLDER "/Data/Database_uk.mdb"));
    }

    void whatCannotBeOpenedIsAskedAbout()
    {
        using Lock = LockElsewhere;
        std::unique_ptr<Lock> lock;
        for (const auto &[spoil, answer] :
             {std::pair<std::function<void()>, Desktop::Answer>{[&] { QFile::remove(database()); },
                                                                Desktop::Yes},
              {[&] { writeFile(database(), "no database"); }, Desktop::Yes},
              {[&] { writeFile(database(), "no database"); }, Desktop::No},
              {[&] { lock = std::make_unique<Lock>(database(), Lock::Record); }, Desktop::No},
              {[&] { lock = std::make_unique<Lock>(database(), Lock::WholeFile); }, Desktop::No}}) {
            init();
            spoil();
            const bool yes = answer == Desktop::Yes;
            const QByteArray before = yes ? QByteArray("original") : readFile(database());
            m_desktop.answers = {answer};
            QCOMPARE(endOf([&] { m_recovery->ConnectDatabase(); }), 0);
            lock.reset();
            QCOMPARE(m_desktop.boxes.mid(0, 1), (Boxes{{Question, 20}}));
            QCOMPARE(m_desktop.boxes.mid(1), (yes ? Boxes{{Success, 64}} : Boxes{}));
            QVERIFY(readFile(database()) == before);
        }
    }

    void aMissingTableCopiesToTheFileNobodyOpens()
    {
        const QByteArray before = readFile(database());
        m_desktop.answers = {Desktop::Yes};
        m_recovery->ConnectDatabase();
        QCOMPARE(m_desktop.boxes, Boxes{});
        QCOMPARE(m_connection->State(), DatabaseConnection::StateOpen);
        QCOMPARE(endOf([&] { m_recovery->offerAfterMissingTable(); }), 0);
        QCOMPARE(m_connection->State(), DatabaseConnection::StateClosed);
        QCOMPARE(readFile(path("Data/Database.mdb")), QByteArray("original"));
        QVERIFY(readFile(database()) == before);
        QCOMPARE(m_desktop.boxes, (Boxes{{Question, 20}, {Success, 64}}));
    }

private:
    using Boxes = QList<QPair<QString, int>>;
    const QString Question =
        "Impossible to connect to the database! Do you want to reinstall the original database?";
    const QString Success = "The original database was successfully reinstalled! Changes will be effective "
                            "after restating the program.";

    QString path(const QString &below) const { return m_folder->filePath(below); }
    QString database() const { return path("Data/Database_uk.mdb"); }

    // The status that the process ended with, or -1.
    static int endOf(const std::function<void()> &step)
    {
        try {
            step();
        } catch (const ProcessEnded &end) {
            return end.status;
        }
        return -1;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    ScriptedDesktop m_desktop;
    std::unique_ptr<DatabaseConnection> m_connection;
    std::unique_ptr<DatabaseRecovery> m_recovery;
};

const TestClass<DatabaseRecoveryTest> databaseRecoveryTest;
#include "databaserecovery_test.moc"
