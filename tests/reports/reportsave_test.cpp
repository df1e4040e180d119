#include "core/module1.h"
#include "reports/reportsave.h"
#include "store/datastore.h"
#include "tests/support/filetrouble.h"
#include "tests/support/scripteddesktop.h"

#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

class ReportSaveTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstOfWhatIsOnShowIsOffered_data();
    void firstOfWhatIsOnShowIsOffered();
    void tabOfTheSolventsChoosesTheReport_data();
    void tabOfTheSolventsChoosesTheReport();
    void withoutAnyPaneTheNameStaysAndNothingIsWritten();
    void whatIsOnShowIsAskedAgainBehindTheDialog();
    void nameGetsItsSuffix_data();
    void nameGetsItsSuffix();
    void cancellingDoesNothing();
    void emptyFileIsReplacedWithoutAQuestion();
    void noOffersTheDefaultNameAgain();
    void yesReplacesAPlainFile();
    void readOnlyFileIsRefusedAfterYes();
    void lockedFileIsInUse();
    void emptyLockedFileIsInUse();
    void whatIsInTheWayIsTold_data();
    void whatIsInTheWayIsTold();
    void folderWithoutPermissionIsTold();
    void missingFolderIsSilent();
    void fullDiskIsSilentAndLeavesTheFirstBytes_data();
    void fullDiskIsSilentAndLeavesTheFirstBytes();

private:
    QString path(const QString &name = "report.htm") const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QByteArray read(const QString &name = "report.htm") const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    bool isReport() const { return read().startsWith("<html>") && read().endsWith("</body></html>\r\n"); }
    QStringList offered() const
    {
        QStringList names;
        for (const Desktop::SaveRequest &request : m_desktop->saveRequests)
            names << request.fileName;
        return names;
    }
    static QPair<QString, int> question(const QString &path)
    {
        return {"The file '" + path + "' already exists. Replace existing file?", 52};
    }
    /// The Solutions pane is on show.
    void run()
    {
        m_save->run([] {
            ReportContext context;
            context.frmsolution = true;
            return context;
        });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Module1> m_module;
    std::unique_ptr<DataStore> m_data;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<ReportSave> m_save;
};

void ReportSaveTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_module = std::make_unique<Module1>();
    m_module->AppFolder = "/program";
    m_data = std::make_unique<DataStore>();
    m_desktop = std::make_unique<ScriptedDesktop>();
    m_save = std::make_unique<ReportSave>(*m_module, *m_data, *m_desktop);
}

void ReportSaveTest::firstOfWhatIsOnShowIsOffered_data()
{
    QTest::addColumn<QString>("offeredName");
    QTest::addColumn<QByteArray>("title");
    QTest::newRow("0") << "Pane - Drying" << QByteArray("<title>Alembra - Solvents - Drying</title>");
    QTest::newRow("1") << "Pane" << QByteArray("<title>Alembra - Elements</title>");
    QTest::newRow("2") << "Constants and Units" << QByteArray("<title>Alembra - Constants and Units</title>");
    QTest::newRow("3") << "Biochemistry" << QByteArray("<title>Biochemistry</title>");
    QTest::newRow("4") << "Solutions" << QByteArray("<title>Solutions</title>");
    QTest::newRow("5") << "IR - Table" << QByteArray("<title>Alembra - IR - Table</title>");
}

// All that stands behind the one in the order is on show too.
void ReportSaveTest::firstOfWhatIsOnShowIsOffered()
{
    QFETCH(QString, offeredName);
    QFETCH(QByteArray, title);
    const int first = QString(QTest::currentDataTag()).toInt();
    m_desktop->savePaths << path();
    m_save->run([first] {
        return ReportContext{first < 1, first < 2, first < 3, first < 4, first < 5,
                             true,      "Pane",    5,         "Drying"};
    });
    QCOMPARE(offered(), QStringList(offeredName));
    const Desktop::SaveRequest &request = m_desktop->saveRequests.constFirst();
    QCOMPARE(request.folder, m_module->AppFolder);
    QCOMPARE(request.filterName, QString("Page Web"));
    QCOMPARE(request.filterGlobs, (QStringList{"*.htm", "*.html"}));
    QVERIFY(read().contains(title));
    QVERIFY(m_desktop->boxes.isEmpty());
    QCOMPARE(m_module->ProbedLength, 0);
}

void ReportSaveTest::tabOfTheSolventsChoosesTheReport_data()
{
    QTest::addColumn<QByteArray>("mark");
    QTest::newRow("1") << QByteArray("Reractive index ");
    QTest::newRow("2") << QByteArray("Polarity index ");
    QTest::newRow("3") << QByteArray("Carbon ");
    QTest::newRow("4") << QByteArray("e/m (intensity)");
    QTest::newRow("5") << QByteArray("Drying agent ");
    QTest::newRow("6") << QByteArray("Mixture");
    QTest::newRow("7") << QByteArray("no file");
}

