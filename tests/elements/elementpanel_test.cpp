#include "elements/elementpanel.h"

#include "tests/support/tsvsource.h"

#include <QTest>

namespace {

constexpr int H = 0;
constexpr int Fe = 25;
constexpr int Sg = 105;
constexpr int Uuo = 117;

int errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.number();
    }
    return 0;
}

} // namespace

class ElementPanelTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TsvSource::load(3, QStringLiteral("Elements"), m_store); }
    void init();

    void aClickFillsEveryValue();
    void anyArrowOnTheEmptyPanelShowsHydrogen();
    void theWalkEndsAtTheEdgesOfTheTable_data();
    void theWalkEndsAtTheEdgesOfTheTable();
    void aMoveGoesOnFromThePickAndNotFromTheElementBefore();
    void isotopesEndAtTheFirstGap_data();
    void isotopesEndAtTheFirstGap();
    void theHeaviestElementsShareTheLastPicture();
    void picturesAreNamedByTheStoredNumber();
    void zoomMovesTheSelectionToTheLastPicture();
    void zoomRefusesWhatIsNoRow_data();
    void zoomRefusesWhatIsNoRow();
    void anElementWithoutCrystalStructureHidesTheButton();
    void theOptionChoosesPictureOrPortrait();

private:
    DataStore m_store;
    MemoryTables m_tables; ///< a copy that a test may change
    std::unique_ptr<Module1> m_module1;
    std::unique_ptr<ElementPanel> m_panel;
};

void ElementPanelTest::init()
{
    m_tables = m_store.tables;
    m_module1 = std::make_unique<Module1>();
    m_module1->AppFolder = QStringLiteral("folder");
    m_panel = std::make_unique<ElementPanel>(*m_module1, m_tables);
}

void ElementPanelTest::aClickFillsEveryValue()
{
    m_panel->select(Fe);

    QCOMPARE(m_panel->CurrentElement, Fe);
    const std::array<QString, 15> iron{
        QStringLiteral("Fe"),
        QStringLiteral("Iron"),
        QStringLiteral("26"),
        QStringLiteral("55.845"),
        QStringLiteral("[Ar] 3d6 4s2"),
        QStringLiteral("7.87"),
        QStringLiteral("1538"),
        QStringLiteral("2861"),
        QStringLiteral("1.83"),
        QStringLiteral("7.9025"),
        QStringLiteral("+3, +2"),
        QStringLiteral("Solid"),
        QStringLiteral("Transition metal"),
        QStringLiteral("Body-centered cubic"),
        QStringLiteral("1.32 / 1.26 / 2.04"),
    };
    for (size_t i = 0; i < iron.size(); ++i)
        QCOMPARE(m_panel->lblatome[i], iron[i]);
    QCOMPARE(m_panel->CrystalName, QStringLiteral("Body-centered cubic"));
    QCOMPARE(m_panel->crystalPicturePath(), QStringLiteral("folder/Data/cristal/Body-centered cubic.bmp"));
    QCOMPARE(m_panel->Label11[0], QStringLiteral("52"));
    QCOMPARE(m_panel->Label11[2], QStringLiteral("b+, e"));
}

void ElementPanelTest::anyArrowOnTheEmptyPanelShowsHydrogen()
{
    for (const auto direction : {Direction::Left, Direction::Right, Direction::Up, Direction::Down}) {
        init();
        QVERIFY(m_panel->move(direction, false));
        QCOMPARE(m_panel->CurrentElement, H);
        QCOMPARE(m_panel->lblatome[0], QStringLiteral("H"));
    }
    QVERIFY(m_panel->move(Direction::Right, false));
    QCOMPARE(m_panel->lblatome[0], QStringLiteral("He"));
}

void ElementPanelTest::theWalkEndsAtTheEdgesOfTheTable_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("shownAnew");
    QTest::newRow("left of hydrogen") << H << int(Direction::Left) << true;
    QTest::newRow("right of the last") << Uuo << int(Direction::Right) << false;
    QTest::newRow("above hydrogen") << H << int(Direction::Up) << false;
    QTest::newRow("above beryllium") << 3 << int(Direction::Up) << false;
    QTest::newRow("above cerium") << 57 << int(Direction::Up) << false;
    QTest::newRow("below francium") << 86 << int(Direction::Down) << false;
    QTest::newRow("below thorium") << 89 << int(Direction::Down) << false;
}

void ElementPanelTest::theWalkEndsAtTheEdgesOfTheTable()
{
    QFETCH(int, from);
    QFETCH(int, direction);
    QFETCH(bool, shownAnew);
    m_panel->select(from);
    m_panel->lblatome[1] = QStringLiteral("stale");

    QCOMPARE(m_panel->move(Direction(direction), false), shownAnew);
    QCOMPARE(m_panel->CurrentElement, from);
    QCOMPARE(m_panel->lblatome[1] != QStringLiteral("stale"), shownAnew);
}

