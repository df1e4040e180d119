#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// The launcher of an installation for all users, before a program that tells its arguments.
class LauncherTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theProgramGetsTheFolderOfTheUser_data();
    void theProgramGetsTheFolderOfTheUser();
    void aFolderOfAnEarlierReleaseKeepsWhatIsTheUsers();

private:
    QString path(const QString &below) const { return m_folder->filePath(below); }

    void write(const QString &below, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(below)).path());
        QFile file(path(below));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    // The program's arguments, or what the launcher says instead.
    QString start(const QString &home, const QString &dataHome) const
    {
        QProcessEnvironment environment;
        environment.insert(u"PATH"_s, qEnvironmentVariable("PATH"));
        environment.insert(u"HOME"_s, home);
        environment.insert(u"XDG_DATA_HOME"_s, dataHome);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(path(u"usr/bin/alembra"_s), {u"-style"_s, u"two words"_s});
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void LauncherTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile launcher(QStringLiteral(ALEMBRA_SOURCE "/packaging/alembra.sh"));
    QVERIFY(launcher.open(QIODevice::ReadOnly));
    write(u"usr/bin/alembra"_s, launcher.readAll());
    write(u"usr/lib/alembra/Alembra_uk"_s, "#!/bin/sh\nprintf '%s|' \"$@\"\n");
}

void LauncherTest::theProgramGetsTheFolderOfTheUser_data()
{
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("dataHome");
    QTest::addColumn<QString>("folder"); // empty where there is no start

    QTest::newRow("below the home folder")
        << u"/my home"_s << QString() << u"/my home/.local/share/alembra"_s;
    QTest::newRow("where the user says") << u"/my home"_s << u"/big disk"_s << u"/big disk/alembra"_s;
    QTest::newRow("not in a relative place") << u"/my home"_s << u"."_s << u"/my home/.local/share/alembra"_s;
    QTest::newRow("nowhere without a home") << QString() << QString() << QString();
}

void LauncherTest::theProgramGetsTheFolderOfTheUser()
{
    QFETCH(const QString, home);
    QFETCH(const QString, dataHome);
    QFETCH(const QString, folder);

    const QString output = start(home, dataHome);

    if (folder.isEmpty())
        QVERIFY2(output.contains("HOME: names no home folder"_L1), qPrintable(output));
    else
        QCOMPARE(output, folder + u"|-style|two words|"_s);
}

void LauncherTest::aFolderOfAnEarlierReleaseKeepsWhatIsTheUsers()
{
    const QString folder = u"data/alembra/"_s;
    const QStringList kept{u"options_uk.ini"_s, u"Backup/Database_uk_origin.rbk"_s, u"Data/Database_uk.mdb"_s,
                           u"Data/ir/1.gif"_s, u"solvents.htm"_s};
    for (const QString &file : kept + QStringList{u"Alembra_uk"_s, u"Alembra_network.so"_s, u".lock"_s})
        write(folder + file, "mine");
    QDir(path(folder)).mkpath(u"Data/orga"_s);
    for (const char *link : {"menuc_uk.xcb", "Data/ir/2.gif", "Data/orga/1.gif"})
        QFile::link(path(u"usr/share/alembra/"_s) + QLatin1StringView(link),
                    path(folder) + QLatin1StringView(link));
    QFile::link(path(u"elsewhere.gif"_s), path(folder + u"Data/ir/3.gif"_s));
    write(folder + u".release"_s, "1.1.0");

    QCOMPARE(start(path(u"home"_s), path(u"data"_s)), path(u"data/alembra|-style|two words|"_s));

    QStringList left;
    QDirIterator all(path(folder), QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QFileInfo entry(all.next());
        if (!entry.isDir())
            left << QDir(path(folder)).relativeFilePath(entry.filePath());
        else
            QVERIFY2(!QDir(entry.filePath()).isEmpty(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                     qPrintable(entry.filePath()));
    }
    left.sort();
    QStringList expected = kept + QStringList{u"Data/ir/3.gif"_s};
    expected.sort();
    QCOMPARE(left, expected);
}

QTEST_GUILESS_MAIN(LauncherTest)
#include "launcher_test.moc"
