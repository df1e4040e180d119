#include "core/module1.h"
#include "reports/reportsave.h"
#include "store/datastore.h"
#include "tests/support/files.h"
#include "tests/support/filetrouble.h"
#include "tests/support/scripteddesktop.h"

#include <sys/stat.h>

/// Where reports are saved, and what the user is asked and told.
class ReportSaveTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_module = std::make_unique<Module1>();
        m_module->AppFolder = "/program";
        m_data = std::make_unique<DataStore>();
        m_data->lists.ListView3[2].append(u"a row, which switches the class of rows");
        m_desktop = std::make_unique<ScriptedDesktop>();
        m_save = std::make_unique<ReportSave>(*m_module, *m_data, *m_desktop);
    }

    // The first in the order of the panes, whatever else is shown.
    void whatIsShownChoosesNameAndReport()
    {
        for (const auto &[first, tab, name, mark] :
             {std::tuple(0, 1, "Pane - Tab", "Reractive index "),
              {0, 2, "Pane - Tab", "Polarity index "},
              {0, 3, "Pane - Tab", "Carbon "},
              {0, 4, "Pane - Tab", "e/m (intensity)"},
              {0, 5, "Pane - Tab", "Drying agent "},
              {0, 6, "Pane - Tab", "Mixture"},
              {1, 0, "Pane", "<title>Alembra - Elements</title>"},
              {2, 0, "Constants and Units", "<title>Alembra - Constants and Units</title>"},
              {3, 0, "Biochemistry", "<title>Biochemistry</title>"},
              {4, 0, "Solutions", "<title>Solutions</title>"},
              {5, 0, "IR - Table", "<title>Alembra - IR - Table</title>"}}) {
            init();
            save({path()}, {first < 1, first < 2, first < 3, first < 4, first < 5, true, "Pane", tab, "Tab"});
            QCOMPARE(offered(), QStringList(name));
            const Desktop::SaveRequest &request = m_desktop->saveRequests.constFirst();
            QCOMPARE(request.folder, m_module->AppFolder);
            QCOMPARE(request.filterName, QString("Page Web"));
            QCOMPARE(request.filterGlobs, (QStringList{"*.htm", "*.html"}));
            QVERIFY2(readFile(path()).contains(mark), mark);
            QVERIFY(m_desktop->boxes.isEmpty());
            QCOMPARE(m_module->ProbedLength, 0);
        }
    }

    void withoutAReportNothingIsWritten()
    {
        save({path("mine")}, {});
        save({path("other")}, {});
        QCOMPARE(offered(), (QStringList{"", path("mine.htm")}));
        QVERIFY(!QFile::exists(path("mine.htm")) && !QFile::exists(path("other.htm")));

        const ReportContext noTab{true, true, true, true, true, true, "Pane", 7, "Tab"};
        QVERIFY(!m_save->forPaper(noTab));
        save({path()}, noTab);
        QVERIFY(!QFile::exists(path()));
    }

    void whatIsShownIsAskedAgainAfterTheDialog()
    {
        m_desktop->savePaths << path();
        m_save->run([&] {
            ReportContext context;
            context.frmsolution = m_desktop->saveRequests.isEmpty();
            context.frmbioch = !context.frmsolution;
            return context;
        });
        QCOMPARE(offered(), QStringList("Solutions"));
        QVERIFY(readFile(path()).contains("<title>Biochemistry</title>"));
    }

    void nameGetsItsSuffix()
    {
        const QStringList names[] = {{"a", "a.htm"},           {"a.htm", "a.htm"}, {"a.html", "a.html"},
                                     {"a.HTML", "a.HTML.htm"}, {"htm", "htm.htm"}, {"v1.2", "v1.2.htm"},
                                     {"a.HTM", "a.HTM.htm"}};
        for (const QStringList &name : names) {
            init();
            save({path(name[0])});
            QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(name[1]));
        }
    }

    void whatIsThereIsAskedAboutOrReported()
    {
        const QString question = "The file '%1' already exists. Replace existing file?";
        const QString readOnly =
            "Impossible to save '%1'. The file already exists and has a read-only attribute. "
            "Save it with a different name or in different folder.";
        const QString inUse = "Impossible to save '%1'. The file is in use. Save it with a different name or "
                              "in a different folder.";
        const QString locked = "Impossible to peform back-up, the file '%1' is in use.";
        const QString inTheWay =
            "Impossible to save '%1'. The file already exists and has a read-only attribute. "
            "Save it with a different name or in a different folder.\n\nReason: ";
        constexpr int OtherName = 3; // is asked for, and cancelled
        const struct
        {
            QString name;
            QByteArray before; ///< content of the file, null: none
            QStringList boxes;
            int probed;
            std::function<void()> trouble = {};
        } rows[] = {
            {"empty.htm", "", {}, 0},
            {"yes.htm", QByteArray(100000, 'x'), {question}, 0},
            {"no.htm", "old", {question}, OtherName},
            {"read-only.htm", "old", {question, readOnly}, OtherName, [&] { forbidWriting(); }},
            {"locked.htm", "old", {question, inUse}, OtherName, [&] { lock(); }},
            // Without a length there is no question: the writer finds the lock.
            {"empty-locked.htm", "", {locked}, 70, [&] { lock(); }},
            {"folder.htm", {}, {inTheWay + "this is a folder."}, 75, [&] { QDir().mkpath(m_path); }},
            {"pipe.htm", {}, {inTheWay + "this is a pipe or a device, not a file."}, 75, [&] { makePipe(); }},
            {QString(260, 'x') + ".htm", {}, {inTheWay + "the name is too long."}, 75},
            {"closed/report.htm", {}, {inTheWay + "the folder is not writable."}, 75, [&] { closeFolder(); }},
            {"none/report.htm", {}, {}, 76},
        };
        for (const auto &row : rows) {
            init();
            m_path = path(row.name);
            if (!row.before.isNull())
                writeFile(m_path, row.before);
            if (row.trouble)
                row.trouble();
            m_desktop->answers = {row.name == "no.htm" ? Desktop::No : Desktop::Yes};
            save({m_path});
            m_trouble.reset();
            QList<QPair<QString, int>> boxes;
            for (const QString &box : row.boxes)
                boxes.append({box.arg(m_path), box == question ? 52 : 48});
            QCOMPARE(m_desktop->boxes, boxes);
            QCOMPARE(offered(), QStringList(row.probed == OtherName ? 2 : 1, "Solutions"));
            QCOMPARE(m_module->ProbedLength, row.probed);
            if (row.probed == 0)
                QVERIFY(readFile(m_path).startsWith("<html>") &&
                        readFile(m_path).endsWith("</body></html>\r\n"));
            else if (!row.before.isNull())
                QCOMPARE(readFile(m_path), row.before);
            QCOMPARE(m_module->ReportRowClass.isEmpty(), row.probed != 0);
        }
    }

    void afterNoAnotherNameIsSaved()
    {
        writeFile(path(), "old");
        save({path("report"), path("new")});
        QCOMPARE(offered(), (QStringList{"Solutions", "Solutions"}));
        QCOMPARE(readFile(path()), QByteArray("old"));
        QVERIFY(readFile(path("new.htm")).startsWith("<html>"));
    }

    void fullDiskIsSilentAndLeavesTheFirstBytes()
    {
        save({path()});
        const qsizetype whole = readFile(path()).size();
        for (const qsizetype bytes : {qsizetype(0), qsizetype(1), whole / 2, whole - 1}) {
            const QString file = path(QString::number(bytes) + ".htm");
            {
                const FullDisk disk{rlim_t(bytes)};
                save({file});
            }
            QVERIFY(m_desktop->boxes.isEmpty());
            QCOMPARE(m_module->ProbedLength, 61);
            QCOMPARE(readFile(file).size(), bytes);
        }
    }

