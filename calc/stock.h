#pragma once

#include <QList>
#include <QString>

/// A concentrated reagent, with the figures on its bottle.
struct Stock
{
    double percent = 0;   ///< by mass
    double density = 0;   ///< g/mL
    double molarMass = 0; ///< g/mol

    /// mol/L
    double molarity() const { return 10 * percent * density / molarMass; }

    /// mL of it in @p volume mL of a solution of @p concentration mol/L.
    double volumeFor(double concentration, double volume) const
    {
        return concentration * volume / molarity();
    }

    /// mol/L of @p taken mL of it in @p volume mL.
    double concentrationOf(double taken, double volume) const { return molarity() * taken / volume; }

    /// All figures are above 0, and the per cent at most 100.
    bool isPossible() const { return percent > 0 && percent <= 100 && density > 0 && molarMass > 0; }
};

/// A row of the list of reagents that the program ships.
struct StockReagent
{
    QString name; ///< with the strength: "Hydrochloric acid 37 %"
    Stock stock;
    QString safety; ///< one line
};

namespace StockReagents {

/// Reads the tab-separated UTF-8 text of the file: a header, then a row for each reagent. A row that is not
/// complete, or whose figures are not possible, is left out.
QList<StockReagent> parse(const QString &text);

} // namespace StockReagents
