#include "browsers/biochemistrypane.h"

#include "browsers/geneticcodesection.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "store/datastore.h"
#include "widgets/structurewindow.h"

#include <numeric>

using namespace Qt::StringLiterals;

/// The place of a section: heading, tabs, titles and lists one below the other.
struct BiochemistryPane::Section
{
    static constexpr int HeadingHeight = 24;
    static constexpr int TabsHeight = 28;

    QRect place;
    int titleHeight;

    QRect heading() const { return {place.x() + 2, place.y(), 140, HeadingHeight}; }
    QRect options() const { return {place.x() + 150, place.y(), place.width() - 150, HeadingHeight}; }
    QRect tabs() const { return {place.x(), place.y() + HeadingHeight, place.width(), TabsHeight}; }
    QRect list() const { return place.adjusted(0, HeadingHeight + TabsHeight + titleHeight, 0, 0); }
};

namespace {

using Kind = ListColumn::Kind;

constexpr QRect BiomoleculesPlace{4, 2, 952, 262};
constexpr QRect SdsPagePlace{4, 272, 538, 264};
constexpr QRect GeneticCodePlace{552, 272, 404, 264};

} // namespace

BiochemistryPane::BiochemistryPane(Module1 &module, DataStore &store, Desktop &desktop, QWidget *parent)
    : BrowserPane("frmbioch", parent), m_module(module), m_store(store), m_desktop(desktop)
{}

void BiochemistryPane::buildContents()
{
    buildBiomolecules();
    buildSdsPage();
    m_code = new GeneticCodeSection(m_store, m_desktop, this);
    m_code->setGeometry(GeneticCodePlace);

    connect(&ListView3[9], &RowListView::rowDoubleClicked, this, &BiochemistryPane::openStructure);
    for (const QTabBar *tabs : {TabStrip8, TabStrip9})
        connect(tabs, &QTabBar::currentChanged, this, &BiochemistryPane::showChoice);
    showChoice();
}

TableRow BiochemistryPane::currentRow() const
{
    return m_code->currentRow();
}

// Later controls are above earlier ones: the other tabs cover the amino acids, and the options of the bases
// those of the amino acids.
void BiochemistryPane::buildBiomolecules()
{
    const Section section{BiomoleculesPlace, TitleFrame::Height};
    Controls::heading(u"Label19(0)"_s, u"Biomolecules"_s, this)->setGeometry(section.heading());
    addOptions(Option5, {{0, "Natural"}, {1, "Synthetic"}}, section.options().topLeft() + QPoint(6, 0), this);
    grdFrame15 = makeOptionFrame(u"grdFrame15"_s, section);
    addOptions(Option5, {{2, "Pyrimidines"}, {3, "Purines"}}, {6, 0}, grdFrame15);
    TabStrip9 = makeTabs(u"TabStrip9"_s, {"Amino acids", "Nitrogen bases", "Carbohydrates", "Fatty acids"},
                         section.tabs(), this);

    const QList<ListColumn> natural{{"Name", 134},
                                    {"Code", 78},
                                    {"Formula", 110},
                                    {"Molar mass (g/mol)", 98, Kind::Number},
                                    {"Melting point (°C)", 106, Kind::Number},
                                    {"pKa", 66, Kind::Number},
                                    {"pKb", 66, Kind::Number},
                                    {"pKc", 66, Kind::Number},
                                    {"Isoelectric point", 86, Kind::Number},
                                    {"Solubility (g/kg)", 118, Kind::Number}};
    addList(section, 9, natural);
    addTitles(section, u"grdFrame10"_s, 9, 66);
    const QList<ListColumn> synthetic{{"Name", 214, Kind::Wrapped},
                                      {"Formula", 104},
                                      {"Molar mass (g/mol)", 86, Kind::Number},
                                      {"Melting point (°C)", 106, Kind::Number},
                                      {"pKa", 56, Kind::Number},
                                      {"pKb", 56, Kind::Number},
                                      {"pKc", 56, Kind::Number},
                                      {"pKd", 56, Kind::Number},
                                      {"Isoelectric point", 86, Kind::Number},
                                      {"Solubility (g/kg)", 108, Kind::Number}};
    addList(section, 10, synthetic);
    addTitles(section, u"grdFrame11"_s, 10, 76);

    const QList<ListColumn> bases{{"Name", 220},
                                  {"Formula", 130},
                                  {"Molar mass (g/mol)", 98, Kind::Number},
                                  {"pKa1", 100, Kind::Number},
                                  {"pKa2", 100, Kind::Number},
                                  {"pKa3", 100, Kind::Number},
                                  {"Solubility (wt%)", 170, Kind::Number, "%"}};
    addList(section, 11, bases);
    addList(section, 13, bases);
    addTitles(section, u"grdFrame12"_s, 11, 86);
    addList(section, 14, {{"Name", 226}, {"Symbol", 170}, {"Systematic name", 532}});
    addTitles(section, u"grdFrame13"_s, 14, 93);
    const QList<ListColumn> acids{{"Name", 160},
                                  {"Systematic name", 318},
                                  {"Formula", 110},
                                  {"Molar mass (g/mol)", 98, Kind::Number},
                                  {"Melting point (°C)", 106, Kind::Number},
                                  {"Solubility (%)", 110, Kind::Number}};
    addList(section, 12, acids);
    addTitles(section, u"grdFrame3"_s, 12, 96);
}

