#include "charts/chartpicture.h"
#include "charts/spectroscopypane.h"
#include "core/module1.h"
#include "store/datastore.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/dropdown.h"

#include <QAbstractItemView>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr int Protons = 15;
constexpr int Carbons = 16;
constexpr int Charts = 5;

/// A main window with the pane over a folder of single-coloured charts.
class Window final : public QWidget
{
public:
    Window()
    {
        module.AppFolder = m_folder.path();
        module.OptionSlots(Slot::IrInFrequency) = 1;
        module.OptionSlots(Slot::ToolTips) = 1;
        for (int row = 1; row <= 6; ++row) {
            store.lists.ListView3[Protons].append(QStringLiteral("proton %1").arg(row));
            store.lists.ListView3[Carbons].append(QStringLiteral("carbon %1").arg(row));
        }
        for (const char *group : {"2", "5", "9"}) {
            store.lists.ListView3[Charts].append(QStringLiteral("motif"));
            store.lists.ListView3[Charts].appendSubItem(QString::fromLatin1(group));
        }
    }

    /// A red picture below the folder of the pictures.
    void addPicture(const QString &file, int height = 300) const
    {
        const QString path = m_folder.filePath(QStringLiteral("Data/") + file);
        QDir().mkpath(QFileInfo(path).path());
        QImage picture(400, height, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path, "PNG"));
    }

    template<class W>
    W &get(const QString &name) const
    {
        auto *control = findChild<W *>(name);
        Q_ASSERT_X(control, "Window", qPrintable(name));
        return *control;
    }
    RowListView &list(int index) const { return get<RowListView>(Controls::indexedName("ListView3", index)); }
    QString text(const char *label) const { return get<QLabel>(QString::fromLatin1(label)).text(); }
    bool shows(const char *control) const
    {
        return Controls::isShown(get<QWidget>(QString::fromLatin1(control)));
    }
    QScrollBar &scrollBar() const { return get<QScrollBar>(QStringLiteral("VScroll10")); }
    ChartPicture &picture() const { return get<ChartPicture>(QStringLiteral("Picture3")); }

    /// A click on the row, from 1, as it comes from the mouse.
    void click(int list, int position) const
    {
        this->list(list).selectRow(position - 1);
        Q_EMIT this->list(list).rowClicked(position - 1);
    }

    /// The colour at that place, in pixels, of the picture area.
    QColor colourAt(int x, int y) const { return picture().grab().toImage().pixelColor(x, y); }

    Module1 module;
    DataStore store;
    ScriptedDesktop desktop;
    SpectroscopyPane pane{module, store, desktop, this};

private:
    QTemporaryDir m_folder;
};

const QColor Red(Qt::red);

} // namespace

class SpectroscopyPaneTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModeShowsItsListAndChart_data();
    void aModeShowsItsListAndChart();
    void theSameModeChosenAgainClearsTheChart();
    void aRowShowsItsChartUnderItsName();
    void carbonChartsStandAtTheLeftAndTellText3();
    void onlyTallChartsScroll();
    void wheelAndPageKeysScrollATallChart();
    void theTitleOfAnNmrChartStaysOverTheInfraredCharts();
    void anUnknownGroupKeepsTheTitle();
    void theTableOpensAtTheBandsOfTheChosenChart();
    void theGraduationTakesEffectWithTheNextClick();
    void theOptionsDialogSetsTheGraduationAtOnce();
    void aPaneSwitchClearsTheChart();
    void Command1AsksForTheHelpOfTheMode();
    void whatIsNoPictureEndsTheProgram();
};

void SpectroscopyPaneTest::aModeShowsItsListAndChart_data()
{
    QTest::addColumn<QList<int>>("way");
    QTest::addColumn<QStringList>("shown");
    const QStringList chart{"Command1", "Label20", "grdFrame17(0)"};

    QTest::newRow("at first") << QList<int>{} << chart + QStringList{"Label19(25)", "ListView3(15)"};
    QTest::newRow("carbon") << QList<int>{1} << chart + QStringList{"Label19(25)", "ListView3(16)"};
    QTest::newRow("charts") << QList<int>{3, 2} << chart + QStringList{"ListView3(5)"};
    QTest::newRow("table") << QList<int>{2, 3} << QStringList{"ListView3(27)", "frmirb"};
    QTest::newRow("and back") << QList<int>{3, 0} << chart + QStringList{"Label19(25)", "ListView3(15)"};
}

