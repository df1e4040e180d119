#include "app/userfolder.h"
#include "core/runtimeerror.h"
#include "options/filefigures.h"
#include "tests/support/wholerun.h"

#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *Options = "options_uk.ini";
constexpr const char *Database = "Data/Database_uk.mdb";
constexpr const char *Original = "Backup/Database_uk_origin.rbk";

} // namespace

/// The folder of a user's own files beside the folder of the executable.
class UserFolderTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void whatIsMissingIsDelivered();
    void theDatabaseFollowsUnlessTheUserChangedIt_data();
    void theDatabaseFollowsUnlessTheUserChangedIt();
    void theProgramRunsOnBothFolders();
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
