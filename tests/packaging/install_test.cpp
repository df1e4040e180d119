#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

/// What `cmake --install` makes: the portable folder, and the tree for all users of a machine.
class InstallTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thePortableFolderIsTheAssembledOne();
    void aMovedFolderRuns();
    void installingAgainKeepsOptionsAndChangedDatabase();
    void theLauncherStartsTheProgramOfTheSystemTree();
    void anIncompleteBuildLeavesNothing();
    void theSystemTreeFitsTogether();
    void allNameTheSameVersion();

private:
    // Installs a component, or what comes without naming one. Gives the status and what was said on standard
    // error.
    std::pair<int, QByteArray> runInstall(const QString &folder, const QString &component)
    {
        QStringList arguments{u"--install"_s, QStringLiteral(BUILD_FOLDER), u"--prefix"_s, path(folder)};
        if (!component.isEmpty())
            arguments << u"--component"_s << component;
        QProcess cmake;
        cmake.start(QStringLiteral(CMAKE), arguments);
        const bool finished = cmake.waitForFinished(120000);
        return {finished ? cmake.exitCode() : -1, cmake.readAllStandardError()};
    }

    void install(const QString &folder, const QString &component = {})
    {
        const auto [status, error] = runInstall(folder, component);
        QVERIFY2(status == 0, error);
    }

    QString path(const QString &below) const { return m_folder->filePath(below); }

    static QByteArray read(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    static void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    static QSet<QString> files(const QString &folder)
    {
        QSet<QString> found;
        QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (all.hasNext())
            found << QDir(folder).relativeFilePath(all.next());
        return found;
    }

    // Whether the program comes up and stays: it opens its socket when it starts, and ends by itself on a
    // failure.
    void verifyRuns(const QString &program)
    {
        QDir(m_folder->path()).mkpath(u"home"_s);
        QDir(m_folder->path()).mkpath(u"run"_s);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, path(u"home"_s));
        environment.remove(u"XDG_DATA_HOME"_s);
        environment.insert(u"XDG_RUNTIME_DIR"_s, path(u"run"_s));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, QStringList());
        QVERIFY(process.waitForStarted());
        QVERIFY(
            QTest::qWaitFor([&] { return !QDir(path(u"run"_s)).entryList(QDir::System).isEmpty(); }, 20000));
        QVERIFY2(!process.waitForFinished(1500), process.readAllStandardError());
        QCOMPARE(process.readAllStandardError(), QByteArray());
        process.kill();
        process.waitForFinished();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void InstallTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void InstallTest::thePortableFolderIsTheAssembledOne()
{
    install(u"."_s);

    QSet<QString> assembled = files(QStringLiteral(ALEMBRA_FOLDER));
    const QSet<QString> installed = files(path(u"alembra"_s));
    assembled.remove(u"Tempo.net"_s);
    QVERIFY2((assembled - installed).isEmpty(), qPrintable((assembled - installed).values().join(u'\n')));
    QCOMPARE(installed - assembled, (QSet<QString>{u"LICENSE"_s, u"LICENSES.md"_s, u"README.txt"_s}));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList{u"alembra"_s});
}

void InstallTest::aMovedFolderRuns()
{
    install(u"there"_s);
    QVERIFY(QDir().rename(path(u"there/alembra"_s), path(u"a moved folder"_s)));

    verifyRuns(path(u"a moved folder/Alembra_uk"_s));
}

void InstallTest::installingAgainKeepsOptionsAndChangedDatabase()
{
    install(u"."_s);
    const QString options = path(u"alembra/options_uk.ini"_s);
    const QString database = path(u"alembra/Data/Database_uk.mdb"_s);
    const QString original = path(u"alembra/Backup/Database_uk_origin.rbk"_s);
    const QByteArray delivered = read(original);
    write(options, "mine");
    write(database, "mine");

    install(u"."_s);
    QCOMPARE(read(options), "mine");
    QCOMPARE(read(database), "mine");

    // As it came with an older version.
    write(original, "mine");
    install(u"."_s);
    QCOMPARE(read(database), delivered);
    QCOMPARE(read(original), delivered);
}

