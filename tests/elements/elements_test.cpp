#include "elements/elementspane.h"
#include "search/findbar.h"
#include "tests/support/deliveredtables.h"
#include "tests/support/files.h"
#include "tests/support/scripteddesktop.h"
#include "widgets/picturewindow.h"
#include "widgets/tooltips.h"
#include "widgets/windowunits.h"

#include <QComboBox>
#include <QPointer>

/// What the panel shows, and the pane with the Find bar in `Form1`.
class ElementsTest final : public QObject
{
    Q_OBJECT

    enum Element { H = 0, C = 5, Fe = 25, Ce = 57, Th = 89, U = 91, Sg = 105, Uuo = 117 };

    struct Form1 : QWidget
    {
        explicit Form1(DataStore &dataStore) : store(dataStore) {}

        DataStore &store;
        Module1 module1;
        ScriptedDesktop desktop;
        QLabel panel3;
        FindBar findBar{store, desktop, panel3, this};
        ElementsPane pane{module1, store, desktop, findBar, this};
    };

    const QTemporaryDir m_folder;
    DataStore m_store;
    std::unique_ptr<Form1> m_form1;
    MemoryTables m_tables; ///< a copy that a test may change
    Module1 m_module1;
    std::unique_ptr<ElementPanel> m_panel; ///< over that copy

