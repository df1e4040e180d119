#include "charts/chartpicture.h"
#include "charts/spectroscopypane.h"
#include "core/module1.h"
#include "store/datastore.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/dropdown.h"
#include "widgets/tooltips.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

namespace {

enum List { Charts = 5, Protons = 15, Carbons = 16, Bands = 27 };

/// A main window with the pane over a folder of red charts.
struct Window : QWidget
{
    Window()
    {
        module.AppFolder = folder.path();
        module.OptionSlots(Slot::IrInFrequency) = 1;
        module.OptionSlots(Slot::ToolTips) = 1;
        for (int row = 1; row <= 6; ++row) {
            store.lists.ListView3[Protons].append(QString("proton %1").arg(row));
            store.lists.ListView3[Carbons].append(QString("carbon %1").arg(row));
        }
        for (const char *group : {"2", "5", "9"}) {
            store.lists.ListView3[Charts].append(u"motif");
            store.lists.ListView3[Charts].appendSubItem(QString(group));
        }
    }

    void addPicture(const QString &file, int height = 300) const
    {
        makePicture(folder.filePath("Data/" + file), {400, height});
    }
    RowListView &list(List index) const
    {
        return get<RowListView>(pane, Controls::indexedName("ListView3", index));
    }
    QString text(const char *label) const { return get<QLabel>(pane, label).text(); }
    bool shows(const char *control) const { return Controls::isShown(get(pane, control)); }
    QScrollBar &scrollBar() const { return get<QScrollBar>(pane, "VScroll10"); }
    ChartPicture &picture() const { return get<ChartPicture>(pane, "Picture3"); }
    QColor colourAt(int x, int y) const { return picture().grab().toImage().pixelColor(x, y); }

    /// A click on the row, from 1, as it comes from the mouse.
    void click(List which, int position) const
    {
        list(which).selectRow(position - 1);
        Q_EMIT list(which).rowClicked(position - 1);
    }

    const QTemporaryDir folder;
    Module1 module;
    DataStore store;
    ScriptedDesktop desktop;
    SpectroscopyPane pane{module, store, desktop, this};
};

const QColor Red(Qt::red);

} // namespace

class SpectroscopyPaneTest final : public QObject
{
    Q_OBJECT

