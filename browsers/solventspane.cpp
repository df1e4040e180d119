#include "browsers/solventspane.h"

#include "browsers/polarityladder.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "search/findbar.h"
#include "store/datastore.h"
#include "widgets/structurewindow.h"
#include "widgets/windowunits.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = ListColumn::Kind;

constexpr int Margin = 4;
constexpr int TabsHeight = 30;
constexpr int ListTop = TabsHeight + TitleFrame::Height + 4;

// The upper edges of the options for the nucleus, twips.
constexpr int OnTheTab = 480;
constexpr int Parked = 1000;

constexpr std::array TabCaptions{"Properties", "Miscibility and Polarity", "NMR", "Mass spectrometry",
                                 "Drying",     "Cooling mixtures"};
enum Tab { Properties, Miscibility, Nmr, Masses, Drying, Cooling };

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
    return TabCaptions[size_t(currentTab() - 1)];
}

bool SolventsPane::isListView1Shown() const
{
    return currentTab() == Properties + 1;
}

bool SolventsPane::isListView3_26Shown() const
{
    return currentTab() == Masses + 1;
}

void SolventsPane::buildContents()
{
    TabStrip1 = makeTabs(u"TabStrip1"_s, {TabCaptions.begin(), TabCaptions.end()},
                         {Margin, 2, room().width(), TabsHeight - 2}, this);
    connect(TabStrip1, &QTabBar::currentChanged, this, &SolventsPane::changeTab);

    // Made before the lists, which cover them where they are parked.
    Option1 = Controls::named(new QRadioButton(u"Proton"_s, this), u"Option1"_s);
    Option2 = Controls::named(new QRadioButton(u"Carbon"_s, this), u"Option2"_s);
    placeOptions({Option1, Option2}, {Margin + 6, 0});

    buildProperties();
    buildMiscibility();
    buildNmr();
    buildMasses();
    buildDrying();
    m_findBar.setSearchedLists(ListView1, &ListView3[26]);
    showChoice();
}

void SolventsPane::buildProperties()
{
    const QList<ListColumn> columns{{"Name", 252},
                                    {"Molar mass (g/mol)", 112, Kind::Number},
                                    {"Volumic mass (kg/L)", 116, Kind::Number},
                                    {"Melting point (°C)", 112, Kind::Number},
                                    {"Boiling point (°C)", 112, Kind::Number},
                                    {"Refractive index", 104, Kind::Number},
                                    {"CAS number", 110}};
    ListView1 = makeList(u"ListView1"_s, m_store.lists.ListView1, columns, room(), this);
    auto *frmc = new TitleFrame(u"frmc"_s, this);
    // The refractive index comes before the CAS number, so their titles change places too.
    frmc->addTitles(*ListView1, Label2, {7, 6, 5, 4, 8, 9, 10});
    m_contents[Properties] = {ListView1, frmc};
    connect(ListView1, &RowListView::rowDoubleClicked, this, &SolventsPane::openStructure);
}

void SolventsPane::buildMiscibility()
{
    constexpr int LadderWidth = 344;
    constexpr int Gap = 8;
    auto *list = makeList(u"ListView6"_s, m_store.lists.ListView6,
                          {{"Name", 174},
                           {"Polarity index", 68, Kind::Number},
                           {"Solub. in water (wt%/%)", 126, Kind::Number},
                           {"Non-miscible", 208, Kind::Wrapped, {}, "none listed"}},
                          room(ListTop, room().width() - LadderWidth - Gap), this);
    auto *frmm = new TitleFrame(u"frmm"_s, this);
    frmm->addTitles(*list, Label2, {14, 15, 16, 13});
    auto *ladder = new PolarityLadder(this);
    ladder->setGeometry(list->geometry().right() + 1 + Gap, TabsHeight + 4, LadderWidth,
                        room().bottom() - TabsHeight - 3);
    m_contents[Miscibility] = {list, frmm, ladder};
}

