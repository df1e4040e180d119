#include "search/findbar.h"
#include "store/datastore.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/rowlistview.h"
#include "widgets/statusline.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

/// A bar over two short lists, of which the first is on.
class Bar final : public QWidget
{
public:
    Bar()
    {
        fill(store.lists.ListView1, {"Acetic acid", "Acetone", "Water"});
        fill(store.lists.ListView3[26], {"Benzene", "Acetone", "Toluene", "Acetal"});
        fill(store.lists.Combo2[3], {"Neodymium", "Neon", "Gallium", "Gold", "Titanium", "Tin"});
        store.SolventCount = 3;
        ListView3_26.hide();
        findBar.setSearchedLists(&ListView1, &ListView3_26);
        findBar.setGeometry(0, 300, 600, 40);
        show();
    }

    template<class W>
    W &get(const char *name) const
    {
        return *findBar.findChild<W *>(QLatin1StringView(name));
    }
    void type(const QString &text)
    {
        TextBoxM6().clear();
        QTest::keyClicks(&TextBoxM6(), text);
    }
    QLineEdit &TextBoxM6() const { return get<QLineEdit>("TextBoxM6"); }
    QCheckBox &case1() const { return get<QCheckBox>("case1"); }
    QComboBox &Combo2_3() const { return get<QComboBox>("Combo2(3)"); }
    QToolButton &Picture2() const { return get<QToolButton>("Picture2"); }
    QString Text1() const { return get<QLineEdit>("Text1").text(); }
    QString Text2() const { return get<QLineEdit>("Text2").text(); }
    QPushButton &previous() const { return get<QPushButton>("Command11(0)"); }
    QPushButton &next() const { return get<QPushButton>("Command11(1)"); }
    int hitCount() const { return store.lists.ListView2[6].rowCount(); }

    DataStore store;
    ScriptedDesktop desktop;
    QLabel panel3;
    RowListView ListView1{"ListView1", store.lists.ListView1, {{"Name", 100}}, this};
    RowListView ListView3_26{"ListView3(26)", store.lists.ListView3[26], {{"Name", 100}}, this};
    StatusLine note{"StatusBar1.Panels(2)", *this};
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
    void anElementIsFoundByItsWholeName_data();
    void anElementIsFoundByItsWholeName();
    void closingForgetsTextAndHits();

private:
    std::unique_ptr<Bar> m_bar;
};

void FindBarTest::opensAsTextBoxOrAsPickList()
{
    FindBar &bar = m_bar->findBar;
    bar.open(true);
    QCOMPARE(m_bar->panel3.text(), QStringLiteral("           Find :"));
    QVERIFY(Controls::isShown(m_bar->Combo2_3()) && Controls::isShown(m_bar->Picture2()));
    QVERIFY(!bar.isSearching());

    bar.ResetSearchPanel();
    QVERIFY(m_bar->panel3.text().isEmpty());
    bar.open(false);
    QVERIFY(!Controls::isShown(m_bar->Combo2_3()));
    for (const QWidget *control :
         QList<QWidget *>{&m_bar->TextBoxM6(), &m_bar->previous(), &m_bar->next(), &m_bar->case1()})
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
    QCOMPARE(m_bar->Text1(), QStringLiteral("2"));
    QCOMPARE(m_bar->Text2(), QStringLiteral("2"));

    m_bar->ListView1.hide();
    m_bar->ListView3_26.show();
    m_bar->type("ace");
    QCOMPARE(m_bar->Text1(), QStringLiteral("0"));
    m_bar->next().click();
    QCOMPARE(m_bar->ListView3_26.selectedRow(), 1);
}

