#include "tests/packaging/installation.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const char *Options = "options_uk.ini";
constexpr const char *Database = "Data/Database_uk.mdb";
constexpr const char *Original = "Backup/Database_uk_origin.rbk";
constexpr const char *Chart = "Data/nmr/1h/1.gif";
constexpr const char *Crystal = "Data/cristal/Face-centered cubic.bmp";

} // namespace

/// The launcher of an installation for all users, and the program folder that it makes for one.
class LauncherTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartMakesAProgramFolderAndStartsTheProgramThere();
    void theFolderStandsWhereDataOfTheUserBelongs_data();
    void theFolderStandsWhereDataOfTheUserBelongs();
    void anUpgradeRenewsWhatIsOursAndKeepsTheRest();
    void theDatabaseIsRenewedUnlessTheUserChangedIt_data();
    void theDatabaseIsRenewedUnlessTheUserChangedIt();
    void deletedOptionsComeBack();
    void anInterruptedRenewalIsDoneAgain_data();
    void anInterruptedRenewalIsDoneAgain();
    void startsAtOnceDoNotDisturbEachOther();
    void aFullDiskIsToldAndHarmsNothing_data();
    void aFullDiskIsToldAndHarmsNothing();
    void aMessageGoesToAWindowWhereThereIsADesktop();

private:
    // Whether the user's folder is a whole program folder of the release @p name, options aside.
    static void compareFolder(const Installation &installation, const QByteArray &name)
    {
        QCOMPARE(Installation::read(installation.user("Alembra_uk")), Installation::program(name));
        for (const char *file : {Database, Original, Chart, Crystal, "Data/ir/1.gif", "menuc_uk.xcb"})
            QCOMPARE(Installation::read(installation.user(file)), Installation::content(name));
        QVERIFY(
            QDir(installation.userFolder()).entryList({u"*.new"_s}, QDir::Files | QDir::Hidden).isEmpty());
    }
};

void LauncherTest::theFirstStartMakesAProgramFolderAndStartsTheProgramThere()
{
    const Installation installation;

    const Installation::Run run = installation.start({}, {u"-style"_s, u"two words"_s});

    QCOMPARE(run.output, u"one in %1: -style two words\n"_s.arg(installation.userFolder()));
    QCOMPARE(run.error, QString());
    QCOMPARE(run.status, 7);
    compareFolder(installation, "one");
    for (const char *own : {"Alembra_uk", Options, Database, Original})
        QVERIFY2(!QFileInfo(installation.user(own)).isSymLink(), own);
    for (const char *linked : {Chart, Crystal, "menuc_uk.xcb"})
        QVERIFY2(QFileInfo(installation.user(linked)).isSymLink(), linked);
    QVERIFY2(!QFileInfo::exists(installation.user("release")), "the stamp is no part of the program folder");
}

void LauncherTest::theFolderStandsWhereDataOfTheUserBelongs_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("dataHome");
    QTest::addColumn<QString>("folder"); // below the installation's; empty where there is no start

    QTest::newRow("below the home folder") << u"my home"_s << QString() << u"my home/.local/share/alembra"_s;
    QTest::newRow("where the user says") << u"my home"_s << u"big disk"_s << u"big disk/alembra"_s;
    QTest::newRow("not in a relative place") << u"my home"_s << u"."_s << u"my home/.local/share/alembra"_s;
    QTest::newRow("nowhere without a home") << QString() << QString() << QString();
}

void LauncherTest::theFolderStandsWhereDataOfTheUserBelongs()
{
    QFETCH(const QString, home);
    QFETCH(const QString, dataHome);
    QFETCH(const QString, folder);
    const Installation installation;
    const auto place = [&](const QString &name) {
        return name.isEmpty() || name == "."_L1 ? name : installation.path(name);
    };

    const Installation::Run run =
        installation.start({{"HOME", place(home)}, {"XDG_DATA_HOME", place(dataHome)}});

    if (folder.isEmpty()) {
        QCOMPARE(run.status, 1);
        QVERIFY2(run.error.contains("HOME is not set"_L1), qPrintable(run.error));
    } else {
        QCOMPARE(run.output, u"one in %1: \n"_s.arg(installation.path(folder)));
    }
}

