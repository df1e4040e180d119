#include "elements/elementspane.h"

#include "core/desktop.h"
#include "elements/datapanel.h"
#include "elements/periodictable.h"
#include "elements/picturewindows.h"
#include "elements/portrait.h"
#include "search/findbar.h"
#include "store/datastore.h"
#include "store/tablecatalog.h"
#include "widgets/icons.h"
#include "widgets/picturebox.h"
#include "widgets/picturefile.h"
#include "widgets/tooltips.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QToolButton>
#include <array>

using namespace Qt::StringLiterals;

namespace {

// In the gap over groups 3 to 12: the picture at its own size, the buttons beside it.
constexpr QRect PictureArea{120, 52, 160, 160};
constexpr QPoint ArrowCentre{354, 97};
constexpr int ArrowSide = 30;
constexpr QRect ButtonArea{290, 150, 128, 28};
constexpr int ButtonPitch = 34;
constexpr QPoint DataCorner{622, 8};
constexpr int IsotopeTop = 376; // ends with the pane at five isotopes

struct Arrow
{
    Direction direction;
    Qt::Key key;
    QPoint place; ///< in steps from the centre
    const char *icon;
    const char *toolTip;
};

constexpr std::array<Arrow, 4> Arrows{{
    {Direction::Up, Qt::Key_Up, {0, -1}, "arrow-up", "Moving up"},
    {Direction::Left, Qt::Key_Left, {-1, 0}, "arrow-left", "Moving left"},
    {Direction::Right, Qt::Key_Right, {1, 0}, "arrow-right", "Moving right"},
    {Direction::Down, Qt::Key_Down, {0, 1}, "arrow-down", "Moving down"},
}};

} // namespace

ElementsPane::ElementsPane(Module1 &module1, DataStore &store, Desktop &desktop, FindBar &findBar,
                           QWidget *parent)
    : ModulePanel("Frametable", parent), m_module1(module1), m_tables(store.tables), m_desktop(desktop),
      m_findBar(findBar), m_panel(module1, store.tables)
{
    connect(&m_findBar, &FindBar::namePicked, this, &ElementsPane::pick);
    connect(&m_findBar, &FindBar::closedByUser, this, [this] { takeOverPick(); });
}

void ElementsPane::buildContents()
{
    // In the order of Tab; the table is as large as the pane.
    buildPictures();
    buildArrows();
    buildButtons();
    m_table = new PeriodicTable(m_tables, this);
    m_table->lower();
    ReyFrame1 = new DataPanel(this);
    ReyFrame1->move(DataCorner);
    ReyFrame2 = new IsotopePanel(this);
    ReyFrame2->move(DataCorner.x(), IsotopeTop);
    connectControls();
    showVisibility();
    refreshZoomPointer();
    ToolTips::refresh(m_module1.OptionSlots, *this);
}

void ElementsPane::buildPictures()
{
    imgato = new PictureBox(u"imgato"_s, this);
    imgato->setGeometry(PictureArea);
    imgato->setFocusPolicy(Qt::TabFocus);
    imgato->setAccessibleName(u"Picture of the element"_s);
    ToolTips::setText(*imgato, u"Picture of element "_s);
    Picture1 = new Portrait(this);
    Picture1->setGeometry(PictureArea);
    ToolTips::setText(*Picture1, Portrait::inscription());
}

void ElementsPane::buildArrows()
{
    for (const Arrow &arrow : Arrows) {
        auto *button = new QToolButton(this);
        button->setIcon(Icons::named(arrow.icon));
        button->setAccessibleName(arrow.toolTip);
        ToolTips::setText(*button, arrow.toolTip);
        QRect area(0, 0, ArrowSide, ArrowSide);
        area.moveCenter(ArrowCentre + arrow.place * ArrowSide);
        button->setGeometry(area);
        cmdpre.add(int(arrow.direction), button);
    }
}

void ElementsPane::buildButtons()
{
    cmdhelp = Controls::named(new QPushButton(u"Captions"_s, this), u"cmdhelp"_s);
    cmdhelp->setGeometry(ButtonArea);
    ToolTips::setText(*cmdhelp, u"Display captions"_s);
    Command9 = Controls::named(new QPushButton(u"Crystal structure"_s, this), u"Command9"_s);
    Command9->setGeometry(ButtonArea.translated(0, ButtonPitch));
    ToolTips::setText(*Command9, u"Display crystal structure"_s);
}

