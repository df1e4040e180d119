#include "elements/elementspane.h"

#include "search/findbar.h"
#include "tests/support/scripteddesktop.h"
#include "tests/support/tsvsource.h"
#include "widgets/picturewindow.h"
#include "widgets/windowunits.h"

#include <QComboBox>
#include <QDir>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

namespace {

constexpr int H = 0;
constexpr int C = 5;
constexpr int Fe = 25;
constexpr int Uuo = 117;

/// `Form1` with the pane, the Find bar and nothing else.
struct Rig
{
    explicit Rig(DataStore &store, const QString &folder) : findBar(store, desktop, panel3, &form1)
    {
        module1.AppFolder = folder;
        for (const Slot slot : {Slot::ToolTips, Slot::ElementZoom, Slot::ElementPicture})
            module1.OptionSlots(slot) = 1;
        pane = new ElementsPane(module1, store, desktop, findBar, &form1);
        pane->show();
        form1.show();
    }

    template<class W>
    W *find(const char *name) const
    {
        return pane->findChild<W *>(QLatin1StringView(name));
    }
    QPushButton *Command7(int element) const
    {
        return pane->findChild<QPushButton *>(Controls::indexedName("Command7", element));
    }
    QString text(const char *label) const { return find<QLabel>(label)->text(); }
    QString toolTip(const char *control) const { return find<QWidget>(control)->toolTip(); }
    bool isShown(const char *control) const { return Controls::isShown(*find<QWidget>(control)); }
    void press(Qt::Key key) { QTest::keyClick(form1.focusWidget(), key); }
    void pickByHand(int row)
    {
        findBar.open(true);
        names().setCurrentIndex(row);
        Q_EMIT names().activated(row);
    }
    QComboBox &names() const { return *findBar.findChild<QComboBox *>("Combo2(3)"); }
    QToolButton &Picture2() const { return *findBar.findChild<QToolButton *>("Picture2"); }
    SideWindow *sideWindow(const char *name) const
    {
        return form1.findChild<SideWindow *>(QLatin1StringView(name));
    }

    Module1 module1;
    ScriptedDesktop desktop;
    QLabel panel3;
    QWidget form1;
    FindBar findBar;
    ElementsPane *pane;
};

} // namespace

class ElementsPaneTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_rig = std::make_unique<Rig>(m_store, m_folder.path()); }

    void buttonsStandByGroupAndPeriod();
    void upAndDownLeadToTheNeighbourInTheColumn();
    void arrowKeysOnTheTableDoWhatTheArrowButtonsDo();
    void tabLeadsToTheElementOnShowAlone();
    void decayModesAreShownInGreek();
    void aClickClosesTheFindBarAndAnArrowOnlyAfterAPick();
    void aPickLeavesTheFindBarOpenAndItsCloseButtonTakesOver();
    void choosingTheSameNameAgainShowsItAgain();
    void balloonsFollowTheOption();
    void aMoveTakesTheBalloonOfThePictureAtAnUnknownOption();
    void theFixedBalloonsStay();
    void aMissingPictureEndsTheProgramEvenBehindThePortrait();
    void zoomShowsTheElementAboveADisabledForm1();
    void zoomCanBeSwitchedOff();
    void crystalWindowShowsTheStructure();
    void aMissingCrystalPictureEndsTheProgram();
    void optionsReachThePaneBeforeItIsBuilt();

private:
    void writePicture(const QString &name, QSize size = {4, 4})
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::white);
        // What a file holds counts, not its suffix.
        QVERIFY(picture.save(m_folder.filePath(name), "PNG"));
    }

    QTemporaryDir m_folder;
    DataStore m_store;
    std::unique_ptr<Rig> m_rig;
};

void ElementsPaneTest::initTestCase()
{
    TsvSource::load(3, QStringLiteral("Elements"), m_store);
    m_store.lists.Combo2[3].filled();
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("Data/elements")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("Data/cristal")));
    for (int number = 1; number <= 106; ++number)
        writePicture(QStringLiteral("Data/elements/%1.jpg").arg(number));
    writePicture(QStringLiteral("Data/elements/26b.jpg"));
    writePicture(QStringLiteral("Data/elements/106b.jpg"));
    writePicture(QStringLiteral("Data/cristal/Body-centered cubic.bmp"), {300, 200});
}