void SpectroscopyPaneTest::aModeShowsItsListAndChart()
{
    QFETCH(const QList<int>, way);
    QFETCH(QStringList, shown);
    Window window;
    QCOMPARE(window.pane.mode(), 0);
    QVERIFY(!window.pane.isListView3_27Shown());
    window.pane.build();
    QSignalSpy changes(&window.pane, &SpectroscopyPane::modeChanged);

    for (const int mode : way)
        window.pane.selectMode(mode);

    QStringList found;
    for (const char *name : {"Command1", "Label19(25)", "Label20", "Label24", "Label25", "Label26", "Label27",
                             "ListView3(15)", "ListView3(16)", "ListView3(27)", "ListView3(5)", "Shape2(8)",
                             "VScroll10", "frmirb", "grdFrame17(0)", "grdFrame17(2)"}) {
        if (window.shows(name))
            found << QString::fromLatin1(name);
    }
    shown.sort();
    QCOMPARE(found, shown);
    QCOMPARE(window.pane.isListView3_27Shown(), shown.contains("frmirb"));
    QCOMPARE(changes.size(), way.size());
    QCOMPARE(window.desktop.paused, 10 * way.size());
}

void SpectroscopyPaneTest::theSameModeChosenAgainClearsTheChart()
{
    Window window;
    window.pane.show();
    window.show();
    window.addPicture("nmr/1h/1000.gif");
    window.click(Protons, 1);
    QVERIFY(!window.picture().isClear());

    auto &Comboana = window.get<DropDown>("Comboana");
    QSignalSpy changes(&window.pane, &SpectroscopyPane::modeChanged);
    Comboana.showPopup();
    QTest::keyClick(Comboana.view(), Qt::Key_Return);
    QCOMPARE(changes.size(), 1);
    QVERIFY(window.picture().isClear());
    QCOMPARE(window.text("Label20"), QString());

    QTest::keyClick(&Comboana, Qt::Key_Down);
    QCOMPARE(window.pane.mode(), 1);
    QCOMPARE(changes.size(), 2);
    QCOMPARE(window.get<QPushButton>("Command1").toolTip(), "Display explanation of references");
    window.pane.selectMode(2);
    QCOMPARE(window.get<QPushButton>("Command1").toolTip(), "Display color code");
}

void SpectroscopyPaneTest::aRowShowsItsChartUnderItsName()
{
    Window window;
    window.pane.show();
    window.show();
    window.addPicture("nmr/1h/1003.gif");
    window.addPicture("nmr/1h/2.gif", 200);

    window.click(Protons, 4);
    QCOMPARE(window.text("Label20"), "proton 4");
    QCOMPARE(window.module.SelectedChart, 1002);
    QCOMPARE(window.picture().height(), 300);

    window.click(Protons, 5);
    QCOMPARE(window.text("Label20"), "proton 5");
    QCOMPARE(window.module.SelectedChart, 1);
    QCOMPARE(window.picture().height(), 200);
    QCOMPARE(window.picture().x(), 4);     // 60 twips
    QVERIFY(window.colourAt(6, 0) != Red); // painted from 100 twips on
    QCOMPARE(window.colourAt(7, 0), Red);
    QCOMPARE(window.focusWidget(), &window.list(Protons));
    QCOMPARE(window.get<QLineEdit>("Text3").text(), QString());
}

void SpectroscopyPaneTest::carbonChartsStandAtTheLeftAndTellText3()
{
    Window window;
    window.pane.show();
    window.pane.selectMode(1);
    window.addPicture("nmr/13c/2.gif");

    window.click(Carbons, 2);
    QCOMPARE(window.text("Label20"), "carbon 2");
    QCOMPARE(window.colourAt(0, 0), Red);
    QCOMPARE(window.get<QLineEdit>("Text3").text(), "2");

    QVERIFY_THROWS_EXCEPTION(ProcessEnded, window.click(Carbons, 1)); // told before the file is missed
    QCOMPARE(window.get<QLineEdit>("Text3").text(), "1000");
}

