#include "app/userfolder.h"
#include "core/runtimeerror.h"
#include "options/filefigures.h"
#include "tests/store/sampledatabases.h"
#include "tests/support/wholerun.h"

#include <QLabel>
#include <QListWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *Options = "options_uk.ini";
constexpr const char *Database = "Data/Database_uk.mdb";
constexpr const char *Original = "Backup/Database_uk_origin.rbk";

} // namespace

Q_DECLARE_METATYPE(Desktop::Answer)

/// The folder of a user's own files beside the folder of the executable.
class UserFolderTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop.boxes.clear();
    }
    void whatIsMissingIsDelivered();
    void theDatabaseFollowsUnlessTheUserChangedIt_data();
    void theDatabaseFollowsUnlessTheUserChangedIt();
    void theProgramRunsOnBothFolders();
    void optionsOfAnEarlierRelease_data();
    void optionsOfAnEarlierRelease();
    void databaseOfAnotherRelease_data();
    void databaseOfAnotherRelease();
    void aFolderThatCannotBeMadeIsReported();

private:
    QString user() const { return m_folder->filePath(u"user"_s); }
    QString user(const char *below) const { return user() + u'/' + QLatin1StringView(below); }

    static void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    // What ships: "one" or "two" in each file.
    QString shipped(const QByteArray &release) const
    {
        const QString folder = m_folder->filePath(u"shipped/"_s);
        write(folder + QLatin1StringView(Options), release);
        write(folder + QLatin1StringView(Original), release);
        return folder;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void UserFolderTest::whatIsMissingIsDelivered()
{
    QVERIFY(!UserFolder::renew(user(), shipped("one")));
    for (const char *file : {Options, Database, Original})
        QCOMPARE(read(user(file)), "one");

    write(user(Options), "mine");
    QVERIFY(QFile::remove(user(Database)));
    QVERIFY(!UserFolder::renew(user(), shipped("one")));
    QCOMPARE(read(user(Options)), "mine");
    QCOMPARE(read(user(Database)), "one");
}

void UserFolderTest::theDatabaseFollowsUnlessTheUserChangedIt_data()
{
    QTest::addColumn<QByteArray>("mine");
    QTest::addColumn<QByteArray>("release");
    QTest::addColumn<QByteArray>("afterwards");
    QTest::addColumn<bool>("kept");

    QTest::newRow("as it came") << "one"_ba
                                << "two"_ba
                                << "two"_ba << false;
    QTest::newRow("changed") << "mine"_ba
                             << "two"_ba
                             << "mine"_ba << true;
    QTest::newRow("changed, nothing new") << "mine"_ba
                                          << "one"_ba
                                          << "mine"_ba << false;
    QTest::newRow("renewed by an interrupted call") << "two"_ba
                                                    << "two"_ba
                                                    << "two"_ba << false;
}

void UserFolderTest::theDatabaseFollowsUnlessTheUserChangedIt()
{
    QFETCH(const QByteArray, mine);
    QFETCH(const QByteArray, release);
    QFETCH(const QByteArray, afterwards);
    QFETCH(const bool, kept);
    UserFolder::renew(user(), shipped("one"));
    write(user(Database), mine);

    QCOMPARE(UserFolder::renew(user(), shipped(release)), kept);
    QCOMPARE(read(user(Database)), afterwards);
    QCOMPARE(read(user(Original)), release);
    QVERIFY2(!UserFolder::renew(user(), shipped(release)), "reported more than once");
}

void UserFolderTest::theProgramRunsOnBothFolders()
{
    const QString executables = QStringLiteral(ALEMBRA_FOLDER);
    write(user(Options), ProgramFolder().read(QLatin1StringView(Options)));
    write(user("Data/elements/1.jpg"), read(executables + "/Data/elements/2.jpg"_L1));
    m_desktop.savePaths = QStringList{user("elements.htm")};

    QCOMPARE(run(user(), executables, m_desktop,
                 [&](Form1 &form) {
                     form.executeCommand(1108); // elements
                     form.executeCommand(1124); // export
                     form.executeCommand(1123); // help
                     form.executeCommand(1058); // options
                     const auto *file =
                         form.findChild<QWidget *>(u"frmstat"_s)->findChild<QLabel *>(u"Label28"_s);
                     const qint64 size = QFileInfo(executables + "/Alembra_uk"_L1).size();
                     QCOMPARE(file->text(), FileFigures::kilobytes(size));
                 }),
             0);

    QCOMPARE(m_desktop.targets, QStringList{executables + "/alembra_help_uk.chm"_L1});
    const QByteArray report = read(user("elements.htm"));
    for (const QString &picture :
         {user() + QString(R"(\Data\elements\1.jpg)"), executables + QString(R"(\Data\elements\2.jpg)")})
        QVERIFY2(report.contains("src=file:///" + picture.toUtf8() + '>'), qPrintable(picture));
    QCOMPARE(QDir(user("Data")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             (QStringList{u"Database_uk.mdb"_s, u"elements"_s}));
}

void UserFolderTest::optionsOfAnEarlierRelease_data()
{
    QTest::addColumn<int>("mine"); // lines of the user's file; the new release has 92
    QTest::addColumn<int>("saved");

    QTest::newRow("two lines less") << 90 << 92;
    QTest::newRow("cut by a failure") << 40 << 92;
    QTest::newRow("of a later release") << 95 << 95;
}

// The values that the user's file has stay, the others are delivered, and the next save writes them all.
void UserFolderTest::optionsOfAnEarlierRelease()
{
    QFETCH(const int, mine);
    QFETCH(const int, saved);
    const ProgramFolder release;
    const QByteArray lines =
        release.read(QLatin1StringView(Options)) + "7\r\n\"light-year (ly)\"\r\n8\r\n9\r\n10\r\n";
    const auto first = [&](int count) { return lines.split('\n').first(count).join('\n') + '\n'; };
    release.write(QLatin1StringView(Options), first(92));
    write(user(Options), first(mine));

    QCOMPARE(run(user(), release.root(), m_desktop,
                 [](Form1 &form) {
                     form.executeCommand(1120); // calculations
                     const auto *units = form.findChild<QListWidget *>(u"List5"_s);
                     QCOMPARE(units->count(), 4);
                     QVERIFY(!units->item(3)->text().isEmpty());
                     form.executeCommand(1058); // options
                     QTest::keyClick(form.findChild<QWidget *>(u"Formoptions"_s), Qt::Key_Return);
                 }),
             0);

    QCOMPARE(m_desktop.boxes.size(), 0);
    QCOMPARE(read(user(Options)), first(saved));
}

void UserFolderTest::databaseOfAnotherRelease_data()
{
    QTest::addColumn<QString>("gone"); // a name that the database does not have
    QTest::addColumn<bool>("news");    // an upgrade has brought a new original
    QTest::addColumn<Desktop::Answer>("answer");
    QTest::addColumn<QString>("named");

    QTest::newRow("a column less, kept")
        << u"indicerefrac"_s << false << Desktop::No << u"The table Solvants has no column indicerefrac."_s;
    QTest::newRow("a table less, replaced")
        << u"Refrigeration"_s << false << Desktop::Yes << u"There is no table Refrigeration."_s;
    QTest::newRow("other rows, named once")
        << u"none"_s << true << Desktop::No << u"The table Constantes has 2 rows instead of 45."_s;
    QTest::newRow("other rows, known") << u"none"_s << false << Desktop::No << QString();
}

void UserFolderTest::databaseOfAnotherRelease()
{
    QFETCH(const QString, gone);
    QFETCH(const bool, news);
    QFETCH(const Desktop::Answer, answer);
    QFETCH(const QString, named);
    const ProgramFolder release;
    const QByteArray original = release.read(QLatin1StringView(Original));
    const auto inFile = [](const QString &name) {
        return QByteArray(reinterpret_cast<const char *>(name.utf16()), 2 * name.size());
    };
    const QByteArray mine =
        SampleDatabases::catalogued(2).replace(inFile(gone), inFile(QString(gone.size(), u'x')));
    write(user(Database), mine);
    write(user(Original), news ? mine + mine : original);
    m_desktop.answers = {answer};

    run(user(), release.root(), m_desktop, [](const Form1 &) {});

    QCOMPARE(m_desktop.boxes.size(), named.isEmpty() ? 0 : 1);
    QVERIFY(named.isEmpty() || m_desktop.boxes.constFirst().first.contains(named));
    const bool replaced = answer == Desktop::Yes;
    QCOMPARE(read(user(Database)), replaced ? original : mine);
    QCOMPARE(read(user("Data/Database_uk_old.mdb")), replaced ? mine : "none"_ba);
}

void UserFolderTest::aFolderThatCannotBeMadeIsReported()
{
    write(user("file"), {});
    try {
        Main(m_desktop, user("file/folder"), shipped("one"));
        QFAIL("the program started");
    } catch (const RuntimeError &error) {
        QCOMPARE(error.number(), ErrorNumber::PathAccess);
        QCOMPARE(error.subject(), user("file/folder"));
    }
}

QTEST_MAIN(UserFolderTest)
#include "userfolder_test.moc"
