#include "browsers/solventspane.h"

#include "browsers/polarityladder.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "search/findbar.h"
#include "store/datastore.h"
#include "widgets/structurewindow.h"

namespace {

using Kind = ListColumn::Kind;

constexpr int Margin = 4;
constexpr int TabsHeight = 30;
constexpr int ListTop = TabsHeight + TitleFrame::Height + 4;

QRect room(int top = ListTop, int width = ModulePanel::Size.width() - 2 * Margin)
{
    return {Margin, top, width, ModulePanel::Size.height() - Margin - top};
}

} // namespace

SolventsPane::SolventsPane(Module1 &module, DataStore &store, Desktop &desktop, FindBar &findBar,
                           QWidget *parent)
    : BrowserPane("frmsolv", parent), m_module(module), m_store(store), m_desktop(desktop), m_findBar(findBar)
{}

void SolventsPane::selectTab(int number)
{
    build();
    TabStrip1->setCurrentIndex(number - 1);
}

int SolventsPane::currentTab() const
{
    return TabStrip1 ? TabStrip1->currentIndex() + 1 : 1;
}

QString SolventsPane::currentTabCaption() const
{
    return SolventTabs::all()[currentTab() - 1].caption;
}

void SolventsPane::buildContents()
{
    QStringList captions;
    for (const SolventTabs::Tab &tab : SolventTabs::all())
        captions << tab.caption;
    TabStrip1 = makeTabs(
        QStringLiteral("TabStrip1"), captions, {Margin, 2, room().width(), TabsHeight - 2},
        [this](int number) { changeTab(number); }, this);

    // The two buttons lie beneath the lists, where they are parked off their tab.
    Option1 = Controls::named(new QRadioButton(QStringLiteral("Proton"), this), QStringLiteral("Option1"));
    Option2 = Controls::named(new QRadioButton(QStringLiteral("Carbon"), this), QStringLiteral("Option2"));
    placeOptions({Option1, Option2}, {Margin + 6, 0});
    connect(Option1, &QRadioButton::clicked, this, [this] { chooseNucleus(SolventTabs::Proton); });
    connect(Option2, &QRadioButton::clicked, this, [this] { chooseNucleus(SolventTabs::Carbon); });

    buildProperties();
    buildMiscibility();
    buildNmr();
    buildMasses();
    buildDrying();
    m_findBar.setSearchedLists(ListView1, &ListView3[26]);
    apply(SolventTabs::choose(NmrNucleus));
    apply(SolventTabs::change(1, NmrNucleus));
}

void SolventsPane::buildProperties()
{
    ListView1 = makeList(QStringLiteral("ListView1"), m_store.lists.ListView1,
                         {{"Name", 252},
                          {"Molar mass (g/mol)", 112, Kind::Number},
                          {"Volumic mass (kg/L)", 116, Kind::Number},
                          {"Melting point (°C)", 112, Kind::Number},
                          {"Boiling point (°C)", 112, Kind::Number},
                          {"Refractive index", 104, Kind::Number},
                          {"CAS number", 110}},
                         room(), this);
    // The list holds the refractive index before the CAS number, so their titles change places as well.
    (new TitleFrame(QStringLiteral("frmc"), this))->addTitles(*ListView1, Label2, {7, 6, 5, 4, 8, 9, 10});
    connect(ListView1, &RowListView::rowDoubleClicked, this, &SolventsPane::openStructure);
}

void SolventsPane::buildMiscibility()
{
    constexpr int LadderWidth = 344;
    constexpr int Gap = 8;
    auto *list = makeList(QStringLiteral("ListView6"), m_store.lists.ListView6,
                          {{"Name", 174},
                           {"Polarity index", 68, Kind::Number},
                           {"Solub. in water (wt%/%)", 126, Kind::Number},
                           {"Non-miscible", 208, Kind::Wrapped, {}, "none listed"}},
                          room(ListTop, room().width() - LadderWidth - Gap), this);
    (new TitleFrame(QStringLiteral("frmm"), this))->addTitles(*list, Label2, {14, 15, 16, 13});
    auto *ladder = new PolarityLadder(this);
    ladder->setGeometry(list->geometry().right() + 1 + Gap, TabsHeight + 4, LadderWidth,
                        room().bottom() - TabsHeight - 3);
}

