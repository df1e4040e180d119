#include "electronics/electronicspane.h"
#include "tests/support/scripteddesktop.h"
#include "tests/support/testclass.h"
#include "tests/support/unreadtables.h"

#include <QPushButton>
#include <QSignalSpy>

class ElectronicsPaneTest final : public QObject
{
    Q_OBJECT

    ScriptedDesktop m_desktop;
    std::unique_ptr<DataStore> m_store;
    std::unique_ptr<UnreadTables> m_unread;
    std::unique_ptr<ElectronicsPane> m_pane;

    template<class W>
    W &get(const QString &name) const
    {
        return *m_pane->findChild<W *>(name);
    }
    DropDown &list(int index) const { return get<DropDown>(Controls::indexedName("Combo2", index)); }
    QString field(int index) const { return get<TextBoxM>(Controls::indexedName("tbm", index)).text(); }
    QWidget &band(int index) const { return get<QWidget>(Controls::indexedName("Shape3", index)); }
    void load() const { get<QPushButton>("cmdReadTables(0)").click(); }

    void choose(int index, const QString &text) const
    {
        const int position = list(index).findText(text);
        QVERIFY2(position >= 0, qPrintable(text));
        list(index).setCurrentIndex(position);
    }

    bool isGrey(const QString &label) const
    {
        const auto &found = get<QLabel>(label);
        return found.palette().color(found.foregroundRole()) == QColor(0xe0, 0xe0, 0xe0);
    }

private Q_SLOTS:
    void init()
    {
        m_desktop.boxes.clear();
        m_store = std::make_unique<DataStore>();
        m_unread = std::make_unique<UnreadTables>(*m_store, m_desktop);
        m_pane = std::make_unique<ElectronicsPane>(*m_store, m_unread->tables, m_desktop, nullptr);
        m_pane->show();
    }
    void cleanup() { m_pane.reset(); }

    void anotherDatabaseEmptiesThePane()
    {
        QCOMPARE(list(4).count() + list(9).count() + get<DropDown>("Combo4").count(), 0);
        QCOMPARE(get<DropDown>("Combo3").currentText(), "4");
        load();
        QCOMPARE(list(4).count(), 11);
        QCOMPARE(list(4).currentIndex(), -1);
        for (const int index : {4, 5, 7, 8})
            list(index).setCurrentIndex(1);
        get<DropDown>("Combo4").setCurrentIndex(0);
        choose(10, "A");
        QVERIFY(!field(7).isEmpty() && !field(10).isEmpty());

        m_unread->tables.forget();
        QVERIFY(!Controls::isShown(band(0)));
        QCOMPARE(field(7) + field(8) + field(10) + get<QLabel>("Label18(13)").text(), QString());
    }

    void ringsAreSwitchedByTheirNumber()
    {
        for (int position = 0; position < 4; ++position) {
            get<DropDown>("Combo3").setCurrentIndex(position);
            const bool third = position >= 2, tolerance = position >= 1, temperature = position == 3;
            QCOMPARE((QList{list(6).isEnabled(), list(8).isEnabled(), list(9).isEnabled()}),
                     (QList{third, tolerance, temperature}));
            QCOMPARE((QList{isGrey("Label18(10)"), isGrey("Label18(7)"), isGrey("Label18(5)"),
                            isGrey("lbl2(20)")}),
                     (QList{!third, !tolerance, !temperature, !temperature}));
            QVERIFY(list(4).isEnabled() && list(5).isEnabled() && list(7).isEnabled());
        }
    }

    void resultsWaitForTheLastRing()
    {
        load();
        choose(4, "Yellow");
        choose(5, "Violet");
        choose(8, "Gold");
        QVERIFY(Controls::isShown(band(0)) && Controls::isShown(band(1)) && Controls::isShown(band(5)));
        QVERIFY(!Controls::isShown(band(3)));
        QCOMPARE(field(7) + field(8), QString());

        choose(7, "Red");
        QCOMPARE(field(7) + ' ' + field(8) + ' ' + field(9), "4700 5 ");
        choose(7, "Orange");
        QCOMPARE(field(7), "47000");

        get<DropDown>("Combo3").setCurrentIndex(0); // another number of rings starts anew
        for (int index = 4; index <= 9; ++index)
            QCOMPARE(list(index).currentIndex(), -1);
        for (int index = 0; index <= 5; ++index)
            QVERIFY(!Controls::isShown(band(index)));
        QCOMPARE(field(7) + field(8) + field(9), QString());
        choose(4, "Red");
        choose(5, "Red");
        choose(7, "Black");
        QCOMPARE(field(7) + ' ' + field(8), "22 20");
    }

    void bandsStandInTheirOrder()
    {
        load();
        get<DropDown>("Combo3").setCurrentIndex(3);
        const QStringList colours{"Brown", "Black", "Black", "Red", "Brown", "Red"};
        for (int i = 0; i < 6; ++i)
            choose(4 + i, colours[i]);
        QCOMPARE(field(7) + ' ' + field(8) + ' ' + field(9), "10000 1 50");

        int left = 0;
        for (const int index : {0, 1, 2, 3, 5, 4})
            QVERIFY2(band(index).x() > std::exchange(left, band(index).x()),
                     qPrintable(QString::number(index)));
        const QImage picture = m_pane->grab().toImage();
        const auto colourOf = [&](int index) {
            return picture.pixelColor(band(index).mapTo(m_pane.get(), band(index).rect().center()));
        };
        QCOMPARE(colourOf(3), QColor(Qt::red));
        QCOMPARE(colourOf(5), QColor(0x8b, 0x45, 0x13));
    }

    void tabsShowTheirFrames()
    {
        const QStringList shown[]{{"frmgen"}, {"ListView3(28)", "grdFrame32"}, {"frmcms"}};
        for (const int tab : {0, 2, 1, 0}) {
            get<QTabBar>("TabStrip11").setCurrentIndex(tab);
            QStringList found{"ListView3(28)", "frmcms", "frmgen", "grdFrame32"};
            found.removeIf([&](const QString &name) { return !Controls::isShown(get<QWidget>(name)); });
            QCOMPARE(found, shown[tab]);
        }
        QSignalSpy mnemonic(m_pane.get(), &ElectronicsPane::mnemonicRequested);
        get<QPushButton>("Command2").click();
        QCOMPARE(mnemonic.size(), 1);
    }

    void aMarkingIsDecodedOnceBothPartsAreChosen()
    {
        load();
        QCOMPARE(list(10).count(), 8);
        choose(10, "F");
        QCOMPARE(get<QLabel>("Label18(15)").text(), "F");
        QCOMPARE(get<QLabel>("Label18(13)").text() + field(10), QString());
        get<DropDown>("Combo4").setCurrentIndex(95);
        QCOMPARE(get<QLabel>("Label18(13)").text(), "96");
        QCOMPARE(field(10), "97600000");
        get<DropDown>("Combo4").setCurrentIndex(0);
        choose(10, "Y");
        QCOMPARE(field(10), "1");
        QCOMPARE(get<QLabel>("lbl2(21)").text(), "Ω");
    }

    void aValueThatIsNoNumberEndsTheProgram()
    {
        m_store->lists.Combo4.append(u"01");
        m_store->lists.Combo4.filled();
        m_store->lists.ListView3[29].append(u"01");
        choose(10, "A");
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, get<DropDown>("Combo4").setCurrentIndex(0));
        QVERIFY(m_desktop.boxes.constFirst().first.startsWith("Run-time error '13':"));
    }
};

const TestClass<ElectronicsPaneTest> electronicsPaneTest;
#include "electronicspane_test.moc"
