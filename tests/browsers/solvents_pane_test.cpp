#include "browsers/solventspane.h"
#include "core/module1.h"
#include "search/findbar.h"
#include "store/datastore.h"
#include "tests/support/scripteddesktop.h"

#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

/// A main window with the pane and a Find bar, and a few rows in each list.
class Window final : public QWidget
{
public:
    Window()
    {
        for (RowList *list :
             {&store.lists.ListView1, &store.lists.ListView4, &store.lists.ListView5, &store.lists.ListView6,
              &store.lists.ListView8, &store.lists.ListView9, &store.lists.ListView3[26]}) {
            list->append(QStringLiteral("Acetone"));
            list->append(QStringLiteral("Water"));
            list->filled();
        }
    }

    template<class W>
    W &get(const QString &name) const
    {
        auto *control = findChild<W *>(name);
        Q_ASSERT_X(control, "Window", qPrintable(name));
        return *control;
    }

    /// The lists and frames of the pane that a user sees.
    QStringList onTop() const
    {
        QStringList names;
        for (const QWidget *each : pane.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (Controls::isOnTop(*each, pane))
                names << each->objectName();
        }
        names.sort();
        return names;
    }

    Module1 module;
    DataStore store;
    ScriptedDesktop desktop;
    QLabel panel3;
    FindBar findBar{store, desktop, panel3, this};
    SolventsPane pane{module, store, desktop, findBar, this};
};

class SolventsPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTabShowsItsListAndTitlesAlone_data();
    void aTabShowsItsListAndTitlesAlone();
    void titlesStandOverTheirColumns_data();
    void titlesStandOverTheirColumns();
    void theNucleusIsKeptThroughTabChanges();
    void theNucleusButtonsAreMovedAndNeverHidden();
    void tabsThatCannotBeSearchedCloseTheFindBar();
    void aNameTypedOnATabIsLookedForInTheList();
    void aDoubleClickOpensTheStructureOnlyIfWanted();
};

void SolventsPaneTest::aTabShowsItsListAndTitlesAlone_data()
{
    QTest::addColumn<QList<int>>("way");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("at first") << QList<int>{} << QStringList{"ListView1", "TabStrip1", "frmc"};
    QTest::newRow("miscibility") << QList<int>{2}
                                 << QStringList{"ListView6", "TabStrip1", "framepola", "frmm"};
    QTest::newRow("NMR") << QList<int>{3}
                         << QStringList{"ListView4", "Option1", "Option2", "TabStrip1", "frmrmn1"};
    QTest::newRow("masses") << QList<int>{3, 4} << QStringList{"ListView3(26)", "TabStrip1", "grdFrame30"};
    QTest::newRow("drying") << QList<int>{2, 5} << QStringList{"ListView8", "TabStrip1", "frmdess"};
    QTest::newRow("cooling") << QList<int>{3, 6} << QStringList{"ListView9", "TabStrip1", "frmcool"};
    QTest::newRow("and back") << QList<int>{6, 4, 1} << QStringList{"ListView1", "TabStrip1", "frmc"};
}

void SolventsPaneTest::aTabShowsItsListAndTitlesAlone()
{
    QFETCH(const QList<int>, way);
    QFETCH(QStringList, expected);
    Window window;
    window.pane.show();

    for (const int tab : way)
        window.pane.selectTab(tab);

    expected.sort();
    QCOMPARE(window.onTop(), expected);
    const int tab = way.isEmpty() ? 1 : way.constLast();
    QCOMPARE(window.pane.isListView1Shown(), Controls::isShown(*window.pane.ListView1));
    QCOMPARE(window.pane.isListView3_26Shown(), Controls::isShown(window.pane.ListView3[26]));
    QCOMPARE(window.pane.currentTabCaption(), window.get<QTabBar>("TabStrip1").tabText(tab - 1));
}

void SolventsPaneTest::titlesStandOverTheirColumns_data()
{
    QTest::addColumn<int>("label");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("column");

    QTest::newRow("refractive index") << 9 << "ListView1" << 5;
    QTest::newRow("CAS number") << 10 << "ListView1" << 6;
    QTest::newRow("non-miscible") << 13 << "ListView6" << 3;
    QTest::newRow("carbon") << 30 << "ListView5" << 1;
    QTest::newRow("water shift of protons") << 24 << "ListView4" << 9;
    QTest::newRow("water shift of carbons") << 24 << "ListView5" << 8;
    QTest::newRow("temperature of mixture") << 43 << "ListView9" << 1;
}