void SolventsPane::buildNmr()
{
    const QList<ListColumn> shifts{
        {"Chloroform", 90, Kind::Number}, {"Acetone", 68, Kind::Number},      {"DMSO", 60, Kind::Number},
        {"Benzene", 74, Kind::Number},    {"Acetonitrile", 94, Kind::Number}, {"Methanol", 79, Kind::Number},
        {"Water", 58, Kind::Number},
    };
    const QList<ListColumn> proton{{"Name", 264}, {"Proton", 98}, {"Peak", 50}};
    const QList<ListColumn> carbon{{"Name", 264}, {"Carbon", 148}};
    // A line lower than on the other tabs: the buttons for the nucleus stand above.
    const QRect place = room(ListTop + 22);
    auto *protons =
        makeList(QStringLiteral("ListView4"), m_store.lists.ListView4, proton + shifts, place, this);
    auto *carbons =
        makeList(QStringLiteral("ListView5"), m_store.lists.ListView5, carbon + shifts, place, this);
    auto *frmrmn1 = new TitleFrame(QStringLiteral("frmrmn1"), this);
    frmrmn1->addTitles(*protons, Label2, {18, 19, 20, 21, 17, 22, 23, 12, 11, 24});
    frmrmn1->addTitle(*carbons, 1, Label2, 30);
}

void SolventsPane::buildMasses()
{
    QList<ListColumn> columns{{"Name", 249}, {"e/m (intensity)", 76}};
    for (int peak = 2; peak <= 10; ++peak)
        columns << ListColumn{QStringLiteral("e/m (intensity) %1").arg(peak), 67};
    auto &list = ListView3.add(26, makeList({}, m_store.lists.ListView3[26], columns, room(), this));
    auto *grdFrame30 = new TitleFrame(QStringLiteral("grdFrame30"), this);
    grdFrame30->addTitles(list, Label2, {25});
    grdFrame30->addTitle(list, 1, Label2, 33, 10);
}

void SolventsPane::buildDrying()
{
    auto *agents = makeList(QStringLiteral("ListView8"), m_store.lists.ListView8,
                            {{"Name", 320}, {"Drying agent", 610}}, room(), this);
    (new TitleFrame(QStringLiteral("frmdess"), this))->addTitles(*agents, Label2, {45, 44});
    auto *mixtures = makeList(QStringLiteral("ListView9"), m_store.lists.ListView9,
                              {{"Mixture", 540}, {"Temperature (°C)", 160, Kind::Number}}, room(), this);
    (new TitleFrame(QStringLiteral("frmcool"), this))->addTitles(*mixtures, Label2, {39, 43});
}

void SolventsPane::changeTab(int number)
{
    m_store.lists.ListView2[6].clear();
    if (m_findBar.isSearching())
        m_findBar.ClearFindText();
    if (!SolventTabs::all()[number - 1].searchable)
        m_findBar.ResetSearchPanel();
    apply(SolventTabs::change(number, NmrNucleus));
    Q_EMIT tabChanged();
}

void SolventsPane::chooseNucleus(SolventTabs::Nucleus nucleus)
{
    NmrNucleus = nucleus;
    apply(SolventTabs::choose(nucleus));
}

void SolventsPane::openStructure(int row)
{
    if (m_module.OptionSlots(Slot::Structures).equals(1))
        endOnError(m_desktop, [&] {
            openStructureWindow(m_module, *window(), row + 1, m_store.lists.ListView1.text(row));
        });
}
