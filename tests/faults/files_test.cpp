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
    // A picture that is missing ends the program in the report, with its path. The window of formulas says
    // that there is none, and only that.
    void spoilt()
    {
        const Steps start;
        const Steps help = [](Form1 &form) { form.executeCommand(CommandId::Help); };
        const Steps tip = [this](Form1 &form) {
            QVERIFY(!form.isEnabled());
            m_seen = ": " + get<QLabel>(form, "lblTipText").text();
        };
        const Steps iron = [](Form1 &form) {
            form.executeCommand(1108);
            get<QAbstractButton>(form, "Command7(25)").click();
        };
        const Steps zoomed = [&](Form1 &form) {
            iron(form);
            Q_EMIT get<PictureBox>(form, "imgato").clicked();
        };
        const Steps crystal = [&](Form1 &form) {
            iron(form);
            get<QAbstractButton>(form, "Command9").click();
        };
        const Steps formula = [this](Form1 &form) {
            form.executeCommand(1119);
            Q_EMIT get<RowListView>(form, "ListView1").rowDoubleClicked(0);
            m_seen = form.findChild<QWidget *>("Form2") ? " with Form2" : "";
        };
        const std::tuple<Steps, const char *, const char *, const char *> rows[] = {
            {start, "options_uk.ini", "missing", "report 53"},
            {start, "options_uk.ini", "unreadable", "report 75"},
            {start, "options_uk.ini", "a folder", "report 75"},
            {start, "menuc_uk.xcb", "missing", "report 53"},
            {start, "menuc_uk.xcb", "cut", "report 321"},
            {start, "menuc_uk.xcb", "unreadable", "report 75"},
            {start, "Data/Database_uk.mdb", "missing", "question"},
            {start, "Data/Database_uk.mdb", "cut", "question"},
            {start, "Data/Database_uk.mdb", "unreadable", "question"},
            {start, "Data/Database_uk.mdb", "a folder", "question"},
            // Never opened while the database is good, or by another program.
            {start, "Backup/Database_uk_origin.rbk", "a folder", "runs"},
            {start, "alembra_help_uk.chm", "a folder", "runs"},
            {tip, "TIPOFDAY_UK.TXT", "missing",
             "runs: That the TIPOFDAY_UK.TXT file was not found? \n\nCreate a text file named "
             "TIPOFDAY_UK.TXT using NotePad with 1 tip per line. Then place it in the same directory as the "
             "application. "},
            {tip, "TIPOFDAY_UK.TXT", "empty", "runs: There is no tip."},
            {tip, "TIPOFDAY_UK.TXT", "of another kind", "runs: This is no such file."},
            {tip, "TIPOFDAY_UK.TXT", "unreadable", "report 75"},
            {iron, "Data/elements/26.jpg", "missing", "report 53"},
            {iron, "Data/elements/26.jpg", "empty", "report 481"},
            {iron, "Data/elements/26.jpg", "of another kind", "report 481"},
            {iron, "Data/elements/26.jpg", "huge", "report 481"},
            {iron, "Data/elements/26.jpg", "a folder", "report 75"},
            {iron, "Data/elements/26.jpg", "unreadable", "report 481"},
            {zoomed, "Data/elements/26b.jpg", "missing", "report 53"},
            {crystal, "Data/cristal/Body-centered cubic.bmp", "missing", "report 53"},
            {chart(1144, "ListView3(5)"), "Data/ir/1.gif", "missing", "report 53"},
            {chart(1142, "ListView3(15)"), "Data/nmr/1h/1000.gif", "missing", "report 53"},
            {chart(1143, "ListView3(16)"), "Data/nmr/13c/1000.gif", "empty", "report 481"},
            {formula, "Data/chemicals/1.bmp", "missing", "runs with Form2"},
            {formula, "Data/chemicals/1.bmp", "empty", "runs"},
            {formula, "Data/chemicals/1.bmp", "unreadable", "runs"},
        };
        bool splashAlone = false; // at the last box
        m_desktop.whileWaiting = [&] { splashAlone = openWindow("frmload") && !openWindow("Form1"); };
        for (const auto &[steps, file, fault, expected] : rows) {
            const ProgramFolder folder;
            for (const int slot : {55, 58, 74}) // pictures are shown
                folder.setOption(slot, "1");
            const bool tips = file == QByteArray("TIPOFDAY_UK.TXT");
            folder.setOption(56, tips ? "1" : "0");
            spoil(folder, file, fault);
            m_seen.clear();
            const QString end = outcome(folder, steps ? steps : help);
            const QString name = QString("%1, %2: ").arg(file, fault);
            QCOMPARE(name + end + m_seen, name + expected);
            QCOMPARE(m_cameUp, (steps && !tips) || end == "runs");
            if (end.startsWith("report")) {
                QVERIFY(m_desktop.boxes.constFirst().first.contains(folder.path(file)));
                QCOMPARE(splashAlone, !steps);
            }
        }
        m_desktop.whileWaiting = {};
    }

    // Wanted after a failed open, which was an error: a copy that fails then is not asked about again.
    void spoiltBackup()
    {
        const std::pair<const char *, const char *> rows[] = {
            {"missing", "Run-time error '53'"},
            {"unreadable", "Run-time error '75'"},
            {"good", "The original database was successfully reinstalled!"},
        };
        for (const auto &[fault, last] : rows) {
            const ProgramFolder folder;
            folder.write("Data/Database_uk.mdb", "damage");
            const bool good = fault == QByteArray("good");
            if (!good)
                spoil(folder, "Backup/Database_uk_origin.rbk", fault);
            m_desktop.answers = {Desktop::Yes};
            outcome(folder);
            QVERIFY(!m_cameUp);
            QCOMPARE(m_desktop.boxes.size(), 2);
            QVERIFY2(m_desktop.boxes[1].first.startsWith(last), qPrintable(m_desktop.boxes[1].first));
            QCOMPARE(folder.read("Data/Database_uk.mdb") == "damage", !good);
            if (good)
                QCOMPARE(outcome(folder), "runs");
        }
    }

    // Whole folders of pictures gone: the program starts and every pane opens.
    void noPictureIsNeededToOpenAPane()
    {
        const ProgramFolder folder;
        for (const QString &name : QDir(folder.path("Data")).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            QVERIFY(QFile::remove(folder.path(QString("Data/") + name)));
        const QString end = outcome(folder, [](Form1 &form) {
            for (const Command &command : Commands) {
                if (command.kind == CommandKind::ShowPanel || command.kind == CommandKind::SolventTab)
                    form.executeCommand(command.id);
            }
        });
        QCOMPARE(end, "runs");
    }

private:
    static void spoil(const ProgramFolder &folder, const char *file, const QByteArray &fault)
    {
        const QString below = file;
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
            QFile::link("/proc/self/mem", folder.path(below));
        else
            QCOMPARE(fault, "missing");
    }

    static Steps chart(int command, const char *list)
    {
        return [command, list](Form1 &form) {
            form.executeCommand(command);
            Q_EMIT get<RowListView>(form, list).rowClicked(0);
        };
    }

    QString m_seen; ///< what the steps found, beside the outcome
};

const TestClass<FilesTest> filesTest;
#include "files_test.moc"
