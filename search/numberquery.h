#pragma once

#include "search/numbergrammar.h"
#include "search/numberspan.h"

#include <bitset>

/// A query for numbers: "2.05 4.12 CDCl3", "m/z 58", "bp 80 n 1.36".
struct NumberQuery final
{
    using Quantities = std::bitset<32>; ///< positions in NumberGrammar::quantities()

    /// One number with the quantities that it may be.
    struct Term
    {
        Quantities quantities;
        NumberSpan span; ///< in the unit of the quantities
        QString number;  ///< as typed
        QString unit;    ///< likewise; empty for that of the quantities
    };

    QList<Term> terms;
    int solvent = -1; ///< position in NumberGrammar::solvents(); -1 for any

    /// Nothing if a word of @p typed is not in the grammar, or a number could be anything.
    static std::optional<NumberQuery> parse(const QString &typed);

    /// "boiling point 80 °C, within 5 °C, nearest first"
    QString understood() const;
};
