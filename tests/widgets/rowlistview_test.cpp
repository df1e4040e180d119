#include "core/runtimeerror.h"
#include "store/rowlist.h"
#include "tests/support/testclass.h"
#include "widgets/rowlistview.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QToolTip>

class RowListViewTest final : public QObject
{
    Q_OBJECT

    std::unique_ptr<RowList> m_list;
    std::unique_ptr<RowListView> m_view;

private Q_SLOTS:
    void init()
    {
        m_list = std::make_unique<RowList>();
        const QList<ListColumn> columns{
            {"Name", 100}, {"Value (g)", 80, ListColumn::Kind::Number, "g", "none"}, {"Remark", 90}};
        m_view = std::make_unique<RowListView>("ListView1", *m_list, columns, nullptr);
        const QSignalSpy resets(m_view->model(), &QAbstractItemModel::modelReset);
        for (int row = 1; row <= 5; ++row) {
            m_list->append(QString("row %1").arg(row));
            m_list->appendSubItem(row == 5 ? QString() : QString("%1.5 g").arg(row));
            m_list->appendSubItem(QString("a long text that does not fit in its column, number %1").arg(row));
        }
        m_list->filled();
        QCOMPARE(resets.count(), 1); // for all rows
        m_view->resize(300, 200);
        m_view->show();
    }

    void cellsAreReadWhereTheyLie()
    {
        QCOMPARE(m_list->text(1) + '|' + m_list->subItem(1, 1) + '|' + m_list->subItem(1, 9), "row 2|2.5 g|");
        QVERIFY_THROWS_EXCEPTION(RuntimeError, m_list->text(5));
        QVERIFY_THROWS_EXCEPTION(RuntimeError, m_list->subItem(-1, 1));
        const auto cell = [this](int row, int role) {
            return m_view->model()->index(row, 1).data(role).toString();
        };
        QCOMPARE(cell(1, Qt::AccessibleTextRole), "2.5"); // the title has the unit
        QCOMPARE(cell(4, Qt::AccessibleTextRole), "none");
        QCOMPARE(cell(1, Qt::DisplayRole), "2.5 g"); // for copies
        m_list->clear();
        QCOMPARE(m_view->model()->rowCount(), 0);
    }

    void aCopiedTableIsHtmlToo()
    {
        m_view->copyTable();
        const QMimeData &copied = *QGuiApplication::clipboard()->mimeData();
        QCOMPARE(copied.text().count('\n'), 6);
        QVERIFY(copied.html().contains("<td>Name</td><td>Value (g)</td><td>Remark</td></tr>"
                                       "<tr><td>row 1</td><td>1.5 g</td><td>a long"));
    }

    void rowsAreChosenByMouseAndKeyboardAlike()
    {
        const QSignalSpy clicks(m_view.get(), &RowListView::rowClicked);
        const QSignalSpy doubleClicks(m_view.get(), &RowListView::rowDoubleClicked);
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {},
                          m_view->visualRect(m_view->model()->index(2, 1)).center());
        QTest::keyClick(m_view.get(), Qt::Key_Down);
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QCOMPARE(m_view->selectedRow(), 3);
        QTest::keyClick(m_view.get(), Qt::Key_End);
        QTest::keyClick(m_view.get(), Qt::Key_Down); // stays: no new choice
        QCOMPARE(clicks, (QList<QVariantList>{{2}, {3}, {4}}));
        QCOMPARE(doubleClicks, (QList<QVariantList>{{3}}));
    }

    void aTextThatIsCutShowsWholeOnHover()
    {
        const auto hover = [this](int column) {
            const QPoint place = m_view->visualRect(m_view->model()->index(1, column)).center();
            QHelpEvent event(QEvent::ToolTip, place, m_view->viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(m_view->viewport(), &event);
        };
        hover(2);
        QCOMPARE(QToolTip::text(), "a long text that does not fit in its column, number 2");
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        hover(0);
        QVERIFY(!QToolTip::isVisible());
    }
};

const TestClass<RowListViewTest> rowListViewTest;
#include "rowlistview_test.moc"
