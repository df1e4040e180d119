#include "charts/chartpicture.h"
#include "charts/reactionspane.h"
#include "core/module1.h"
#include "tests/support/scripteddesktop.h"
#include "tests/support/unreadtables.h"

#include <QDir>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

class ReactionsPaneTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_form1.reset(); }
    void aRowShowsTheEquation();
    void theReleaseOfTheMouseChangesTheView();
    void aRowAfterAMechanismFallsBackToTheEquation();
    void theScrollBarMovesNothing();
    void aReleaseWithoutASelectionEndsTheProgram();
    void aPaneSwitchClearsThePicture();

private:
    void addPicture(const QString &name, const QSize &size) const;
    void click(int position) const;
    template<class W>
    W &get(const QString &name) const
    {
        return *m_form1->findChild<W *>(name);
    }
    ChartPicture &picture() const { return get<ChartPicture>("Picture4"); }

    QTemporaryDir m_folder;
    Module1 m_module;
    ScriptedDesktop m_desktop;
    std::unique_ptr<DataStore> m_store;
    std::unique_ptr<UnreadTables> m_unread;
    std::unique_ptr<QWidget> m_form1;
    ReactionsPane *m_pane = nullptr;
};

void ReactionsPaneTest::init()
{
    m_module.AppFolder = m_folder.path();
    m_desktop.boxes.clear();
    m_form1 = std::make_unique<QWidget>();
    m_store = std::make_unique<DataStore>();
    m_unread = std::make_unique<UnreadTables>(*m_store, m_desktop);
    m_pane = new ReactionsPane(m_module, *m_store, m_unread->tables, m_desktop, m_form1.get());
    m_pane->show();
    m_form1->show();
    QVERIFY(!get<QWidget>("optorga(2)").isEnabled());
    get<QPushButton>("cmdReadTables(1)").click();
    QVERIFY(get<QWidget>("optorga(2)").isEnabled());
    addPicture("1.gif", {600, 300});
    addPicture("1m.gif", {400, 200});
    addPicture("2.gif", {500, 500});
}

void ReactionsPaneTest::addPicture(const QString &name, const QSize &size) const
{
    QDir(m_folder.path()).mkpath("Data/orga");
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(m_folder.filePath("Data/orga/" + name), "PNG"));
}

void ReactionsPaneTest::click(int position) const
{
    auto &list = get<RowListView>("ListView3(31)");
    list.selectRow(position - 1);
    Q_EMIT list.rowClicked(position - 1);
}

void ReactionsPaneTest::aRowShowsTheEquation()
{
    click(1);
    QCOMPARE(get<QLabel>("Label55").text(), "Aldol addition");
    QCOMPARE(picture().height(), 300);
    // 600 pixels are 15875 units; times 0.6 they are taken for 9525 twips.
    const int frame = get<QWidget>("grdFrame35").width() * 15;
    QCOMPARE(picture().x(), qRound((frame - 9525) / 30.0));
    QCOMPARE(picture().y(), 33); // 500 twips
    QVERIFY(!Controls::isShown(get<QWidget>("VScroll1")));
    QCOMPARE(m_form1->focusWidget(), &get<QWidget>("ListView3(31)"));
}

void ReactionsPaneTest::theReleaseOfTheMouseChangesTheView()
{
    click(1);
    auto &mechanism = get<QRadioButton>("optorga(2)");
    mechanism.setFocus();
    QTest::keyClick(&mechanism, Qt::Key_Space);
    QVERIFY(mechanism.isChecked());
    QCOMPARE(picture().height(), 300); // the keyboard does not release a mouse button

    QTest::mouseClick(&mechanism, Qt::LeftButton);
    QCOMPARE(picture().height(), 200);
    QTest::mouseClick(&get<QRadioButton>("optorga(1)"), Qt::LeftButton);
    QCOMPARE(picture().height(), 300);
}

void ReactionsPaneTest::aRowAfterAMechanismFallsBackToTheEquation()
{
    click(1);
    QTest::mouseClick(&get<QRadioButton>("optorga(2)"), Qt::LeftButton);
    click(2);
    QVERIFY(get<QRadioButton>("optorga(1)").isChecked());
    QCOMPARE(picture().height(), 500);
    QCOMPARE(get<QLabel>("Label55").text(), "Appel reaction");
}

void ReactionsPaneTest::theScrollBarMovesNothing()
{
    click(2);
    auto &VScroll1 = get<QScrollBar>("VScroll1");
    QVERIFY(Controls::isShown(VScroll1));
    QCOMPARE(VScroll1.minimum(), 1);
    QCOMPARE(VScroll1.maximum(), 1331); // (13229.17 x 1.01 - 10700) / 2
    VScroll1.setValue(1000);
    QCOMPARE(picture().y(), 33);
}

void ReactionsPaneTest::aReleaseWithoutASelectionEndsTheProgram()
{
    QCOMPARE(get<RowListView>("ListView3(31)").selectedRow(), 0); // so that nobody gets there by hand
    get<RowListView>("ListView3(31)").clearSelection();
    QVERIFY_THROWS_EXCEPTION(ProcessEnded,
                             QTest::mouseClick(&get<QRadioButton>("optorga(2)"), Qt::LeftButton));
    QVERIFY(m_desktop.boxes.constFirst().first.startsWith("Run-time error '91':"));
}

void ReactionsPaneTest::aPaneSwitchClearsThePicture()
{
    click(1);
    m_pane->ClearChartPanels();
    QVERIFY(picture().isClear());
    QCOMPARE(get<QLabel>("Label55").text(), QString());
}

QTEST_MAIN(ReactionsPaneTest)
#include "reactionspane_test.moc"
