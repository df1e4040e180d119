#include "browsers/biochemistrypane.h"
#include "browsers/geneticcode.h"
#include "browsers/geneticcodepainter.h"
#include "browsers/referencespane.h"
#include "browsers/solutionspane.h"
#include "browsers/solventspane.h"
#include "browsers/textpanes.h"
#include "core/buildsettings.h"
#include "core/module1.h"
#include "search/findbar.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/linklabel.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QToolButton>
#include <QUrl>

/// The panes in a main window with a Find bar.
class BrowserPanesTest final : public QObject
{
    Q_OBJECT

    struct Window : QWidget
    {
        Module1 module;
        DataStore store;
        ScriptedDesktop desktop;
        QLabel panel3;
        FindBar findBar{store, desktop, panel3, this};
        SolventsPane solvents{module, store, desktop, findBar, this};
        SolutionsPane solutions{store, this};
        BiochemistryPane biochemistry{module, store, desktop, this};
        ReferencesPane references{module, desktop, this};
    };

    std::unique_ptr<Window> m_window;

    enum Pane { Solvents, Solutions, Biochemistry };

    static void work(const QWidget &pane, const QString &steps)
    {
        for (const QString &step : steps.split(' ', Qt::SkipEmptyParts)) {
            if (const QStringList parts = step.split(':'); parts.size() == 2)
                get<QTabBar>(pane, parts[0]).setCurrentIndex(parts[1].toInt() - 1);
            else
                get<QRadioButton>(pane, step).click();
        }
    }

