#pragma once

#include "search/places.h"

#include <QString>
#include <span>

/// A quantity that is looked up by its number: one line of the grammar.
struct SoughtQuantity
{
    enum Match {
        Near,   ///< within the tolerance, the nearest first
        Inside, ///< ranges that contain the number, the one with the nearest middle first
        Peak    ///< among the peaks of a spectrum, the strongest first
    };

    const char *name;
    const char *example; ///< what a user types
    const char *words;   ///< that choose the quantity, separated by "; "
    const char *units;   ///< the same; the first is that of the cells. Without a word they choose it too
    double tolerance;
    Match match;
    const char *labels;    ///< AnswerColumn::label, separated by "; "; empty: the columns with its unit
    const char *list = ""; ///< the only list that has it
    const char *only = ""; ///< part of the names it is about; a unit alone does not choose it then

    /// The cells are shifts in the solvents of NumberGrammar::solvents(), in their order.
    bool hasSolvents() const;

    QString unit() const;

    /// Whether @p column of @p place has it.
    bool isIn(const ListPlace &place, const AnswerColumn &column) const;

    QString scope() const; ///< "within 0.05 ppm"
    QString order() const; ///< "nearest first"
};

/// A solvent of the tables of NMR shifts.
struct NmrSolvent
{
    const char *name;  ///< of the deuterated solvent
    const char *words; ///< a number beside one of them is a shift; separated by "; "
    const char *plain; ///< the same, for a number with decimals
};

/// A unit that is a multiple of another.
struct UnitMultiple
{
    const char *unit;
    double factor;
};

/// The one table of what the search understands about numbers. The page of the help shows it.
namespace NumberGrammar {

/// At most 32.
std::span<const SoughtQuantity> quantities();
std::span<const NmrSolvent> solvents();
std::span<const UnitMultiple> multiples();

/// Words without a meaning beside numbers, separated by "; ".
inline constexpr char Fillers[] = "and; at; in; of; for; with; about; &; ~";

} // namespace NumberGrammar
