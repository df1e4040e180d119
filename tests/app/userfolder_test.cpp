#include "app/userfolder.h"
#include "options/filefigures.h"
#include "tests/store/sampledatabases.h"
#include "tests/support/wholerun.h"

#include <QLabel>
#include <QListWidget>

using namespace Qt::StringLiterals;

/// The folder of a user's own files beside the folder of the executable.
class UserFolderTest final : public WholeRun
{
    Q_OBJECT

    static constexpr const char *Options = "options_uk.ini";
    static constexpr const char *Database = "Data/Database_uk.mdb";
    static constexpr const char *Original = "Backup/Database_uk_origin.rbk";

    std::unique_ptr<QTemporaryDir> m_folder;

    QString user() const { return m_folder->filePath("user"); }
    QString user(const char *below) const { return user() + '/' + below; }

    // What ships: "one" or "two" in each file.
    QString shipped(const QByteArray &release) const
    {
        const QString folder = m_folder->filePath("shipped/");
        writeFile(folder + Options, release);
        writeFile(folder + Original, release);
        return folder;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop.boxes.clear();
    }

    void whatIsMissingIsDeliveredAndTheDatabaseFollowsUnlessTheUserChangedIt()
    {
        for (const auto &[mine, release, afterwards, kept] :
             {std::tuple<const char *, const char *, const char *, bool>{"mine", "two", "mine", true},
              {"mine", "one", "mine", false},
              {"one", "two", "two", false}, // as it came
              {"two", "two", "two", false}, // renewed by an interrupted call
              {nullptr, "one", "one", false}}) {
            init();
            QVERIFY(!UserFolder::renew(user(), shipped("one")));
            QCOMPARE(readFile(user(Options)), "one");
            writeFile(user(Options), "mine");
            mine ? writeFile(user(Database), mine) : void(QFile::remove(user(Database)));
            QCOMPARE(UserFolder::renew(user(), shipped(release)), kept);
            QCOMPARE(readFile(user(Database)), afterwards);
            QCOMPARE(readFile(user(Original)), release);
            QCOMPARE(readFile(user(Options)), "mine");
            QVERIFY2(!UserFolder::renew(user(), shipped(release)), "reported more than once");
        }
    }

    void theProgramRunsOnBothFolders()
    {
        const QString executables(ALEMBRA_FOLDER);
        writeFile(user(Options), ProgramFolder().read(Options));
        writeFile(user("Data/elements/1.jpg"), readFile(executables + "/Data/elements/2.jpg"));
        m_desktop.savePaths = QStringList{user("elements.htm")};

        const int status = run(user(), executables, m_desktop, [&](Form1 &form) {
            form.executeCommand(1108); // elements
            form.executeCommand(1124); // export
            form.executeCommand(1123); // help
            form.executeCommand(1058); // options
            QCOMPARE(get<QLabel>(get(form, "frmstat"), "Label28").text(),
                     FileFigures::kilobytes(QFileInfo(executables + "/Alembra_uk").size()));
        });

        QCOMPARE(status, 0);
        QCOMPARE(m_desktop.targets, QStringList{executables + "/alembra_help_uk.chm"});
        const QByteArray report = readFile(user("elements.htm"));
        for (const QString &picture :
             {user() + R"(\Data\elements\1.jpg)", executables + R"(\Data\elements\2.jpg)"})
            QVERIFY2(report.contains("src=file:///" + picture.toUtf8() + '>'), qPrintable(picture));
        QCOMPARE(QDir(user("Data")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).join(' '),
                 "Database_uk.mdb elements");
    }

    // The values that the user's file has stay, the others are delivered, and the next save writes them all.
    void optionsOfAnEarlierRelease()
    {
        for (const int mine : {90, 40, 95}) { // lines of the user's file; the new release has 92
            init();
            const ProgramFolder release;
            const QByteArray lines = release.read(Options) + "7\r\n\"light-year (ly)\"\r\n8\r\n9\r\n10\r\n";
            const auto first = [&](int count) { return lines.split('\n').first(count).join('\n') + '\n'; };
            release.write(Options, first(92));
            writeFile(user(Options), first(mine));

            const int status = run(user(), release.root(), m_desktop, [](Form1 &form) {
                form.executeCommand(1120); // calculations
                const auto &units = get<QListWidget>(form, "List5");
                QCOMPARE(units.count(), 4);
                QVERIFY(!units.item(3)->text().isEmpty());
                form.executeCommand(1058); // options
                QTest::keyClick(&get(form, "Formoptions"), Qt::Key_Return);
            });

            QCOMPARE(status, 0);
            QCOMPARE(m_desktop.boxes.size(), 0);
            QCOMPARE(readFile(user(Options)), first(std::max(mine, 92)));
        }
    }

    void databaseOfAnotherRelease()
    {
        for (const auto &[gone, news, answer, named] :
             {std::tuple<QString, bool, Desktop::Answer, QString>{
                  "indicerefrac", false, Desktop::No, "The table Solvants has no column indicerefrac."},
              {"Refrigeration", false, Desktop::Yes, "There is no table Refrigeration."},
              {"none", true, Desktop::No, "The table Constantes has 2 rows instead of 45."}, // named once
              {"none", false, Desktop::No, {}}}) {
            init();
            const ProgramFolder release;
            const QByteArray original = release.read(Original);
            const auto inFile = [](const QString &name) {
                return QByteArray(reinterpret_cast<const char *>(name.utf16()), 2 * name.size());
            };
            const QByteArray mine =
                SampleDatabases::catalogued(2).replace(inFile(gone), inFile(QString(gone.size(), 'x')));
            writeFile(user(Database), mine);
            writeFile(user(Original), news ? mine + mine : original);
            m_desktop.answers = {answer};

            run(user(), release.root(), m_desktop, [](const Form1 &) {});

            QCOMPARE(m_desktop.boxes.size(), named.isEmpty() ? 0 : 1);
            QVERIFY(named.isEmpty() || m_desktop.boxes.constFirst().first.contains(named));
            const QString old = user("Data/Database_uk_old.mdb");
            const bool replaced = answer == Desktop::Yes;
            QCOMPARE(readFile(user(Database)), replaced ? original : mine);
            QCOMPARE(QFile::exists(old), replaced);
            QVERIFY(!replaced || readFile(old) == mine);
        }
    }

    void aFolderThatCannotBeMadeIsReported()
    {
        writeFile(user("file"), {});
        try {
            Main(m_desktop, user("file/folder"), shipped("one"));
            QFAIL("the program started");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), ErrorNumber::PathAccess);
            QCOMPARE(error.subject(), user("file/folder"));
        }
    }
};

const TestClass<UserFolderTest> userFolderTest;
#include "userfolder_test.moc"