void ReportSaveTest::tabOfTheSolventsChoosesTheReport()
{
    QFETCH(QByteArray, mark);
    m_desktop->savePaths << path();
    m_save->run([] {
        ReportContext context;
        context.frmsolv = true;
        context.solventTab = QString(QTest::currentDataTag()).toInt();
        return context;
    });
    QVERIFY2(read().contains(mark), read().constData());
}

void ReportSaveTest::withoutAnyPaneTheNameStaysAndNothingIsWritten()
{
    const auto nothing = [] { return ReportContext(); };
    m_desktop->savePaths << path("mine") << path("other");
    m_save->run(nothing);
    m_save->run(nothing);
    QCOMPARE(offered(), (QStringList{"", path("mine.htm")}));
    QVERIFY(!QFile::exists(path("mine.htm")) && !QFile::exists(path("other.htm")));
}

void ReportSaveTest::whatIsOnShowIsAskedAgainBehindTheDialog()
{
    m_desktop->savePaths << path();
    m_save->run([&] {
        ReportContext context;
        context.frmsolution = m_desktop->saveRequests.isEmpty();
        context.frmbioch = !context.frmsolution;
        return context;
    });
    QCOMPARE(offered(), QStringList("Solutions"));
    QVERIFY(read().contains("<title>Biochemistry</title>"));
}

void ReportSaveTest::nameGetsItsSuffix_data()
{
    QTest::addColumn<QString>("written");
    QTest::newRow("a") << "a.htm";
    QTest::newRow("a.htm") << "a.htm";
    QTest::newRow("a.html") << "a.html";
    QTest::newRow("a.HTML") << "a.HTML.htm";
    QTest::newRow("a.HTM") << "a.HTM.htm";
    QTest::newRow("htm") << "htm.htm";
    QTest::newRow("v1.2") << "v1.2.htm";
}

void ReportSaveTest::nameGetsItsSuffix()
{
    QFETCH(QString, written);
    m_desktop->savePaths << path(QTest::currentDataTag());
    run();
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(written));
}

void ReportSaveTest::cancellingDoesNothing()
{
    write("report.htm", "old");
    m_desktop->savePaths << path();
    m_desktop->answers << Desktop::No;
    run();
    QCOMPARE(m_desktop->boxes.size(), 1);
    QCOMPARE(read(), QByteArray("old"));
    QCOMPARE(m_module->ProbedLength, 3);
    QCOMPARE(m_module->ReportRowClass, QString());
}

void ReportSaveTest::emptyFileIsReplacedWithoutAQuestion()
{
    write("report.htm", "");
    m_desktop->savePaths << path();
    run();
    QVERIFY(m_desktop->boxes.isEmpty());
    QVERIFY(isReport());
}

void ReportSaveTest::noOffersTheDefaultNameAgain()
{
    write("report.htm", "old");
    m_desktop->savePaths << path("report") << path("new");
    m_desktop->answers << Desktop::No;
    run();
    QCOMPARE(offered(), (QStringList{"Solutions", "Solutions"}));
    QCOMPARE(m_desktop->boxes, (QList{question(path())}));
    QCOMPARE(read(), QByteArray("old"));
    QVERIFY(read("new.htm").startsWith("<html>"));
}

void ReportSaveTest::yesReplacesAPlainFile()
{
    write("report.htm", QByteArray(100000, 'x'));
    m_desktop->savePaths << path();
    m_desktop->answers << Desktop::Yes;
    run();
    QCOMPARE(m_desktop->boxes, (QList{question(path())}));
    QVERIFY(isReport());
}

// Permission bits count, not whether this process could write all the same.
void ReportSaveTest::readOnlyFileIsRefusedAfterYes()
{
    write("report.htm", "old");
    QVERIFY(QFile::setPermissions(path(), QFile::ReadOwner));
    m_desktop->savePaths << path();
    m_desktop->answers << Desktop::Yes << Desktop::Ok;
    run();
    const QPair<QString, int> refusal{"Impossible to save '" + path() +
                                          "'. The file already exists and has a read-only attribute. Save it "
                                          "with a different name or in different folder.",
                                      48};
    QCOMPARE(m_desktop->boxes, (QList{question(path()), refusal}));
    QCOMPARE(offered().size(), 2);
    QCOMPARE(read(), QByteArray("old"));
}