void ElementsPane::connectControls()
{
    m_table->Command7.connectEach(&QPushButton::clicked, this, [this](int element) { select(element); });
    cmdpre.connectEach(&QToolButton::clicked, this, [this](int index) { move(Direction(index)); });
    connect(imgato, &PictureBox::clicked, this, [this] { zoom(); });
    connect(Command9, &QPushButton::clicked, this, [this] { showCrystal(); });
    connect(cmdhelp, &QPushButton::clicked, this, &ElementsPane::helpRequested);
}

void ElementsPane::keyPressEvent(QKeyEvent *event)
{
    for (const Arrow &arrow : Arrows) {
        if (event->key() == arrow.key)
            return move(arrow.direction);
    }
    ModulePanel::keyPressEvent(event);
}

TableRow ElementsPane::currentRow() const
{
    constexpr int Step = 3;
    if (m_panel.shownElement < 0)
        return {};
    QStringList texts;
    for (qsizetype column = 0; column < TableCatalog::columns(Step).size(); ++column)
        texts << m_tables.ElementData(m_panel.shownElement, int(column));
    return TableCatalog::rowOf(Step, m_panel.shownElement, texts);
}

QWidget *ElementsPane::firstFocus() const
{
    return &m_table->Command7[m_panel.CurrentElement];
}

void ElementsPane::focusElement(int element)
{
    build();
    m_table->focusElement(element);
}

void ElementsPane::select(int element)
{
    endOnError(m_desktop, [&] {
        m_panel.select(element);
        showPanel();
        m_findBar.ResetSearchPanel();
    });
}

void ElementsPane::move(Direction direction)
{
    endOnError(m_desktop, [&] {
        const bool fromPick = m_findBar.isPickInUse();
        const bool moved = m_panel.move(direction, fromPick);
        m_table->focusElement(m_panel.CurrentElement);
        if (!moved)
            return;
        imgato->setToolTip({}); // at a third value of the option nothing sets it again
        showPanel();
        if (fromPick)
            m_findBar.ResetSearchPanel();
    });
}

void ElementsPane::pick(const QString &name)
{
    endOnError(m_desktop, [&] {
        m_panel.pick(name);
        focusElement(m_panel.LastComboElement);
        showPanel();
    });
}

// The user closed the bar: the walk goes on from the last pick, or from the first element without one.
void ElementsPane::takeOverPick()
{
    if (!Controls::isShown(*this))
        return;
    m_panel.takeOverPick();
    focusElement(m_panel.LastComboElement);
}

void ElementsPane::zoom()
{
    if (m_module1.OptionSlots(Slot::ElementZoom).equals(0))
        return;
    endOnError(m_desktop, [this] {
        const ElementPanel::Zoom zoomed = m_panel.zoom();
        openZoomWindow(*window(), zoomed.caption, zoomed.picturePath);
    });
}

void ElementsPane::showCrystal()
{
    endOnError(m_desktop,
               [this] { openCrystalWindow(*window(), m_panel.CrystalName, m_panel.crystalPicturePath()); });
}

void ElementsPane::showPanel()
{
    ReyFrame1->showValues(m_panel);
    // Loaded beneath the portrait too: a missing file ends the program in either case.
    imgato->setPicture(PictureFile::load(m_panel.picturePath));
    ReyFrame2->showValues(m_panel);
    m_table->mark(m_panel.shownElement);
    showVisibility();
    ToolTips::setText(*imgato, u"Picture of element "_s + m_panel.lblatome[1]);
    ToolTips::refresh(m_module1.OptionSlots, *window());
}

void ElementsPane::showVisibility()
{
    imgato->setVisible(m_panel.imgatoShown);
    Picture1->setVisible(!m_panel.imgatoShown);
    Command9->setVisible(m_panel.Command9Shown);
    ReyFrame2->setVisible(m_panel.ReyFrame2Shown);
}

void ElementsPane::applyPictureOption()
{
    m_panel.applyPictureOption();
    if (isBuilt())
        showVisibility();
}

void ElementsPane::refreshZoomPointer()
{
    if (isBuilt())
        imgato->setCursor(m_module1.OptionSlots(Slot::ElementZoom).equals(1) ? Qt::PointingHandCursor
                                                                             : Qt::ArrowCursor);
}
