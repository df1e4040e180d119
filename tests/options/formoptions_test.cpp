#include "core/module1.h"
#include "options/formoptions.h"
#include "store/datastore.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/tabstrip.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A main window and a program folder with 90 options, all 0.
struct Bench
{
    Bench()
    {
        module.AppFolder = folder.path();
        QDir(folder.path()).mkdir(QStringLiteral("Data"));
        write("Alembra_uk", QByteArray(1536, 'x'));
        write("Data/Database_uk.mdb", QByteArray(512, 'x'));
        setOptions({});
    }

    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(QLatin1StringView(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", name);
    }

    // Starts anew with these slots, the others 0.
    void setOptions(const QMap<int, QByteArray> &slots)
    {
        QByteArray lines;
        for (int slot = 0; slot <= OptionSlots::LastIndex; ++slot)
            lines += slots.value(slot, "0") + "\r\n";
        write("options_uk.ini", lines);
        module.OptionSlots = OptionSlots();
        module.ReadOptions(QStringLiteral("opt"), folder.path());
    }

    QList<QByteArray> writtenOptions() const
    {
        QFile file(folder.filePath(QStringLiteral("options_uk.ini")));
        return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
    }

    Formoptions &open()
    {
        window = new Formoptions(module, store, desktop, form);
        signalled.clear();
        QObject::connect(window, &Formoptions::optionsChanged, &form, [this] {
            signalled << QStringLiteral("changed to %1").arg(module.OptionSlots(53).toText());
        });
        QObject::connect(window, &Formoptions::optionsWritten, &form, [this] {
            signalled << QStringLiteral("written %1").arg(QString::fromLatin1(writtenOptions().at(53)));
        });
        window->showAboveOwner();
        return *window;
    }

    void press(const char *button) const
    {
        window->findChild<QPushButton *>(QLatin1StringView(button))->click();
    }

    bool isUnloaded() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return !window && form.isEnabled();
    }

    QTemporaryDir folder;
    QWidget form;
    Module1 module;
    DataStore store;
    ScriptedDesktop desktop;
    QStringList signalled; ///< what the window told, with slot 53 at that moment
    QPointer<Formoptions> window;
};

// Every slot that the dialog shows, with its control.
struct Shown
{
    int slot;
    const char *control;
};

constexpr Shown Boxes[] = {{53, "Check1(6)"}, {55, "Check1(3)"}, {56, "Check1(1)"}, {57, "Check1(2)"},
                           {58, "Check1(4)"}, {74, "Check1(5)"}, {75, "Check2(0)"}, {76, "Check2(3)"},
                           {78, "Check2(2)"}, {79, "Check2(1)"}, {80, "Check1(8)"}, {81, "Check1(7)"},
                           {82, "Check1(0)"}, {83, "Check1(9)"}, {85, "Check2(7)"}, {86, "Check10"}};

bool isChecked(const Formoptions &window, const char *control)
{
    return window.findChild<QAbstractButton *>(QLatin1StringView(control))->isChecked();
}

} // namespace

class FormoptionsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxShowsAndStoresItsSlotAlone();
    void listsAndPairsShowAndStoreTheirSlots();
    void valuesWithoutAPlaceInTheControlAreKept();
    void fixedBoxesStayOnAndDisabled();
    void balloonNeedsTheTrayAndKeepsItsValue();
    void startModuleIsChosenOnlyWhenWanted();
    void oneFrameForEachTab();
    void loadAppliesTheGridLines();
    void okAppliesAndWritesInOrder();
    void gridLinesLeaveTheInfraredListOnButTakeItOff();
    void unwritableOptionsEndTheProgram();
    void cancelAndCloseLeaveEverything();
    void databaseTabShowsItsFigures();
    void missingFilesFailTheLoad();
};

void FormoptionsTest::everyBoxShowsAndStoresItsSlotAlone()
{
    OptionSlots delivered;
    delivered.read(QStringLiteral(ALEMBRA_SOURCE "/data/program/options_uk.ini"));
    for (const Shown &box : Boxes) {
        QVERIFY2(box.slot <= delivered.lastIndex(), box.control);
        Bench bench;
        bench.setOptions({{box.slot, "1"}});
        const Formoptions &window = bench.open();
        for (const Shown &other : Boxes)
            QVERIFY2(isChecked(window, other.control) == (other.slot == box.slot), box.control);
        auto *control = window.findChild<QCheckBox *>(QLatin1StringView(box.control));
        control->setEnabled(true);
        control->click();
        bench.press("XPButton1");
        for (int slot = 0; slot <= OptionSlots::LastIndex; ++slot)
            QVERIFY2(bench.module.OptionSlots(slot) == Value(0), box.control);

        QWidget *again = &bench.open();
        again->findChild<QCheckBox *>(QLatin1StringView(box.control))->setChecked(true);
        bench.press("XPButton1");
        for (int slot = 0; slot <= OptionSlots::LastIndex; ++slot)
            QVERIFY2(bench.module.OptionSlots(slot) == Value(slot == box.slot ? 1 : 0), box.control);
        QCOMPARE(bench.writtenOptions().at(box.slot), QByteArray("1\r"));
    }
}