    std::unique_ptr<Window> m_window;

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<Window>();
        m_window->pane.ClearChartPanels(); // both harmless before the pane is built
        m_window->pane.applyIrGraduation();
        QVERIFY(!m_window->pane.isListView3_27Shown());
        m_window->pane.show();
        m_window->show();
    }

    void theSameModeChosenAgainClearsTheChart()
    {
        m_window->addPicture("nmr/1h/1000.gif");
        m_window->click(Protons, 1);
        QVERIFY(!m_window->picture().isClear());

        auto &Comboana = get<DropDown>(m_window->pane, "Comboana");
        const QSignalSpy changes(&m_window->pane, &SpectroscopyPane::modeChanged);
        Comboana.showPopup();
        QTest::keyClick(Comboana.view(), Qt::Key_Return);
        QCOMPARE(changes.size(), 1);
        QVERIFY(m_window->picture().isClear());
        QCOMPARE(m_window->text("Label20"), QString());
        QTest::keyClick(&Comboana, Qt::Key_Down);
        QCOMPARE(m_window->pane.mode(), 1);
        QCOMPARE(changes.size(), 2);
        QCOMPARE(m_window->desktop.paused, 20);
    }

    void aRowShowsItsChartUnderItsName()
    {
        m_window->addPicture("nmr/1h/2.gif", 200);
        m_window->addPicture("nmr/13c/2.gif");
        const auto &Text3 = get<QLineEdit>(m_window->pane, "Text3");
        m_window->click(Protons, 5);
        QCOMPARE(m_window->text("Label20"), "proton 5");
        QCOMPARE(m_window->module.SelectedChart, 1);
        QCOMPARE(m_window->picture().height(), 200);
        QCOMPARE(m_window->focusWidget(), &m_window->list(Protons));
        QCOMPARE(Text3.text(), QString());

        m_window->pane.selectMode(1);
        m_window->click(Carbons, 2);
        QCOMPARE(m_window->text("Label20"), "carbon 2");
        QCOMPARE(Text3.text(), "2");
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, m_window->click(Carbons, 1)); // told before the file is missed
        QCOMPARE(Text3.text(), "1000");
    }

    void onlyTallChartsScroll()
    {
        m_window->addPicture("nmr/1h/1000.gif", 472); // 12488 units
        m_window->addPicture("nmr/1h/1001.gif", 473); // 12515 units
        m_window->addPicture("ir/2.gif", 800);
        m_window->click(Protons, 1);
        QVERIFY(!m_window->shows("VScroll10"));
        m_window->click(Protons, 2);
        QVERIFY(m_window->shows("VScroll10"));
        QCOMPARE(m_window->picture().y(), 0);
        m_window->scrollBar().setValue(m_window->scrollBar().maximum()); // 970
        QCOMPARE(m_window->picture().y(), -65);
        m_window->click(Protons, 2);
        QCOMPARE(m_window->scrollBar().value(), 1);
        QCOMPARE(m_window->picture().y(), 0);

        m_window->pane.selectMode(2);
        m_window->click(Charts, 1);
        QCOMPARE(m_window->picture().pos(), QPoint(-4, 7));
        m_window->scrollBar().setValue(1599);
        QCOMPARE(m_window->picture().y(), -100); // 99 - 1599 twips

        m_window->addPicture("ir/2.gif", 1300);
        m_window->click(Charts, 1);
        m_window->scrollBar().setValue(m_window->scrollBar().maximum());
        const int bottom = get(m_window->pane, "grdFrame19").height() - m_window->picture().y();
        QCOMPARE(m_window->colourAt(200, bottom - 1), Red);
        QVERIFY(m_window->colourAt(200, bottom) != Red); // the foot
    }

    void wheelAndPageKeysScrollATallChart()
    {
        m_window->addPicture("nmr/1h/1000.gif", 2000);
        m_window->addPicture("nmr/1h/1001.gif", 100);
        auto &viewport = get(m_window->pane, "grdFrame19");
        const auto wheelDown = [&] {
            const QPointF middle = viewport.rect().center();
            QWheelEvent event(middle, viewport.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&viewport, &event);
        };
        m_window->click(Protons, 1);
        QTest::keyClick(&viewport, Qt::Key_PageDown);
        QCOMPARE(m_window->picture().y(), -456); // a frame's height
        QTest::keyClick(&viewport, Qt::Key_PageUp);
        QCOMPARE(m_window->scrollBar().value(), 1);
        wheelDown();
        QVERIFY(m_window->picture().y() < -10);

        m_window->click(Protons, 2);
        QCOMPARE(viewport.focusPolicy(), Qt::NoFocus);
        wheelDown();
        QCOMPARE(m_window->picture().y(), 0);
    }

    void theTitleOfAnNmrChartStaysOverTheInfraredCharts()
    {
        m_window->addPicture("nmr/1h/1000.gif");
        m_window->addPicture("ir/5.gif");
        m_window->addPicture("ir/9.gif", 100);
        m_window->click(Protons, 1);
        m_window->pane.selectMode(2);
        QCOMPARE(m_window->text("Label20"), "proton 1");
        QVERIFY(m_window->picture().isClear());
        QVERIFY(!get(m_window->pane, "Label20").isEnabled()); // it is that of no chart on screen
        m_window->click(Charts, 2);
        QCOMPARE(m_window->text("Label20"), "Aromatics");
        m_window->click(Charts, 3); // an unknown group keeps the title
        QCOMPARE(m_window->text("Label20"), "Aromatics");
        QCOMPARE(m_window->picture().height(), 100);
        m_window->pane.selectMode(1);
        QCOMPARE(m_window->text("Label20"), QString());
        QVERIFY(get(m_window->pane, "Label20").isEnabled());
    }

    void theTableOpensAtTheBandsOfTheChosenChart()
    {
        RowList &bands = m_window->store.lists.ListView3[Bands];
        m_window->addPicture("ir/2.gif");
        m_window->addPicture("ir/5.gif");
        const auto shownBand = [&](int chart, QStringView hundredth) {
            bands.clear();
            for (int row = 0; row < 200; ++row)
                bands.append(row == 100 ? hundredth : row == 130 ? u"Aromatics" : u"others");
            bands.filled();
            m_window->pane.selectMode(2);
            m_window->click(Charts, chart);
            m_window->pane.selectMode(3);
            const RowListView &table = m_window->list(Bands);
            return table.indexAt({}).row() == table.selectedRow() ? table.selectedRow() : -1;
        };
        QCOMPARE(shownBand(1, u"motif, primary"), 100);
        QVERIFY(m_window->pane.isListView3_27Shown());
        QCOMPARE(shownBand(2, u"others"), 130); // the heading of its group
    }

    void theGraduationTakesEffectWithTheNextClick()
    {
        const auto scale = [this] {
            const Window &window = *m_window;
            QString shown;
            for (const char *name : {"Label24", "Label25", "Label26", "Label27"})
                shown += window.shows(name) ? name : "";
            return shown.replace("Label", " ") + ": " + window.text("Label26") + window.text("Label25") +
                   QString(" %1 %2")
                       .arg(get(window.pane, "Label26").x())
                       .arg(get(window.pane, "Label25").x());
        };
        m_window->module.OptionSlots(Slot::IrInFrequency) = 0;
        m_window->pane.applyIrGraduation(); // the dialog's OK, in another mode
        QCOMPARE(scale(), ": λ/ micrometer 287 298");
        init();
        m_window->addPicture("ir/2.gif", 800);
        m_window->pane.selectMode(2);
        m_window->click(Charts, 1);
        QCOMPARE(scale(), " 24 25 26: σ/ cm-1 307 318");
        m_window->module.OptionSlots(Slot::IrInFrequency) = 0;
        QCOMPARE(scale(), " 24 25 26: σ/ cm-1 307 318");
        m_window->click(Charts, 1);
        QCOMPARE(scale(), " 25 26 27: λ/ micrometer 307 318"); // moved by the dialog alone
        m_window->pane.applyIrGraduation();
        QCOMPARE(scale(), " 25 26 27: λ/ micrometer 287 298");
        m_window->module.OptionSlots(Slot::IrInFrequency) = 1;
        m_window->pane.applyIrGraduation();
        QCOMPARE(scale(), " 24 25 26: σ/ cm-1 307 318");

        m_window->pane.ClearChartPanels();
        QVERIFY(m_window->picture().isClear() && scale().startsWith(':') && !m_window->shows("VScroll10"));
        QCOMPARE(m_window->text("Label20"), QString());
        QCOMPARE(m_window->list(Charts).selectedRow(), 0);
    }

    // What it opens, the pictures of the journals and of the colour code show.
    void Command1SaysWhatItOpens()
    {
        const auto &Command1 = get<QPushButton>(m_window->pane, "Command1");
        m_window->pane.selectMode(2);
        QCOMPARE(Command1.toolTip(), "Display color code");
        ToolTips::refresh(m_window->module.OptionSlots, m_window->pane); // knows one text for all modes
        QCOMPARE(Command1.toolTip(), "Display explanation of references");
        m_window->module.OptionSlots(Slot::ToolTips) = 0;
        m_window->pane.selectMode(2);
        QCOMPARE(Command1.toolTip(), "Display explanation of references");
        QCOMPARE(m_window->text("Label2(104)"), "Functional group");
    }
};

const TestClass<SpectroscopyPaneTest> spectroscopyPaneTest;
#include "spectroscopypane_test.moc"
