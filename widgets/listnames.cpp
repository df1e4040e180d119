#include "widgets/listnames.h"

namespace {

struct Entry
{
    const char *list;
    const char *content;
};

constexpr Entry Entries[] = {
    {"ListView1", "Properties of solvents"},
    {"ListView4", "Proton shifts of impurities"},
    {"ListView5", "Carbon shifts of impurities"},
    {"ListView6", "Miscibility and polarity of solvents"},
    {"ListView8", "Drying agents"},
    {"ListView9", "Cooling mixtures"},
    {"ListView100", "Abbreviations of journals"},
    {"ListView3(0)", "Acid/base indicators, Merck"},
    {"ListView3(1)", "Acid/base indicators, Riedel-deHaën"},
    {"ListView3(2)", "Inorganic acid/base couples"},
    {"ListView3(3)", "Organic acid/base couples"},
    {"ListView3(4)", "Red-ox couples"},
    {"ListView3(5)", "Infrared charts by functional group"},
    {"ListView3(6)", "Fluorescence indicators"},
    {"ListView3(7)", "Fluorochromes, Carl-Zeiss"},
    {"ListView3(8)", "Fluorochromes, Olympus"},
    {"ListView3(9)", "Natural amino acids"},
    {"ListView3(10)", "Synthetic amino acids"},
    {"ListView3(11)", "Pyrimidines"},
    {"ListView3(12)", "Fatty acids"},
    {"ListView3(13)", "Purines"},
    {"ListView3(14)", "Carbohydrates"},
    {"ListView3(15)", "Proton NMR motifs"},
    {"ListView3(16)", "Carbon NMR motifs"},
    {"ListView3(17)", "Separation domains"},
    {"ListView3(18)", "Protein standards"},
    {"ListView3(19)", "Staining with Coomassie blue"},
    {"ListView3(20)", "Staining with silver"},
    {"ListView3(21)", "Stock solutions"},
    {"ListView3(22)", "Resolving gels"},
    {"ListView3(23)", "Stacking gel"},
    {"ListView3(24)", "Solubility products of salts"},
    {"ListView3(25)", "Formation of complexes"},
    {"ListView3(26)", "Mass spectra of solvents"},
    {"ListView3(27)", "Infrared bands"},
    {"ListView3(28)", "Standard series of resistances"},
    {"ListView3(29)", "EIA-96 codes"},
    {"ListView3(31)", "Organic reactions"},
};

} // namespace

QString ListNames::of(const QString &list)
{
    for (const Entry &entry : Entries) {
        if (list == entry.list)
            return entry.content;
    }
    return {};
}
