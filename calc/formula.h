#pragma once

#include <QMap>
#include <QSet>
#include <QStringList>
#include <variant>

/// The position at which a formula cannot be read, and the reason.
struct FormulaError
{
    int position = 0; ///< index into the typed text; its length if something is missing at the end
    QString reason;
};

/// A parsed chemical formula.
struct Formula
{
    QMap<QString, double> atoms; ///< by symbol, "D" and "T" for the isotopes of hydrogen; never 0
    int charge = 0;              ///< in elementary charges
    QStringList groups;          ///< the abbreviations in it, each once: "Me", "Boc"

    /// Reads a formula as chemists type it: brackets of three kinds, hydrates after "·", "*" or ".", a charge
    /// at the end ("SO4 2-", "SO4^2-", "NH4+"), bonds ("CH3-CH=CH2"), subscripts and superscripts, D and T,
    /// and the usual abbreviations of groups ("tBuOH"). @p elements are the symbols that it may contain.
    static std::variant<Formula, FormulaError> parse(const QString &text, const QSet<QString> &elements);

    /// Carbon first, then hydrogen, then the others by the alphabet; without carbon all by the alphabet.
    QStringList hillOrder() const;

    /// "C6H14O7", in Hill order, without the charge.
    QString hill() const;
};

namespace FormulaGroups {

/// What "Ac" or "Boc" is made of: "C2H3O". Empty if it is no group.
QString formula(const QString &abbreviation);

} // namespace FormulaGroups
