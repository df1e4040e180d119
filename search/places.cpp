#include "search/places.h"

#include <algorithm>

namespace {

using enum AnswerColumn::Use;
using enum ListPlace::Content;

constexpr AnswerColumn Properties[]{{4, "bp", "°C"},  {3, "mp", "°C"}, {1, "M", "g/mol"},
                                    {2, "d", "kg/L"}, {5, "n"},        {6, "CAS", "", Searched}};
constexpr AnswerColumn ProtonShifts[]{{1, "", "", Searched}, {2, "", "", Searched},  {3, "CDCl3", "ppm"},
                                      {4, "acetone", "ppm"}, {5, "DMSO", "ppm"},     {6, "benzene", "ppm"},
                                      {7, "MeCN", "ppm"},    {8, "methanol", "ppm"}, {9, "water", "ppm"}};
constexpr AnswerColumn CarbonShifts[]{{1, "", "", Searched},  {2, "CDCl3", "ppm"},   {3, "acetone", "ppm"},
                                      {4, "DMSO", "ppm"},     {5, "benzene", "ppm"}, {6, "MeCN", "ppm"},
                                      {7, "methanol", "ppm"}, {8, "water", "ppm"}};
constexpr AnswerColumn Miscibilities[]{{3, "non-miscible:"}, {1, "polarity index"}, {2, "in water", "%"}};
constexpr AnswerColumn Peaks[]{{1, "m/z"}, {2, "m/z"}, {3, "m/z"}, {4, "m/z"}, {5, "m/z"},
                               {6, "m/z"}, {7, "m/z"}, {8, "m/z"}, {9, "m/z"}, {10, "m/z"}};
constexpr AnswerColumn DryingAgents[]{{1, "dried with", "", Searched}};
constexpr AnswerColumn Temperatures[]{{1, "cools to", "°C", Searched}};
constexpr AnswerColumn AcidCouples[]{
    {1, "", "", Searched}, {2, "pKa1"}, {3, "pKa2"}, {4, "pKa3"}, {5, "pKa4"}};
constexpr AnswerColumn RedoxCouples[]{{1, "E°", "V"}};
constexpr AnswerColumn Salts[]{{1, "", "", Searched}, {2, "Ks"}};
constexpr AnswerColumn Complexes[]{{1, "Kf"}};
constexpr AnswerColumn Indicators[]{{1, "pH"}, {2, "", "", Searched}};
constexpr AnswerColumn Fluorochromes[]{{1, "ex", "nm"}, {2, "em", "nm"}};
constexpr AnswerColumn NaturalAcids[]{{1, "", "", Searched},
                                      {2, "", "", Searched},
                                      {3, "M", "g/mol"},
                                      {8, "pI"},
                                      {5, "pKa"},
                                      {6, "pKb"},
                                      {7, "pKc"},
                                      {4, "mp", "°C"},
                                      {9, "in water", "g/kg"}};
constexpr AnswerColumn SyntheticAcids[]{
    {1, "", "", Searched}, {2, "M", "g/mol"},      {8, "pI"}, {4, "pKa"}, {5, "pKb"}, {6, "pKc"}, {7, "pKd"},
    {3, "mp", "°C"},       {9, "in water", "g/kg"}};
constexpr AnswerColumn Bases[]{{1, "", "", Searched}, {2, "M", "g/mol"}, {3, "pKa1"},
                               {4, "pKa2"},           {5, "pKa3"},       {6, "in water"}};
constexpr AnswerColumn Sugars[]{{1, "", "", Searched}, {2, "", "", Searched}};
constexpr AnswerColumn FattyAcids[]{
    {1, "", "", Searched}, {2, "", "", Searched}, {3, "M", "g/mol"}, {4, "mp", "°C"}, {5, "in water", "%"}};
constexpr AnswerColumn Codons[]{{1, "", "", Searched}, {2, "", "", Searched}, {3, "", "", Searched},
                                {4, "", "", Searched}, {5, "", "", Searched}, {6, "", "", Searched}};
constexpr AnswerColumn Standards[]{{1, "", "", Searched}, {2, "mass"}};
constexpr AnswerColumn Separations[]{{1, "acrylamide"}};
constexpr AnswerColumn Recipe[]{{1, ""}, {2, ""}};
constexpr AnswerColumn ResolvingGels[]{
    {1, "5 %:"}, {2, "7.5 %:"}, {3, "10 %:"}, {4, "12.5 %:"}, {5, "15 %:"}};
constexpr AnswerColumn StackingGel[]{{1, "4 %:"}};
constexpr AnswerColumn Bands[]{{1, "", "", Searched}, {2, "", "cm-1"}};
constexpr AnswerColumn ConstantValues[]{{1, "", "", Searched}, {2, " ="}, {3, " "}};
constexpr AnswerColumn SiUnits[]{{1, "", "", Searched}, {2, "", "", Searched}, {4, " ="}};
constexpr AnswerColumn Elements[]{{1, "", "", Searched}, {2, "Z", "", Searched}, {3, "M", "g/mol"},
                                  {6, "mp", "°C"},       {7, "bp", "°C"},        {5, "d", "g/cm³"}};
constexpr AnswerColumn Codes[]{{1, "", "ohm"}};

struct QuantityName
{
    const char *label;
    const char *words;
};

constexpr QuantityName Quantities[]{{"bp", "boiling point"},
                                    {"mp", "melting point"},
                                    {"M", "molar mass"},
                                    {"d", "density, volumic mass"},
                                    {"n", "refractive index"},
                                    {"E°", "standard potential"},
                                    {"Ks", "solubility product"},
                                    {"Kf", "formation constant"},
                                    {"pI", "isoelectric point"},
                                    {"ex", "excitation"},
                                    {"em", "emission"},
                                    {"in water", "solubility"},
                                    {"non-miscible:", "immiscible"},
                                    {"cools to", "salt bath, temperature"}};

// Commands of the panes that choose no tab.
constexpr int SolutionsPane = 1113;
constexpr int BiochemistryPane = 1109;
constexpr int CalculationsPane = 1120;
constexpr int ElectronicsPane = 1141;

template<RowList RowLists::*List>
const RowList &list(const RowLists &lists)
{
    return lists.*List;
}

// clang-format off
constexpr ListPlace Table[]{
    {"ListView1", "Solvents, properties", 1119, nullptr, 0, nullptr, list<&RowLists::ListView1>, Properties, Compounds},
    {Places::Elements, "Elements", 1108, nullptr, 0, nullptr, nullptr, Elements},
    {"ListView3(2)", "Acid/base couples, inorganic", SolutionsPane, "TabStrip2", 0, "Option4(0)", ListView3<2>, AcidCouples, Compounds},
    {"ListView3(3)", "Acid/base couples, organic", SolutionsPane, "TabStrip2", 0, "Option4(1)", ListView3<3>, AcidCouples, Compounds},
    {"ListView3(9)", "Natural amino acids", BiochemistryPane, "TabStrip9", 0, "Option5(0)", ListView3<9>, NaturalAcids, Compounds},
    {"Comb2", "Genetic code, codons", BiochemistryPane, nullptr, 0, "Option3(1)", list<&RowLists::Comb2>, Codons, Compounds},
    {"ListView3(10)", "Synthetic amino acids", BiochemistryPane, "TabStrip9", 0, "Option5(1)", ListView3<10>, SyntheticAcids, Compounds},
    {"ListView6", "Solvents, miscibility and polarity", 1116, nullptr, 0, nullptr, list<&RowLists::ListView6>, Miscibilities, Compounds},
    {"ListView4", "Solvents, proton NMR", 1115, nullptr, 0, "Option1", list<&RowLists::ListView4>, ProtonShifts, Compounds},
    {"ListView5", "Solvents, carbon NMR", 1115, nullptr, 0, "Option2", list<&RowLists::ListView5>, CarbonShifts, Compounds},
    {"ListView3(26)", "Solvents, mass spectrometry", 1133, nullptr, 0, nullptr, ListView3<26>, Peaks, Compounds},
    {"ListView8", "Solvents, drying", 1118, nullptr, 0, nullptr, list<&RowLists::ListView8>, DryingAgents, Compounds},
    {"ListView9", "Cooling mixtures", 1117, nullptr, 0, nullptr, list<&RowLists::ListView9>, Temperatures},
    {"ListView3(4)", "RedOx couples", SolutionsPane, "TabStrip2", 1, nullptr, ListView3<4>, RedoxCouples},
    {"ListView3(24)", "Solubility of salts", SolutionsPane, "TabStrip10", 0, nullptr, ListView3<24>, Salts},
    {"ListView3(25)", "Formation of complexes", SolutionsPane, "TabStrip10", 1, nullptr, ListView3<25>, Complexes},
    {"ListView3(0)", "Indicators, Merck", SolutionsPane, "TabStrip7", 0, "Option4(2)", ListView3<0>, Indicators, Compounds},
    {"ListView3(1)", "Indicators, Riedel-deHaën", SolutionsPane, "TabStrip7", 0, "Option4(3)", ListView3<1>, Indicators, Compounds},
    {"ListView3(6)", "Indicators, fluorescence", SolutionsPane, "TabStrip7", 1, nullptr, ListView3<6>, Indicators, Compounds},
    {"ListView3(7)", "Fluorochroms, Carl-Zeiss", SolutionsPane, nullptr, 0, "Option4(4)", ListView3<7>, Fluorochromes, Compounds},
    {"ListView3(8)", "Fluorochroms, Olympus", SolutionsPane, nullptr, 0, "Option4(5)", ListView3<8>, Fluorochromes, Compounds},
    {"ListView3(11)", "Pyrimidines", BiochemistryPane, "TabStrip9", 1, "Option5(2)", ListView3<11>, Bases, Compounds},
    {"ListView3(13)", "Purines", BiochemistryPane, "TabStrip9", 1, "Option5(3)", ListView3<13>, Bases, Compounds},
    {"ListView3(14)", "Carbohydrates", BiochemistryPane, "TabStrip9", 2, nullptr, ListView3<14>, Sugars, Compounds},
    {"ListView3(12)", "Fatty acids", BiochemistryPane, "TabStrip9", 3, nullptr, ListView3<12>, FattyAcids, Compounds},
    {"ListView3(21)", "SDS-PAGE, stock solutions", BiochemistryPane, "TabStrip8", 2, nullptr, ListView3<21>, Recipe, Recipes},
    {"ListView3(22)", "SDS-PAGE, resolving gel", BiochemistryPane, "TabStrip8", 3, "Option4(8)", ListView3<22>, ResolvingGels, Recipes},
    {"ListView3(23)", "SDS-PAGE, stacking gel", BiochemistryPane, "TabStrip8", 3, "Option4(9)", ListView3<23>, StackingGel, Recipes},
    {"ListView3(19)", "SDS-PAGE, staining with Coomassie blue", BiochemistryPane, "TabStrip8", 4, "Option4(7)", ListView3<19>, Recipe, Recipes},
    {"ListView3(20)", "SDS-PAGE, staining with silver", BiochemistryPane, "TabStrip8", 4, "Option4(6)", ListView3<20>, Recipe, Recipes},
    {"ListView3(18)", "SDS-PAGE, protein standards", BiochemistryPane, "TabStrip8", 1, nullptr, ListView3<18>, Standards},
    {"ListView3(17)", "SDS-PAGE, separation", BiochemistryPane, "TabStrip8", 0, nullptr, ListView3<17>, Separations},
    {"ListView3(27)", "Infrared, table", 1145, nullptr, 0, nullptr, ListView3<27>, Bands},
    {"ListView3(5)", "Infrared, charts", 1144, nullptr, 0, nullptr, ListView3<5>},
    {"ListView3(15)", "Proton NMR, charts", 1142, nullptr, 0, nullptr, ListView3<15>},
    {"ListView3(16)", "Carbon NMR, charts", 1143, nullptr, 0, nullptr, ListView3<16>},
    {"ListView3(31)", "Reactions", 1139, nullptr, 0, nullptr, ListView3<31>},
    {"ListView2(0)", "Constants, universal", CalculationsPane, "TabStrip6", 0, nullptr, ListView2<0>, ConstantValues},
    {"ListView2(1)", "Constants, electromagnetic", CalculationsPane, "TabStrip6", 1, nullptr, ListView2<1>, ConstantValues},
    {"ListView2(2)", "Constants, atomic / nuclear", CalculationsPane, "TabStrip6", 2, nullptr, ListView2<2>, ConstantValues},
    {"ListView2(3)", "Constants, physico-chemical", CalculationsPane, "TabStrip6", 3, nullptr, ListView2<3>, ConstantValues},
    {"ListView2(4)", "Constants, mathematical", CalculationsPane, "TabStrip6", 4, nullptr, ListView2<4>, ConstantValues},
    {"ListView7(0)", "SI units", CalculationsPane, "TabStrip5", 0, nullptr, ListView7<0>, SiUnits},
    {"ListView7(1)", "SI units, space / time", CalculationsPane, "TabStrip5", 1, nullptr, ListView7<1>, SiUnits},
    {"ListView7(2)", "SI units, mecanical", CalculationsPane, "TabStrip5", 2, nullptr, ListView7<2>, SiUnits},
    {"ListView7(3)", "SI units, temperature / heat", CalculationsPane, "TabStrip5", 3, nullptr, ListView7<3>, SiUnits},
    {"ListView7(4)", "SI units, electromagnetism", CalculationsPane, "TabStrip5", 4, nullptr, ListView7<4>, SiUnits},
    {"ListView7(5)", "SI units, molecular physics", CalculationsPane, "TabStrip5", 5, nullptr, ListView7<5>, SiUnits},
    {"ListView7(6)", "SI units, radiations", CalculationsPane, "TabStrip5", 6, nullptr, ListView7<6>, SiUnits},
    {"List1", "Conversions, length", CalculationsPane, "TabStrip3", 0},
    {"List11", "Conversions, surface", CalculationsPane, "TabStrip3", 1},
    {"List3", "Conversions, volume", CalculationsPane, "TabStrip3", 2},
    {"List9", "Conversions, mass", CalculationsPane, "TabStrip3", 3},
    {"List7", "Conversions, temperature", CalculationsPane, "TabStrip3", 4},
    {"List15", "Conversions, pressure", CalculationsPane, "TabStrip3", 5},
    {"List5", "Conversions, energy", CalculationsPane, "TabStrip3", 6},
    {"List13", "Conversions, radioactivity", CalculationsPane, "TabStrip3", 7},
    {"ListView3(29)", "EIA-96 codes", ElectronicsPane, "TabStrip11", 2, nullptr, ListView3<29>, Codes},
    {"ListView3(28)", "Normalized values", ElectronicsPane, "TabStrip11", 1, nullptr, ListView3<28>},
    {"frmelec", "Electronics", ElectronicsPane, "TabStrip11", 0},
    {"frmbiblio", "References", 1132},
    {"frmpolym", "Polymers", 1138},
    {"frmdon", "Donate", 1131},
    {Places::HelpPages, "Help", 0},
};
// clang-format on

} // namespace

std::span<const ListPlace> Places::all()
{
    return Table;
}

const ListPlace *Places::find(QStringView list)
{
    const auto *found = std::ranges::find_if(
        Table, [&](const ListPlace &each) { return list == QLatin1StringView(each.list); });
    return found == std::end(Table) ? nullptr : found;
}

QString Places::words(const char *label)
{
    const auto *found = std::ranges::find_if(
        Quantities, [&](const QuantityName &each) { return qstrcmp(each.label, label) == 0; });
    return found == std::end(Quantities) ? QString() : QString::fromUtf8(found->words);
}
