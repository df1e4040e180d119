#include "core/module1.h"
#include "options/filefigures.h"
#include "options/formoptions.h"
#include "options/statisticstab.h"
#include "store/datastore.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

namespace {

/// A main window and a program folder with options that are all 0 but @p slots.
struct Bench
{
    explicit Bench(const QMap<int, QByteArray> &slots = {})
    {
        module.AppFolder = folder.path();
        writeFile(folder.filePath("Alembra_uk"), QByteArray(1536, 'x'));
        writeFile(folder.filePath("Data/Database_uk.mdb"), QByteArray(1337, 'x'));
        QByteArray lines;
        for (int slot = 0; slot <= OptionSlots::LastIndex; ++slot)
            lines += slots.value(slot, "0") + "\r\n";
        writeFile(options, lines);
        module.ReadOptions("opt", folder.path());
    }

    Formoptions &open()
    {
        window = new Formoptions(module, store, desktop, form);
        QObject::connect(window, &Formoptions::optionsChanged, &form,
                         [this] { signalled << "changed to " + module.OptionSlots(53).toText(); });
        QObject::connect(window, &Formoptions::optionsWritten, &form,
                         [this] { signalled << "written " + readFile(options).split('\n').at(53); });
        window->showAboveOwner();
        return *window;
    }

    template<class W>
    W &control(const char *name) const
    {
        return get<W>(*window, name);
    }
    bool isChecked(const char *name) const { return control<QAbstractButton>(name).isChecked(); }
    void press(const char *button) const { control<QAbstractButton>(button).click(); }
    QString text(const char *label) const { return control<QLabel>(label).text(); }

    bool isUnloaded() const
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return !window && form.isEnabled();
    }

    QTemporaryDir folder;
    const QString options = folder.filePath("options_uk.ini");
    QWidget form;
    Module1 module;
    DataStore store;
    ScriptedDesktop desktop;
    QStringList signalled; ///< what the window said, with slot 53 at that moment
    QPointer<Formoptions> window;
};

// Every slot that a box shows.
const QMap<int, const char *> Boxes{
    {53, "Check1(6)"}, {55, "Check1(3)"}, {56, "Check1(1)"}, {57, "Check1(2)"},
    {58, "Check1(4)"}, {74, "Check1(5)"}, {75, "Check2(0)"}, {76, "Check2(3)"},
    {78, "Check2(2)"}, {79, "Check2(1)"}, {80, "Check1(8)"}, {81, "Check1(7)"},
    {82, "Check1(0)"}, {83, "Check1(9)"}, {85, "Check2(7)"}, {86, "Check10"}};

} // namespace

class FormoptionsTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBoxShowsAndStoresItsSlotAlone()
    {
        OptionSlots delivered;
        delivered.read(ALEMBRA_SOURCE "/data/program/options_uk.ini");
        QVERIFY(Boxes.lastKey() <= delivered.lastIndex());
        for (auto box = Boxes.begin(); box != Boxes.end(); ++box) {
            Bench bench({{box.key(), "1"}});
            for (const bool on : {true, false, true}) {
                bench.open();
                for (const char *other : Boxes)
                    QVERIFY2(bench.isChecked(other) == (on && other == box.value()), box.value());
                bench.control<QCheckBox>(box.value()).setChecked(!on);
                bench.press("XPButton1");
                for (int slot = 0; slot <= OptionSlots::LastIndex; ++slot)
                    QVERIFY2(bench.module.OptionSlots(slot) == Value(!on && slot == box.key() ? 1 : 0),
                             box.value());
                QCOMPARE(readFile(bench.options).split('\n').at(box.key()), QByteArray(on ? "0\r" : "1\r"));
            }
        }
    }

    void listsAndPairsShowAndStoreTheirSlots()
    {
        Bench bench({{54, "4"}, {88, "3"}, {89, "1"}});
        bench.open();
        QCOMPARE(bench.control<QComboBox>("Combo2").currentText(), "Office 2007");
        QCOMPARE(bench.control<QComboBox>("Combo3").currentText(), "Biochemistry");
        QVERIFY(bench.isChecked("Option1(3)") && !bench.isChecked("Option1(2)"));
        QVERIFY(!bench.isChecked("Option1(1)") && bench.isChecked("Option1(0)"));
        bench.control<QComboBox>("Combo2").setCurrentIndex(5);
        bench.control<QComboBox>("Combo3").setCurrentIndex(0);
        for (const char *button : {"Option1(2)", "Option1(1)", "XPButton1"})
            bench.press(button);
        const QMap<int, int> stored{{54, 5}, {88, 0}, {89, 0}, {77, 1}};
        for (auto slot = stored.begin(); slot != stored.end(); ++slot)
            QCOMPARE(bench.module.OptionSlots(slot.key()), Value(*slot));
    }

    void valuesWithoutAPlaceInTheControlAreKept()
    {
        Bench bench(
            {{53, "2"}, {57, "\"yes\""}, {54, "-1"}, {88, "6"}, {84, "\"my own\""}, {89, "7"}, {80, "1"}});
        bench.open();
        QCOMPARE(bench.control<QComboBox>("Combo3").currentIndex(), -1);
        bench.press("XPButton1");
        const QMap<int, Value> kept{{53, 2}, {54, -1}, {57, QString("yes")}, {84, QString("my own")}, {88, 6},
                                    {80, 1}, {89, 0}}; // of a pair one is always on
        for (auto slot = kept.begin(); slot != kept.end(); ++slot)
            QCOMPARE(bench.module.OptionSlots(slot.key()), *slot);
    }

    // The balloon needs the tray, the start module the wish for one.
    void someControlsNeedAnother()
    {
        Bench bench({{80, "1"}});
        bench.open();
        for (const auto &[box, needing] :
             {std::pair("Check1(7)", "Check1(8)"), std::pair("Check10", "Combo3")}) {
            for (const bool enabled : {false, true, false}) {
                QCOMPARE(bench.control<QWidget>(needing).isEnabled(), enabled);
                bench.press(box);
            }
        }
        QVERIFY(bench.isChecked("Check1(8)"));
        bench.press("XPButton1");
        QCOMPARE(bench.module.OptionSlots(80), Value(1));
        bench.open();
        QVERIFY(bench.control<QComboBox>("Combo3").isEnabled() &&
                bench.control<QCheckBox>("Check1(8)").isEnabled());
    }

    // Grid lines leave the infrared list as it is, but are taken off it.
    void gridLinesAreAppliedByTheLoadAndByOk()
    {
        Bench bench({{53, "1"}});
        const Formoptions loaded(bench.module, bench.store, bench.desktop, bench.form);
        QVERIFY(bench.store.lists.ListView1.gridLines());
        QVERIFY(bench.form.isEnabled() && !loaded.isVisible());
        RowList &infrared = bench.store.lists.ListView3[5];
        QVERIFY(bench.store.lists.ListView3[27].gridLines() && !infrared.gridLines());
        infrared.setGridLines(true);
        bench.open();
        bench.press("Check1(6)");
        QVERIFY(infrared.gridLines());
        bench.press("XPButton1");
        QVERIFY(!infrared.gridLines());
        QCOMPARE(bench.signalled, (QStringList{"changed to 0", "written 0\r"}));
        QVERIFY(bench.isUnloaded());
    }

    void cancelAndCloseLeaveEverything()
    {
        for (const bool byButton : {true, false}) {
            Bench bench;
            const QByteArray before = readFile(bench.options);
            Formoptions &window = bench.open();
            QVERIFY(!bench.form.isEnabled());
            bench.press("Check1(6)");
            byButton ? bench.press("XpButton2") : QTest::keyClick(&window, Qt::Key_Escape);
            QVERIFY(bench.isUnloaded());
            QVERIFY(bench.signalled.isEmpty() && !bench.store.lists.ListView1.gridLines());
            QCOMPARE(readFile(bench.options), before);
        }
    }

    void databaseTabShowsItsFigures()
    {
        Bench bench;
        writeFile(bench.folder.filePath("Backup/Database_uk_origin.rbk"), QByteArray(2048, 'x'));
        writeFile(bench.folder.filePath("Data/large"), QByteArray(1 << 20, 'x'));
        bench.open();
        QCOMPARE(bench.text("Label29"), QString("1 Mo"));
        QCOMPARE(bench.control<QLineEdit>("Text1").text(), bench.folder.filePath("Data/Database_uk.mdb"));
        QCOMPARE(bench.text("Label5"), QString("File size:   1.3056640625 Ko"));
        QVERIFY(bench.text("Label6").startsWith("Modification date:   "));
        QCOMPARE(bench.text("Label28"), QString("1.5 Ko"));
        QCOMPARE(bench.text("Label26"), QString("1.3056640625 Ko"));
        bench.desktop.answers = {Desktop::Yes};
        bench.press("Command2"); // after a restore the captions are French
        QCOMPARE(bench.text("Label5"), QString("Taille du fichier :   2 Ko"));
        QVERIFY(bench.text("Label6").startsWith("Date de modification du fichier :   "));
    }

    void countsComeFromTheirTallies()
    {
        DataStore store;
        for (int step = 0; step < int(store.tallies.rows.size()); ++step)
            store.tallies.rows[size_t(step)] = 1000 + step;
        store.tallies.isotopes = 40;
        store.tallies.carbonShifts = 50;
        store.tallies.acidBaseIndicators = 60;
        store.tallies.fluorescentIndicators = 70;
        store.tallies.irBonds = 80;
        for (const QStringView row : {u"a", u"b"})
            store.lists.ListView1.append(row);
        Module1 module;
        module.UnitItemCount = 85;
        const StatisticsTab tab(store, module, nullptr);
        const std::pair<const char *, int> labels[] = {
            {"Label12", 2},  // the rows of the list
            {"Label45", 51}, // one solvent more than shifts
            {"Label44", 1028}, {"Label20", 60},   {"Label23", 70},   {"Label13", 1003},
            {"Label51", 40},   {"Label30", 1017}, {"Label47", 1015}, // without four overviews
            {"Label50", 1019},                                       // without one overview
            {"Label57", 80},   {"Label14", 1006}, {"Label53", 85},
        };
        for (const auto &[label, count] : labels)
            QCOMPARE(label + (':' + get<QLabel>(tab, label).text()), QString("%1:%2").arg(label).arg(count));
        QVERIFY(!get(tab, "Label12").isHidden() && get(tab, "Label53").isHidden());
        get<QComboBox>(tab, "Combo1").setCurrentIndex(5); // calculations instead of solvents
        QVERIFY(get(tab, "Label12").isHidden() && !get(tab, "Label53").isHidden());
    }

    void sizesAreWrittenInFull()
    {
        QCOMPARE(FileFigures::kilobytes(0), QString("0 Ko"));
        QCOMPARE(FileFigures::kilobytes(1), QString("0.0009765625 Ko"));
        QCOMPARE(FileFigures::kilobytes(1234567890123), QString("1205632705.19824 Ko"));
        QCOMPARE(FileFigures::megabytes(3145728), QString("3 Mo"));
        QCOMPARE(FileFigures::megabytes(1048576 + 131072), QString("1.12 Mo")); // 1.125, half to even
        QCOMPARE(FileFigures::megabytes(1048576 + 393216), QString("1.38 Mo")); // 1.375
    }

    void folderSizeIsTheSumOfItsFiles()
    {
        const QTemporaryDir folder;
        int bytes = 1;
        for (const char *name : {"a", ".hidden", "Data/b", "Data/img/c", "Data/Data/d"}) {
            writeFile(folder.filePath(name), QByteArray(bytes, 'x'));
            bytes *= 10;
        }
        const QString none = folder.filePath("none");
        QVERIFY(QFile::link(folder.path(), folder.filePath("round")));
        QVERIFY(QFile::link(none, folder.filePath("dangling")));
        QCOMPARE(FileFigures::folderSize(folder.path()), 11111);
        QCOMPARE(errorOf([&] { FileFigures::fileLength(none); }), 53);
        QCOMPARE(errorOf([&] { FileFigures::modificationDate(none); }), 53);
        QCOMPARE(errorOf([&] { FileFigures::folderSize(none); }), 76);
    }
};

const TestClass<FormoptionsTest> formoptionsTest;
#include "formoptions_test.moc"
