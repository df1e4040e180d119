#include "search/find.h"
#include "search/findbar.h"
#include "search/searchindex.h"
#include "store/datastore.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/rowlistview.h"
#include "widgets/statusline.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>

using Find::Direction;

namespace {

void fill(RowList &list, const QStringList &rows)
{
    for (const QString &row : rows)
        list.append(row);
    list.filled();
}

/// A bar over two short lists, of which the first is shown.
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
        static_cast<void>(QTest::qWaitForWindowActive(this));
    }
    void type(const QString &text)
    {
        TextBoxM6.clear();
        QTest::keyClicks(&TextBoxM6, text);
    }
    // Type a text over the spectra instead of the solvents.
    void typeOverSpectra(const QString &text)
    {
        ListView1.hide();
        ListView3_26.show();
        type(text);
    }
    QString position() const
    {
        return get<QLineEdit>(findBar, "Text1").text() + ':' + get<QLineEdit>(findBar, "Text2").text();
    }
    int hitCount() const { return store.lists.ListView2[6].rowCount(); }

    DataStore store;
    ScriptedDesktop desktop;
    QLabel panel3;
    RowListView ListView1{"ListView1", store.lists.ListView1, {{"Name", 100}}, this};
    RowListView ListView3_26{"ListView3(26)", store.lists.ListView3[26], {{"Name", 100}}, this};
    StatusLine note{"StatusBar1.Panels(2)", *this};
    FindBar findBar{store, desktop, panel3, this};
    QLineEdit &TextBoxM6 = get<QLineEdit>(findBar, "TextBoxM6");
    QCheckBox &case1 = get<QCheckBox>(findBar, "case1");
    QComboBox &Combo2_3 = get<QComboBox>(findBar, "Combo2(3)");
    QToolButton &Picture2 = get<QToolButton>(findBar, "Picture2");
    QPushButton &previous = get<QPushButton>(findBar, "Command11(0)");
    QPushButton &next = get<QPushButton>(findBar, "Command11(1)");
};

} // namespace