void InstallTest::theLauncherStartsTheProgramOfTheSystemTree()
{
    install(u"usr"_s, u"system"_s);

    verifyRuns(path(u"usr/bin/alembra"_s));

    const QSet<QString> mine = files(path(u"home/.local/share/alembra"_s));
    QCOMPARE(mine, (QSet<QString>{u"options_uk.ini"_s, u"Data/Database_uk.mdb"_s,
                                  u"Backup/Database_uk_origin.rbk"_s}));
    QSet<QString> assembled = files(QStringLiteral(ALEMBRA_FOLDER));
    assembled.remove(u"Tempo.net"_s);
    const QSet<QString> missing = assembled - files(path(u"usr/lib/alembra"_s)) - mine;
    QVERIFY2(missing.isEmpty(), qPrintable(QStringList(missing.cbegin(), missing.cend()).join(u'\n')));
}

void InstallTest::anIncompleteBuildLeavesNothing()
{
    const QString stamp = QStringLiteral(BUILD_FOLDER "/data/pictures.stamp"); // no other test looks at it
    QVERIFY(QFile::rename(stamp, stamp + u".away"_s));
    const auto back = qScopeGuard([&] { QFile::rename(stamp + u".away"_s, stamp); });
    for (const QString &component : {u"portable"_s, u"system"_s}) {
        const auto [status, error] = runInstall(u"nothing"_s, component);
        QVERIFY2(status != 0 && error.contains("Not built: " + stamp.toUtf8()), error);
    }
    QVERIFY(!QFileInfo::exists(path(u"nothing"_s)));
}

// Menu entry, icons and manual page name one another and the launcher.
void InstallTest::theSystemTreeFitsTogether()
{
    install(u"usr"_s, u"system"_s);

    const QByteArray desktop = read(path(u"usr/share/applications/alembra.desktop"_s));
    QVERIFY2(desktop.contains("\nExec=alembra\n") && desktop.contains("\nIcon=alembra\n"), desktop);
    QVERIFY(QFileInfo(path(u"usr/bin/alembra"_s)).isExecutable());
    QVERIFY(QFileInfo(path(u"usr/share/man/man1/alembra.1.gz"_s)).size() > 500);
    QVERIFY(QFileInfo::exists(path(u"usr/share/icons/hicolor/scalable/apps/alembra.svg"_s)));
    for (const int size : {16, 48, 256}) {
        const QByteArray icon = read(path(u"usr/share/icons/hicolor/%1x%1/apps/alembra.png"_s.arg(size)));
        QCOMPARE(icon.mid(1, 3), "PNG");
        QCOMPARE(quint8(icon[18]) * 256 + quint8(icon[19]), size);
    }
    const QDir metainfo(path(u"usr/share/metainfo"_s));
    const QStringList names = metainfo.entryList(QDir::Files);
    QCOMPARE(names.size(), 1);
    const QString id = QString(names.front()).remove(u".metainfo.xml"_s);
    const QByteArray text = read(metainfo.filePath(names.front()));
    QVERIFY2(text.contains("<id>" + id.toUtf8() + "</id>") && text.contains(">alembra.desktop<"), text);
}

void InstallTest::allNameTheSameVersion()
{
    const auto first = [](const char *file, const char *pattern) {
        const QString text =
            QString::fromUtf8(read(QLatin1StringView(ALEMBRA_SOURCE "/") + QLatin1StringView(file)));
        return QRegularExpression(QLatin1StringView(pattern), QRegularExpression::MultilineOption)
            .match(text)
            .captured(1);
    };
    QCOMPARE(first("CHANGELOG.md", "^## (\\S+) \\(\\d{4}-\\d\\d-\\d\\d\\)$"), QLatin1StringView(VERSION));
    QCOMPARE(first("packaging/changelog.debian.in", "^alembra \\(([^-)]+)-1\\) "),
             QLatin1StringView(VERSION));
    QCOMPARE(first("packaging/alembra.metainfo.xml.in", "<release version=\"([^\"]+)\""),
             QLatin1StringView(VERSION));
}

QTEST_GUILESS_MAIN(InstallTest)
#include "install_test.moc"
