#include "browsers/biochemistrypane.h"
#include "browsers/solutionspane.h"
#include "core/module1.h"
#include "store/datastore.h"
#include "tests/support/scripteddesktop.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A pane that is worked by the names of its controls: "TabStrip2:1" selects a tab, "Option4(3)" clicks.
template<class Pane>
struct Worked
{
    void work(const QString &steps)
    {
        for (const QString &step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QStringList parts = step.split(QLatin1Char(':'));
            if (parts.size() == 2)
                get<QTabBar>(parts[0])->setCurrentIndex(parts[1].toInt() - 1);
            else
                get<QRadioButton>(step)->click();
        }
    }

    template<class W>
    W *get(const QString &name) const
    {
        return pane.template findChild<W *>(name);
    }

    /// Lists, titles and option buttons that a user sees, of those with one of the names.
    QStringList seen(const QStringList &names) const
    {
        QStringList onTop;
        for (const QString &name : names) {
            if (Controls::isOnTop(*get<QWidget>(name), pane))
                onTop << name;
        }
        return onTop;
    }

    Pane &pane;
};

QStringList indexed(const char *array, const QList<int> &indices)
{
    QStringList names;
    for (const int index : indices)
        names << Controls::indexedName(array, index);
    return names;
}

} // namespace

class ListsPanesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void solutionsShowOneListABlock_data();
    void solutionsShowOneListABlock();
    void titlesOfIndicatorsMoveAndChangeTheirName();
    void biochemistryShowsOneListASection_data();
    void biochemistryShowsOneListASection();
    void coveredListsStayOnAndOutOfTheTabOrder();
    void recipesReadAsRecipes();
    void onlyNaturalAminoAcidsHaveStructures();

    void theCodeIsSearchedInOneDirectionAtATime();
};

void ListsPanesTest::solutionsShowOneListABlock_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("expected");

    QTest::newRow("at first") << ""
                              << "2 24 0 7";
    QTest::newRow("organic acids") << "Option4(1)"
                                   << "3 24 0 7";
    QTest::newRow("red-ox") << "TabStrip2:2"
                            << "4 24 0 7";
    QTest::newRow("from red-ox back to the choice") << "Option4(1) TabStrip2:2 TabStrip2:1"
                                                    << "3 24 0 7";
    QTest::newRow("complexes") << "TabStrip10:2"
                               << "2 25 0 7";
    QTest::newRow("complexes and back") << "TabStrip10:2 TabStrip10:1"
                                        << "2 24 0 7";
    QTest::newRow("other indicators") << "Option4(3)"
                                      << "2 24 1 7";
    QTest::newRow("fluorescence") << "Option4(3) TabStrip7:2"
                                  << "2 24 6 7";
    QTest::newRow("fluorescence and back") << "Option4(3) TabStrip7:2 TabStrip7:1"
                                           << "2 24 1 7";
    QTest::newRow("other fluorochromes") << "Option4(5)"
                                         << "2 24 0 8";
    QTest::newRow("all choices taken back")
        << "Option4(1) Option4(3) Option4(5) Option4(4) Option4(2) Option4(0)"
        << "2 24 0 7";
}

void ListsPanesTest::solutionsShowOneListABlock()
{
    QFETCH(const QString, steps);
    QFETCH(const QString, expected);
    DataStore store;
    SolutionsPane pane(store, nullptr);
    pane.show();
    Worked<SolutionsPane> worked{pane};

    worked.work(steps);

    QStringList names;
    for (const QString &index : expected.split(QLatin1Char(' ')))
        names << QStringLiteral("ListView3(%1)").arg(index);
    QCOMPARE(worked.seen(indexed("ListView3", {2, 3, 4, 24, 25, 0, 1, 6, 7, 8})), names);

    const bool redox = names.contains("ListView3(4)");
    QCOMPARE(worked.seen({"grdFrame8", "Option4(0)", "Option4(1)"}).isEmpty(), redox);
    QCOMPARE(worked.seen({"grdFrame4"}).isEmpty(), !redox);
    QCOMPARE(worked.seen({"grdFrame28"}).isEmpty(), !names.contains("ListView3(25)"));
    QCOMPARE(worked.seen({"grdFrame29"}).isEmpty(), names.contains("ListView3(25)"));
}

void ListsPanesTest::titlesOfIndicatorsMoveAndChangeTheirName()
{
    DataStore store;
    SolutionsPane pane(store, nullptr);
    pane.show();
    Worked<SolutionsPane> worked{pane};
    const auto *titles = worked.get<QWidget>("grdFrame1");
    const auto *colours = worked.get<QLabel>("Label2(40)");

    QCOMPARE(titles->y(), 56); // 840 twips
    QCOMPARE(colours->text(), QStringLiteral("Colors"));
    worked.work("TabStrip7:2");
    QCOMPARE(titles->y(), 42); // 630 twips
    QCOMPARE(colours->text(), QStringLiteral("Fluorescence"));
    QCOMPARE(titles->geometry().bottom() + 1, worked.get<QWidget>("ListView3(6)")->y());
    QVERIFY(worked.seen({"Option4(2)", "Option4(3)"}).isEmpty());
    worked.work("TabStrip7:1");
    QCOMPARE(titles->geometry().bottom() + 1, worked.get<QWidget>("ListView3(0)")->y());
}