void SolventsPaneTest::titlesStandOverTheirColumns()
{
    QFETCH(const int, label);
    QFETCH(const QString, list);
    QFETCH(const int, column);
    Window window;
    window.pane.show();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto &title = window.get<QLabel>(Controls::indexedName("Label2", label));
    const auto &view = window.get<RowListView>(list);

    QCOMPARE(title.text(), view.columns()[column].title);
    const int left = title.mapTo(&window.pane, QPoint()).x() - view.x();
    const int columnLeft = view.viewport()->x() + view.columnViewportPosition(column);
    QVERIFY2(left >= columnLeft && left < columnLeft + 10,
             qPrintable(QStringLiteral("%1 over %2").arg(left).arg(columnLeft)));
}

void SolventsPaneTest::theNucleusIsKeptThroughTabChanges()
{
    Window window;
    window.pane.show();
    window.pane.selectTab(3);
    window.get<QRadioButton>("Option2").click();
    QVERIFY(window.onTop().contains("ListView5"));
    QVERIFY(!Controls::isShown(window.get<QLabel>("Label2(20)")));

    window.pane.selectTab(5);
    QVERIFY(!window.onTop().contains("ListView5"));
    window.pane.selectTab(3);
    QVERIFY(window.onTop().contains("ListView5"));

    window.get<QRadioButton>("Option1").click();
    QVERIFY(window.onTop().contains("ListView4"));
    QVERIFY(!Controls::isShown(window.get<QLabel>("Label2(30)")));
}

void SolventsPaneTest::theNucleusButtonsAreMovedAndNeverHidden()
{
    Window window;
    window.pane.show();
    const auto &Option1 = window.get<QRadioButton>("Option1");

    QVERIFY(Controls::isShown(Option1));
    QCOMPARE(Option1.y(), 67); // 1000 twips
    QCOMPARE(Option1.focusPolicy(), Qt::NoFocus);
    window.pane.selectTab(3);
    QCOMPARE(Option1.y(), 32); // 480 twips
    QCOMPARE(Option1.focusPolicy(), Qt::StrongFocus);
}

void SolventsPaneTest::tabsThatCannotBeSearchedCloseTheFindBar()
{
    Window window;
    window.pane.show();
    window.findBar.open(false);
    auto &text = window.get<QLineEdit>("TextBoxM6");
    QTest::keyClicks(&text, "ace");
    QCOMPARE(window.store.lists.ListView2[6].rowCount(), 0); // no count of solvents, no hits
    window.store.lists.ListView2[6].append(u"Acetone");

    window.pane.selectTab(4);
    QVERIFY(window.findBar.isSearching());
    QVERIFY(text.text().isEmpty());
    QCOMPARE(window.store.lists.ListView2[6].rowCount(), 0);

    window.pane.selectTab(5);
    QVERIFY(!window.findBar.isSearching());
}

void SolventsPaneTest::aNameTypedOnATabIsLookedForInTheList()
{
    Window window;
    window.pane.show();
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto &tabs = window.get<QTabBar>("TabStrip1");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(3).center());
    for (const char letter : {'w', 'a', 't'})
        QTest::keyClick(window.focusWidget(), letter);
    QCOMPARE(window.pane.ListView3[26].selectedRow(), 1);
    QVERIFY(window.pane.ListView3[26].hasFocus());
}

void SolventsPaneTest::aDoubleClickOpensTheStructureOnlyIfWanted()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("Data/chemicals"));
    Window window;
    window.module.AppFolder = folder.path();
    window.pane.build();

    Q_EMIT window.pane.ListView1->rowDoubleClicked(1);
    QVERIFY(window.isEnabled());

    window.module.OptionSlots(Slot::Structures) = 1;
    Q_EMIT window.pane.ListView1->rowDoubleClicked(1);
    QVERIFY(!window.isEnabled());
    QCOMPARE(window.module.SelectedChart, 2);
    const auto *form2 = window.findChild<QWidget *>("Form2");
    QCOMPARE(form2->findChild<QLabel *>("Label1")->text(), QStringLiteral("Water"));
}

QTEST_MAIN(SolventsPaneTest)
#include "solvents_pane_test.moc"