void FormoptionsTest::listsAndPairsShowAndStoreTheirSlots()
{
    Bench bench;
    bench.setOptions({{54, "4"}, {88, "3"}, {89, "1"}});
    const Formoptions &window = bench.open();
    auto *Combo2 = window.findChild<QComboBox *>(QStringLiteral("Combo2"));
    auto *Combo3 = window.findChild<QComboBox *>(QStringLiteral("Combo3"));
    QCOMPARE(Combo2->currentText(), QStringLiteral("Office 2007"));
    QCOMPARE(Combo3->currentText(), QStringLiteral("Biochemistry"));
    QVERIFY(isChecked(window, "Option1(3)") && !isChecked(window, "Option1(2)"));
    QVERIFY(!isChecked(window, "Option1(1)") && isChecked(window, "Option1(0)"));

    Combo2->setCurrentIndex(5);
    Combo3->setCurrentIndex(0);
    window.findChild<QRadioButton *>(QStringLiteral("Option1(2)"))->click();
    window.findChild<QRadioButton *>(QStringLiteral("Option1(1)"))->click();
    bench.press("XPButton1");
    QCOMPARE(bench.module.OptionSlots(54), Value(5));
    QCOMPARE(bench.module.OptionSlots(88), Value(0));
    QCOMPARE(bench.module.OptionSlots(89), Value(0));
    QCOMPARE(bench.module.OptionSlots(77), Value(1));
}

void FormoptionsTest::valuesWithoutAPlaceInTheControlAreKept()
{
    Bench bench;
    bench.setOptions({{53, "2"}, {57, "\"yes\""}, {54, "-1"}, {88, "6"}, {84, "\"my own\""}, {89, "7"}});
    const Formoptions &window = bench.open();
    QCOMPARE(window.findChild<QComboBox *>(QStringLiteral("Combo3"))->currentIndex(), -1);
    bench.press("XPButton1");
    QCOMPARE(bench.module.OptionSlots(53), Value(2));
    QCOMPARE(bench.module.OptionSlots(54), Value(-1));
    QCOMPARE(bench.module.OptionSlots(57), Value(QStringLiteral("yes")));
    QCOMPARE(bench.module.OptionSlots(84), Value(QStringLiteral("my own")));
    QCOMPARE(bench.module.OptionSlots(88), Value(6));
    QCOMPARE(bench.module.OptionSlots(89), Value(0)); // of a pair one is always on
}

void FormoptionsTest::fixedBoxesStayOnAndDisabled()
{
    Bench bench;
    const Formoptions &window = bench.open();
    int fixed = 0;
    for (const QCheckBox *box : window.findChildren<QCheckBox *>()) {
        const bool shown = std::any_of(std::begin(Boxes), std::end(Boxes), [&](const Shown &entry) {
            return box->objectName() == QLatin1StringView(entry.control);
        });
        if (shown)
            continue;
        ++fixed;
        QVERIFY2(box->isChecked() && !box->isEnabled(), qPrintable(box->text()));
    }
    QCOMPARE(fixed, 14);
}

void FormoptionsTest::balloonNeedsTheTrayAndKeepsItsValue()
{
    Bench bench;
    bench.setOptions({{80, "1"}});
    const Formoptions &window = bench.open();
    const auto *balloon = window.findChild<QCheckBox *>(QStringLiteral("Check1(8)"));
    auto *tray = window.findChild<QCheckBox *>(QStringLiteral("Check1(7)"));
    QVERIFY(!balloon->isEnabled() && balloon->isChecked());
    tray->click();
    QVERIFY(balloon->isEnabled());
    tray->click();
    QVERIFY(!balloon->isEnabled());
    bench.press("XPButton1");
    QCOMPARE(bench.module.OptionSlots(80), Value(1));
}

void FormoptionsTest::startModuleIsChosenOnlyWhenWanted()
{
    Bench bench;
    const QWidget *Combo3 = bench.open().findChild<QComboBox *>(QStringLiteral("Combo3"));
    QVERIFY(!Combo3->isEnabled());
    bench.window->findChild<QCheckBox *>(QStringLiteral("Check10"))->click();
    QVERIFY(Combo3->isEnabled());
    bench.press("XPButton1");
    QVERIFY(bench.open().findChild<QComboBox *>(QStringLiteral("Combo3"))->isEnabled());
}

void FormoptionsTest::oneFrameForEachTab()
{
    Bench bench;
    const Formoptions &window = bench.open();
    const QStringList frames{QStringLiteral("frmgen"), QStringLiteral("frmexport"), QStringLiteral("frmbdd"),
                             QStringLiteral("frmstat")};
    for (const int tab : {1, 2, 3, 4, 1}) {
        window.findChild<TabStrip *>(QStringLiteral("TabStrip1"))->selectTab(tab);
        for (const QString &frame : frames)
            QCOMPARE(!window.findChild<QWidget *>(frame)->isHidden(), frame == frames[tab - 1]);
    }
}

