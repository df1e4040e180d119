#include "electronics/electronicspane.h"
#include "tests/support/scripteddesktop.h"
#include "tests/support/unreadtables.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

class ElectronicsPaneTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_pane.reset(); }
    void withoutRowsThereIsNothingToChooseButTheRings();
    void anotherDatabaseEmptiesThePane();
    void ringsAreSwitchedByTheirNumber_data();
    void ringsAreSwitchedByTheirNumber();
    void resultsWaitForTheLastRing();
    void bandsStandInTheirOrder();
    void aNewNumberOfRingsStartsAnew();
    void tabsShowTheirFrames();
    void aMarkingIsDecodedOnceBothPartsAreChosen();
    void aValueThatIsNoNumberEndsTheProgram();

private:
    void load() const;
    void choose(int index, const QString &text) const;
    template<class W>
    W &get(const QString &name) const
    {
        auto *control = m_pane->findChild<W *>(name);
        Q_ASSERT_X(control, "get", qPrintable(name));
        return *control;
    }
    DropDown &list(int index) const { return get<DropDown>(Controls::indexedName("Combo2", index)); }
    QString field(int index) const { return get<TextBoxM>(Controls::indexedName("tbm", index)).text(); }
    QWidget &band(int index) const { return get<QWidget>(Controls::indexedName("Shape3", index)); }
    QColor textColour(const QString &label) const
    {
        const auto &found = get<QLabel>(label);
        return found.palette().color(found.foregroundRole());
    }

    ScriptedDesktop m_desktop;
    std::unique_ptr<DataStore> m_store;
    std::unique_ptr<UnreadTables> m_unread;
    std::unique_ptr<ElectronicsPane> m_pane;
};

void ElectronicsPaneTest::init()
{
    m_store = std::make_unique<DataStore>();
    m_unread = std::make_unique<UnreadTables>(*m_store, m_desktop);
    m_pane = std::make_unique<ElectronicsPane>(*m_store, m_unread->tables, m_desktop, nullptr);
    m_pane->show();
}

void ElectronicsPaneTest::load() const
{
    get<QPushButton>("cmdReadTables(0)").click();
}

void ElectronicsPaneTest::choose(int index, const QString &text) const
{
    const int position = list(index).findText(text);
    QVERIFY2(position >= 0, qPrintable(text));
    list(index).setCurrentIndex(position);
}

void ElectronicsPaneTest::withoutRowsThereIsNothingToChooseButTheRings()
{
    for (int index = 4; index <= 9; ++index)
        QCOMPARE(list(index).count(), 0);
    QCOMPARE(get<DropDown>("Combo4").count(), 0);
    QCOMPARE(get<DropDown>("Combo3").currentText(), "4");
    QCOMPARE(list(10).count(), 8);
    QCOMPARE(list(10).currentIndex(), -1);

    load();
    QCOMPARE(list(4).count(), 11);
    QCOMPARE(list(4).itemText(0), "Black");
    QCOMPARE(list(7).count(), 10);
    QCOMPARE(list(8).count(), 7);
    QCOMPARE(list(9).count(), 8);
    for (int index = 4; index <= 9; ++index)
        QCOMPARE(list(index).currentIndex(), -1);
    QCOMPARE(get<DropDown>("Combo4").currentIndex(), -1);
}

void ElectronicsPaneTest::anotherDatabaseEmptiesThePane()
{
    load();
    for (const int index : {4, 5, 7, 8})
        list(index).setCurrentIndex(1);
    get<DropDown>("Combo4").setCurrentIndex(0);
    choose(10, "A");
    QVERIFY(!field(7).isEmpty() && !field(10).isEmpty());

    m_unread->tables.forget();
    QVERIFY(!Controls::isShown(band(0)));
    QCOMPARE(field(7) + field(8) + field(10) + get<QLabel>("Label18(13)").text(), QString());
}

void ElectronicsPaneTest::ringsAreSwitchedByTheirNumber_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QList<bool>>("enabled"); // third digit, tolerance, temperature

    QTest::newRow("3") << 0 << QList<bool>{false, false, false};
    QTest::newRow("4") << 1 << QList<bool>{false, true, false};
    QTest::newRow("5") << 2 << QList<bool>{true, true, false};
    QTest::newRow("6") << 3 << QList<bool>{true, true, true};
}

void ElectronicsPaneTest::ringsAreSwitchedByTheirNumber()
{
    QFETCH(const int, position);
    QFETCH(const QList<bool>, enabled);
    get<DropDown>("Combo3").setCurrentIndex(position);

    const QColor lightGrey(0xe0, 0xe0, 0xe0);
    QCOMPARE((QList<bool>{list(6).isEnabled(), list(8).isEnabled(), list(9).isEnabled()}), enabled);
    QCOMPARE(textColour("Label18(10)") != lightGrey, enabled[0]);
    QCOMPARE(textColour("Label18(7)") != lightGrey, enabled[1]);
    QCOMPARE(textColour("Label18(5)") != lightGrey, enabled[2]);
    QCOMPARE(textColour("lbl2(20)"), enabled[2] ? m_pane->palette().color(QPalette::ButtonText) : lightGrey);
    QVERIFY(list(4).isEnabled() && list(5).isEnabled() && list(7).isEnabled());
}

