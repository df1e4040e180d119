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

namespace {

// In the gap over groups 3 to 12: the picture, at its own size, and the buttons beside it.
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
    refreshToolTips();
}

void ElementsPane::buildPictures()
{
    imgato = new PictureBox(QStringLiteral("imgato"), this);
    imgato->setGeometry(PictureArea);
    imgato->setFocusPolicy(Qt::TabFocus);
    imgato->setAccessibleName(tr("Picture of the element"));
    Picture1 = new Portrait(this);
    Picture1->setGeometry(PictureArea);
}

void ElementsPane::buildArrows()
{
    for (const Arrow &arrow : Arrows) {
        auto *button = new QToolButton(this);
        button->setIcon(Icons::named(QLatin1StringView(arrow.icon)));
        button->setAccessibleName(QLatin1StringView(arrow.toolTip));
        QRect area(0, 0, ArrowSide, ArrowSide);
        area.moveCenter(ArrowCentre + arrow.place * ArrowSide);
        button->setGeometry(area);
        cmdpre.add(int(arrow.direction), button);
    }
}

void ElementsPane::buildButtons()
{
    cmdhelp = Controls::named(new QPushButton(tr("Captions"), this), QStringLiteral("cmdhelp"));
    cmdhelp->setGeometry(ButtonArea);
    Command9 = Controls::named(new QPushButton(tr("Crystal structure"), this), QStringLiteral("Command9"));
    Command9->setGeometry(ButtonArea.translated(0, ButtonPitch));
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
        // Unlike the refresh below, this one knows no third value of the option.
        const bool tips = m_module1.OptionSlots(Slot::ToolTips).equals(1);
        imgato->setToolTip(tips ? m_panel.lblatome[1] : QString());
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

// The bar closes for good: the walk goes on from the element picked last, or from the first if none was.
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
    // Loaded even where the portrait is on show: a missing file ends the program in either case.
    imgato->setPicture(PictureFile::load(m_panel.picturePath));
    ReyFrame2->showValues(m_panel);
    m_table->mark(m_panel.shownElement);
    showVisibility();
    refreshToolTips();
}

void ElementsPane::showVisibility()
{
    imgato->setVisible(m_panel.imgatoShown);
    Picture1->setVisible(m_panel.Picture1Shown);
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

void ElementsPane::refreshToolTips()
{
    const auto refresh = [this](QWidget &control, const QString &text) {
        ToolTips::refresh(m_module1.OptionSlots, control, text);
    };
    m_findBar.refreshToolTip(m_module1.OptionSlots);
    if (isBuilt()) {
        refresh(*cmdhelp, QStringLiteral("Display captions"));
        for (const Arrow &arrow : Arrows)
            refresh(cmdpre[int(arrow.direction)], QLatin1StringView(arrow.toolTip));
        refresh(*Command9, QStringLiteral("Display crystal structure"));
        refresh(*Picture1, Portrait::inscription());
        refresh(*imgato, QStringLiteral("Picture of element ") + m_panel.lblatome[1]);
    }
    Q_EMIT toolTipsRefreshed();
}
