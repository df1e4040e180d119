#include "app/commands.h"
#include "tests/faults/faultrun.h"
#include "widgets/picturebox.h"
#include "widgets/rowlistview.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

/// Every file that the program comes with, in turn missing, empty, cut, of another kind, unreadable or a
/// folder.
class FilesTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spoiltAtStart_data();
    void spoiltAtStart();
    void spoiltBackup_data();
    void spoiltBackup();
    void spoiltTips_data();
    void spoiltTips();
    void spoiltPictures_data();
    void spoiltPictures();
    void hugePictureIsRefused();
    void noPictureIsNeededToOpenAPane();
};

void FilesTest::spoiltAtStart_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("outcome");

    const auto add = [](const char *fault, const char *file, const char *outcome) {
        QTest::addRow("%s %s", file, fault) << QByteArray(fault) << file << outcome;
    };
    add("missing", "options_uk.ini", "report 53");
    add("empty", "options_uk.ini", "runs");
    add("cut", "options_uk.ini", "runs");
    add("of another kind", "options_uk.ini", "runs");
    add("unreadable", "options_uk.ini", "report 75");
    add("a folder", "options_uk.ini", "report 75");

    add("missing", "menuc_uk.xcb", "report 53");
    add("empty", "menuc_uk.xcb", "report 321");
    add("cut", "menuc_uk.xcb", "report 321");
    add("of another kind", "menuc_uk.xcb", "report 321");
    add("unreadable", "menuc_uk.xcb", "report 75");
    add("a folder", "menuc_uk.xcb", "report 75");

    for (const char *fault : {"missing", "empty", "of another kind", "unreadable", "a folder"})
        add(fault, "Data/Database_uk.mdb", "question");
    add("cut", "Data/Database_uk.mdb", "question");

    // Never opened while the database is good, or by another program.
    for (const char *file : {"Backup/Database_uk_origin.rbk", "alembra_help_uk.chm"}) {
        for (const char *fault : {"missing", "empty", "cut", "of another kind", "unreadable", "a folder"})
            add(fault, file, "runs");
    }
}

void FilesTest::spoiltAtStart()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, file);
    QFETCH(QString, outcome);
    const ProgramFolder folder;
    Fault::bring(folder, file, fault);
    FaultRun run;
    run.start(folder, [](Form1 &form) { form.executeCommand(1123); }); // the help
    QCOMPARE(run.outcome(), outcome);
    QCOMPARE(run.stood, outcome == QStringLiteral("runs"));
    if (outcome.startsWith(QStringLiteral("report")))
        QVERIFY(run.boxNames(folder.path(file)));
}

void FilesTest::spoiltBackup_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QString>("last");
    QTest::newRow("missing") << QByteArray("missing") << "Run-time error '53'";
    QTest::newRow("a folder") << QByteArray("a folder") << "Run-time error '75'";
    QTest::newRow("unreadable") << QByteArray("unreadable") << "Run-time error '75'";
    // Copied as it is: the next start asks again.
    QTest::newRow("empty") << QByteArray("empty") << "The original database was successfully reinstalled!";
}

// Wanted after a failed open, which was an error: a copy that fails then is not asked about again.
void FilesTest::spoiltBackup()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, last);
    const ProgramFolder folder;
    folder.write(QStringLiteral("Data/Database_uk.mdb"), "damage");
    Fault::bring(folder, QStringLiteral("Backup/Database_uk_origin.rbk"), fault);
    FaultRun run;
    run.desktop.answers = {Desktop::Yes};
    run.start(folder);
    QVERIFY(!run.stood);
    QCOMPARE(run.desktop.boxes.size(), 2);
    QVERIFY2(run.desktop.boxes.constLast().first.startsWith(last),
             qPrintable(run.desktop.boxes.constLast().first));
    if (fault != "empty")
        QCOMPARE(folder.read(QStringLiteral("Data/Database_uk.mdb")), QByteArray("damage"));
}

void FilesTest::spoiltTips_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("tip");
    const QString notFound = QStringLiteral("was not found?");
    QTest::newRow("missing") << QByteArray("missing") << "runs" << notFound;
    QTest::newRow("a folder") << QByteArray("a folder") << "runs" << notFound;
    QTest::newRow("empty") << QByteArray("empty") << "runs" << QString();
    QTest::newRow("cut") << QByteArray("cut") << "runs" << QString();
    QTest::newRow("of another kind") << QByteArray("of another kind") << "runs"
                                     << "This is no such file.";
    QTest::newRow("unreadable") << QByteArray("unreadable") << "report 75" << QString();
}

void FilesTest::spoiltTips()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, outcome);
    QFETCH(QString, tip);
    const ProgramFolder folder;
    folder.setOption(56, "1");
    Fault::bring(folder, QStringLiteral("TIPOFDAY_UK.TXT"), fault);
    FaultRun run;
    run.start(folder, [&](Form1 &form) {
        const auto *window = form.findChild<QWidget *>(QStringLiteral("frmTip"));
        QVERIFY(window);
        QVERIFY(!form.isEnabled());
        QVERIFY(window->findChild<QLabel *>(QStringLiteral("lblTipText"))->text().contains(tip));
    });
    QCOMPARE(run.outcome(), outcome);
}