/// Finding rows, and the bar that does it. Each function has a new bar.
class FindTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsFoundByItsWords()
    {
        const QList<QStringList> rows{{"vitacidol"}, {"\u03b1-Acidoic (CO2)"},   {"formic acid"}, {"acidity"},
                                      {"acid"},      {"Caf\u00e9ine", "58-08-2"}};
        SearchIndex index;
        index.addTable("Strengths of acids");
        for (const QStringList &row : rows)
            index.addRow(row);
        for (const auto &[query, expected] : {
                 std::pair<QString, QString>{
                     "acid", "[acid]|formic [acid]|[acid]ity|\u03b1-[Acid]oic (CO2)|vit[acid]ol"},
                 {"ACID formic", "[formic] [acid]"},
                 {"alpha", "[\u03b1]-Acidoic (CO2)"},
                 {"a-acidoic", "[\u03b1-Acidoic] (CO2)"},
                 {"CO\u2082", "\u03b1-Acidoic ([CO2])"},
                 {"vitacidol strength", "[vitacidol]"}, // the topic
                 {"cafe", "[Caf\u00e9]ine"},
                 {"58-08-2", "Caf\u00e9ine"},
                 {"o", ""}, // in the middle of words
             }) {
            QStringList found;
            for (const SearchIndex::Hit &hit : index.find(query, 5).best) {
                found << rows[hit.row][0];
                const auto marks = SearchIndex::marks(found.last(), query);
                std::for_each(marks.rbegin(), marks.rend(), [&](const auto &mark) {
                    found.last().insert(mark.begin + mark.length, ']').insert(mark.begin, '[');
                });
            }
            QCOMPARE(found.join('|'), expected);
        }
    }

    // A step forward looks from the row with the number of the hit on.
    void ofEqualTextsTheSecondSelectsTheFirst()
    {
        RowList list;
        fill(list, {"Water", "Xylene", "Ether", "Xylene", "Xylene"});
        RowList hits;
        Find::gather(list, 5, "Xyl", Qt::CaseSensitive, hits);
        QCOMPARE(hits.rowCount(), 3);
        QCOMPARE(Find::walk(list, hits, {1, 2}, Direction::Next)->row, 2);
        QCOMPARE(Find::walk(list, hits, {2, 2}, Direction::Next)->row, 4);
    }

    void aWalkPastEitherEndOrBeyond16BitsFails()
    {
        RowList list;
        fill(list, {"Water"});
        RowList hits;
        fill(hits, {"Ether", "Ether"});
        RowList many;
        fill(many, QStringList(32768, "a"));
        const auto next = [&] { Find::walk(list, hits, {0, 0}, Direction::Next); };
        const auto previous = [&] { Find::walk(list, hits, {2, 1}, Direction::Previous); };
        const auto beyond = [&] { Find::walk(many, many, {32767, 32767}, Direction::Next); };
        QCOMPARE(errorOf(next), ErrorNumber::Subscript);
        QCOMPARE(errorOf(previous), ErrorNumber::Subscript);
        QCOMPARE(Find::walk(many, many, {32766, 32766}, Direction::Next)->hit, 32767);
        QCOMPARE(errorOf(beyond), ErrorNumber::Overflow);
    }

    void walksTheShownListFromEndToEnd()
    {
        Bar bar;
        bar.findBar.open(false);
        bar.type("ace");
        QVERIFY(!bar.previous.isEnabled()); // until there was a walk
        for (const char *position : {"1:1", "2:2", "2:2"}) {
            bar.TextBoxM6.setFocus();
            bar.next.click();
            QCOMPARE(bar.position(), QString(position));
            QVERIFY(bar.ListView1.hasFocus());
        }
        QCOMPARE(bar.ListView1.selectedRow(), 1);
        QVERIFY(bar.previous.isEnabled());
        for (int press = 0; press < 2; ++press)
            bar.previous.click();
        QCOMPARE(bar.ListView1.selectedRow(), 0);
        QCOMPARE(bar.desktop.beeps, 0);

        bar.typeOverSpectra("acet");
        QCOMPARE(bar.hitCount(), 1); // "Acetal" is the fourth row, and there are three solvents
        QCOMPARE(bar.position(), QString("0:0"));
        bar.next.click();
        QCOMPARE(bar.ListView3_26.selectedRow(), 1);
    }

    void withoutHitsItBeeps()
    {
        Bar bar;
        bar.findBar.open(false);
        bar.next.click(); // nothing has been typed
        bar.type("xyz");
        bar.next.click();
        QCOMPARE(bar.desktop.beeps, 2);
        QCOMPARE(bar.note.text(), QString("Nothing found for \"xyz\""));
        QVERIFY(!bar.previous.isEnabled());
        QCOMPARE(bar.ListView1.selectedRow(), -1);
        bar.type("ace");
        QVERIFY(bar.note.text().isEmpty());
        bar.ListView1.hide(); // as on a pane where nothing can be searched
        bar.next.click();
        QCOMPARE(bar.desktop.beeps, 3);
    }

    void changedTextOrCaseSearchesAgain()
    {
        Bar bar;
        bar.findBar.open(false);
        bar.type("Ace");
        bar.next.click();
        bar.case1.click();
        QCOMPARE(bar.hitCount(), 2);
        QCOMPARE(bar.position(), QString("0:0"));
        QVERIFY(bar.previous.isEnabled()); // only typing disables it
        bar.type("ACE");
        QCOMPARE(bar.hitCount(), 0);
        bar.case1.click();
        QCOMPARE(bar.hitCount(), 2);
        bar.TextBoxM6.clear();
        QCOMPARE(bar.hitCount(), 0);
        QVERIFY(!bar.next.isEnabled());

        bar.next.setEnabled(true);
        bar.case1.click();
        QVERIFY(!bar.next.isEnabled());
        bar.typeOverSpectra({});
        bar.next.setEnabled(true);
        bar.case1.click();
        QVERIFY(bar.next.isEnabled()); // the spectra leave it as it is
    }

    void aMissingRowEndsTheProgram()
    {
        Bar bar;
        bar.store.SolventCount = 4;
        bar.findBar.open(false);
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, bar.TextBoxM6.setText("a"));
        QVERIFY(bar.desktop.boxes.constFirst().first.startsWith("Run-time error '9':"));
        QCOMPARE(bar.hitCount(), 3); // up to there
    }

    void keysWalkAndClose()
    {
        Bar bar;
        const QSignalSpy closed(&bar.findBar, &FindBar::closedByUser);
        const auto press = [&](int key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(bar.focusWidget(), Qt::Key(key), modifiers);
            return bar.ListView1.selectedRow();
        };
        bar.findBar.open(false);
        bar.type("ace");
        QCOMPARE(press(Qt::Key_Return), 0);
        QCOMPARE(press(Qt::Key_Enter), 1);
        QCOMPARE(press(Qt::Key_Return, Qt::ShiftModifier), 0);
        QCOMPARE(press(Qt::Key_F3), 1);
        QVERIFY(bar.TextBoxM6.hasFocus());
        bar.ListView1.setFocus();
        QCOMPARE(press(Qt::Key_F3, Qt::ShiftModifier), 0);
        QVERIFY(bar.ListView1.hasFocus());

        bar.findBar.open(false); // once more: the next letter begins a new text
        press(Qt::Key_W);
        QCOMPARE(bar.TextBoxM6.text(), QString("w"));
        for (QWidget *place : QList<QWidget *>{&bar.TextBoxM6, &bar.case1, &bar.ListView1}) {
            bar.findBar.open(false);
            place->setFocus();
            press(Qt::Key_Escape);
            QVERIFY(!bar.findBar.isSearching() && bar.ListView1.hasFocus());
            QVERIFY(bar.TextBoxM6.text().isEmpty() && !Controls::isShown(bar.next));
            QCOMPARE(bar.hitCount(), 0);
        }
        QCOMPARE(closed.size(), 3);
    }

    void anElementIsFoundByItsWholeName()
    {
        QApplication::setKeyboardInputInterval(60000); // however slow the machine
        for (const QString &typed : QStringList{"tin", "neon", "gold"}) {
            Bar bar;
            const QSignalSpy picked(&bar.findBar, &FindBar::namePicked);
            bar.findBar.open(true);
            for (const QChar letter : typed)
                QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), letter.toLatin1());
            QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Return);
            QCOMPARE(picked.size(), 1);
            QCOMPARE(picked[0][0].toString().toLower(), typed);
            bar.findBar.open(true);
            QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Escape);
            QVERIFY(!Controls::isShown(bar.Combo2_3));
        }
    }
};

const TestClass<FindTest> findTest;
#include "find_test.moc"
