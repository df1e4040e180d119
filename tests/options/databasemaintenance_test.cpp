#include "core/module1.h"
#include "options/databasemaintenance.h"
#include "tests/support/filetrouble.h"
#include "tests/support/scripteddesktop.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray Working("the working database");
const QByteArray Original("the original");

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

/// A program folder with two databases, and a user who answers.
struct Bench
{
    Bench()
    {
        module.AppFolder = folder.path();
        QDir(folder.path()).mkdir(QStringLiteral("Data"));
        QDir(folder.path()).mkdir(QStringLiteral("Backup"));
        write(database(), Working);
        write(backup(), Original);
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    QString database() const { return path(QStringLiteral("Data/Database_uk.mdb")); }
    QString backup() const { return path(QStringLiteral("Backup/Database_uk_origin.rbk")); }

    void save(const QStringList &paths, const QList<Desktop::Answer> &answers = {})
    {
        desktop.savePaths = paths;
        desktop.answers = answers;
        maintenance.DatabaseSaveCopy();
    }

    bool restore(Desktop::Answer answer)
    {
        desktop.answers = {answer};
        return maintenance.restore();
    }

    QString lastText() const { return desktop.boxes.isEmpty() ? QString() : desktop.boxes.constLast().first; }

    QTemporaryDir folder;
    Module1 module;
    ScriptedDesktop desktop;
    DatabaseMaintenance maintenance{module, desktop};
};

} // namespace

class DatabaseMaintenanceTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savedCopyIsTold();
    void cancelledSaveIsSilent();
    void existingCopyIsReplacedAfterYesAlone();
    void emptyFileIsReplacedWithoutAQuestion();
    void readOnlyAndLockedFilesSendRoundAgain();
    void copyOntoItselfIsInUse();
    void fullDiskIsSilentAndHarmsNothing();
    void unwritableFolderIsTold();
    void restoreReplacesTheWorkingDatabase();
    void restoreWithoutYesDoesNothing();
    void restoreLeavesItsMarkOnTheNextQuestion();
    void restoreThatFailsLeavesTheWorkingDatabase();
    void openGoesToTheDesktop();
};

void DatabaseMaintenanceTest::savedCopyIsTold()
{
    Bench bench;
    bench.save({bench.path(QStringLiteral("copy"))});
    QCOMPARE(content(bench.path(QStringLiteral("copy.mdb"))), Working);
    QCOMPARE(bench.desktop.boxes,
             (QList<QPair<QString, int>>{{QStringLiteral("The database was successfully saved!"), 64}}));
    const Desktop::SaveRequest &request = bench.desktop.saveRequests.constFirst();
    QCOMPARE(request.fileName, QStringLiteral("Database_uk_copy"));
    QCOMPARE(request.folder, bench.folder.path());
    QCOMPARE(request.filterName, QStringLiteral("Microsoft Access database"));
    QCOMPARE(request.filterGlobs, QStringList(QStringLiteral("*.mdb")));
}

void DatabaseMaintenanceTest::cancelledSaveIsSilent()
{
    Bench bench;
    bench.save({});
    QCOMPARE(bench.desktop.boxes.size(), 0);
}

void DatabaseMaintenanceTest::existingCopyIsReplacedAfterYesAlone()
{
    Bench bench;
    const QString copy = bench.path(QStringLiteral("copy.mdb"));
    write(copy, "old");
    bench.save({copy}, {Desktop::No}); // then the dialog is cancelled
    QCOMPARE(content(copy), QByteArray("old"));
    QCOMPARE(bench.desktop.boxes.constFirst().first,
             QStringLiteral("The file '%1' already exists. Replace existing file?").arg(copy));
    QCOMPARE(bench.desktop.boxes.constFirst().second, 52);
    QCOMPARE(bench.desktop.saveRequests.size(), 2);
    QCOMPARE(bench.desktop.saveRequests.constLast().fileName, QStringLiteral("Database_uk_copy"));

    bench.save({copy}, {Desktop::Yes});
    QCOMPARE(content(copy), Working);
}

void DatabaseMaintenanceTest::emptyFileIsReplacedWithoutAQuestion()
{
    Bench bench;
    const QString copy = bench.path(QStringLiteral("copy.mdb"));
    write(copy, {});
    bench.save({copy});
    QCOMPARE(content(copy), Working);
    QCOMPARE(bench.desktop.boxes.size(), 1);
}

void DatabaseMaintenanceTest::readOnlyAndLockedFilesSendRoundAgain()
{
    Bench bench;
    const QString copy = bench.path(QStringLiteral("copy.mdb"));
    write(copy, "old");
    QFile::setPermissions(copy, QFile::ReadOwner);
    bench.save({copy}, {Desktop::Yes});
    QVERIFY(bench.lastText().contains(QStringLiteral("read-only attribute")));
    QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    {
        const LockElsewhere lock(copy);
        QVERIFY(lock.isLocked());
        bench.save({copy}, {Desktop::Yes});
        QVERIFY(bench.lastText().contains(QStringLiteral("'. The file is in use.")));
    }
    QCOMPARE(content(copy), QByteArray("old"));
    QCOMPARE(bench.desktop.saveRequests.size(), 4);

    const LockElsewhere lock(bench.database());
    bench.save({bench.path(QStringLiteral("other.mdb"))});
    QCOMPARE(bench.lastText(), QStringLiteral("Impossible to save, the file '%1' is in use.")
                                   .arg(bench.path(QStringLiteral("other.mdb"))));
    QVERIFY(!QFile::exists(bench.path(QStringLiteral("other.mdb"))));
}