void LauncherTest::anUpgradeRenewsWhatIsOursAndKeepsTheRest()
{
    Installation installation;
    installation.start();
    Installation::write(installation.user(Options), "mine");
    Installation::write(installation.user("solvents.htm"), "a report");
    QFile::remove(installation.user("Data/ir/1.gif"));
    Installation::write(installation.user("Data/ir/1.gif"), "a better chart");
    installation.install("two");
    QFile::remove(installation.installed(u"Data/cristal/Face-centered cubic.bmp"_s));
    installation.writeInstalled(u"share/alembra/Data/orga/1.gif"_s, "new");

    const Installation::Run run = installation.start();

    QVERIFY2(run.output.startsWith("two in "_L1), qPrintable(run.output + run.error));
    QCOMPARE(run.error, QString());
    QCOMPARE(Installation::read(installation.user(Options)), "mine");
    QCOMPARE(Installation::read(installation.user("solvents.htm")), "a report");
    QCOMPARE(Installation::read(installation.user("Data/ir/1.gif")), "a better chart");
    QCOMPARE(Installation::read(installation.user(Database)), Installation::content("two"));
    QCOMPARE(Installation::read(installation.user("Data/orga/1.gif")), "new");
    QVERIFY2(!QFileInfo(installation.user(Crystal)).isSymLink(), "a link to what is gone stayed");
}

void LauncherTest::theDatabaseIsRenewedUnlessTheUserChangedIt_data()
{
    QTest::addColumn<QByteArray>("mine"); // what the user made of it; empty: deleted
    QTest::addColumn<bool>("newData");    // whether the upgrade brings another database
    QTest::addColumn<QByteArray>("afterwards");
    QTest::addColumn<bool>("told");

    const QByteArray one = Installation::content("one");
    const QByteArray two = Installation::content("two");
    QTest::newRow("as it came") << one << true << two << false;
    QTest::newRow("changed") << QByteArray("mine") << true << QByteArray("mine") << true;
    QTest::newRow("changed, nothing new") << QByteArray("mine") << false << QByteArray("mine") << false;
    QTest::newRow("the new one by chance") << two << true << two << false;
    QTest::newRow("deleted") << QByteArray() << true << two << false;
}

void LauncherTest::theDatabaseIsRenewedUnlessTheUserChangedIt()
{
    QFETCH(const QByteArray, mine);
    QFETCH(const bool, newData);
    QFETCH(const QByteArray, afterwards);
    QFETCH(const bool, told);
    Installation installation;
    installation.start();
    if (mine.isEmpty())
        QFile::remove(installation.user(Database));
    else
        Installation::write(installation.user(Database), mine);
    installation.install("two");
    if (!newData)
        installation.writeInstalled(u"share/alembra/Backup/Database_uk_origin.rbk"_s,
                                    Installation::content("one"));

    const Installation::Run run = installation.start();

    QVERIFY2(run.output.startsWith("two in "_L1), qPrintable(run.error));
    QCOMPARE(Installation::read(installation.user(Database)), afterwards);
    QCOMPARE(Installation::read(installation.user(Original)), Installation::content(newData ? "two" : "one"));
    QCOMPARE(run.error.contains(installation.user(Original)), told);
    QVERIFY2(installation.start().error.isEmpty(), "told more than once");
}

void LauncherTest::deletedOptionsComeBack()
{
    const Installation installation;
    installation.start();
    QFile::remove(installation.user(Options));
    installation.start();
    QCOMPARE(Installation::read(installation.user(Options)), Installation::content("one"));
}

void LauncherTest::anInterruptedRenewalIsDoneAgain_data()
{
    QTest::addColumn<bool>("upgrade");

    QTest::newRow("first start") << false;
    QTest::newRow("upgrade") << true;
}