private:
    QString path(const QString &name = "report.htm") const { return m_folder->filePath(name); }
    QStringList offered() const
    {
        QStringList names;
        for (const Desktop::SaveRequest &request : m_desktop->saveRequests)
            names << request.fileName;
        return names;
    }
    static ReportContext solutions()
    {
        ReportContext context;
        context.frmsolution = true;
        return context;
    }
    void save(const QStringList &paths, const ReportContext &shown = solutions())
    {
        m_desktop->savePaths = paths;
        m_save->run([&] { return shown; });
    }
    // By the permission bits, whether or not this process could write all the same.
    void forbidWriting() const { QFile::setPermissions(m_path, QFile::ReadOwner); }
    void lock() { m_trouble = std::make_shared<LockElsewhere>(m_path); }
    void makePipe() const { mkfifo(QFile::encodeName(m_path).constData(), 0600); }
    void closeFolder()
    {
        QDir().mkpath(path("closed"));
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755));
        QFile::setPermissions(path("closed"), QFile::Permissions(0x5555));
        m_trouble = std::make_shared<OrdinaryUser>();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Module1> m_module;
    std::unique_ptr<DataStore> m_data;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<ReportSave> m_save;
    std::shared_ptr<void> m_trouble; ///< as long as a save takes
    QString m_path;
};

const TestClass<ReportSaveTest> reportSaveTest;
#include "reportsave_test.moc"