void DatabaseMaintenanceTest::copyOntoItselfIsInUse()
{
    Bench bench;
    QVERIFY(QFile::link(bench.database(), bench.path(QStringLiteral("link.mdb"))));
    for (const QString &path : {bench.database(), bench.path(QStringLiteral("Data/../Data/Database_uk.mdb")),
                                bench.path(QStringLiteral("link.mdb"))}) {
        bench.save({path}, {Desktop::Yes});
        QCOMPARE(bench.lastText(), QStringLiteral("Impossible to save, the file '%1' is in use.").arg(path));
        QCOMPARE(content(bench.database()), Working);
    }
}

void DatabaseMaintenanceTest::fullDiskIsSilentAndHarmsNothing()
{
    Bench bench;
    const QString copy = bench.path(QStringLiteral("copy.mdb"));
    write(copy, "old");
    const FullDisk disk(4);
    bench.save({copy}, {Desktop::Yes});
    QCOMPARE(bench.desktop.boxes.size(), 1); // the question
    QVERIFY(!bench.restore(Desktop::Yes));
    QCOMPARE(bench.desktop.boxes.size(), 2);
    QCOMPARE(content(copy), QByteArray("old"));
    QCOMPARE(content(bench.database()), Working);
    QCOMPARE(QDir(bench.folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("copy.mdb")));
}

void DatabaseMaintenanceTest::unwritableFolderIsTold()
{
    Bench bench;
    const QString closed = bench.path(QStringLiteral("closed"));
    QVERIFY(QDir().mkdir(closed));
    QVERIFY(QFile::setPermissions(bench.folder.path(), QFile::Permissions(0x7555)));
    QVERIFY(QFile::setPermissions(closed, QFile::Permissions(0x5555)));
    {
        const OrdinaryUser user;
        bench.save({closed + QStringLiteral("/copy.mdb")});
    }
    QFile::setPermissions(closed, QFile::Permissions(0x7777));
    QCOMPARE(bench.lastText(),
             QStringLiteral("Impossible to save '%1'. The file already exists and has a read-only attribute. "
                            "Save it with a different name or in different folder.\n\n"
                            "Reason: the folder is not writable.")
                 .arg(closed + QStringLiteral("/copy.mdb")));
    QCOMPARE(bench.desktop.boxes.constLast().second, 48);
    const QString device = bench.path(QStringLiteral("null.mdb")); // a copy would replace it
    QVERIFY(QFile::link(QStringLiteral("/dev/null"), device));
    bench.save({device});
    QVERIFY(bench.lastText().endsWith(QStringLiteral("not a file.")));
}

void DatabaseMaintenanceTest::restoreReplacesTheWorkingDatabase()
{
    Bench bench;
    QFile::setPermissions(bench.database(), QFile::ReadOwner);
    QVERIFY(bench.restore(Desktop::Yes));
    QCOMPARE(content(bench.database()), Original);
    QCOMPARE(content(bench.backup()), Original);
    QVERIFY(QFile::permissions(bench.database()).testFlag(QFile::WriteOwner));
    QCOMPARE(
        bench.desktop.boxes.constFirst(),
        (QPair<QString, int>(QStringLiteral("Do you really want to restore the original database?"), 68)));
    QCOMPARE(
        bench.desktop.boxes.constLast(),
        (QPair<QString, int>(QStringLiteral("The original database was successfully reinstalled! Changes "
                                            "will be effective after restating the program."),
                             64)));
}

void DatabaseMaintenanceTest::restoreWithoutYesDoesNothing()
{
    Bench bench;
    QVERIFY(!bench.restore(Desktop::No));
    QCOMPARE(content(bench.database()), Working);
    QCOMPARE(bench.desktop.boxes.size(), 1);
}

void DatabaseMaintenanceTest::restoreLeavesItsMarkOnTheNextQuestion()
{
    Bench bench;
    write(bench.path(QStringLiteral("copy.mdb")), "old");
    bench.restore(Desktop::No);
    bench.save({bench.path(QStringLiteral("copy.mdb"))}, {Desktop::No});
    QCOMPARE(bench.desktop.boxes.constLast().second, 84);
    bench.restore(Desktop::No); // its own question does not add up
    QCOMPARE(bench.desktop.boxes.constLast().second, 68);
}

void DatabaseMaintenanceTest::restoreThatFailsLeavesTheWorkingDatabase()
{
    Bench bench;
    {
        const LockElsewhere lock(bench.database());
        QVERIFY(!bench.restore(Desktop::Yes));
        QCOMPARE(bench.desktop.boxes.constLast(),
                 (QPair<QString, int>(
                     QStringLiteral("Impossible to save, the file 'Alembra/Data/Database_uk.mdb' is in use."),
                     48)));
    }
    const auto missing = QStringLiteral("Impossible to save, the database file does not exist.");
    QVERIFY(QFile::remove(bench.backup()));
    QVERIFY(!bench.restore(Desktop::Yes));
    QCOMPARE(bench.lastText(), missing);
    QCOMPARE(content(bench.database()), Working);

    // Nor is a missing database made anew: its attributes come first.
    write(bench.backup(), Original);
    QVERIFY(QFile::remove(bench.database()));
    QVERIFY(!bench.restore(Desktop::Yes));
    QCOMPARE(bench.lastText(), missing);
    QVERIFY(!QFile::exists(bench.database()));
}

void DatabaseMaintenanceTest::openGoesToTheDesktop()
{
    const Bench bench;
    bench.maintenance.open();
    QCOMPARE(bench.desktop.targets, QStringList(bench.database()));
}

QTEST_GUILESS_MAIN(DatabaseMaintenanceTest)
#include "databasemaintenance_test.moc"
