#include "widgets/rowlistview.h"

#include "core/runtimeerror.h"
#include "store/rowlist.h"
#include "widgets/titleframe.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

class RowListViewTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreReadWhereTheyLie();
    void fillingIsToldOnce();
    void copyTakesTheRowOrTheListWithItsTitles();
    void rowsAreChosenByMouseAndKeyboardAlike();
    void aTextThatIsCutShowsWholeOnHover();
    void aColumnLeavesOutItsUnitAndFillsEmptyCells();
    void titlesStandOverTheirColumns();

private:
    static void fill(RowList &list, int rows)
    {
        for (int row = 1; row <= rows; ++row) {
            list.append(QStringLiteral("row %1").arg(row));
            list.appendSubItem(QStringLiteral("%1.5").arg(row));
            list.appendSubItem(
                QStringLiteral("a long text that does not fit in its column, number %1").arg(row));
        }
        list.filled();
    }

    static QList<ListColumn> columns()
    {
        return {{QStringLiteral("Name"), 100},
                {QStringLiteral("Value (g)"), 80, ListColumn::Kind::Number, QStringLiteral("g"),
                 QStringLiteral("none")},
                {QStringLiteral("Remark"), 90}};
    }
};

void RowListViewTest::rowsAreReadWhereTheyLie()
{
    RowList list;
    fill(list, 2);
    QCOMPARE(list.text(1), QStringLiteral("row 2"));
    QCOMPARE(list.subItem(1, 1), QStringLiteral("2.5"));
    QCOMPARE(list.subItem(1, 9), QString());
    QVERIFY_THROWS_EXCEPTION(RuntimeError, list.text(2));
    QVERIFY_THROWS_EXCEPTION(RuntimeError, list.subItem(-1, 1));
}

void RowListViewTest::fillingIsToldOnce()
{
    RowList list;
    RowListView view(QStringLiteral("ListView1"), list, columns(), nullptr);
    const QSignalSpy resets(view.model(), &QAbstractItemModel::modelReset);
    const QSignalSpy inserts(view.model(), &QAbstractItemModel::rowsInserted);

    fill(list, 50);

    QCOMPARE(resets.count(), 1);
    QCOMPARE(inserts.count(), 0);
    QCOMPARE(view.model()->rowCount(), 50);
    list.clear();
    QCOMPARE(view.model()->rowCount(), 0);
}

void RowListViewTest::copyTakesTheRowOrTheListWithItsTitles()
{
    RowList list;
    fill(list, 2);
    RowListView view(QStringLiteral("ListView1"), list, columns(), nullptr);
    view.resize(300, 200);
    view.show();
    QVERIFY(QTest::qWaitForWindowActive(&view)); // shortcuts ask for it
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));

    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("before")); // nothing is selected

    view.selectRow(1);
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("row 2\t2.5\ta long text that does not fit in its column, number 2"));

    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("Name\tValue (g)\tRemark\n"
                            "row 1\t1.5\ta long text that does not fit in its column, number 1\n"
                            "row 2\t2.5\ta long text that does not fit in its column, number 2\n"));
    const QString table = QGuiApplication::clipboard()->mimeData()->html();
    QVERIFY(table.contains(QStringLiteral("<td>Name</td><td>Value (g)</td><td>Remark</td></tr>"
                                          "<tr><td>row 1</td><td>1.5</td><td>a long")));
}

void RowListViewTest::rowsAreChosenByMouseAndKeyboardAlike()
{
    RowList list;
    fill(list, 5);
    RowListView view(QStringLiteral("ListView1"), list, columns(), nullptr);
    view.resize(300, 200);
    view.show();
    QSignalSpy clicks(&view, &RowListView::rowClicked);
    QSignalSpy doubleClicks(&view, &RowListView::rowDoubleClicked);

    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(view.model()->index(2, 1)).center());
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Return);

    QCOMPARE(clicks, (QList<QVariantList>{{2}, {3}}));
    QCOMPARE(doubleClicks, (QList<QVariantList>{{3}}));
    QCOMPARE(view.selectedRow(), 3);
    QTest::keyClick(&view, Qt::Key_End);
    QTest::keyClick(&view, Qt::Key_Down); // stays: no new choice
    QCOMPARE(clicks.count(), 3);
}

void RowListViewTest::aTextThatIsCutShowsWholeOnHover()
{
    RowList list;
    fill(list, 2);
    RowListView view(QStringLiteral("ListView1"), list, columns(), nullptr);
    view.resize(300, 200);
    view.show();
    const auto textAt = [&](int column) {
        const QPoint place = view.visualRect(view.model()->index(1, column)).center();
        QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(view.viewport(), &event);
        return QToolTip::text();
    };
    QCOMPARE(textAt(2), QStringLiteral("a long text that does not fit in its column, number 2"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    textAt(0);
    QVERIFY(!QToolTip::isVisible());
}

void RowListViewTest::aColumnLeavesOutItsUnitAndFillsEmptyCells()
{
    RowList list;
    for (const QStringView value : {u"2.5 g", u""}) {
        list.append(u"row");
        list.appendSubItem(value);
    }
    list.filled();
    const RowListModel model(list, columns(), nullptr);
    const auto cell = [&model](int row, int role) { return model.index(row, 1).data(role).toString(); };
    QCOMPARE(cell(0, Qt::AccessibleTextRole), QStringLiteral("2.5"));
    QCOMPARE(cell(1, Qt::AccessibleTextRole), QStringLiteral("none"));
    QCOMPARE(cell(0, Qt::DisplayRole), QStringLiteral("2.5 g")); // for copies
}

void RowListViewTest::titlesStandOverTheirColumns()
{
    RowList list;
    fill(list, 2);
    QWidget pane;
    RowListView view(QStringLiteral("ListView1"), list, columns(), &pane);
    view.setGeometry(10, 100, 300, 200);
    ControlArray<QLabel> Label2("Label2");
    TitleFrame frame(QStringLiteral("frmc"), &pane);
    frame.addTitles(view, Label2, {7, 6, 5});
    pane.show();

    QCOMPARE(frame.geometry().bottom() + 1, view.y());
    for (const int column : {0, 1, 2}) {
        const QLabel &title = Label2[7 - column];
        const QRect cells = view.visualRect(view.model()->index(0, column))
                                .translated(view.viewport()->mapTo(&pane, QPoint()));
        const QRect shown = title.geometry().translated(frame.pos());
        QVERIFY2(shown.left() >= cells.left() && shown.left() <= cells.left() + 8, qPrintable(title.text()));
        const int right =
            column == 2 ? view.geometry().right() : cells.right() + 1; // the last one has all the rest
        QVERIFY2(shown.right() <= right, qPrintable(title.text()));
    }
}

QTEST_MAIN(RowListViewTest)
#include "rowlistview_test.moc"