void ListsPanesTest::biochemistryShowsOneListASection_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("at first") << "" << QStringList{"ListView3(9)", "ListView3(17)", "grdFrame10",
                                                   "grdFrame21",   "Option5(0)",    "Option5(1)"};
    QTest::newRow("synthetic") << "Option5(1)" << QStringList{"ListView3(10)", "ListView3(17)", "grdFrame11",
                                                              "grdFrame21",    "Option5(0)",    "Option5(1)"};
    QTest::newRow("synthetic, kept") << "Option5(1) TabStrip9:3 TabStrip9:4 TabStrip9:2 TabStrip9:1"
                                     << QStringList{"ListView3(10)", "ListView3(17)", "grdFrame11",
                                                    "grdFrame21",    "Option5(0)",    "Option5(1)"};
    QTest::newRow("pyrimidines") << "TabStrip9:2"
                                 << QStringList{"ListView3(11)", "ListView3(17)", "grdFrame12", "grdFrame15",
                                                "grdFrame21",    "Option5(2)",    "Option5(3)"};
    QTest::newRow("purines, kept") << "TabStrip9:2 Option5(3) TabStrip9:4 TabStrip9:2"
                                   << QStringList{"ListView3(13)", "ListView3(17)", "grdFrame12",
                                                  "grdFrame15",    "grdFrame21",    "Option5(2)",
                                                  "Option5(3)"};
    QTest::newRow("carbohydrates") << "TabStrip9:2 TabStrip9:3"
                                   << QStringList{"ListView3(14)", "ListView3(17)", "grdFrame13",
                                                  "grdFrame21"};
    QTest::newRow("fatty acids, standards")
        << "TabStrip9:4 TabStrip8:2"
        << QStringList{"ListView3(12)", "ListView3(18)", "grdFrame3", "grdFrame22"};
    QTest::newRow("stock solutions") << "TabStrip9:4 TabStrip8:4 TabStrip8:3"
                                     << QStringList{"ListView3(12)", "ListView3(21)", "grdFrame3",
                                                    "grdFrame24"};
    QTest::newRow("resolving gel") << "TabStrip9:4 TabStrip8:4"
                                   << QStringList{"ListView3(12)", "ListView3(22)", "grdFrame3", "grdFrame25",
                                                  "grdFrame26",    "Option4(8)",    "Option4(9)"};
    QTest::newRow("stacking gel, kept")
        << "TabStrip9:4 TabStrip8:4 Option4(9) TabStrip8:5 TabStrip8:4"
        << QStringList{"ListView3(12)", "ListView3(23)", "grdFrame3", "grdFrame26",
                       "grdFrame27",    "Option4(8)",    "Option4(9)"};
    QTest::newRow("Coomassie blue") << "TabStrip9:4 TabStrip8:4 TabStrip8:5"
                                    << QStringList{"ListView3(12)", "ListView3(19)", "grdFrame3",
                                                   "grdFrame23",    "Option4(6)",    "Option4(7)"};
    QTest::newRow("silver, kept") << "TabStrip9:4 TabStrip8:5 Option4(6) TabStrip8:1 TabStrip8:5"
                                  << QStringList{"ListView3(12)", "ListView3(20)", "grdFrame3",
                                                 "grdFrame23",    "Option4(6)",    "Option4(7)"};
}

void ListsPanesTest::biochemistryShowsOneListASection()
{
    QFETCH(const QString, steps);
    QFETCH(const QStringList, expected);
    Module1 module;
    DataStore store;
    ScriptedDesktop desktop;
    BiochemistryPane pane(module, store, desktop, nullptr);
    pane.show();
    Worked<BiochemistryPane> worked{pane};

    worked.work(steps);

    const QStringList lists = indexed("ListView3", {9, 10, 11, 12, 13, 14, 17, 18, 19, 20, 21, 22, 23});
    const QStringList frames{"grdFrame3",  "grdFrame10", "grdFrame11", "grdFrame12", "grdFrame13",
                             "grdFrame15", "grdFrame21", "grdFrame22", "grdFrame23", "grdFrame24",
                             "grdFrame25", "grdFrame26", "grdFrame27"};
    const QStringList options = indexed("Option4", {6, 7, 8, 9}) + indexed("Option5", {0, 1, 2, 3});
    QCOMPARE(worked.seen(lists + frames + options), expected);
}

