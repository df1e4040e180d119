#include "browsers/biochemistrypane.h"

#include "browsers/geneticcodesection.h"
#include "browsers/paneeffects.h"
#include "core/desktop.h"
#include "core/module1.h"
#include "store/datastore.h"
#include "widgets/structurewindow.h"

#include <numeric>

/// Where a section of the pane stands: heading, tabs, titles and lists one below the other.
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

    Option4.connectEach(&QRadioButton::clicked, this,
                        [this](int index) { apply(PaneEffects::Option4(), index); });
    Option5.connectEach(&QRadioButton::clicked, this,
                        [this](int index) { apply(PaneEffects::Option5(), index); });
    connect(&ListView3[9], &RowListView::rowDoubleClicked, this, &BiochemistryPane::openStructure);
    apply(PaneEffects::Option5(), 0);
    apply(PaneEffects::TabStrip9(), 1);
    apply(PaneEffects::TabStrip8(), 1);
}

TableRow BiochemistryPane::currentRow() const
{
    return m_code->currentRow();
}

// What is made later lies above: the other tabs cover the amino acids, and the buttons of the bases theirs.
// NOLINTNEXTLINE(readability-function-size): a table of columns
void BiochemistryPane::buildBiomolecules()
{
    const Section section{BiomoleculesPlace, TitleFrame::Height};
    Controls::heading(QStringLiteral("Label19(0)"), QStringLiteral("Biomolecules"), this)
        ->setGeometry(section.heading());
    const QPoint first = section.options().topLeft() + QPoint(6, 0);
    placeOptions({&Option5.add(0, new QRadioButton(QStringLiteral("Natural"), this)),
                  &Option5.add(1, new QRadioButton(QStringLiteral("Synthetic"), this))},
                 first);
    auto *grdFrame15 = Controls::named(new QFrame(this), QStringLiteral("grdFrame15"));
    grdFrame15->setAutoFillBackground(true);
    grdFrame15->setGeometry(section.options());
    placeOptions({&Option5.add(2, new QRadioButton(QStringLiteral("Pyrimidines"), grdFrame15)),
                  &Option5.add(3, new QRadioButton(QStringLiteral("Purines"), grdFrame15))},
                 {6, 0});

    makeTabs(
        QStringLiteral("TabStrip9"), {"Amino acids", "Nitrogen bases", "Carbohydrates", "Fatty acids"},
        section.tabs(), [this](int number) { apply(PaneEffects::TabStrip9(), number); }, this);

    const ListColumn mass{"Molar mass (g/mol)", 98, Kind::Number};
    const ListColumn melting{"Melting point (°C)", 106, Kind::Number};
    const ListColumn isoelectric{"Isoelectric point", 86, Kind::Number};
    addList(section, 9,
            {{"Name", 134},
             {"Code", 78},
             {"Formula", 110},
             mass,
             melting,
             {"pKa", 66, Kind::Number},
             {"pKb", 66, Kind::Number},
             {"pKc", 66, Kind::Number},
             isoelectric,
             {"Solubility (g/kg)", 118, Kind::Number}});
    addTitles(section, "grdFrame10", 9, 66);
    addList(section, 10,
            {{"Name", 214, Kind::Wrapped},
             {"Formula", 104},
             {"Molar mass (g/mol)", 86, Kind::Number},
             {"Melting point (°C)", 106, Kind::Number},
             {"pKa", 56, Kind::Number},
             {"pKb", 56, Kind::Number},
             {"pKc", 56, Kind::Number},
             {"pKd", 56, Kind::Number},
             isoelectric,
             {"Solubility (g/kg)", 108, Kind::Number}});
    addTitles(section, "grdFrame11", 10, 76);

    const QList<ListColumn> bases{{"Name", 220},
                                  {"Formula", 130},
                                  mass,
                                  {"pKa1", 100, Kind::Number},
                                  {"pKa2", 100, Kind::Number},
                                  {"pKa3", 100, Kind::Number},
                                  {"Solubility (wt%)", 170, Kind::Number, "%"}};
    addList(section, 11, bases);
    addList(section, 13, bases);
    addTitles(section, "grdFrame12", 11, 86);
    addList(section, 14, {{"Name", 226}, {"Symbol", 170}, {"Systematic name", 532}});
    addTitles(section, "grdFrame13", 14, 93);
    addList(section, 12,
            {{"Name", 160},
             {"Systematic name", 318},
             {"Formula", 110},
             mass,
             melting,
             {"Solubility (%)", 110, Kind::Number}});
    addTitles(section, "grdFrame3", 12, 96);
}