void BiochemistryPane::buildSdsPage()
{
    const Section section{SdsPagePlace, TitleFrame::OneLine};
    Controls::heading(u"Label17(0)"_s, u"SDS-PAGE"_s, this)->setGeometry(section.heading());
    addOptions(Option4, {{7, "Coomassie blue"}, {6, "Silver"}}, section.options().topLeft() + QPoint(6, 0),
               this);
    grdFrame26 = makeOptionFrame(u"grdFrame26"_s, section);
    addOptions(Option4, {{8, "Resolving gel"}, {9, "Stacking gel"}}, {6, 0}, grdFrame26);
    TabStrip8 =
        makeTabs(u"TabStrip8"_s, {"Separation", "Protein standards", "Stock solutions", "Gels", "Staining"},
                 section.tabs(), this);

    addList(section, 17,
            {{"Separation domain (Da)", 240, Kind::Text, "Da"},
             {"% Acrylamide (resolving gel)", 270, Kind::Number, "%"}});
    addTitles(section, u"grdFrame21"_s, 17, 120);
    addList(section, 18,
            {{"Kit", 238}, {"Proteins", 192, Kind::Wrapped}, {"MW (Da)", 86, Kind::Number, "Da"}});
    addTitles(section, u"grdFrame22"_s, 18, 122);
    addList(section, 21,
            {{"Name", 262, Kind::Wrapped}, {"Final concentration", 172, Kind::Wrapped}, {"Quantity", 82}})
        .showAsRecipes();
    addTitles(section, u"grdFrame24"_s, 21, 125);
    QList<ListColumn> gels{{"Composition", 166, Kind::Wrapped}};
    for (const char *acrylamide : {"5 %", "7.5 %", "10 %", "12.5 %", "15 %"})
        gels << ListColumn{acrylamide, 70, Kind::Number};
    addList(section, 22, gels).showAsRecipes();
    addTitles(section, u"grdFrame25"_s, 22, 128);
    addList(section, 23, {{"Composition", 260}, {"4 %", 120, Kind::Number}}).showAsRecipes();
    addTitles(section, u"grdFrame27"_s, 23, 134);
    const QList<ListColumn> staining{{"Composition", 306, Kind::Wrapped},
                                     {"Final conc.", 118, Kind::Wrapped},
                                     {"Quantity", 92, Kind::Wrapped}};
    addList(section, 19, staining).showAsRecipes();
    addList(section, 20, staining).showAsRecipes();
    addTitles(section, u"grdFrame23"_s, 19, 136);
}

QFrame *BiochemistryPane::makeOptionFrame(const QString &name, const Section &section)
{
    auto *frame = Controls::named(new QFrame(this), name);
    frame->setAutoFillBackground(true);
    frame->setGeometry(section.options());
    return frame;
}

RowListView &BiochemistryPane::addList(const Section &section, int index, const QList<ListColumn> &columns)
{
    return ListView3.add(index, makeList({}, m_store.lists.ListView3[index], columns, section.list(), this));
}

// Titles over ListView3(index), in labels that are numbered from @p firstLabel on.
void BiochemistryPane::addTitles(const Section &section, const QString &frame, int index, int firstLabel)
{
    const RowListView &list = ListView3[index];
    QList<int> labels(list.columns().size());
    std::iota(labels.begin(), labels.end(), firstLabel);
    m_titles[index] = new TitleFrame(frame, this, section.titleHeight);
    m_titles[index]->addTitles(list, Label2, labels);
}

void BiochemistryPane::applyChoice()
{
    showBiomolecules(TabStrip9->currentIndex() + 1);
    showSdsPage(TabStrip8->currentIndex() + 1);
}

void BiochemistryPane::showBiomolecules(int tab)
{
    const bool synthetic = Option5[1].isChecked();
    const bool purines = Option5[3].isChecked();
    ListView3[9].setVisible(!synthetic); // the amino acids stay on beneath the other tabs
    ListView3[10].setVisible(synthetic);
    m_titles[10]->setVisible(tab == 1 && synthetic); // above the titles of the natural ones
    ListView3[11].setVisible(tab == 2 && !purines);
    ListView3[13].setVisible(tab == 2 && purines);
    m_titles[11]->setVisible(tab == 2);
    grdFrame15->setVisible(tab == 2);
    ListView3[14].setVisible(tab == 3);
    m_titles[14]->setVisible(tab == 3);
    ListView3[12].setVisible(tab == 4);
    m_titles[12]->setVisible(tab == 4);
    if (tab != 2) { // there grdFrame15 covers them
        Option5[0].setVisible(tab == 1);
        Option5[1].setVisible(tab == 1);
    }
}

void BiochemistryPane::showSdsPage(int tab)
{
    constexpr std::array OneListTabs{17, 18, 21};
    for (int index = 0; index < int(OneListTabs.size()); ++index) {
        const int list = OneListTabs[size_t(index)];
        ListView3[list].setVisible(tab == index + 1);
        m_titles[list]->setVisible(tab == index + 1);
    }
    const bool gels = tab == 4;
    const bool stacking = Option4[9].isChecked();
    ListView3[22].setVisible(gels && !stacking);
    m_titles[22]->setVisible(gels);
    ListView3[23].setVisible(gels && stacking);
    m_titles[23]->setVisible(gels && stacking); // above the titles of the resolving gels
    grdFrame26->setVisible(gels);

    const bool stains = tab == 5;
    const bool silver = Option4[6].isChecked();
    ListView3[19].setVisible(stains && !silver);
    ListView3[20].setVisible(stains && silver);
    m_titles[19]->setVisible(stains);

    for (const auto &[index, option] : Option4)
        option->setVisible(index <= 7 ? stains : gels);
}

// Natural amino acids and solvents share the folder of pictures and its numbers from 1.
void BiochemistryPane::openStructure(int row)
{
    if (m_module.OptionSlots(Slot::Structures).equals(1))
        endOnError(m_desktop, [&] {
            openStructureWindow(m_module, *window(), row + 1, m_store.lists.ListView3[9].text(row));
        });
}
