#include "charts/chartpicture.h"
#include "charts/reactionspane.h"
#include "core/module1.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"

#include <QPushButton>
#include <QScrollBar>

class ReactionsPaneTest final : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    Module1 m_module;
    ScriptedDesktop m_desktop;
    std::unique_ptr<DataStore> m_store;
    std::unique_ptr<UnreadTables> m_unread;
    std::unique_ptr<QWidget> m_form1;
    ReactionsPane *m_pane = nullptr;

    ChartPicture &picture() const { return get<ChartPicture>(*m_pane, "Picture4"); }
    QRadioButton &option(int index) const
    {
        return get<QRadioButton>(*m_pane, Controls::indexedName("optorga", index));
    }
    void click(int position) const
    {
        auto &list = get<RowListView>(*m_pane, "ListView3(31)");
        list.selectRow(position - 1);
        Q_EMIT list.rowClicked(position - 1);
    }

private Q_SLOTS:
    void initTestCase()
    {
        makePicture(m_folder.filePath("Data/orga/1.gif"), {600, 300});
        makePicture(m_folder.filePath("Data/orga/1m.gif"), {400, 200});
        makePicture(m_folder.filePath("Data/orga/2.gif"), {500, 500});
        m_module.AppFolder = m_folder.path();
    }
    void init()
    {
        m_desktop.boxes.clear();
        m_form1 = std::make_unique<QWidget>();
        m_store = std::make_unique<DataStore>();
        m_unread = std::make_unique<UnreadTables>(*m_store, m_desktop);
        m_pane = new ReactionsPane(m_module, *m_store, m_unread->tables, m_desktop, m_form1.get());
        m_pane->show();
        m_form1->show();
        QVERIFY(!option(2).isEnabled());
        get<QPushButton>(*m_pane, "cmdReadTables(1)").click();
        QVERIFY(option(2).isEnabled());
    }
    void cleanup() { m_form1.reset(); }

    void aRowShowsTheEquation()
    {
        click(1);
        const auto &title = get<QLabel>(*m_pane, "Label55");
        QCOMPARE(picture().height(), 300);
        auto &VScroll1 = get<QScrollBar>(*m_pane, "VScroll1");
        QVERIFY(!Controls::isShown(VScroll1));
        QCOMPARE(m_form1->focusWidget(), &get(*m_pane, "ListView3(31)"));

        click(2);
        QVERIFY(Controls::isShown(VScroll1));
        QCOMPARE(VScroll1.maximum(), 1331); // (13229.17 x 1.01 - 10700) / 2
        VScroll1.setValue(1000);            // moves nothing
        QCOMPARE(picture().y(), 33);

        m_pane->ClearChartPanels();
        QVERIFY(picture().isClear());
        QCOMPARE(title.text(), QString());
    }

    void theReleaseOfTheMouseChangesTheView()
    {
        click(1);
        option(2).setFocus();
        QTest::keyClick(&option(2), Qt::Key_Space);
        QVERIFY(option(2).isChecked());
        QCOMPARE(picture().height(), 300); // the keyboard does not release a mouse button
        QTest::mouseClick(&option(2), Qt::LeftButton);
        QCOMPARE(picture().height(), 200);
        QTest::mouseClick(&option(1), Qt::LeftButton);
        QCOMPARE(picture().height(), 300);

        QTest::mouseClick(&option(2), Qt::LeftButton);
        click(2); // a row after a mechanism falls back to the equation
        QVERIFY(option(1).isChecked());
        QCOMPARE(picture().height(), 500);
        QCOMPARE(get<QLabel>(*m_pane, "Label55").text(), "Appel reaction");
    }

    void aReleaseWithoutASelectionEndsTheProgram()
    {
        auto &list = get<RowListView>(*m_pane, "ListView3(31)");
        QCOMPARE(list.selectedRow(), 0); // so that nobody gets there by hand
        list.clearSelection();
        QVERIFY_THROWS_EXCEPTION(ProcessEnded, QTest::mouseClick(&option(2), Qt::LeftButton));
        QVERIFY(m_desktop.boxes.constFirst().first.startsWith("Run-time error '91':"));
    }
};

const TestClass<ReactionsPaneTest> reactionsPaneTest;
#include "reactionspane_test.moc"