// Every command that writes an entry is once the one at which the machine stops, a copy half-written.
void LauncherTest::anInterruptedRenewalIsDoneAgain()
{
    QFETCH(const bool, upgrade);
    const QByteArray stopping = "#!/bin/sh\n"
                                "PATH=$REAL_PATH\n"
                                "echo >>\"$COUNTER\"\n"
                                "name=${0##*/}\n"
                                "if [ \"$(wc -l <\"$COUNTER\")\" -eq \"$STOP_AT\" ]; then\n"
                                "    [ $name != cp ] || head -c 100 \"$2\" >\"$3\"\n"
                                "    kill -KILL 0\n"
                                "fi\n"
                                "exec $name \"$@\"\n";
    bool stopped = true;
    int stop = 0;
    while (stopped) {
        ++stop;
        Installation installation;
        for (const char *command : {"cp", "mv", "ln"})
            installation.writeInstalled(u"stopping/"_s + QLatin1StringView(command), stopping, true);
        if (upgrade) {
            installation.start();
            Installation::write(installation.user(Options), "mine");
            installation.install("two");
        }
        const Installation::Run run = installation.start({{"PATH", installation.searchPath(u"stopping"_s)},
                                                          {"REAL_PATH", installation.searchPath()},
                                                          {"COUNTER", installation.path(u"counter"_s)},
                                                          {"STOP_AT", QString::number(stop)}});
        stopped = run.status == -1;
        QVERIFY2(stopped || run.status == 7, qPrintable(run.error));

        const Installation::Run next = installation.start();

        const QByteArray release = upgrade ? "two" : "one";
        QCOMPARE(next.error, QString());
        QVERIFY(next.output.startsWith(QString::fromLatin1(release)));
        compareFolder(installation, release);
        QCOMPARE(Installation::read(installation.user(Options)),
                 upgrade ? QByteArray("mine") : Installation::content("one"));
    }
    QVERIFY2(stop > 10, "hardly a command was interrupted");
}

void LauncherTest::startsAtOnceDoNotDisturbEachOther()
{
    const Installation installation;
    std::vector<std::unique_ptr<QProcess>> processes(4);
    for (std::unique_ptr<QProcess> &process : processes)
        process = installation.begin({});

    for (const std::unique_ptr<QProcess> &process : processes) {
        const Installation::Run run = Installation::finish(*process);
        QCOMPARE(run.error, QString());
        QCOMPARE(run.status, 7);
    }

    compareFolder(installation, "one");
}

void LauncherTest::aFullDiskIsToldAndHarmsNothing_data()
{
    anInterruptedRenewalIsDoneAgain_data();
}

void LauncherTest::aFullDiskIsToldAndHarmsNothing()
{
    QFETCH(const bool, upgrade);
    Installation installation;
    if (upgrade) {
        installation.start();
        installation.install("two");
    }
    const QString launcher = installation.launcher() + u".real"_s;
    QFile::rename(installation.launcher(), launcher);
    // A limit to the length of files stands in for the disk: no file of the folder goes below it.
    installation.writeInstalled(
        u"bin/alembra"_s, "#!/bin/sh\ntrap '' XFSZ\nulimit -f 1\nexec \"" + launcher.toUtf8() + "\"\n", true);

    const Installation::Run run = installation.start();

    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.error.contains(installation.userFolder()) && run.error.contains("File too large"_L1),
             qPrintable(run.error));
    if (upgrade) {
        for (const char *file : {Database, Original, Options})
            QCOMPARE(Installation::read(installation.user(file)), Installation::content("one"));
    }
    QVERIFY(!QFileInfo::exists(installation.user("Data/Database_uk.mdb.new")));
}

void LauncherTest::aMessageGoesToAWindowWhereThereIsADesktop()
{
    const Installation installation;
    installation.writeInstalled(u"windows/zenity"_s, "#!/bin/sh\nprintf '%s|' \"$@\" >\"$HOME/window\"\n",
                                true);
    Installation::write(installation.userFolder(), "a file in the way");

    const Installation::Run run =
        installation.start({{"DISPLAY", u":99"_s}, {"PATH", installation.searchPath(u"windows"_s)}});

    QCOMPARE(run.status, 1);
    const QByteArray window = Installation::read(installation.home() + u"/window"_s);
    QVERIFY2(window.contains("could not be set up") && window.contains("File exists"), window);
}

QTEST_GUILESS_MAIN(LauncherTest)
#include "launcher_test.moc"
