#include "search/findbar.h"
#include "store/datastore.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/rowlistview.h"

#include <QSignalSpy>
#include <QTest>

/// A bar over two short lists, of which the first is on.
class Bar final : public QWidget
{
public:
    Bar()
    {
        fill(store.lists.ListView1, {"Acetic acid", "Acetone", "Water"});
        fill(store.lists.ListView3[26], {"Benzene", "Acetone", "Toluene", "Acetal"});
        store.SolventCount = 3;
        ListView3_26.hide();
        findBar.setSearchedLists(&ListView1, &ListView3_26);
        findBar.setGeometry(0, 300, 600, 40);
        show();
    }

    void type(const QString &text)
    {
        findBar.TextBoxM6->clear();
        QTest::keyClicks(findBar.TextBoxM6, text);
    }
    QPushButton &previous() { return findBar.Command11[0]; }
    QPushButton &next() { return findBar.Command11[1]; }
    int hitCount() const { return store.lists.ListView2[6].rowCount(); }

    DataStore store;
    ScriptedDesktop desktop;
    QLabel panel3;
    RowListView ListView1{"ListView1", store.lists.ListView1, {{"Name", 100}}, this};
    RowListView ListView3_26{"ListView3(26)", store.lists.ListView3[26], {{"Name", 100}}, this};
    FindBar findBar{store, desktop, panel3, this};

private:
    static void fill(RowList &list, const QStringList &rows)
    {
        for (const QString &row : rows)
            list.append(row);
        list.filled();
    }
};

class FindBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bar = std::make_unique<Bar>(); }
    void cleanup() { m_bar.reset(); }

    void opensAsTextBoxOrAsPickList();
    void previousWaitsForAWalk();
    void walksTheListOnShow();
    void bothEndsOnlyFocusTheList();
    void withoutHitsItBeeps();
    void emptyTextDisablesNext();
    void matchCaseSearchesAgain();
    void matchCaseOnSpectraLeavesNextAlone();
    void theSolventCountLimitsBothLists();
    void aMissingRowEndsTheProgram();
    void keysWalkAndClose();
    void closingForgetsTextAndHits();

private:
    std::unique_ptr<Bar> m_bar;
};

void FindBarTest::opensAsTextBoxOrAsPickList()
{
    FindBar &bar = m_bar->findBar;
    bar.open(true);
    QCOMPARE(m_bar->panel3.text(), QStringLiteral("           Find :"));
    QVERIFY(Controls::isShown(*bar.Combo2_3) && Controls::isShown(*bar.Picture2));
    QVERIFY(!Controls::isShown(*bar.TextBoxM6));

    bar.ResetSearchPanel();
    QVERIFY(m_bar->panel3.text().isEmpty());
    bar.open(false);
    QVERIFY(!Controls::isShown(*bar.Combo2_3));
    for (const QWidget *control :
         QList<QWidget *>{bar.TextBoxM6, &m_bar->previous(), &m_bar->next(), bar.case1})
        QVERIFY(Controls::isShown(*control));
}

void FindBarTest::previousWaitsForAWalk()
{
    m_bar->findBar.open(false);
    m_bar->type("ace");
    QVERIFY(!m_bar->previous().isEnabled());
    QVERIFY(m_bar->next().isEnabled());
    m_bar->next().click();
    QVERIFY(m_bar->previous().isEnabled());
}

void FindBarTest::walksTheListOnShow()
{
    m_bar->findBar.open(false);
    m_bar->type("ace");
    m_bar->next().click();
    m_bar->next().click();
    QCOMPARE(m_bar->ListView1.selectedRow(), 1);
    QCOMPARE(m_bar->findBar.Text1->text(), QStringLiteral("2"));
    QCOMPARE(m_bar->findBar.Text2->text(), QStringLiteral("2"));

    m_bar->ListView1.hide();
    m_bar->ListView3_26.show();
    m_bar->type("ace");
    QCOMPARE(m_bar->findBar.Text1->text(), QStringLiteral("0"));
    m_bar->next().click();
    QCOMPARE(m_bar->ListView3_26.selectedRow(), 1);
}