void ElementPanelTest::aMoveGoesOnFromThePickAndNotFromTheElementBefore()
{
    m_panel->select(H);
    m_panel->pick(QStringLiteral("Iron"));
    QCOMPARE(m_panel->CurrentElement, H);
    QCOMPARE(m_panel->LastComboElement, Fe);
    QCOMPARE(m_panel->lblatome[0], QStringLiteral("Fe"));

    QVERIFY(m_panel->move(Direction::Right, true));
    QCOMPARE(m_panel->lblatome[0], QStringLiteral("Co"));

    // With the list out of use the pick is no longer looked at.
    QVERIFY(m_panel->move(Direction::Right, false));
    QCOMPARE(m_panel->lblatome[0], QStringLiteral("Ni"));
}

void ElementPanelTest::isotopesEndAtTheFirstGap_data()
{
    QTest::addColumn<int>("isotopes");
    QTest::addColumn<double>("height");
    QTest::newRow("none") << 0 << 555.0;
    QTest::newRow("one") << 1 << 915.0;
    QTest::newRow("four") << 4 << 1995.0;
    QTest::newRow("five") << 5 << 2355.0;
}

void ElementPanelTest::isotopesEndAtTheFirstGap()
{
    QFETCH(int, isotopes);
    QFETCH(double, height);
    for (int i = 0; i < 15; ++i)
        m_tables.ElementData(Fe, ElementColumn::FirstIsotope + i) = QString::number(i);
    if (isotopes < 5)
        m_tables.ElementData(Fe, ElementColumn::FirstIsotope + 3 * isotopes).clear();
    m_panel->select(91);
    m_panel->select(Fe);

    for (int i = 0; i < 15; ++i)
        QCOMPARE(m_panel->Label11[size_t(i)], i < 3 * isotopes ? QString::number(i) : QString());
    QCOMPARE(m_panel->ReyFrame2Height, height);
    QCOMPARE(m_panel->ReyFrame2Shown, isotopes > 0);
}

void ElementPanelTest::theHeaviestElementsShareTheLastPicture()
{
    QString wanted = QStringLiteral("folder/Data/elements/105.jpg");
    m_panel->select(Sg - 1);
    QCOMPARE(m_panel->picturePath, wanted);
    wanted = QStringLiteral("folder/Data/elements/106.jpg");
    for (int element = Sg; element <= Uuo; ++element) {
        m_panel->select(element);
        QCOMPARE(m_panel->picturePath, wanted);
    }
}

void ElementPanelTest::picturesAreNamedByTheStoredNumber()
{
    m_tables.ElementData(Fe, ElementColumn::AtomicNumber) = QStringLiteral("27");
    m_panel->select(Fe);
    QCOMPARE(m_panel->picturePath, QStringLiteral("folder/Data/elements/27.jpg"));
    // The zoom follows the number on show, too.
    QCOMPARE(m_panel->zoom().caption, QStringLiteral("Cobalt"));
}

void ElementPanelTest::zoomMovesTheSelectionToTheLastPicture()
{
    m_panel->select(Uuo);
    const ElementPanel::Zoom zoom = m_panel->zoom();

    QCOMPARE(zoom.caption, QStringLiteral("Oganesson"));
    QCOMPARE(zoom.picturePath, QStringLiteral("folder/Data/elements/106b.jpg"));
    QCOMPARE(m_panel->lblatome[0], QStringLiteral("Og"));
    QVERIFY(m_panel->move(Direction::Left, false));
    QCOMPARE(m_panel->lblatome[0], QStringLiteral("Db"));
}

void ElementPanelTest::zoomRefusesWhatIsNoRow_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("error");
    QTest::newRow("nothing selected") << QString() << ErrorNumber::TypeMismatch;
    QTest::newRow("no number") << QStringLiteral("Fe") << ErrorNumber::TypeMismatch;
    QTest::newRow("zero") << QStringLiteral("0") << ErrorNumber::Subscript;
    QTest::newRow("first row beyond the table") << QStringLiteral("122") << ErrorNumber::Subscript;
    QTest::newRow("far beyond the range of rows") << QStringLiteral("1E300") << ErrorNumber::Subscript;
}

void ElementPanelTest::zoomRefusesWhatIsNoRow()
{
    QFETCH(QString, number);
    QFETCH(int, error);
    m_panel->lblatome[2] = number;
    QCOMPARE(errorOf([this] { m_panel->zoom(); }), error);
}

void ElementPanelTest::anElementWithoutCrystalStructureHidesTheButton()
{
    QVERIFY(!m_panel->Command9Shown);
    m_panel->select(Fe);
    QVERIFY(m_panel->Command9Shown);
    m_panel->select(Uuo);
    QVERIFY(!m_panel->Command9Shown);
}

void ElementPanelTest::theOptionChoosesPictureOrPortrait()
{
    Value &option = m_module1->OptionSlots(Slot::ElementPicture);
    option = 1;
    m_panel->applyPictureOption();
    QVERIFY(!m_panel->imgatoShown && m_panel->Picture1Shown); // nothing to show yet

    m_panel->select(Fe);
    QVERIFY(m_panel->imgatoShown && !m_panel->Picture1Shown);
    option = 0;
    m_panel->applyPictureOption();
    QVERIFY(!m_panel->imgatoShown && m_panel->Picture1Shown);
    option = 2;
    m_panel->select(H);
    QVERIFY(!m_panel->imgatoShown && m_panel->Picture1Shown);
}

QTEST_GUILESS_MAIN(ElementPanelTest)
#include "elementpanel_test.moc"