void SolventsPane::buildNmr()
{
    const QList<ListColumn> shifts{
        {"Chloroform", 90, Kind::Number, "ppm"},   {"Acetone", 68, Kind::Number, "ppm"},
        {"DMSO", 60, Kind::Number, "ppm"},         {"Benzene", 74, Kind::Number, "ppm"},
        {"Acetonitrile", 94, Kind::Number, "ppm"}, {"Methanol", 79, Kind::Number, "ppm"},
        {"Water", 58, Kind::Number, "ppm"},
    };
    const QList<ListColumn> proton{{"Name", 264}, {"Proton", 98}, {"Peak", 50}};
    const QList<ListColumn> carbon{{"Name", 264}, {"Carbon", 148}};
    const QRect place = room(ListTop + 22); // below the options for the nucleus
    ListView4 = makeList(u"ListView4"_s, m_store.lists.ListView4, proton + shifts, place, this);
    ListView5 = makeList(u"ListView5"_s, m_store.lists.ListView5, carbon + shifts, place, this);
    auto *frmrmn1 = new TitleFrame(u"frmrmn1"_s, this);
    frmrmn1->addTitles(*ListView4, Label2, {18, 19, 20, 21, 17, 22, 23, 12, 11, 24});
    frmrmn1->addTitle(*ListView5, 1, Label2, 30);
    m_contents[Nmr] = {frmrmn1};
}

void SolventsPane::buildMasses()
{
    QList<ListColumn> columns{{"Name", 249}, {"e/m (intensity)", 76}};
    for (int peak = 2; peak <= 10; ++peak)
        columns << ListColumn{u"e/m (intensity) %1"_s.arg(peak), 67};
    auto &list = ListView3.add(26, makeList({}, m_store.lists.ListView3[26], columns, room(), this));
    auto *grdFrame30 = new TitleFrame(u"grdFrame30"_s, this);
    grdFrame30->addTitles(list, Label2, {25});
    grdFrame30->addTitle(list, 1, Label2, 33, 10);
    m_contents[Masses] = {&list, grdFrame30};
}

void SolventsPane::buildDrying()
{
    auto *agents = makeList(u"ListView8"_s, m_store.lists.ListView8, {{"Name", 320}, {"Drying agent", 610}},
                            room(), this);
    auto *frmdess = new TitleFrame(u"frmdess"_s, this);
    frmdess->addTitles(*agents, Label2, {45, 44});
    m_contents[Drying] = {agents, frmdess};
    auto *mixtures = makeList(u"ListView9"_s, m_store.lists.ListView9,
                              {{"Mixture", 540}, {"Temperature (°C)", 160, Kind::Number}}, room(), this);
    auto *frmcool = new TitleFrame(u"frmcool"_s, this);
    frmcool->addTitles(*mixtures, Label2, {39, 43});
    m_contents[Cooling] = {mixtures, frmcool};
}

void SolventsPane::changeTab()
{
    m_store.lists.ListView2[6].clear();
    if (m_findBar.isSearching())
        m_findBar.ClearFindText();
    if (!isListView1Shown() && !isListView3_26Shown())
        m_findBar.ResetSearchPanel();
    showChoice();
    Q_EMIT tabChanged();
}

void SolventsPane::applyChoice()
{
    const int current = TabStrip1->currentIndex();
    for (size_t tab = 0; tab < m_contents.size(); ++tab) {
        for (QWidget *control : m_contents[tab])
            control->setVisible(int(tab) == current);
    }
    const bool nmr = current == Nmr;
    const bool carbon = Option2->isChecked();
    ListView4->setVisible(nmr && !carbon);
    ListView5->setVisible(nmr && carbon);
    for (const int protonTitle : {19, 20})
        Label2[protonTitle].setVisible(!carbon);
    Label2[30].setVisible(carbon);
    // Off their tab the options are parked beneath the list, never hidden.
    for (QRadioButton *option : {Option1, Option2})
        option->move(option->x(), WindowUnits::pixels(nmr ? OnTheTab : Parked));
}

void SolventsPane::openStructure(int row)
{
    if (m_module.OptionSlots(Slot::Structures).equals(1))
        endOnError(m_desktop, [&] {
            openStructureWindow(m_module, *window(), row + 1, m_store.lists.ListView1.text(row));
        });
}