void BiochemistryPane::buildSdsPage()
{
    const Section section{SdsPagePlace, TitleFrame::OneLine};
    Controls::heading(QStringLiteral("Label17(0)"), QStringLiteral("SDS-PAGE"), this)
        ->setGeometry(section.heading());
    placeOptions({&Option4.add(7, new QRadioButton(QStringLiteral("Coomassie blue"), this)),
                  &Option4.add(6, new QRadioButton(QStringLiteral("Silver"), this))},
                 section.options().topLeft() + QPoint(6, 0));
    auto *grdFrame26 = Controls::named(new QFrame(this), QStringLiteral("grdFrame26"));
    grdFrame26->setAutoFillBackground(true);
    grdFrame26->setGeometry(section.options());
    placeOptions({&Option4.add(8, new QRadioButton(QStringLiteral("Resolving gel"), grdFrame26)),
                  &Option4.add(9, new QRadioButton(QStringLiteral("Stacking gel"), grdFrame26))},
                 {6, 0});

    makeTabs(
        QStringLiteral("TabStrip8"),
        {"Separation", "Protein standards", "Stock solutions", "Gels", "Staining"}, section.tabs(),
        [this](int number) { apply(PaneEffects::TabStrip8(), number); }, this);

    addList(section, 17,
            {{"Separation domain (Da)", 240, Kind::Text, "Da"},
             {"% Acrylamide (resolving gel)", 270, Kind::Number, "%"}});
    addTitles(section, "grdFrame21", 17, 102);
    addList(section, 18,
            {{"Kit", 238}, {"Proteins", 192, Kind::Wrapped}, {"MW (Da)", 86, Kind::Number, "Da"}});
    addTitles(section, "grdFrame22", 18, 104);
    addList(section, 21,
            {{"Name", 262, Kind::Wrapped}, {"Final concentration", 172, Kind::Wrapped}, {"Quantity", 82}})
        .showAsRecipes();
    addTitles(section, "grdFrame24", 21, 107);
    const auto gel = [](const QString &title) { return ListColumn{title, 70, Kind::Number}; };
    addList(section, 22,
            {{"Composition", 166, Kind::Wrapped},
             gel("5 %"),
             gel("7.5 %"),
             gel("10 %"),
             gel("12.5 %"),
             gel("15 %")})
        .showAsRecipes();
    addTitles(section, "grdFrame25", 22, 110);
    addList(section, 23, {{"Composition", 260}, {"4 %", 120, Kind::Number}}).showAsRecipes();
    addTitles(section, "grdFrame27", 23, 116);
    const QList<ListColumn> staining{{"Composition", 306, Kind::Wrapped},
                                     {"Final conc.", 118, Kind::Wrapped},
                                     {"Quantity", 92, Kind::Wrapped}};
    addList(section, 19, staining).showAsRecipes();
    addList(section, 20, staining).showAsRecipes();
    addTitles(section, "grdFrame23", 19, 118);
}

RowListView &BiochemistryPane::addList(const Section &section, int index, const QList<ListColumn> &columns)
{
    return ListView3.add(index, makeList({}, m_store.lists.ListView3[index], columns, section.list(), this));
}

// Titles over ListView3(index), in labels that are numbered from @p firstLabel on.
void BiochemistryPane::addTitles(const Section &section, const char *frame, int index, int firstLabel)
{
    const RowListView &list = ListView3[index];
    QList<int> labels(list.columns().size());
    std::iota(labels.begin(), labels.end(), firstLabel);
    auto *titles = new TitleFrame(QLatin1StringView(frame), this, section.titleHeight);
    titles->addTitles(list, Label2, labels);
}

// Of the lists of the pane, only the natural amino acids have pictures. Their numbers begin at 1 like those
// of the solvents, whose pictures lie in the same folder.
void BiochemistryPane::openStructure(int row)
{
    if (m_module.OptionSlots(Slot::Structures).equals(1))
        endOnError(m_desktop, [&] {
            openStructureWindow(m_module, *window(), row + 1, m_store.lists.ListView3[9].text(row));
        });
}