void ReportSaveTest::lockedFileIsInUse()
{
    write("report.htm", "old");
    m_desktop->savePaths << path();
    m_desktop->answers << Desktop::Yes << Desktop::Ok;
    const LockElsewhere lock(path());
    QVERIFY(lock.isLocked());
    run();
    const QPair<QString, int> refusal{"Impossible to save '" + path() +
                                          "'. The file is in use. Save it with a different name or in a "
                                          "different folder.",
                                      48};
    QCOMPARE(m_desktop->boxes, (QList{question(path()), refusal}));
    QCOMPARE(offered().size(), 2);
    QCOMPARE(read(), QByteArray("old"));
}

// Without a length there is no question, so that it is the writer that finds the lock.
void ReportSaveTest::emptyLockedFileIsInUse()
{
    write("report.htm", "");
    m_desktop->savePaths << path();
    const LockElsewhere lock(path());
    QVERIFY(lock.isLocked());
    run();
    QCOMPARE(m_desktop->boxes,
             (QList{QPair<QString, int>{"Impossible to peform back-up, the file '" + path() + "' is in use.",
                                        48}}));
    QCOMPARE(m_module->ProbedLength, 70);
}

void ReportSaveTest::whatIsInTheWayIsTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("folder") << "folder.htm"
                            << "this is a folder.";
    QTest::newRow("pipe") << "pipe.htm"
                          << "this is a pipe or a device, not a file.";
    QTest::newRow("long name") << QString(260, 'x') + ".htm"
                               << "the name is too long.";
}

void ReportSaveTest::whatIsInTheWayIsTold()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    QVERIFY(QDir().mkpath(path("folder.htm")));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.htm")).constData(), 0600), 0);
    m_desktop->savePaths << path(name);
    run();
    QCOMPARE(
        m_desktop->boxes,
        (QList{QPair<QString, int>{"Impossible to save '" + path(name) +
                                       "'. The file already exists and has a read-only attribute. Save it "
                                       "with a different name or in a different folder.\n\nReason: " +
                                       reason,
                                   48}}));
    QCOMPARE(m_module->ProbedLength, 75);
    QCOMPARE(m_module->ReportRowClass, QString());
}

void ReportSaveTest::folderWithoutPermissionIsTold()
{
    QVERIFY(QDir().mkpath(path("closed")));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
    QVERIFY(QFile::setPermissions(path("closed"), QFile::Permissions(0x5555)));
    m_desktop->savePaths << path("closed/report.htm");
    {
        const OrdinaryUser user;
        run();
    }
    QCOMPARE(m_desktop->boxes.size(), 1);
    QVERIFY(m_desktop->boxes.constFirst().first.endsWith("Reason: the folder is not writable."));
    QCOMPARE(m_module->ProbedLength, 75);
}

void ReportSaveTest::missingFolderIsSilent()
{
    m_desktop->savePaths << path("none/report.htm");
    run();
    QVERIFY(m_desktop->boxes.isEmpty());
    QCOMPARE(m_module->ProbedLength, 76);
}

void ReportSaveTest::fullDiskIsSilentAndLeavesTheFirstBytes_data()
{
    QTest::addColumn<int>("pane");
    QTest::addColumn<int>("solventTab");
    for (int pane = 1; pane <= 5; ++pane)
        QTest::addRow("pane %d", pane) << pane << 0;
    for (int tab = 1; tab <= 6; ++tab)
        QTest::addRow("solvents, tab %d", tab) << 0 << tab;
}

// Whatever the report and wherever the disk fills up.
void ReportSaveTest::fullDiskIsSilentAndLeavesTheFirstBytes()
{
    QFETCH(int, pane);
    QFETCH(int, solventTab);
    const auto onShow = [&] {
        return ReportContext{pane < 1, pane < 2, pane < 3, pane < 4, pane < 5, true, "Pane", solventTab, ""};
    };
    m_desktop->savePaths << path("whole.htm");
    m_save->run(onShow);
    const QByteArray whole = read("whole.htm");
    QVERIFY(whole.endsWith("</body></html>\r\n"));
    for (const qsizetype bytes : {qsizetype(0), qsizetype(1), whole.size() / 2, whole.size() - 1}) {
        m_desktop->savePaths << path(QString::number(bytes) + ".htm");
        {
            const FullDisk disk{rlim_t(bytes)};
            m_save->run(onShow);
        }
        QVERIFY(m_desktop->boxes.isEmpty());
        QCOMPARE(m_module->ProbedLength, 61);
        QCOMPARE(read(QString::number(bytes) + ".htm").size(), bytes);
    }
    m_desktop->savePaths << path("again.htm");
    m_save->run(onShow);
    QVERIFY(read("again.htm").endsWith("</body></html>\r\n"));
    QCOMPARE(m_module->ProbedLength, 0);
}

QTEST_APPLESS_MAIN(ReportSaveTest)
#include "reportsave_test.moc"