void ListsPanesTest::coveredListsStayOnAndOutOfTheTabOrder()
{
    DataStore store;
    SolutionsPane pane(store, nullptr);
    pane.show();
    Worked<SolutionsPane> worked{pane};
    auto *acids = worked.get<RowListView>("ListView3(2)");

    worked.work("TabStrip2:2");
    QVERIFY(Controls::isShown(*acids));
    QCOMPARE(acids->focusPolicy(), Qt::NoFocus);
    worked.work("TabStrip2:1");
    QCOMPARE(acids->focusPolicy(), Qt::StrongFocus);
}

void ListsPanesTest::recipesReadAsRecipes()
{
    Module1 module;
    DataStore store;
    RowList &stock = store.lists.ListView3[21];
    for (const QStringList &row : QList<QStringList>{
             {"SDS 10 % (100 mL)", "", ""}, {"Sodium dodecyl sulfate", "10 %", "10 g"}, {"", "", ""}}) {
        stock.append(row[0]);
        stock.appendSubItem(row[1]);
        stock.appendSubItem(row[2]);
    }
    stock.filled();
    ScriptedDesktop desktop;
    BiochemistryPane pane(module, store, desktop, nullptr);
    pane.build();
    const auto *view = Worked<BiochemistryPane>{pane}.get<RowListView>("ListView3(21)");

    QVERIFY(view->isFirstColumnSpanned(0, {}));
    QVERIFY(!view->isFirstColumnSpanned(1, {}));
    QVERIFY(!view->isFirstColumnSpanned(2, {}));
    stock.filled(); // a reset forgets the spans of a view
    QVERIFY(view->isFirstColumnSpanned(0, {}));
    QCOMPARE(stock.rowCount(), 3);
}

void ListsPanesTest::onlyNaturalAminoAcidsHaveStructures()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath("Data/chemicals"));
    Module1 module;
    module.AppFolder = folder.path();
    module.OptionSlots(Slot::Structures) = 1;
    DataStore store;
    for (const int list : {9, 10})
        store.lists.ListView3[list].append(u"Alanine");
    ScriptedDesktop desktop;
    QWidget form1;
    BiochemistryPane pane(module, store, desktop, &form1);
    pane.build();
    Worked<BiochemistryPane> worked{pane};

    Q_EMIT worked.get<RowListView>("ListView3(10)")->rowDoubleClicked(0);
    QVERIFY(form1.isEnabled());
    Q_EMIT worked.get<RowListView>("ListView3(9)")->rowDoubleClicked(0);
    QVERIFY(!form1.isEnabled());
    QCOMPARE(module.SelectedChart, 1);
}

void ListsPanesTest::theCodeIsSearchedInOneDirectionAtATime()
{
    Module1 module;
    DataStore store;
    ScriptedDesktop desktop;
    store.tables.GeneticCodeData(0, 0) = "Methionine";
    store.tables.GeneticCodeData(0, 1) = "AUG";
    store.lists.Comb2.append(u"Methionine");
    BiochemistryPane pane(module, store, desktop, nullptr);
    pane.show();
    Worked<BiochemistryPane> worked{pane};
    const auto pick = [&](const char *letters) {
        for (int i = 0; i < 3; ++i)
            worked.get<QComboBox>(Controls::indexedName("Combo2", i))
                ->setCurrentText(QString(QLatin1Char(letters[i])));
    };
    const auto text = [&](int index) {
        return worked.get<QLineEdit>(Controls::indexedName("tbm", index))->text();
    };
    auto *Comb2 = worked.get<QComboBox>("Comb2");
    QVERIFY(!Comb2->isEnabled());

    pick("AUG");
    QCOMPARE(text(0), QStringLiteral("Methionine"));
    QVERIFY(worked.get<QLineEdit>("tbm(0)")->isEnabled());
    pick("GGG"); // stands nowhere: the last answer stays, in grey
    QCOMPARE(text(0), QStringLiteral("Methionine"));
    QVERIFY(!worked.get<QLineEdit>("tbm(0)")->isEnabled());

    worked.work("Option3(1)");
    QCOMPARE(text(0), QString());
    QCOMPARE(worked.get<QComboBox>("Combo2(1)")->currentIndex(), -1);
    QVERIFY(!worked.get<QComboBox>("Combo2(1)")->isEnabled());
    QVERIFY(Controls::isShown(*worked.get<QLineEdit>("tbm(6)")));
    Comb2->setCurrentIndex(0);
    QCOMPARE(text(1), QStringLiteral("AUG"));
    QCOMPARE(text(2), QString());

    worked.work("Option3(0)");
    QCOMPARE(Comb2->currentIndex(), -1);
    QCOMPARE(text(1), QString());
    QVERIFY(!Controls::isShown(*worked.get<QLineEdit>("tbm(1)")));
}

QTEST_MAIN(ListsPanesTest)
#include "lists_panes_test.moc"
