#include "app/commands.h"
#include "tests/support/wholerun.h"
#include "widgets/picturebox.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QLabel>

/// The files that the program comes with, in turn missing, empty, cut, of another kind, unreadable or a
/// folder.
class FilesTest final : public WholeRun
{
    Q_OBJECT

private Q_SLOTS:
    void spoiltAtStart()
    {
        struct
        {
            const char *file;
            const char *fault;
            const char *outcome;
        } const rows[] = {
            {"options_uk.ini", "missing", "report 53"},
            {"options_uk.ini", "empty", "runs"},
            {"options_uk.ini", "unreadable", "report 75"},
            {"options_uk.ini", "a folder", "report 75"},
            {"menuc_uk.xcb", "missing", "report 53"},
            {"menuc_uk.xcb", "empty", "report 321"},
            {"menuc_uk.xcb", "cut", "report 321"},
            {"menuc_uk.xcb", "unreadable", "report 75"},
            {"menuc_uk.xcb", "a folder", "report 75"},
            {"Data/Database_uk.mdb", "missing", "question"},
            {"Data/Database_uk.mdb", "empty", "question"},
            {"Data/Database_uk.mdb", "cut", "question"},
            {"Data/Database_uk.mdb", "of another kind", "question"},
            {"Data/Database_uk.mdb", "unreadable", "question"},
            {"Data/Database_uk.mdb", "a folder", "question"},
            // Never opened while the database is good, or by another program.
            {"Backup/Database_uk_origin.rbk", "a folder", "runs"},
            {"alembra_help_uk.chm", "a folder", "runs"},
        };
        QStringList windows; // at the last box
        m_desktop.whileWaiting = [&windows] {
            windows.clear();
            for (const QWidget *window : QApplication::topLevelWidgets()) {
                if (window->isVisible())
                    windows << window->objectName();
            }
        };
        for (const auto &row : rows) {
            const ProgramFolder folder;
            spoil(folder, row.file, row.fault);
            const QString name = QStringLiteral("%1, %2: ").arg(row.file, row.fault);
            const QString end = outcome(folder, [](Form1 &form) { form.executeCommand(CommandId::Help); });
            QCOMPARE(name + end, name + row.outcome);
            QCOMPARE(m_cameUp, end == QStringLiteral("runs"));
            if (end.startsWith(QStringLiteral("report"))) {
                QVERIFY(m_desktop.boxes.constFirst().first.contains(folder.path(row.file)));
                QCOMPARE(windows, QStringList(QStringLiteral("frmload"))); // the splash
            }
        }
        m_desktop.whileWaiting = {};
    }

    // Wanted after a failed open, which was an error: a copy that fails then is not asked about again.
    void spoiltBackup()
    {
        struct
        {
            const char *fault;
            const char *last; ///< how the last box begins
        } const rows[] = {
            {"missing", "Run-time error '53'"},
            {"unreadable", "Run-time error '75'"},
            {"good", "The original database was successfully reinstalled!"},
        };
        for (const auto &row : rows) {
            const ProgramFolder folder;
            folder.write(QStringLiteral("Data/Database_uk.mdb"), "damage");
            if (qstrcmp(row.fault, "good") != 0)
                spoil(folder, "Backup/Database_uk_origin.rbk", row.fault);
            m_desktop.answers = {Desktop::Yes};
            outcome(folder);
            QVERIFY(!m_cameUp);
            QCOMPARE(m_desktop.boxes.size(), 2);
            QVERIFY2(m_desktop.boxes[1].first.startsWith(QLatin1StringView(row.last)),
                     qPrintable(m_desktop.boxes[1].first));
            const bool good = qstrcmp(row.fault, "good") == 0;
            QCOMPARE(folder.read(QStringLiteral("Data/Database_uk.mdb")) == "damage", !good);
            if (good)
                QCOMPARE(outcome(folder), QStringLiteral("runs"));
        }
    }

    void spoiltTips()
    {
        struct
        {
            const char *fault;
            const char *outcome;
            const char *tip;
        } const rows[] = {
            {"missing", "runs", "was not found?"},
            {"a folder", "runs", "was not found?"},
            {"empty", "runs", ""},
            {"of another kind", "runs", "This is no such file."},
            {"unreadable", "report 75", ""},
        };
        for (const auto &row : rows) {
            const ProgramFolder folder;
            folder.setOption(56, "1");
            spoil(folder, "TIPOFDAY_UK.TXT", row.fault);
            const QString end = outcome(folder, [&](Form1 &form) {
                QVERIFY(!form.isEnabled());
                const auto &tip =
                    get<QLabel>(get(form, QStringLiteral("frmTip")), QStringLiteral("lblTipText"));
                QVERIFY2(tip.text().contains(QLatin1StringView(row.tip)), row.fault);
            });
            QCOMPARE(row.fault + end, QLatin1StringView(row.fault) + QLatin1StringView(row.outcome));
        }
    }