void FindBarTest::bothEndsOnlyFocusTheList()
{
    m_bar->findBar.open(false);
    m_bar->type("water");
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
    for (int press = 0; press < 2; ++press) {
        m_bar->findBar.TextBoxM6->setFocus();
        m_bar->next().click();
        QVERIFY(m_bar->ListView1.hasFocus());
    }
    m_bar->previous().click();
    QCOMPARE(m_bar->ListView1.selectedRow(), 2);
    QCOMPARE(m_bar->desktop.beeps, 0);
}

void FindBarTest::withoutHitsItBeeps()
{
    m_bar->findBar.open(false);
    m_bar->next().click(); // nothing has been typed
    m_bar->type("xyz");
    m_bar->next().click();
    QCOMPARE(m_bar->desktop.beeps, 2);
    QVERIFY(!m_bar->previous().isEnabled());
    QCOMPARE(m_bar->ListView1.selectedRow(), -1);

    m_bar->type("ace");
    m_bar->ListView1.hide(); // as on a pane where nothing can be searched
    m_bar->next().click();
    QCOMPARE(m_bar->desktop.beeps, 3);
}

void FindBarTest::emptyTextDisablesNext()
{
    m_bar->findBar.open(false);
    m_bar->type("ace");
    QCOMPARE(m_bar->hitCount(), 2);
    m_bar->findBar.TextBoxM6->clear();
    QCOMPARE(m_bar->hitCount(), 0);
    QVERIFY(!m_bar->next().isEnabled());
}

void FindBarTest::matchCaseSearchesAgain()
{
    m_bar->findBar.open(false);
    m_bar->type("Ace");
    m_bar->next().click();
    m_bar->findBar.case1->click();
    QCOMPARE(m_bar->hitCount(), 2);
    QCOMPARE(m_bar->findBar.Text1->text(), QStringLiteral("0"));
    QVERIFY(m_bar->previous().isEnabled()); // only typing disables it
    m_bar->type("ACE");
    QCOMPARE(m_bar->hitCount(), 0);
    m_bar->findBar.case1->click();
    QCOMPARE(m_bar->hitCount(), 2);
}

void FindBarTest::matchCaseOnSpectraLeavesNextAlone()
{
    m_bar->findBar.open(false);
    m_bar->findBar.case1->click();
    QVERIFY(!m_bar->next().isEnabled()); // the solvents, without a text

    m_bar->next().setEnabled(true);
    m_bar->ListView1.hide();
    m_bar->ListView3_26.show();
    m_bar->findBar.case1->click();
    QVERIFY(m_bar->next().isEnabled());
}

void FindBarTest::theSolventCountLimitsBothLists()
{
    m_bar->ListView1.hide();
    m_bar->ListView3_26.show();
    m_bar->findBar.open(false);
    m_bar->type("acet");
    QCOMPARE(m_bar->hitCount(), 1); // "Acetal" is the fourth row of three
}

void FindBarTest::aMissingRowEndsTheProgram()
{
    m_bar->store.SolventCount = 4;
    m_bar->findBar.open(false);
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, m_bar->findBar.TextBoxM6->setText("a"));
    QVERIFY(m_bar->desktop.boxes.constFirst().first.startsWith("Run-time error '9':"));
}

void FindBarTest::keysWalkAndClose()
{
    QSignalSpy closed(&m_bar->findBar, &FindBar::closedByUser);
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
    m_bar->findBar.open(false);
    m_bar->type("ace");
    QLineEdit *text = m_bar->findBar.TextBoxM6;
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClick(text, Qt::Key_Enter);
    QCOMPARE(m_bar->ListView1.selectedRow(), 1);
    QVERIFY(text->hasFocus());
    QTest::keyClick(text, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(m_bar->ListView1.selectedRow(), 0);
    QTest::keyClick(text, Qt::Key_Escape);
    QVERIFY(!Controls::isShown(*text));
    QCOMPARE(closed.size(), 1);
}

void FindBarTest::closingForgetsTextAndHits()
{
    m_bar->findBar.open(false);
    m_bar->type("ace");
    m_bar->findBar.Picture2->click();
    QCOMPARE(m_bar->hitCount(), 0);
    QVERIFY(m_bar->findBar.TextBoxM6->text().isEmpty());
    QVERIFY(!Controls::isShown(m_bar->next()));
    m_bar->findBar.ResetSearchPanel(); // closed already: nothing to see
    QVERIFY(!Controls::isShown(*m_bar->findBar.Picture2));
}

QTEST_MAIN(FindBarTest)
#include "findbar_test.moc"
