#include "elements/elementpanel.h"
#include "tests/support/files.h"
#include "tests/support/testclass.h"
#include "tests/support/tsvsource.h"

class ElementPanelTest final : public QObject
{
    Q_OBJECT

    enum Element { H = 0, Be = 3, Fe = 25, Ce = 57, Fr = 86, Th = 89, U = 91, Sg = 105, Uuo = 117 };

    DataStore m_store;
    MemoryTables m_tables; ///< a copy that a test may change
    Module1 m_module1;
    std::unique_ptr<ElementPanel> m_panel;

    QString symbol() const { return m_panel->lblatome[0]; }

private Q_SLOTS:
    void initTestCase()
    {
        TsvSource::load(3, "Elements", m_store);
        m_module1.AppFolder = "folder";
    }
    void init()
    {
        m_tables = m_store.tables;
        m_panel = std::make_unique<ElementPanel>(m_module1, m_tables);
    }

    void aClickFillsEveryValue()
    {
        QVERIFY(!m_panel->Command9Shown);
        m_panel->select(Fe);
        QCOMPARE(m_panel->CurrentElement, int(Fe));
        QCOMPARE(QStringList(m_panel->lblatome.begin() + 1, m_panel->lblatome.begin() + 5).join('|'),
                 "Iron|26|55.845|[Ar] 3d6 4s2");
        QVERIFY(m_panel->Command9Shown);
        QCOMPARE(m_panel->crystalPicturePath(), "folder/Data/cristal/Body-centered cubic.bmp");
        QCOMPARE(m_panel->Label11[0] + '|' + m_panel->Label11[2], "52|b+, e");
        m_panel->select(Uuo);
        QVERIFY(!m_panel->Command9Shown); // no crystal structure
    }

    void anyArrowOnTheEmptyPanelShowsHydrogen()
    {
        for (const auto direction : {Direction::Left, Direction::Right, Direction::Up, Direction::Down}) {
            init();
            QVERIFY(m_panel->move(direction, false));
            QCOMPARE(symbol(), "H");
        }
        QVERIFY(m_panel->move(Direction::Right, false));
        QCOMPARE(symbol(), "He");
    }

    void theWalkEndsAtTheEdgesOfTheTable()
    {
        const struct
        {
            Element from;
            Direction direction;
            bool shownAnew;
        } Rows[]{
            {H, Direction::Left, true},   {Uuo, Direction::Right, false}, {H, Direction::Up, false},
            {Be, Direction::Up, false},   {Ce, Direction::Up, false},     {Fr, Direction::Down, false},
            {Th, Direction::Down, false},
        };
        for (const auto &row : Rows) {
            m_panel->select(row.from);
            m_panel->lblatome[1] = "stale";
            QVERIFY2(m_panel->move(row.direction, false) == row.shownAnew, qPrintable(symbol()));
            QCOMPARE(m_panel->CurrentElement, int(row.from));
            QCOMPARE(m_panel->lblatome[1] != "stale", row.shownAnew);
        }
    }

    void isotopesEndAtTheFirstGap()
    {
        for (const int isotopes : {0, 1, 4, 5}) {
            const auto cell = [&](int i) {
                return i < 3 * isotopes && i != 1 ? QString::number(i) : QString();
            };
            for (int i = 0; i < 15; ++i)
                m_tables.ElementData(Fe, ElementColumn::FirstIsotope + i) =
                    i < 3 * isotopes ? cell(i) : QString(i % 3, 'x');
            m_panel->select(U);
            m_panel->select(Fe);
            for (int i = 0; i < 15; ++i)
                QCOMPARE(m_panel->Label11[size_t(i)], cell(i));
            QCOMPARE(m_panel->ReyFrame2Height, 555.0 + 360 * isotopes);
            QCOMPARE(m_panel->ReyFrame2Shown, isotopes > 0);
        }
    }

    void picturesAreNamedByTheStoredNumberUpToTheLast()
    {
        m_tables.ElementData(Fe, ElementColumn::AtomicNumber) = "27";
        m_panel->select(Fe);
        QCOMPARE(m_panel->picturePath, "folder/Data/elements/27.jpg");
        QCOMPARE(m_panel->zoom().caption, "Cobalt"); // follows the number on show, too
        for (int element = Sg - 1; element <= Uuo; ++element) {
            m_panel->select(element);
            QCOMPARE(m_panel->picturePath,
                     QString("folder/Data/elements/%1.jpg").arg(element < Sg ? 105 : 106));
        }
        const ElementPanel::Zoom zoom = m_panel->zoom();
        QCOMPARE(zoom.caption, "Oganesson");
        QCOMPARE(zoom.picturePath, "folder/Data/elements/106b.jpg");
        QCOMPARE(symbol(), "Og");
        QVERIFY(m_panel->move(Direction::Left, false)); // from the last picture
        QCOMPARE(symbol(), "Db");
    }

    void zoomRefusesWhatIsNoRow()
    {
        const auto errorAt = [this](const char *number) {
            m_panel->lblatome[2] = number;
            return errorOf([this] { m_panel->zoom(); });
        };
        for (const char *number : {"", "Fe"})
            QCOMPARE(errorAt(number), ErrorNumber::TypeMismatch);
        for (const char *number : {"0", "122", "1E300"})
            QCOMPARE(errorAt(number), ErrorNumber::Subscript);
    }

    void theOptionChoosesPictureOrPortrait()
    {
        Value &option = m_module1.OptionSlots(Slot::ElementPicture);
        option = 1;
        m_panel->applyPictureOption();
        QVERIFY(!m_panel->imgatoShown); // nothing to show yet
        for (const int chosen : {1, 0, 2}) {
            option = chosen;
            m_panel->select(Fe);
            QCOMPARE(m_panel->imgatoShown, chosen == 1);
        }
    }
};

const TestClass<ElementPanelTest> elementPanelTest;
#include "elementpanel_test.moc"