    // Without a trap the report ends the program, with the path of the picture. The window of formulas says
    // that there is none, and only that.
    void spoiltPictures()
    {
        const Steps iron = [](Form1 &form) {
            form.executeCommand(1108);
            get<QAbstractButton>(form, QStringLiteral("Command7(25)")).click();
        };
        const Steps zoomed = [&](Form1 &form) {
            iron(form);
            Q_EMIT get<PictureBox>(form, QStringLiteral("imgato")).clicked();
        };
        const Steps crystal = [&](Form1 &form) {
            iron(form);
            get<QAbstractButton>(form, QStringLiteral("Command9")).click();
        };
        const Steps formula = [](Form1 &form) {
            form.executeCommand(1119);
            Q_EMIT get<RowListView>(form, QStringLiteral("ListView1")).rowDoubleClicked(0);
        };
        struct
        {
            Steps steps;
            const char *file;
            const char *fault;
            const char *outcome;
        } const rows[] = {
            {iron, "Data/elements/26.jpg", "missing", "report 53"},
            {iron, "Data/elements/26.jpg", "empty", "report 481"},
            {iron, "Data/elements/26.jpg", "of another kind", "report 481"},
            {iron, "Data/elements/26.jpg", "huge", "report 481"},
            {iron, "Data/elements/26.jpg", "a folder", "report 75"},
            {iron, "Data/elements/26.jpg", "unreadable", "report 481"},
            {zoomed, "Data/elements/26b.jpg", "missing", "report 53"},
            {zoomed, "Data/elements/26b.jpg", "empty", "report 481"},
            {crystal, "Data/cristal/Body-centered cubic.bmp", "missing", "report 53"},
            {crystal, "Data/cristal/Body-centered cubic.bmp", "empty", "report 481"},
            {chart(1144, "ListView3(5)"), "Data/ir/1.gif", "missing", "report 53"},
            {chart(1142, "ListView3(15)"), "Data/nmr/1h/1000.gif", "missing", "report 53"},
            {chart(1143, "ListView3(16)"), "Data/nmr/13c/1000.gif", "empty", "report 481"},
            {formula, "Data/chemicals/1.bmp", "missing", "runs with Form2"},
            {formula, "Data/chemicals/1.bmp", "empty", "runs"},
            {formula, "Data/chemicals/1.bmp", "unreadable", "runs"},
        };
        for (const auto &row : rows) {
            const ProgramFolder folder;
            for (const int slot : {55, 58, 74}) // pictures are shown
                folder.setOption(slot, "1");
            spoil(folder, row.file, row.fault);
            QString window;
            const QString end = outcome(folder, [&](Form1 &form) {
                row.steps(form);
                for (const auto *name : {"Form2", "Form4", "Form5"}) {
                    if (form.findChild<QWidget *>(QLatin1StringView(name)))
                        window = QStringLiteral(" with ") + QLatin1StringView(name);
                }
            });
            const QString name = QStringLiteral("%1, %2: ").arg(row.file, row.fault);
            QCOMPARE(name + end + window, name + row.outcome);
            QVERIFY(!end.startsWith(QStringLiteral("report")) ||
                    m_desktop.boxes.constLast().first.contains(folder.path(row.file)));
        }
    }

    // Whole folders of pictures gone: the program starts and every pane opens.
    void noPictureIsNeededToOpenAPane()
    {
        const ProgramFolder folder;
        for (const QString &name :
             QDir(folder.path(QStringLiteral("Data"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            QVERIFY(QFile::remove(folder.path(QStringLiteral("Data/") + name)));
        const QString end = outcome(folder, [](Form1 &form) {
            for (const Command &command : Commands) {
                if (command.kind == CommandKind::ShowPanel || command.kind == CommandKind::SolventTab)
                    form.executeCommand(command.id);
            }
        });
        QCOMPARE(end, QStringLiteral("runs"));
    }

private:
    static void spoil(const ProgramFolder &folder, const char *file, const QByteArray &fault)
    {
        const QString below = QLatin1StringView(file);
        folder.makeOwn(QFileInfo(below).path());
        const QByteArray whole = folder.read(below);
        QVERIFY(!whole.isEmpty() && QFile::remove(folder.path(below)));
        // A bitmap of 20,000 x 20,000 pixels, whose header is all there is of it.
        const QByteArray huge("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x20\x4E\0\0\x20\x4E\0\0\1\0\x18\0", 30);
        if (fault == "empty")
            folder.write(below, {});
        else if (fault == "cut")
            folder.write(below, whole.first(whole.size() / 2 + 1)); // not at the end of a page of a database
        else if (fault == "of another kind")
            folder.write(below, QByteArray("This is no such file.\r\n").repeated(20));
        else if (fault == "huge")
            folder.write(below, huge + QByteArray(1000, '\0'));
        else if (fault == "a folder")
            QDir().mkpath(folder.path(below));
        else if (fault == "unreadable") // opens, and then every read fails, like a worn medium
            QFile::link(QStringLiteral("/proc/self/mem"), folder.path(below));
        else
            QCOMPARE(fault, "missing");
    }

    // Shows the chart of the first row of a list behind a command.
    static Steps chart(int command, const char *list)
    {
        return [command, list](Form1 &form) {
            form.executeCommand(command);
            auto &view = get<RowListView>(form, QLatin1StringView(list));
            view.selectRow(0);
            Q_EMIT view.rowClicked(0);
        };
    }
};

const TestClass<FilesTest> filesTest;
#include "files_test.moc"