    QString symbol() const { return m_panel->lblatome[0]; }
    QPushButton &Command7(int element) const
    {
        return get<QPushButton>(m_form1->pane, Controls::indexedName("Command7", element));
    }
    void click(const char *button) const { get<QAbstractButton>(*m_form1, button).click(); }
    void press(Qt::Key key) const { QTest::keyClick(m_form1->focusWidget(), key); }
    QString text(const char *label) const { return get<QLabel>(m_form1->pane, label).text(); }
    QString toolTip(const char *control) const { return get(*m_form1, control).toolTip(); }
    int current() const { return m_form1->pane.panel().CurrentElement; }
    QWidget *focused() const { return m_form1->focusWidget(); }
    QComboBox &names() const { return get<QComboBox>(m_form1->findBar, "Combo2(3)"); }
    void pickByHand(int row) const
    {
        m_form1->findBar.open(true);
        names().setCurrentIndex(row);
        Q_EMIT names().activated(row);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_module1.AppFolder = "folder";
        loadDelivered(3, m_store);
        m_store.lists.Combo2[3].filled();
        for (int number = 1; number <= 106; ++number)
            makePicture(m_folder.filePath(QString("Data/elements/%1.jpg").arg(number)), {4, 4});
        makePicture(m_folder.filePath("Data/elements/106b.jpg"), {4, 4});
        makePicture(m_folder.filePath("Data/cristal/Body-centered cubic.bmp"), {300, 200});
    }
    void init()
    {
        m_tables = m_store.tables;
        m_panel = std::make_unique<ElementPanel>(m_module1, m_tables);
        m_form1 = std::make_unique<Form1>(m_store);
        m_form1->module1.AppFolder = m_folder.path();
        for (const Slot slot : {Slot::ToolTips, Slot::ElementZoom, Slot::ElementPicture})
            m_form1->module1.OptionSlots(slot) = 1;
        ToolTips::refresh(m_form1->module1.OptionSlots, *m_form1); // before the pane is built
        m_form1->pane.refreshZoomPointer();
        m_form1->pane.applyPictureOption();
        QVERIFY(!m_form1->pane.isBuilt());
        QCOMPARE(toolTip("Picture2"), "Close search engine");
        m_form1->pane.show();
        m_form1->show();
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
        for (const auto &[from, direction] : {std::pair(H, Direction::Left),
                                              {Uuo, Direction::Right},
                                              {H, Direction::Up},
                                              {Ce, Direction::Up},
                                              {Th, Direction::Down}}) {
            const bool shownAnew = direction == Direction::Left;
            m_panel->select(from);
            m_panel->lblatome[1] = "stale";
            QVERIFY2(m_panel->move(direction, false) == shownAnew, qPrintable(symbol()));
            QCOMPARE(m_panel->CurrentElement, int(from));
            QCOMPARE(m_panel->lblatome[1] != "stale", shownAnew);
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
        for (const auto &[number, error] :
             {std::pair("", 13), {"Fe", 13}, {"0", 9}, {"122", 9}, {"1E300", 9}}) {
            m_panel->lblatome[2] = number;
            QCOMPARE(errorOf([this] { m_panel->zoom(); }), error);
        }
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

    void upAndDownLeadToTheNeighbourInTheColumn()
    {
        const auto place = [this](int element) { return Command7(element).pos(); };
        // The detached rows are a table of their own.
        const auto detached = [&](int element) { return place(element).y() >= WindowUnits::pixels(6360); };
        const auto neighbour = [&](int from, int sign) {
            std::map<int, int> neighbours; // by distance
            for (int to = 0; to <= Uuo; ++to) {
                const int distance = (place(to).y() - place(from).y()) * sign;
                if (place(to).x() == place(from).x() && detached(to) == detached(from) && distance > 0)
                    neighbours[distance] = to;
            }
            return neighbours.empty() ? std::nullopt : std::optional(neighbours.begin()->second);
        };
        for (int element = 0; element <= Uuo; ++element) {
            QCOMPARE(Navigation::step(Direction::Up, element), neighbour(element, -1));
            QCOMPARE(Navigation::step(Direction::Down, element), neighbour(element, 1));
        }
    }

    void arrowKeysOnTheTableDoWhatTheArrowButtonsDo()
    {
        m_form1->pane.firstFocus()->setFocus();
        press(Qt::Key_Down); // an empty panel shows hydrogen first
        QCOMPARE(text("lblatome(0)"), "H");
        press(Qt::Key_Down);
        press(Qt::Key_Right);
        QCOMPARE(text("lblatome(1)"), "Beryllium");
        QCOMPARE(focused(), &Command7(3));
        press(Qt::Key_Up);
        QCOMPARE(text("lblatome(1)"), "Beryllium");
        click("cmdpre(0)");
        QCOMPARE(text("lblatome(1)"), "Lithium");
        QCOMPARE(focused(), &Command7(2));

        QCOMPARE(Command7(1).accessibleName(), "Helium, 2");
    }

    void aClickShowsTheElement()
    {
        m_form1->module1.OptionSlots(Slot::ToolTips) = 0;
        const QWidget &crystal = get(m_form1->pane, "Command9");
        QVERIFY(!Controls::isShown(crystal));
        Command7(Fe).click();
        QCOMPARE(text("lblatome(1)") + '|' + text("lblatome(2)") + '|' + text("lblatome(3)"),
                 "Iron|26|55.845");
        QVERIFY(Controls::isShown(crystal));
        QCOMPARE(text("Label11(0)") + '|' + text("Label11(2)"), "52|β+, ε");
        QCOMPARE(get(m_form1->pane, "ReyFrame2").height(), WindowUnits::pixels(915 + 3 * 360));
        // Fixed balloons, whatever the option.
        QCOMPARE(toolTip("lblatome(7)"), "Température d'ébullition (°C)");
        QCOMPARE(toolTip("lblatome(3)"), QString());
        QCOMPARE(toolTip("Label11(14)"), "Mode(s) de décomposition");
        Command7(Uuo).click();
        QVERIFY(!Controls::isShown(crystal));
    }

    void aClickClosesTheFindBarAndAnArrowOnlyAfterAPick()
    {
        m_form1->findBar.open(true);
        click("cmdpre(1)");
        QVERIFY(Controls::isShown(names()));
        pickByHand(Fe);
        click("cmdpre(1)");
        QVERIFY(!Controls::isShown(names()));
        QCOMPARE(text("lblatome(0)"), "Co");

        pickByHand(Uuo);
        click("cmdpre(1)"); // a walk that ends at the edge leaves the bar alone
        QVERIFY(Controls::isShown(names()));
        QCOMPARE(focused(), &Command7(Uuo));
        Command7(C).click();
        QVERIFY(!Controls::isShown(names()));
    }

    void aPickLeavesTheFindBarOpenAndItsCloseButtonTakesOver()
    {
        Command7(C).click();
        pickByHand(Fe);
        QCOMPARE(text("lblatome(1)"), "Iron");
        QCOMPARE(focused(), &Command7(Fe));
        QVERIFY(Controls::isShown(names()));
        QCOMPARE(current(), int(C));
        get<QLabel>(m_form1->pane, "lblatome(1)").clear();
        pickByHand(Fe); // the same name again
        QCOMPARE(text("lblatome(1)"), "Iron");
        pickByHand(-1);
        QCOMPARE(text("lblatome(1)"), "Iron");

        Command7(C).setFocus();
        click("Picture2");
        QCOMPARE(current(), int(Fe));
        QCOMPARE(focused(), &Command7(Fe));
        Command7(C).click();
        m_form1->pane.hide(); // on any other pane the button has nothing to do with the elements
        click("Picture2");
        QCOMPARE(current(), int(C));
    }

    void balloonsFollowTheOption()
    {
        const auto tips = [this](int option) {
            m_form1->module1.OptionSlots(Slot::ToolTips) = option;
            ToolTips::refresh(m_form1->module1.OptionSlots, *m_form1);
            QStringList all;
            for (const char *name : {"cmdhelp", "cmdpre(2)", "Command9", "imgato", "Picture1"})
                all << toolTip(name);
            return all.join('|');
        };
        Command7(Fe).click();
        for (const int on : {1, 2}) // 2 is unknown: nothing changes
            QCOMPARE(tips(on), "Display captions|Moving up|Display crystal structure|Picture of element Iron|"
                               "Dmitri Mendeleev (1834-1907)");
        Command7(C).click();
        QCOMPARE(toolTip("imgato"), "Picture of element Iron");
        click("cmdpre(1)"); // but a move takes the balloon
        QCOMPARE(toolTip("imgato"), QString());
        QCOMPARE(tips(0), "||||");
    }

    void zoomShowsTheElementAboveADisabledForm1()
    {
        auto &imgato = get(m_form1->pane, "imgato");
        QCOMPARE(imgato.cursor().shape(), Qt::PointingHandCursor);
        QVERIFY(imgato.isHidden());
        Command7(Uuo).click();
        QTest::mouseClick(&imgato, Qt::LeftButton);
        const QPointer<QWidget> form5 = &get(*m_form1, "Form5");
        QVERIFY(form5->isEnabled() && form5->isVisible());
        QCOMPARE(form5->windowTitle(), "Oganesson");
        QVERIFY(!m_form1->isEnabled());
        QCOMPARE(current(), 105);
        QTest::mouseClick(&get(*form5, "Image1"), Qt::LeftButton);
        QVERIFY(m_form1->isEnabled());
        QTRY_VERIFY(!form5);

        m_form1->module1.OptionSlots(Slot::ElementZoom) = 0;
        m_form1->pane.refreshZoomPointer();
        QCOMPARE(imgato.cursor().shape(), Qt::ArrowCursor);
        Command7(Uuo).click();
        QTest::mouseClick(&imgato, Qt::LeftButton);
        QVERIFY(!m_form1->findChild<QWidget *>("Form5"));
        QCOMPARE(current(), int(Uuo));
        m_form1->module1.OptionSlots(Slot::ElementPicture) = 0;
        m_form1->pane.applyPictureOption();
        QVERIFY(imgato.isHidden());
    }

    void crystalWindowShowsTheStructure()
    {
        Command7(Fe).click();
        click("Command9");
        auto &form4 = get<PictureWindow>(*m_form1, "Form4");
        QCOMPARE(form4.windowTitle(), "Crystal structure");
        QCOMPARE(form4.Label1->text(), "Body-centered cubic");
        QVERIFY(form4.Label2->isHidden());
        QCOMPARE(form4.Picture1->x(), WindowUnits::pixels((form4.width() * 15 - 1000 - 300 * 15) / 2.0));
    }
};

const TestClass<ElementsTest> elementsTest;
#include "elements_test.moc"