void FormoptionsTest::loadAppliesTheGridLines()
{
    Bench bench;
    bench.setOptions({{53, "1"}});
    const Formoptions window(bench.module, bench.store, bench.desktop, bench.form);
    QVERIFY(bench.store.lists.ListView1.gridLines());
    QVERIFY(bench.form.isEnabled() && !window.isVisible());
}

void FormoptionsTest::okAppliesAndWritesInOrder()
{
    Bench bench;
    bench.open();
    bench.window->controls.Check1[6].click();
    bench.press("XPButton1");
    QCOMPARE(bench.signalled, (QStringList{QStringLiteral("changed to 1"), QStringLiteral("written 1\r")}));
    QVERIFY(bench.store.lists.ListView9.gridLines());
    QCOMPARE(bench.writtenOptions().at(53), QByteArray("1\r"));
    QVERIFY(bench.isUnloaded());
}

void FormoptionsTest::gridLinesLeaveTheInfraredListOnButTakeItOff()
{
    Bench bench;
    bench.setOptions({{53, "1"}});
    RowList &infrared = bench.store.lists.ListView3[5];
    bench.open();
    QVERIFY(bench.store.lists.ListView3[27].gridLines());
    QVERIFY(!infrared.gridLines());
    infrared.setGridLines(true);
    bench.window->controls.Check1[6].click();
    bench.press("XPButton1");
    QVERIFY(!infrared.gridLines());
}

void FormoptionsTest::unwritableOptionsEndTheProgram()
{
    Bench bench;
    bench.open();
    const QString options = bench.folder.filePath(QStringLiteral("options_uk.ini"));
    QVERIFY(QFile::remove(options));
    QVERIFY(QDir().mkdir(options));
    try {
        bench.press("XPButton1");
        QFAIL("the program went on");
    } catch (const ProcessEnded &end) {
        QCOMPARE(end.status, 1);
    }
    QVERIFY(bench.desktop.boxes.constLast().first.startsWith(QStringLiteral("Run-time error '75':")));
    QCOMPARE(bench.signalled.size(), 1);
}

void FormoptionsTest::cancelAndCloseLeaveEverything()
{
    for (const bool byButton : {true, false}) {
        Bench bench;
        const QList<QByteArray> before = bench.writtenOptions();
        Formoptions &window = bench.open();
        QVERIFY(!bench.form.isEnabled());
        window.controls.Check1[6].click();
        if (byButton)
            bench.press("XpButton2");
        else
            QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(bench.isUnloaded());
        QVERIFY(bench.signalled.isEmpty());
        QVERIFY(!bench.store.lists.ListView1.gridLines());
        QCOMPARE(bench.writtenOptions(), before);
        QVERIFY(!isChecked(bench.open(), "Check1(6)"));
    }
}

void FormoptionsTest::databaseTabShowsItsFigures()
{
    Bench bench;
    bench.write("Data/Database_uk.mdb", QByteArray(1337, 'x'));
    QDir(bench.folder.path()).mkdir(QStringLiteral("Backup"));
    bench.write("Backup/Database_uk_origin.rbk", QByteArray(2048, 'x'));
    const Formoptions &window = bench.open();
    const auto text = [&](const char *label) {
        return window.findChild<QLabel *>(QLatin1StringView(label))->text();
    };
    QCOMPARE(window.findChild<QLineEdit *>(QStringLiteral("Text1"))->text(),
             bench.folder.filePath(QStringLiteral("Data/Database_uk.mdb")));
    QCOMPARE(text("Label5"), QStringLiteral("File size:   1.3056640625 Ko"));
    QVERIFY(text("Label6").startsWith(QStringLiteral("Modification date:   ")));
    QCOMPARE(text("Label28"), QStringLiteral("1.5 Ko"));
    QCOMPARE(text("Label26"), QStringLiteral("1.3056640625 Ko"));

    // After a Restore the captions are French.
    bench.desktop.answers = {Desktop::Yes};
    bench.press("Command2");
    QCOMPARE(text("Label5"), QStringLiteral("Taille du fichier :   2 Ko"));
    QVERIFY(text("Label6").startsWith(QStringLiteral("Date de modification du fichier :   ")));
}

void FormoptionsTest::missingFilesFailTheLoad()
{
    for (const char *missing : {"Data/Database_uk.mdb", "Alembra_uk"}) {
        Bench bench;
        QVERIFY(QFile::remove(bench.folder.filePath(QLatin1StringView(missing))));
        try {
            bench.open();
            QFAIL("loaded");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), ErrorNumber::FileNotFound);
        }
    }
}

QTEST_MAIN(FormoptionsTest)
#include "formoptions_test.moc"