void FindBarTest::bothEndsOnlyFocusTheList()
{
    m_bar->findBar.open(false);
    m_bar->type("water");
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
    for (int press = 0; press < 2; ++press) {
        m_bar->TextBoxM6().setFocus();
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
    QCOMPARE(m_bar->note.text(), QStringLiteral("Nothing found for \"xyz\""));
    QVERIFY(!m_bar->previous().isEnabled());
    QCOMPARE(m_bar->ListView1.selectedRow(), -1);

    m_bar->type("ace");
    QVERIFY(m_bar->note.text().isEmpty());
    m_bar->ListView1.hide(); // as on a pane where nothing can be searched
    m_bar->next().click();
    QCOMPARE(m_bar->desktop.beeps, 3);
}

void FindBarTest::emptyTextDisablesNext()
{
    m_bar->findBar.open(false);
    m_bar->type("ace");
    QCOMPARE(m_bar->hitCount(), 2);
    m_bar->TextBoxM6().clear();
    QCOMPARE(m_bar->hitCount(), 0);
    QVERIFY(!m_bar->next().isEnabled());
}

void FindBarTest::matchCaseSearchesAgain()
{
    m_bar->findBar.open(false);
    m_bar->type("Ace");
    m_bar->next().click();
    m_bar->case1().click();
    QCOMPARE(m_bar->hitCount(), 2);
    QCOMPARE(m_bar->Text1(), QStringLiteral("0"));
    QVERIFY(m_bar->previous().isEnabled()); // only typing disables it
    m_bar->type("ACE");
    QCOMPARE(m_bar->hitCount(), 0);
    m_bar->case1().click();
    QCOMPARE(m_bar->hitCount(), 2);
}

void FindBarTest::matchCaseOnSpectraLeavesNextAlone()
{
    m_bar->findBar.open(false);
    m_bar->case1().click();
    QVERIFY(!m_bar->next().isEnabled()); // the solvents, without a text

    m_bar->next().setEnabled(true);
    m_bar->ListView1.hide();
    m_bar->ListView3_26.show();
    m_bar->case1().click();
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
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, m_bar->TextBoxM6().setText("a"));
    QVERIFY(m_bar->desktop.boxes.constFirst().first.startsWith("Run-time error '9':"));
}

void FindBarTest::keysWalkAndClose()
{
    QSignalSpy closed(&m_bar->findBar, &FindBar::closedByUser);
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
    const auto press = [this](int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(m_bar->focusWidget(), Qt::Key(key), modifiers);
        return m_bar->ListView1.selectedRow();
    };
    m_bar->findBar.open(false);
    m_bar->type("ace");
    QCOMPARE(press(Qt::Key_Return), 0);
    QCOMPARE(press(Qt::Key_Enter), 1);
    QCOMPARE(press(Qt::Key_Return, Qt::ShiftModifier), 0);
    QCOMPARE(press(Qt::Key_F3), 1);
    QVERIFY(m_bar->TextBoxM6().hasFocus());
    m_bar->ListView1.setFocus();
    QCOMPARE(press(Qt::Key_F3, Qt::ShiftModifier), 0);
    QVERIFY(m_bar->ListView1.hasFocus());

    m_bar->findBar.open(false); // once more: the next letter begins a new text
    press(Qt::Key_W);
    QCOMPARE(m_bar->TextBoxM6().text(), QStringLiteral("w"));
    for (QWidget *place : QList<QWidget *>{&m_bar->TextBoxM6(), &m_bar->case1(), &m_bar->ListView1}) {
        m_bar->findBar.open(false);
        place->setFocus();
        press(Qt::Key_Escape);
        QVERIFY(!m_bar->findBar.isSearching());
        QVERIFY(m_bar->ListView1.hasFocus());
    }
    QCOMPARE(closed.size(), 3);
}

void FindBarTest::anElementIsFoundByItsWholeName_data()
{
    QTest::addColumn<QString>("typed");
    for (const char *name : {"tin", "neon", "gold"})
        QTest::newRow(name) << name;
}

void FindBarTest::anElementIsFoundByItsWholeName()
{
    QFETCH(const QString, typed);
    QApplication::setKeyboardInputInterval(60000); // however slow the machine
    QSignalSpy picked(&m_bar->findBar, &FindBar::namePicked);
    QVERIFY(QTest::qWaitForWindowActive(m_bar.get()));
    m_bar->findBar.open(true);
    for (const QChar letter : typed)
        QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), letter.toLatin1());
    QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Return);
    QCOMPARE(picked.size(), 1);
    QCOMPARE(picked[0][0].toString().toLower(), typed);

    m_bar->findBar.open(true);
    QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Controls::isShown(m_bar->Combo2_3()));
}

void FindBarTest::closingForgetsTextAndHits()
{
    m_bar->findBar.open(false);
    m_bar->type("ace");
    m_bar->Picture2().click();
    QCOMPARE(m_bar->hitCount(), 0);
    QVERIFY(m_bar->TextBoxM6().text().isEmpty());
    QVERIFY(!Controls::isShown(m_bar->next()));
    m_bar->findBar.ResetSearchPanel(); // closed already: nothing to see
    QVERIFY(!Controls::isShown(m_bar->Picture2()));
}

QTEST_MAIN(FindBarTest)
#include "findbar_test.moc"