void ElementsPaneTest::buttonsStandByGroupAndPeriod()
{
    const auto place = [this](int element) { return m_rig->Command7(element)->geometry(); };
    QCOMPARE(place(H), QRect(40, 168, 33, 33));
    QCOMPARE(place(1).topLeft(), QPoint(40 + 17 * 32, 168));
    QCOMPARE(place(57).topLeft(), QPoint(136, 424));
    QCOMPARE(place(70).topLeft(), QPoint(552, 424));
    QCOMPARE(place(102).topLeft(), QPoint(552, 456));
    QCOMPARE(place(Uuo).bottomRight(), QPoint(616, 392));
    QCOMPARE(m_rig->Command7(109)->text(), QStringLiteral("Uun"));
    QCOMPARE(m_rig->Command7(Uuo)->text(), QStringLiteral("Uuo"));

    // Nothing else stands over the table.
    QRegion cells;
    for (int element = 0; element <= Uuo; ++element)
        cells += place(element);
    for (const char *name :
         {"ReyFrame1", "ReyFrame2", "imgato", "Picture1", "cmdpre(0)", "cmdpre(3)", "Command9"})
        QVERIFY2(!cells.intersects(m_rig->find<QWidget>(name)->geometry()), name);
}

void ElementsPaneTest::upAndDownLeadToTheNeighbourInTheColumn()
{
    // The detached rows are a table of their own.
    const auto place = [this](int element) { return m_rig->Command7(element)->pos(); };
    const auto detached = [&](int element) { return place(element).y() >= WindowUnits::pixels(6360); };
    const auto neighbour = [&](int from, int sign) {
        std::optional<int> nearest;
        for (int to = 0; to <= Uuo; ++to) {
            const bool candidate = to != from && place(to).x() == place(from).x() &&
                                   detached(to) == detached(from) &&
                                   (place(to).y() - place(from).y()) * sign > 0;
            if (candidate && (!nearest || (place(to).y() - place(*nearest).y()) * sign < 0))
                nearest = to;
        }
        return nearest;
    };
    for (int element = 0; element <= Uuo; ++element) {
        QCOMPARE(Navigation::step(Direction::Up, element), neighbour(element, -1));
        QCOMPARE(Navigation::step(Direction::Down, element), neighbour(element, 1));
    }
}

void ElementsPaneTest::arrowKeysOnTheTableDoWhatTheArrowButtonsDo()
{
    m_rig->pane->firstFocus()->setFocus();
    m_rig->press(Qt::Key_Down); // an empty panel shows hydrogen first
    QCOMPARE(m_rig->text("lblatome(0)"), QStringLiteral("H"));
    m_rig->press(Qt::Key_Down);
    m_rig->press(Qt::Key_Right);
    QCOMPARE(m_rig->text("lblatome(1)"), QStringLiteral("Beryllium"));
    QCOMPARE(m_rig->form1.focusWidget(), m_rig->Command7(3));
    m_rig->press(Qt::Key_Up);
    QCOMPARE(m_rig->text("lblatome(1)"), QStringLiteral("Beryllium"));

    m_rig->find<QToolButton>("cmdpre(0)")->click();
    QCOMPARE(m_rig->text("lblatome(1)"), QStringLiteral("Lithium"));
    QCOMPARE(m_rig->form1.focusWidget(), m_rig->Command7(2));
}

void ElementsPaneTest::tabLeadsToTheElementOnShowAlone()
{
    m_rig->Command7(Fe)->click();
    for (int element = 0; element <= Uuo; ++element)
        QCOMPARE(bool(m_rig->Command7(element)->focusPolicy() & Qt::TabFocus), element == Fe);
    QCOMPARE(m_rig->Command7(1)->accessibleName(), QStringLiteral("Helium, 2"));
}

void ElementsPaneTest::decayModesAreShownInGreek()
{
    m_rig->Command7(Fe)->click();
    QCOMPARE(m_rig->text("Label11(0)"), QStringLiteral("52"));
    QCOMPARE(m_rig->text("Label11(2)"), QStringLiteral("β+, ε"));
    QCOMPARE(m_rig->find<QWidget>("ReyFrame2")->height(), WindowUnits::pixels(915 + 3 * 360));
    QVERIFY(m_rig->isShown("ReyFrame2"));
}

void ElementsPaneTest::aClickClosesTheFindBarAndAnArrowOnlyAfterAPick()
{
    m_rig->findBar.open(true);
    const QComboBox &names = m_rig->names();
    m_rig->find<QToolButton>("cmdpre(1)")->click();
    QVERIFY(Controls::isShown(names));
    m_rig->pickByHand(Fe);
    m_rig->find<QToolButton>("cmdpre(1)")->click();
    QVERIFY(!Controls::isShown(names));
    QCOMPARE(m_rig->text("lblatome(0)"), QStringLiteral("Co"));

    // A walk that ends at the edge leaves the bar alone.
    m_rig->pickByHand(Uuo);
    m_rig->find<QToolButton>("cmdpre(1)")->click();
    QVERIFY(Controls::isShown(names));
    QCOMPARE(m_rig->form1.focusWidget(), m_rig->Command7(Uuo));
    m_rig->Command7(C)->click();
    QVERIFY(!Controls::isShown(names));
}