void SpectroscopyPaneTest::onlyTallChartsScroll()
{
    Window window;
    window.pane.show();
    window.addPicture("nmr/1h/1000.gif", 472); // 12488 units
    window.addPicture("nmr/1h/1001.gif", 473); // 12515 units
    window.addPicture("ir/2.gif", 800);

    window.click(Protons, 1);
    QVERIFY(!window.shows("VScroll10"));
    window.click(Protons, 2);
    QVERIFY(window.shows("VScroll10"));
    QCOMPARE(window.scrollBar().minimum(), 1);
    QCOMPARE(window.scrollBar().maximum(), 970); // (12514.58 x 1.01 - 10700) / 2
    QCOMPARE(window.picture().y(), 0);
    window.scrollBar().setValue(970);
    QCOMPARE(window.picture().y(), -65);
    window.click(Protons, 2);
    QCOMPARE(window.scrollBar().value(), 1);
    QCOMPARE(window.picture().y(), 0);

    window.pane.selectMode(2);
    window.click(Charts, 1);
    QCOMPARE(window.picture().pos(), QPoint(-4, 7));
    window.scrollBar().setValue(1599);
    QCOMPARE(window.picture().y(), -100); // 99 - 1599 twips

    window.addPicture("ir/2.gif", 1300);
    window.click(Charts, 1);
    window.scrollBar().setValue(window.scrollBar().maximum());
    const int bottom = window.get<QWidget>("grdFrame19").height() - window.picture().y();
    QCOMPARE(window.colourAt(200, bottom - 1), Red);
    QVERIFY(window.colourAt(200, bottom) != Red); // the foot
}

void SpectroscopyPaneTest::wheelAndPageKeysScrollATallChart()
{
    Window window;
    window.pane.show();
    window.show();
    window.addPicture("nmr/1h/1000.gif", 2000);
    window.addPicture("nmr/1h/1001.gif", 100);
    auto &viewport = window.get<QWidget>("grdFrame19");
    const auto wheelDown = [&] {
        const QPointF middle = viewport.rect().center();
        QWheelEvent event(middle, viewport.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&viewport, &event);
    };

    window.click(Protons, 1);
    QTest::keyClick(&viewport, Qt::Key_PageDown);
    QCOMPARE(window.picture().y(), -456); // a frame's height
    QTest::keyClick(&viewport, Qt::Key_PageUp);
    QCOMPARE(window.scrollBar().value(), 1);
    wheelDown();
    QVERIFY(window.picture().y() < -10);

    window.click(Protons, 2);
    QCOMPARE(viewport.focusPolicy(), Qt::NoFocus);
    wheelDown();
    QCOMPARE(window.picture().y(), 0);
}

void SpectroscopyPaneTest::theTitleOfAnNmrChartStaysOverTheInfraredCharts()
{
    Window window;
    window.pane.show();
    window.addPicture("nmr/1h/1000.gif");
    window.click(Protons, 1);

    window.pane.selectMode(2);
    QCOMPARE(window.text("Label20"), "proton 1");
    QVERIFY(window.picture().isClear());
    QVERIFY(!window.get<QWidget>("Label20").isEnabled()); // it is that of no chart on screen
    window.pane.selectMode(1);
    QCOMPARE(window.text("Label20"), QString());
    QVERIFY(window.get<QWidget>("Label20").isEnabled());
}

void SpectroscopyPaneTest::anUnknownGroupKeepsTheTitle()
{
    Window window;
    window.pane.selectMode(2);
    window.addPicture("ir/5.gif");
    window.addPicture("ir/9.gif", 100);

    window.click(Charts, 2);
    QCOMPARE(window.text("Label20"), "Aromatics");
    window.click(Charts, 3);
    QCOMPARE(window.text("Label20"), "Aromatics");
    QCOMPARE(window.picture().height(), 100);
}

void SpectroscopyPaneTest::theTableOpensAtTheBandsOfTheChosenChart()
{
    Window window;
    RowList &bands = window.store.lists.ListView3[27];
    for (int row = 0; row < 200; ++row)
        bands.append(row == 100 ? u"motif, primary" : row == 130 ? u"Aromatics" : u"others");
    window.pane.show();
    window.show();
    window.addPicture("ir/2.gif");
    window.addPicture("ir/5.gif");
    const auto shownBand = [&](int chart) {
        window.pane.selectMode(2);
        window.click(Charts, chart);
        window.pane.selectMode(3);
        RowListView &table = window.list(27);
        return table.indexAt({}).row() == table.selectedRow() ? table.selectedRow() : -1;
    };
    QCOMPARE(shownBand(1), 100);
    bands.clear();
    for (int row = 0; row < 200; ++row)
        bands.append(row == 130 ? u"Aromatics" : u"others");
    bands.filled();
    QCOMPARE(shownBand(2), 130); // the heading of its group
}