    /// The lists and frames that a user sees: "(2)" is `ListView3(2)`, "f2" `grdFrame2`.
    static QString onTop(const QWidget &pane)
    {
        static const QRegularExpression Names("^(ListView|grdFrame|frm|frame)");
        QStringList names;
        for (const QWidget *each : pane.findChildren<QWidget *>(Names)) {
            if (Controls::isOnTop(*each, pane))
                names << each->objectName();
        }
        names.sort();
        return names.join(' ').remove("ListView3").replace("grdFrame", "f");
    }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<Window>();
        m_window->module.AppFolder = ALEMBRA_FOLDER;
        for (RowList *list : {&m_window->store.lists.ListView1, &m_window->store.lists.ListView3[26]}) {
            list->append(u"Acetone");
            list->append(u"Water");
            list->filled();
        }
    }

    void tabsAndOptionsShowWhatBelongsToThem()
    {
        // "TabStrip2:1" selects a tab, "Option4(3)" clicks.
        const std::tuple<Pane, const char *, const char *> Rows[]{
            {Solvents, "TabStrip1:6 TabStrip1:4 TabStrip1:1", "ListView1 frmc"},
            {Solvents, "TabStrip1:3 Option2 TabStrip1:5 TabStrip1:3", "ListView5 frmrmn1"},
            {Solvents, "Option2", "ListView1 frmc"}, // a session clicks options of other tabs too
            {Solutions, "TabStrip2:2", "(0) (24) (4) (7) f1 f29 f4 f9"},
            {Solutions, "Option4(1) TabStrip2:2 TabStrip2:1", "(0) (24) (3) (7) f1 f29 f8 f9"},
            {Solutions, "TabStrip10:2", "(0) (2) (25) (7) f1 f28 f8 f9"},
            {Solutions, "TabStrip10:2 TabStrip10:1", "(0) (2) (24) (7) f1 f29 f8 f9"},
            {Solutions, "Option4(3) TabStrip7:2", "(2) (24) (6) (7) f1 f29 f8 f9"},
            {Solutions, "Option4(3) TabStrip7:2 TabStrip7:1", "(1) (2) (24) (7) f1 f29 f8 f9"},
            {Solutions, "Option4(1) Option4(3) Option4(5) Option4(4) Option4(2) Option4(0)",
             "(0) (2) (24) (7) f1 f29 f8 f9"},
            {Solutions, "Option4(5)", "(0) (2) (24) (8) f1 f29 f8 f9"},
            {Biochemistry, "Option5(1) TabStrip9:3 TabStrip9:4 TabStrip9:2 TabStrip9:1", "(10) (17) f11 f21"},
            {Biochemistry, "TabStrip9:2 Option5(3) TabStrip9:4 TabStrip9:2", "(13) (17) f12 f15 f21"},
            {Biochemistry, "TabStrip9:2 TabStrip9:3", "(14) (17) f13 f21"},
            {Biochemistry, "TabStrip9:4 Option4(9)", "(12) (17) f21 f3"},
            {Biochemistry, "TabStrip9:4 TabStrip8:2", "(12) (18) f22 f3"},
            {Biochemistry, "TabStrip9:4 TabStrip8:4 TabStrip8:3", "(12) (21) f24 f3"},
            {Biochemistry, "TabStrip9:4 TabStrip8:4 Option4(9) TabStrip8:5 TabStrip8:4",
             "(12) (23) f26 f27 f3"},
            {Biochemistry, "TabStrip9:4 TabStrip8:5 Option4(6) TabStrip8:1 TabStrip8:5", "(12) (20) f23 f3"},
        };
        for (const auto &[which, steps, expected] : Rows) {
            init();
            ModulePanel *const panes[]{&m_window->solvents, &m_window->solutions, &m_window->biochemistry};
            ModulePanel &pane = *panes[which];
            pane.show();
            work(pane, steps);
            QVERIFY2(onTop(pane) == expected, qPrintable(steps + (": " + onTop(pane))));
        }
    }

    void theLastOfTheFirstFiveCodonsCounts()
    {
        GeneticCode::Table table;
        table(0, 0) = "Arginine";
        table(0, 6) = "CGA";
        table(3, 0) = "first";
        table(3, 1) = "UGA";
        table(22, 0) = "last";
        table(22, 5) = "UGA";
        QCOMPARE(GeneticCode::aminoAcid(table, "UGA"), std::optional<QString>("last"));
        for (const char *other : {"CGA", "uga", "UGAA"}) // the sixth, and what is not the same text
            QCOMPARE(GeneticCode::aminoAcid(table, other), std::nullopt);
        QCOMPARE(GeneticCode::codons(table, 0), (QStringList{"", "", "", "", "", "CGA"}));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, GeneticCode::codons(table, 23));
    }

    void theDeliveredTableAnswersLikeTheStandardCode()
    {
        DataStore store;
        for (const int step : {14, 18}) // amino acids, genetic code
            loadDelivered(step, store);
        QHash<QString, QString> shortNames{{"Stop", "Stop"}};
        for (int row = 0; row < 20; ++row)
            shortNames[store.lists.ListView3[9].text(row)] = store.lists.ListView3[9].subItem(row, 1).left(3);
        const QString bases("UCAG");
        for (int number = 0; number < 64; ++number) {
            const QString codon = QString(bases[number / 16]) + bases[number / 4 % 4] + bases[number % 4];
            const auto name = GeneticCode::aminoAcid(store.tables.GeneticCodeData, codon);
            QCOMPARE(name.has_value(), codon != "CGA"); // its place is the sixth alone
            QCOMPARE(shortNames.value(name.value_or("Arginine")), GeneticCodePainter::nameOf(codon));
        }
    }

    void titlesOfIndicatorsMoveAndChangeTheirName()
    {
        const SolutionsPane &pane = m_window->solutions;
        m_window->solutions.show();
        const auto &titles = get(pane, "grdFrame1");
        for (const auto &[tab, list, colours] : {std::tuple("TabStrip7:2", "ListView3(6)", "Fluorescence"),
                                                 {"TabStrip7:1", "ListView3(0)", "Colors"}}) {
            work(pane, tab);
            QCOMPARE(get<QLabel>(pane, "Label2(40)").text(), colours);
            QCOMPARE(titles.geometry().bottom() + 1, get(pane, list).y());
        }
    }

    void recipesReadAsRecipes()
    {
        RowList &stock = m_window->store.lists.ListView3[21];
        for (const QStringList &row : QList<QStringList>{
                 {"SDS 10 % (100 mL)", "", ""}, {"Sodium dodecyl sulfate", "10 %", "10 g"}, {"", "", ""}}) {
            stock.append(row[0]);
            stock.appendSubItem(row[1]);
            stock.appendSubItem(row[2]);
        }
        stock.filled();
        m_window->biochemistry.build();
        const auto &view = get<RowListView>(*m_window, "ListView3(21)");
        for (int fill = 0; fill < 2; ++fill) { // a reset forgets the spans of a view
            for (int row = 0; row < 3; ++row)
                QCOMPARE(view.isFirstColumnSpanned(row, {}), row == 0);
            stock.filled();
        }
    }

    void aDoubleClickOpensTheStructureOnlyIfWanted()
    {
        for (const int list : {9, 10})
            m_window->store.lists.ListView3[list].append(u"Alanine");
        m_window->solvents.build();
        m_window->biochemistry.build();
        const auto isOpenAfter = [this](const char *list, int row) {
            Q_EMIT get<RowListView>(*m_window, list).rowDoubleClicked(row);
            return !m_window->isEnabled();
        };
        QVERIFY(!isOpenAfter("ListView1", 1));
        m_window->module.OptionSlots(Slot::Structures) = 1;
        QVERIFY(!isOpenAfter("ListView3(10)", 0)); // of the amino acids the natural ones alone
        QVERIFY(isOpenAfter("ListView1", 1));
        QCOMPARE(m_window->module.SelectedChart, 2);
        QCOMPARE(get<QLabel>(get(*m_window, "Form2"), "Label1").text(), "Water");
        get(*m_window, "Form2").close();
        QVERIFY(isOpenAfter("ListView3(9)", 0));
        QCOMPARE(m_window->module.SelectedChart, 1);
    }

    void theCodeIsSearchedInOneDirectionAtATime()
    {
        m_window->store.tables.GeneticCodeData(0, 0) = "Methionine";
        m_window->store.tables.GeneticCodeData(0, 1) = "AUG";
        m_window->store.lists.Comb2.append(u"Methionine");
        BiochemistryPane &pane = m_window->biochemistry;
        pane.show();
        const auto pick = [&](const char *letters) {
            for (int i = 0; i < 3; ++i)
                get<QComboBox>(pane, Controls::indexedName("Combo2", i)).setCurrentText(QChar(letters[i]));
        };
        const auto text = [&](int i) { return get<QLineEdit>(pane, Controls::indexedName("tbm", i)).text(); };
        auto &Comb2 = get<QComboBox>(pane, "Comb2");
        QVERIFY(!Comb2.isEnabled());

        pick("AUG");
        QCOMPARE(text(0), "Methionine");
        QVERIFY(get(pane, "tbm(0)").isEnabled());
        pick("GGG"); // stands nowhere: the last answer stays, in grey
        QCOMPARE(text(0), "Methionine");
        QVERIFY(!get(pane, "tbm(0)").isEnabled());

        work(pane, "Option3(1)");
        QCOMPARE(text(0), QString());
        QCOMPARE(get<QComboBox>(pane, "Combo2(1)").currentIndex(), -1);
        QVERIFY(!get(pane, "Combo2(1)").isEnabled());
        QVERIFY(Controls::isShown(get(pane, "tbm(6)")));
        Comb2.setCurrentIndex(0);
        QCOMPARE(text(1) + '|' + text(2), "AUG|");

        work(pane, "Option3(0)");
        QCOMPARE(Comb2.currentIndex(), -1);
        QCOMPARE(text(1), QString());
        QVERIFY(!Controls::isShown(get(pane, "tbm(1)")));
    }

    void theNucleusButtonsAreMovedAndNeverHidden()
    {
        const SolventsPane &pane = m_window->solvents;
        m_window->solvents.show();
        const auto &Option1 = get(pane, "Option1");
        QVERIFY(Controls::isShown(Option1));
        work(pane, "TabStrip1:3");
        QCOMPARE(Option1.y(), 32); // 480 twips
        for (const bool carbons : {true, false}) {
            work(pane, carbons ? "Option2" : "Option1");
            QCOMPARE(Controls::isShown(get(pane, "Label2(20)")), !carbons);
            QCOMPARE(Controls::isShown(get(pane, "Label2(30)")), carbons);
        }
    }

    void tabsThatCannotBeSearchedCloseTheFindBar()
    {
        m_window->solvents.show();
        FindBar &findBar = m_window->findBar;
        RowList &hits = m_window->store.lists.ListView2[6];
        findBar.open(false);
        auto &text = get<QLineEdit>(findBar, "TextBoxM6");
        QTest::keyClicks(&text, "ace");
        QCOMPARE(hits.rowCount(), 0); // no count of solvents, no hits
        hits.append(u"Acetone");

        SolventsPane &pane = m_window->solvents;
        QVERIFY(pane.isListView1Shown() && !pane.isListView3_26Shown());
        pane.selectTab(4);
        QVERIFY(!pane.isListView1Shown() && pane.isListView3_26Shown());
        QCOMPARE(pane.currentTabCaption(), "Mass spectrometry");
        QVERIFY(findBar.isSearching());
        QVERIFY(text.text().isEmpty());
        QCOMPARE(hits.rowCount(), 0);
        pane.selectTab(1);
        QVERIFY(findBar.isSearching());
        pane.selectTab(5);
        QVERIFY(!findBar.isSearching());
    }

    void aNameTypedOnATabIsLookedForInTheList()
    {
        m_window->solvents.show();
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        auto &tabs = get<QTabBar>(m_window->solvents, "TabStrip1");
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(3).center());
        for (const char letter : {'w', 'a', 't'})
            QTest::keyClick(m_window->focusWidget(), letter);
        QCOMPARE(m_window->solvents.ListView3[26].selectedRow(), 1);
        QVERIFY(m_window->solvents.ListView3[26].hasFocus());
    }

    void linksOpenTheirPages()
    {
        ReferencesPane &pane = m_window->references;
        pane.show();
        QStringList &targets = m_window->desktop.targets;
        const auto label = [&](int index) -> QLabel & {
            return get<QLabel>(pane, Controls::indexedName("Label1", index));
        };
        const auto opened = [&](QLabel &clicked) {
            QTest::mouseClick(&clicked, Qt::LeftButton);
            return targets.isEmpty() ? QString() : targets.takeFirst();
        };
        int web = 0;
        for (LinkLabel *link : pane.findChildren<LinkLabel *>()) {
            QVERIFY(link->focusPolicy() & Qt::TabFocus);
            const QString target = opened(*link);
            const QUrl address(target, QUrl::StrictMode);
            const bool own = address.host() == QUrl(QLatin1StringView(BuildSettings::WebSite)).host();
            QVERIFY2(address.isValid() && !own, qPrintable(link->text())); // nothing of this is there
            web += address.host().isEmpty() ? 0 : 1;
        }
        QCOMPARE(web, 9);
        QVERIFY(opened(label(12)).endsWith("/areas/organic/index-chem.HTM"));
        QVERIFY(opened(label(44)).endsWith("/sdbs/cgi-bin/cre_index.cgi?lang=eng"));
        const QString infrared = opened(label(31)); // a page of the program
        QVERIFY(infrared.endsWith("/vcorr.htm") && readFile(infrared).contains("Data/ir/6.gif"));
        for (const int noLink : {0, 3, 21, 32, 45})
            QCOMPARE(opened(label(noLink)), QString());

        QTest::keyClick(&label(9), Qt::Key_Return);
        QTest::keyClick(&label(9), Qt::Key_Space);
        QTest::keyClick(&label(9), Qt::Key_A);
        QCOMPARE(targets.size(), 2);

        DonatePane donate(m_window->desktop, nullptr);
        donate.show();
        get<QToolButton>(donate, "Image1").click();
        QCOMPARE(targets.last(), QLatin1StringView(BuildSettings::WebSite) + QString("/uk/don.php"));
    }

    void textsAreSelectedAndCopied()
    {
        m_window->references.show();
        for (const int index : {6, 33, 44}) { // a heading, a source, a link
            auto &text = get<QLabel>(m_window->references, Controls::indexedName("Label1", index));
            QTest::mousePress(&text, Qt::LeftButton, {}, {1, text.height() / 2});
            QTest::mouseMove(&text, {text.width() - 1, text.height() / 2});
            QTest::mouseRelease(&text, Qt::LeftButton, {}, {text.width() - 1, text.height() / 2});
            QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
            QVERIFY(text.text().contains(QGuiApplication::clipboard()->text().trimmed()));
            QVERIFY2(QGuiApplication::clipboard()->text().size() > 5, qPrintable(text.text()));
            QGuiApplication::clipboard()->clear();
        }
        QVERIFY(m_window->desktop.targets.isEmpty());
    }
};

const TestClass<BrowserPanesTest> browserPanesTest;
#include "browser_panes_test.moc"
