#include "options/statistics.h"

#include "core/module1.h"
#include "store/datastore.h"

#include <array>

namespace {

using Statistics::Count;
using Statistics::Page;

// Rows read by a load step, less the rows that do not count.
template<int Step, int LessBy = 0>
int rows(const DataStore &store, const Module1 &)
{
    return store.tallies.rows[Step] - LessBy;
}

template<int RowTallies::*Tally, int MoreBy = 0>
int tally(const DataStore &store, const Module1 &)
{
    return store.tallies.*Tally + MoreBy;
}

int solvents(const DataStore &store, const Module1 &)
{
    return store.lists.ListView1.rowCount();
}

int unitItems(const DataStore &, const Module1 &module)
{
    return module.UnitItemCount;
}

constexpr std::array Solvents{
    Count{11, "Solvents (properties):", 12, solvents},
    Count{46, "Solvents (NMR):", 45, tally<&RowTallies::carbonShifts, 1>},
    Count{36, "Solvents (mass spec.):", 44, rows<28>},
    Count{40, "Cooling mixtures:", 39, rows<10>},
};

constexpr std::array Solutions{
    Count{17, "Acid/Base couples:", 18, rows<11>},
    Count{19, "RedOx couples:", 16, rows<12>},
    Count{21, "Acid/Base indicators:", 20, tally<&RowTallies::acidBaseIndicators>},
    Count{22, "Fluorescence indicators:", 23, tally<&RowTallies::fluorescentIndicators>},
    Count{38, "Solubility products:", 37, rows<26>},
    Count{42, "Formation of complexes:", 43, rows<27>},
    Count{34, "Fluorochroms:", 35, rows<13>},
};

constexpr std::array Elements{
    Count{8, "Elements:", 13, rows<3>},
    Count{52, "Radioactive isotopes:", 51, tally<&RowTallies::isotopes>},
};

constexpr std::array Biochemistry{
    Count{25, "Amino acids:", 24, rows<14>},
    Count{32, "Carbohydrates:", 33, rows<16>},
    Count{31, "Fatty acids:", 30, rows<17>},
};

// The tables of shifts end with overviews, which are not groups: four for protons, one for carbon.
constexpr std::array Spectroscopy{
    Count{48, "Proton NMR (groups):", 47, rows<19, 4>},
    Count{49, "Carbon NMR (groups):", 50, rows<20, 1>},
    Count{55, "IR - Charts (functions):", 56, rows<30>},
    Count{58, "IR - Table (bonds):", 57, tally<&RowTallies::irBonds>},
};

constexpr std::array Calculations{
    Count{9, "Constants:", 14, rows<6>},
    Count{10, "Units (dimensions):", 15, rows<7>},
    Count{54, "Units (conversions):", 53, unitItems},
};

constexpr std::array<Page, 6> AllPages{{
    {"Solvents", Solvents},
    {"Solutions", Solutions},
    {"Elements", Elements},
    {"Biochemistry", Biochemistry},
    {"Spectroscopy", Spectroscopy},
    {"Calculations", Calculations},
}};

} // namespace

std::span<const Page> Statistics::pages()
{
    return AllPages;
}