void SpectroscopyPaneTest::theGraduationTakesEffectWithTheNextClick()
{
    Window window;
    window.pane.selectMode(2);
    window.addPicture("ir/2.gif");

    window.click(Charts, 1);
    QVERIFY(window.shows("Label24") && !window.shows("Label27"));
    QCOMPARE(window.text("Label26") + window.text("Label25"), QStringLiteral("σ/ cm-1"));
    QCOMPARE(window.get<QLabel>("Label26").x(), 307); // 4605 twips

    window.module.OptionSlots(Slot::IrInFrequency) = 0;
    QVERIFY(window.shows("Label24"));
    window.click(Charts, 1);
    QVERIFY(!window.shows("Label24") && window.shows("Label27"));
    QCOMPARE(window.text("Label26") + window.text("Label25"), QStringLiteral("λ/ micrometer"));
    QCOMPARE(window.get<QLabel>("Label26").x(), 307); // moved by the dialog alone
}

void SpectroscopyPaneTest::theOptionsDialogSetsTheGraduationAtOnce()
{
    Window window;
    window.pane.applyIrGraduation(); // harmless before the pane is built
    window.pane.build();
    window.module.OptionSlots(Slot::IrInFrequency) = 0;

    window.pane.applyIrGraduation();
    QVERIFY(!window.shows("Label27") && !window.shows("Label25"));
    QCOMPARE(window.text("Label25"), "/ micrometer");
    QCOMPARE(window.get<QLabel>("Label26").x(), 287); // 4305 twips
    QCOMPARE(window.get<QLabel>("Label25").x(), 298); // 4470 twips

    window.pane.selectMode(2);
    window.pane.applyIrGraduation();
    QVERIFY(window.shows("Label27") && window.shows("Label25") && window.shows("Label26"));
}

void SpectroscopyPaneTest::aPaneSwitchClearsTheChart()
{
    Window window;
    window.pane.ClearChartPanels(); // harmless before the pane is built
    window.pane.selectMode(2);
    window.addPicture("ir/2.gif", 800);
    window.click(Charts, 1);
    QVERIFY(window.shows("VScroll10"));

    window.pane.ClearChartPanels();
    QVERIFY(window.picture().isClear());
    QCOMPARE(window.text("Label20"), QString());
    for (const char *scale : {"Label24", "Label25", "Label26", "Label27", "VScroll10"})
        QVERIFY2(!window.shows(scale), scale);
    QCOMPARE(window.list(Charts).selectedRow(), 0);
}

void SpectroscopyPaneTest::Command1AsksForTheHelpOfTheMode()
{
    Window window;
    window.pane.build();
    QSignalSpy references(&window.pane, &SpectroscopyPane::referencesRequested);
    QSignalSpy colours(&window.pane, &SpectroscopyPane::colourCodeRequested);
    auto &Command1 = window.get<QPushButton>("Command1");

    Command1.click();
    QCOMPARE(references.size(), 1);
    window.pane.selectMode(2);
    Command1.click();
    QCOMPARE(references.size(), 1);
    QCOMPARE(colours.size(), 1);
    window.pane.refreshToolTips(); // knows one text for all modes
    QCOMPARE(Command1.toolTip(), "Display explanation of references");
}

void SpectroscopyPaneTest::whatIsNoPictureEndsTheProgram()
{
    Window window;
    window.addPicture("nmr/1h/1000.gif");
    QFile noPicture(window.module.AppFolder + "/Data/nmr/1h/2.gif");
    QVERIFY(noPicture.open(QIODevice::WriteOnly) && noPicture.write("none") == 4);
    noPicture.close();
    window.pane.build();

    QVERIFY_THROWS_EXCEPTION(ProcessEnded, window.click(Protons, 5));
    QVERIFY(window.desktop.boxes.constLast().first.startsWith("Run-time error '481':"));
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, window.click(Protons, 6));
    QVERIFY(window.desktop.boxes.constLast().first.startsWith("Run-time error '53':"));
    QVERIFY(window.desktop.boxes.constLast().first.endsWith("/Data/nmr/1h/3.gif"));
}

QTEST_MAIN(SpectroscopyPaneTest)
#include "spectroscopypane_test.moc"
