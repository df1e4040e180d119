#pragma once

#include "calc/calcfields.h"

#include <QStringList>
#include <optional>

/// What a click on "Calculate" does: fields that get a text, in this order, then a message. Either may be
/// missing; both are if nothing fits.
struct Outcome
{
    QList<Change> changes;
    QString message;

    friend bool operator==(const Outcome &a, const Outcome &b) = default;
};

namespace Solver {

/// Calculates tab @p tab of `TabStrip4` (1 to 6) from the texts of the fields.
///
/// Numbers are read and written by the user's locale. @p vaporisationEntropy is the molar entropy of
/// vaporisation in J/(mol K) that tab 6 takes in place of an enthalpy; without one that tab does nothing.
/// It never throws: a division by zero and an overflow are the message "Impossible to perform calculation",
/// every other failure is silent; what was written before it stays written.
Outcome solve(int tab, const FieldTexts &texts, std::optional<double> vaporisationEntropy = std::nullopt);

} // namespace Solver