void ElectronicsPaneTest::resultsWaitForTheLastRing()
{
    load();
    choose(4, "Yellow");
    choose(5, "Violet");
    choose(8, "Gold");
    QVERIFY(Controls::isShown(band(0)) && Controls::isShown(band(1)) && Controls::isShown(band(5)));
    QVERIFY(!Controls::isShown(band(3)));
    QCOMPARE(field(7) + field(8), QString());

    choose(7, "Red");
    QCOMPARE(field(7), "4700");
    QCOMPARE(field(8), "5");
    QCOMPARE(field(9), QString());
    choose(7, "Orange");
    QCOMPARE(field(7), "47000");
}

void ElectronicsPaneTest::bandsStandInTheirOrder()
{
    load();
    get<DropDown>("Combo3").setCurrentIndex(3);
    const QStringList colours{"Brown", "Black", "Black", "Red", "Brown", "Red"};
    for (int i = 0; i < 6; ++i)
        choose(4 + i, colours[i]);
    QCOMPARE(field(7), "10000");
    QCOMPARE(field(8), "1");
    QCOMPARE(field(9), "50");

    int left = 0;
    for (const int index : {0, 1, 2, 3, 5, 4}) {
        QVERIFY2(band(index).x() > left, qPrintable(QString::number(index)));
        left = band(index).x();
    }
    const QImage picture = m_pane->grab().toImage();
    const auto colourOf = [&](int index) {
        return picture.pixelColor(band(index).mapTo(m_pane.get(), band(index).rect().center()));
    };
    QCOMPARE(colourOf(3), QColor(Qt::red));
    QCOMPARE(colourOf(5), QColor(0x8b, 0x45, 0x13));
}

void ElectronicsPaneTest::aNewNumberOfRingsStartsAnew()
{
    load();
    get<DropDown>("Combo3").setCurrentIndex(0);
    choose(4, "Red");
    choose(5, "Red");
    choose(7, "Black");
    QCOMPARE(field(7), "22");
    QCOMPARE(field(8), "20");

    get<DropDown>("Combo3").setCurrentIndex(2);
    for (int index = 4; index <= 9; ++index)
        QCOMPARE(list(index).currentIndex(), -1);
    for (int index = 0; index <= 5; ++index)
        QVERIFY(!Controls::isShown(band(index)));
    QCOMPARE(field(7) + field(8) + field(9), QString());
}

void ElectronicsPaneTest::tabsShowTheirFrames()
{
    auto &TabStrip11 = get<QTabBar>("TabStrip11");
    const QList<QStringList> shown{{"frmgen"}, {"ListView3(28)", "grdFrame32"}, {"frmcms"}};
    for (const int tab : {0, 2, 1, 0}) {
        TabStrip11.setCurrentIndex(tab);
        QStringList found;
        for (const char *frame : {"ListView3(28)", "frmcms", "frmgen", "grdFrame32"}) {
            if (Controls::isShown(get<QWidget>(QString::fromLatin1(frame))))
                found << QString::fromLatin1(frame);
        }
        QCOMPARE(found, shown[tab]);
    }
    QSignalSpy mnemonic(m_pane.get(), &ElectronicsPane::mnemonicRequested);
    get<QPushButton>("Command2").click();
    QCOMPARE(mnemonic.size(), 1);
}

void ElectronicsPaneTest::aMarkingIsDecodedOnceBothPartsAreChosen()
{
    load();
    auto &Combo4 = get<DropDown>("Combo4");
    choose(10, "F");
    QCOMPARE(get<QLabel>("Label18(15)").text(), "F");
    QCOMPARE(get<QLabel>("Label18(13)").text(), QString());
    QCOMPARE(field(10), QString());

    Combo4.setCurrentIndex(95);
    QCOMPARE(get<QLabel>("Label18(13)").text(), "96");
    QCOMPARE(field(10), "97600000");
    Combo4.setCurrentIndex(0);
    choose(10, "Y");
    QCOMPARE(field(10), "1");
    QCOMPARE(get<QLabel>("lbl2(21)").text(), QStringLiteral("Ω"));
}

void ElectronicsPaneTest::aValueThatIsNoNumberEndsTheProgram()
{
    m_store->lists.Combo4.append(u"01");
    m_store->lists.Combo4.filled();
    m_store->lists.ListView3[29].append(u"01");
    choose(10, "A");
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, get<DropDown>("Combo4").setCurrentIndex(0));
    QVERIFY(m_desktop.boxes.constFirst().first.startsWith("Run-time error '13':"));
}

QTEST_MAIN(ElectronicsPaneTest)
#include "electronicspane_test.moc"
