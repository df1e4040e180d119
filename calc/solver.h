#pragma once

#include "calc/calcfields.h"

#include <optional>

/// What a click on "Calculate" does: write these changes in order, then show the message. Both are empty if
/// no pattern fits.
struct Outcome
{
    QList<Change> changes;
    QString message;

    friend bool operator==(const Outcome &a, const Outcome &b) = default;
};

namespace Solver {

/// Calculates tab @p tab of `TabStrip4` (1 to 6) from the texts of the fields, in the user's locale.
///
/// @p vaporisationEntropy, J/(mol K), is for tab 6, which does nothing without it. Never throws: a division
/// by zero or an overflow is the message "Impossible to perform calculation", any other failure is silent;
/// changes before the failure remain.
Outcome solve(int tab, const FieldTexts &texts, std::optional<double> vaporisationEntropy = std::nullopt);

} // namespace Solver
