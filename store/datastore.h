#pragma once

#include "store/memorytables.h"
#include "store/rowlists.h"

#include <array>

/// Number of rows that each load step read, for the statistics. Steps count from 1.
struct RowTallies final
{
    std::array<int, 36> rows{};    ///< rows read by step n
    int isotopes = 0;              ///< isotope fields of `Elements` that are not empty
    int carbonShifts = 0;          ///< rows of `RMN13C` with a shift in chloroform
    int acidBaseIndicators = 0;    ///< rows of `Indicateurscolores` in ListView3(0) and ListView3(1)
    int fluorescentIndicators = 0; ///< rows of `Indicateurscolores` in ListView3(6)
    int irBonds = 0;               ///< rows of `IRvalues` with a frequency
};

/// All data of a run. LoadTable fills it at start; panes, searches and reports read it.
struct DataStore final
{
    RowLists lists;
    MemoryTables tables;
    RowTallies tallies;

    /// Number of rows of `Solvants`. Both searchable lists use it as their limit.
    int SolventCount = 0;
};