namespace {

void click(const Form1 &form, const char *button)
{
    form.findChild<QAbstractButton *>(QLatin1StringView(button))->click();
}

void showIron(Form1 &form)
{
    form.executeCommand(1108);
    click(form, "Command7(25)");
}

void zoomIron(Form1 &form)
{
    showIron(form);
    Q_EMIT form.findChild<PictureBox *>(QStringLiteral("imgato"))->clicked();
}

void showCrystal(Form1 &form)
{
    showIron(form);
    click(form, "Command9");
}

// Shows the chart of the first row of a list behind a command.
std::function<void(Form1 &)> chart(int command, const char *list)
{
    return [command, list](Form1 &form) {
        form.executeCommand(command);
        auto *view = form.findChild<RowListView *>(QLatin1StringView(list));
        view->selectRow(0);
        Q_EMIT view->rowClicked(0);
    };
}

void showFormula(Form1 &form)
{
    form.executeCommand(1119);
    auto *list = form.findChild<RowListView *>(QStringLiteral("ListView1"));
    Q_EMIT list->doubleClicked(list->model()->index(0, 0));
}

} // namespace

void FilesTest::spoiltPictures_data()
{
    using Walk = std::function<void(Form1 &)>;
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<QString>("file");
    QTest::addColumn<Walk>("walk");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("window");

    struct Place
    {
        const char *file;
        Walk walk;
        const char *window;
    };
    // Without a trap the report ends the program, with the path of the picture.
    for (const Place &place :
         {Place{"Data/elements/26.jpg", showIron, ""}, Place{"Data/elements/26b.jpg", zoomIron, "Form5"},
          Place{"Data/cristal/Body-centered cubic.bmp", showCrystal, "Form4"},
          Place{"Data/ir/1.gif", chart(1144, "ListView3(5)"), ""},
          Place{"Data/nmr/1h/1000.gif", chart(1142, "ListView3(15)"), ""},
          Place{"Data/nmr/13c/1000.gif", chart(1143, "ListView3(16)"), ""}}) {
        const auto add = [&](const char *fault, const char *outcome, const char *window) {
            QTest::addRow("%s %s", place.file, fault)
                << QByteArray(fault) << place.file << place.walk << outcome << window;
        };
        add("missing", "report 53", "");
        add("empty", "report 481", "");
        add("of another kind", "report 481", "");
        add("a folder", "report 75", "");
        add("unreadable", "report 481", "");
    }
    // The window of formulas says that there is none, and only that.
    const auto formula = [](const char *fault, const char *window) {
        QTest::addRow("formula %s", fault)
            << QByteArray(fault) << "Data/chemicals/1.bmp" << Walk(showFormula) << "runs" << window;
    };
    formula("missing", "Form2");
    formula("empty", "");
    formula("of another kind", "");
    formula("a folder", "");
    formula("unreadable", "");
}

void FilesTest::spoiltPictures()
{
    QFETCH(QByteArray, fault);
    QFETCH(QString, file);
    QFETCH(std::function<void(Form1 &)>, walk);
    QFETCH(QString, outcome);
    QFETCH(QString, window);
    const ProgramFolder folder;
    folder.setOption(55, "1");
    folder.setOption(58, "1");
    folder.setOption(74, "1");
    Fault::bring(folder, file, fault);
    FaultRun run;
    QString shown;
    run.start(folder, [&](Form1 &form) {
        walk(form);
        for (const char *name : {"Form2", "Form4", "Form5"}) {
            if (form.findChild<QWidget *>(QLatin1StringView(name)))
                shown = QLatin1StringView(name);
        }
    });
    QCOMPARE(run.outcome(), outcome);
    QCOMPARE(shown, window);
    if (outcome.startsWith(QStringLiteral("report")))
        QVERIFY(run.boxNames(folder.path(file)));
}

// Larger than any picture that we ship by a thousand times; it must not take the machine's memory.
void FilesTest::hugePictureIsRefused()
{
    const ProgramFolder folder;
    folder.setOption(74, "1");
    const QString file = QStringLiteral("Data/elements/26.jpg");
    Fault::bring(folder, file, "empty");
    // A bitmap of 20,000 x 20,000 pixels, whose header is all there is of it.
    QByteArray bitmap("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x20\x4E\0\0\x20\x4E\0\0\1\0\x18\0", 30);
    folder.write(file, bitmap + QByteArray(1000, '\0'));
    FaultRun run;
    run.start(folder, showIron);
    QCOMPARE(run.outcome(), QStringLiteral("report 481"));
}

// Whole folders of pictures gone: the program starts and every pane opens.
void FilesTest::noPictureIsNeededToOpenAPane()
{
    const ProgramFolder folder;
    for (const QString &name :
         QDir(folder.path(QStringLiteral("Data"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QFile::remove(folder.path(QStringLiteral("Data/") + name));
    FaultRun run;
    run.start(folder, [](Form1 &form) {
        for (const Command &command : Commands) {
            if (command.kind == CommandKind::ShowPanel || command.kind == CommandKind::SolventTab)
                form.executeCommand(command.id);
        }
    });
    QCOMPARE(run.outcome(), QStringLiteral("runs"));
}

QTEST_MAIN(FilesTest)
#include "files_test.moc"