void ElementsPaneTest::aPickLeavesTheFindBarOpenAndItsCloseButtonTakesOver()
{
    m_rig->Command7(C)->click();
    m_rig->pickByHand(Fe);
    QCOMPARE(m_rig->text("lblatome(1)"), QStringLiteral("Iron"));
    QCOMPARE(m_rig->form1.focusWidget(), m_rig->Command7(Fe));
    QVERIFY(Controls::isShown(m_rig->names()));
    QCOMPARE(m_rig->pane->panel().CurrentElement, C);

    m_rig->Command7(C)->setFocus();
    m_rig->Picture2().click();
    QCOMPARE(m_rig->pane->panel().CurrentElement, Fe);
    QCOMPARE(m_rig->form1.focusWidget(), m_rig->Command7(Fe));

    // On any other pane the button has nothing to do with the elements.
    m_rig->Command7(C)->click();
    m_rig->pane->hide();
    m_rig->Picture2().click();
    QCOMPARE(m_rig->pane->panel().CurrentElement, C);
}

void ElementsPaneTest::choosingTheSameNameAgainShowsItAgain()
{
    m_rig->pickByHand(Fe);
    m_rig->find<QLabel>("lblatome(1)")->clear();
    m_rig->pickByHand(Fe);
    QCOMPARE(m_rig->text("lblatome(1)"), QStringLiteral("Iron"));
    m_rig->pickByHand(-1);
    QCOMPARE(m_rig->text("lblatome(1)"), QStringLiteral("Iron"));
}

void ElementsPaneTest::balloonsFollowTheOption()
{
    const QSignalSpy refreshed(m_rig->pane, &ElementsPane::toolTipsRefreshed);
    const auto tips = [this] {
        QStringList all{m_rig->Picture2().toolTip()};
        for (const char *name : {"cmdhelp", "cmdpre(0)", "cmdpre(1)", "cmdpre(2)", "cmdpre(3)", "Command9",
                                 "imgato", "Picture1"})
            all << m_rig->toolTip(name);
        return all;
    };
    const QStringList on{
        QStringLiteral("Close search engine"),
        QStringLiteral("Display captions"),
        QStringLiteral("Moving left"),
        QStringLiteral("Moving right"),
        QStringLiteral("Moving up"),
        QStringLiteral("Moving down"),
        QStringLiteral("Display crystal structure"),
        QStringLiteral("Picture of element Iron"),
        QStringLiteral("Dmitri Mendeleev (1834-1907)"),
    };
    m_rig->Command7(Fe)->click();
    QCOMPARE(tips(), on);

    m_rig->module1.OptionSlots(Slot::ToolTips) = 2;
    m_rig->pane->refreshToolTips();
    QCOMPARE(tips(), on);
    m_rig->module1.OptionSlots(Slot::ToolTips) = 0;
    m_rig->pane->refreshToolTips();
    QCOMPARE(tips(), QStringList(on.size(), QString()));
    QCOMPARE(refreshed.size(), 3);
}

void ElementsPaneTest::aMoveTakesTheBalloonOfThePictureAtAnUnknownOption()
{
    m_rig->Command7(Fe)->click();
    m_rig->module1.OptionSlots(Slot::ToolTips) = 2;
    m_rig->Command7(C)->click();
    QCOMPARE(m_rig->toolTip("imgato"), QStringLiteral("Picture of element Iron"));
    m_rig->find<QToolButton>("cmdpre(1)")->click();
    QCOMPARE(m_rig->toolTip("imgato"), QString());
}

void ElementsPaneTest::theFixedBalloonsStay()
{
    m_rig->module1.OptionSlots(Slot::ToolTips) = 0;
    m_rig->Command7(Fe)->click();
    QCOMPARE(m_rig->toolTip("lblatome(7)"), QStringLiteral("Température d'ébullition (°C)"));
    QCOMPARE(m_rig->toolTip("lblatome(3)"), QString());
    QCOMPARE(m_rig->toolTip("Label11(14)"), QStringLiteral("Mode(s) de décomposition"));
}

