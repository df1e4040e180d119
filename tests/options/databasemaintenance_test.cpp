#include "core/module1.h"
#include "options/databasemaintenance.h"
#include "tests/support/files.h"
#include "tests/support/filetrouble.h"
#include "tests/support/scripteddesktop.h"

#include <sys/stat.h>

namespace {

const QByteArray Working("the working database");
const QByteArray Original("the original");

using Box = QPair<QString, int>;

/// A program folder with two databases, and a user who answers.
struct Bench
{
    Bench()
    {
        module.AppFolder = folder.path();
        writeFile(database, Working);
        writeFile(backup, Original);
    }

    // The box that was shown last.
    Box save(const QString &path, const QList<Desktop::Answer> &answers = {})
    {
        desktop.savePaths = {path};
        desktop.answers = answers;
        maintenance.DatabaseSaveCopy();
        return desktop.boxes.value(desktop.boxes.size() - 1);
    }

    bool restore(Desktop::Answer answer)
    {
        desktop.answers = {answer};
        return maintenance.restore();
    }

    QTemporaryDir folder;
    const QString database = folder.filePath("Data/Database_uk.mdb");
    const QString backup = folder.filePath("Backup/Database_uk_origin.rbk");
    const QString copy = folder.filePath("copy.mdb");
    Module1 module;
    ScriptedDesktop desktop;
    DatabaseMaintenance maintenance{module, desktop};
};

} // namespace

/// The questions about files that exist are those of the reports, and tested there.
class DatabaseMaintenanceTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savedCopyIsReported()
    {
        Bench bench;
        bench.maintenance.DatabaseSaveCopy(); // cancelled
        QCOMPARE(bench.desktop.boxes.size(), 0);
        QCOMPARE(bench.save(bench.folder.filePath("copy")), Box("The database was successfully saved!", 64));
        QCOMPARE(readFile(bench.copy), Working);
        const Desktop::SaveRequest &request = bench.desktop.saveRequests.constFirst();
        QCOMPARE(request.fileName, QString("Database_uk_copy"));
        QCOMPARE(request.folder, bench.folder.path());
        QCOMPARE(request.filterName, QString("Microsoft Access database"));
        QCOMPARE(request.filterGlobs, QStringList("*.mdb"));
    }

    void existingCopyIsReplacedAfterYesAlone()
    {
        Bench bench;
        writeFile(bench.copy, "old");
        const QString question =
            QString("The file '%1' already exists. Replace existing file?").arg(bench.copy);
        QCOMPARE(bench.save(bench.copy, {Desktop::No}), Box(question, 52));
        QCOMPARE(readFile(bench.copy), QByteArray("old"));
        QCOMPARE(bench.desktop.saveRequests.size(), 2);
        QCOMPARE(bench.desktop.saveRequests.constLast().fileName, QString("Database_uk_copy"));
        // A restore leaves its mark on the next question, but not on its own.
        for (const int style : {68, 68}) {
            bench.restore(Desktop::No);
            QCOMPARE(bench.desktop.boxes.constLast().second, style);
        }
        QCOMPARE(bench.save(bench.copy, {Desktop::No}), Box(question, 84));
        bench.save(bench.copy, {Desktop::Yes});
        QCOMPARE(readFile(bench.copy), Working);
        bench.maintenance.open();
        QCOMPARE(bench.desktop.targets, QStringList(bench.database));
    }

    void copiesThatFailLeaveEverything()
    {
        Bench bench;
        const auto inUse = [](const QString &path) {
            return Box(QString("Impossible to save, the file '%1' is in use.").arg(path), 48);
        };
        const QString link = bench.folder.filePath("link.mdb");
        QVERIFY(QFile::link(bench.database, link));
        for (const QString &itself :
             {bench.database, bench.folder.filePath("Data/../Data/Database_uk.mdb"), link})
            QCOMPARE(bench.save(itself, {Desktop::Yes}), inUse(itself));
        const QString pipe = bench.folder.filePath("pipe.mdb"); // a copy would replace it
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(bench.save(pipe).first.endsWith("Reason: this is a pipe or a device, not a file."));
        {
            const LockElsewhere lock(bench.database, LockElsewhere::SharedRecord);
            QCOMPARE(bench.save(bench.copy), inUse(bench.copy));
            QVERIFY(!QFile::exists(bench.copy));
            QVERIFY(!bench.restore(Desktop::Yes));
            QCOMPARE(bench.desktop.boxes.constLast(), inUse("Alembra/Data/Database_uk.mdb"));
        }
        writeFile(bench.copy, "old");
        {
            const FullDisk disk(4); // silent but for the two questions
            const qsizetype boxes = bench.desktop.boxes.size();
            bench.save(bench.copy, {Desktop::Yes});
            QVERIFY(!bench.restore(Desktop::Yes));
            QCOMPARE(bench.desktop.boxes.size(), boxes + 2);
        }
        QCOMPARE(readFile(bench.copy), QByteArray("old"));
        QCOMPARE(readFile(bench.database), Working);
        QCOMPARE(QDir(bench.folder.path()).entryList(QDir::Files), (QStringList{"copy.mdb", "link.mdb"}));
    }

    void restoreReplacesTheWorkingDatabaseAfterYesAlone()
    {
        Bench bench;
        QVERIFY(!bench.restore(Desktop::No));
        QCOMPARE(readFile(bench.database), Working);
        QCOMPARE(bench.desktop.boxes.size(), 1);
        QFile::setPermissions(bench.database, QFile::ReadOwner);
        QVERIFY(bench.restore(Desktop::Yes));
        QCOMPARE(readFile(bench.database), Original);
        QCOMPARE(readFile(bench.backup), Original);
        QVERIFY(QFile::permissions(bench.database).testFlag(QFile::WriteOwner));
        QCOMPARE(bench.desktop.boxes.at(1), Box("Do you really want to restore the original database?", 68));
        QCOMPARE(bench.desktop.boxes.at(2),
                 Box("The original database was successfully reinstalled! Changes will be effective after "
                     "restating the program.",
                     64));
    }

    // Nor is a missing database made anew: its attributes come first.
    void restoreNeedsBothFiles()
    {
        for (const bool original : {true, false}) {
            Bench bench;
            QVERIFY(QFile::remove(original ? bench.backup : bench.database));
            QVERIFY(!bench.restore(Desktop::Yes));
            QCOMPARE(bench.desktop.boxes.constLast().first,
                     QString("Impossible to save, the database file does not exist."));
            QVERIFY(original ? readFile(bench.database) == Working : !QFile::exists(bench.database));
        }
    }
};

const TestClass<DatabaseMaintenanceTest> databaseMaintenanceTest;
#include "databasemaintenance_test.moc"