void ElementsPaneTest::aMissingPictureEndsTheProgramEvenBehindThePortrait()
{
    QTemporaryDir empty;
    QVERIFY(QDir(empty.path()).mkpath(QStringLiteral("Data/elements")));
    m_rig->module1.AppFolder = empty.path();
    m_rig->module1.OptionSlots(Slot::ElementPicture) = 0;
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, m_rig->Command7(Fe)->click());
    const auto [text, style] = m_rig->desktop.boxes.constFirst();
    QVERIFY(text.startsWith(QStringLiteral("Run-time error '53':")));
    QVERIFY(text.endsWith(QStringLiteral("/Data/elements/26.jpg")));
    QCOMPARE(style, int(Desktop::Critical));
}

void ElementsPaneTest::zoomShowsTheElementAboveADisabledForm1()
{
    m_rig->Command7(Uuo)->click();
    QTest::mouseClick(m_rig->find<QWidget>("imgato"), Qt::LeftButton);
    const QPointer<SideWindow> form5 = m_rig->sideWindow("Form5");
    QVERIFY(form5 && form5->isEnabled() && form5->isVisible());
    QCOMPARE(form5->windowTitle(), QStringLiteral("Oganesson"));
    QVERIFY(!m_rig->form1.isEnabled());
    QCOMPARE(m_rig->pane->panel().CurrentElement, 105);

    QTest::mouseClick(form5->findChild<QWidget *>(QStringLiteral("Image1")), Qt::LeftButton);
    QVERIFY(m_rig->form1.isEnabled());
    QTRY_VERIFY(!form5);
}

void ElementsPaneTest::zoomCanBeSwitchedOff()
{
    m_rig->module1.OptionSlots(Slot::ElementZoom) = 0;
    m_rig->pane->refreshZoomPointer();
    QCOMPARE(m_rig->find<QWidget>("imgato")->cursor().shape(), Qt::ArrowCursor);
    m_rig->Command7(Uuo)->click();
    QTest::mouseClick(m_rig->find<QWidget>("imgato"), Qt::LeftButton);
    QVERIFY(!m_rig->sideWindow("Form5"));
    QCOMPARE(m_rig->pane->panel().CurrentElement, Uuo);
}

void ElementsPaneTest::crystalWindowShowsTheStructure()
{
    m_rig->Command7(Fe)->click();
    m_rig->find<QPushButton>("Command9")->click();
    auto *form4 = qobject_cast<PictureWindow *>(m_rig->sideWindow("Form4"));
    QVERIFY(form4 && !m_rig->form1.isEnabled());
    QCOMPARE(form4->windowTitle(), QStringLiteral("Crystal structure"));
    QCOMPARE(form4->Label1->text(), QStringLiteral("Body-centered cubic"));
    QVERIFY(form4->Label2->isHidden());
    const int left = WindowUnits::pixels((form4->width() * 15 - 1000 - 300 * 15) / 2.0);
    QCOMPARE(form4->Picture1->x(), left);
    QTest::keyClick(form4, Qt::Key_Escape);
    QVERIFY(m_rig->form1.isEnabled());
}

void ElementsPaneTest::aMissingCrystalPictureEndsTheProgram()
{
    m_rig->Command7(C)->click();
    QVERIFY_THROWS_EXCEPTION(ProcessEnded, m_rig->find<QPushButton>("Command9")->click());
    QVERIFY(m_rig->desktop.boxes.constFirst().first.startsWith(QStringLiteral("Run-time error '53':")));
    QVERIFY(m_rig->form1.isEnabled());
}

void ElementsPaneTest::optionsReachThePaneBeforeItIsBuilt()
{
    Module1 module1;
    QWidget form1;
    QLabel panel3;
    FindBar findBar(m_store, m_rig->desktop, panel3, &form1);
    ElementsPane pane(module1, m_store, m_rig->desktop, findBar, &form1);
    module1.OptionSlots(Slot::ToolTips) = 1;
    module1.OptionSlots(Slot::ElementZoom) = 1;
    pane.refreshToolTips();
    pane.refreshZoomPointer();
    pane.applyPictureOption();
    QVERIFY(!pane.isBuilt());
    QCOMPARE(findBar.findChild<QWidget *>("Picture2")->toolTip(), QStringLiteral("Close search engine"));

    pane.show();
    QCOMPARE(pane.findChild<QWidget *>(QStringLiteral("cmdpre(2)"))->toolTip(), QStringLiteral("Moving up"));
    const auto *imgato = pane.findChild<QWidget *>(QStringLiteral("imgato"));
    QCOMPARE(imgato->cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(imgato->isHidden());
}

QTEST_MAIN(ElementsPaneTest)
#include "elementspane_test.moc"
