#pragma once

#include "calc/checked.h"
#include "calc/solver.h"
#include "core/numbers.h"

#include <span>
#include <variant>

/// A running calculation: the texts of the fields at the click on "Calculate" and the outcome so far.
class Calculation final
{
public:
    Calculation(const FieldTexts &texts, std::optional<double> vaporisationEntropy);

    /// The fields that were not empty at the click; blanks count.
    FieldSet filled() const { return m_filled; }
    const QString &text(Field field) const { return m_texts[field]; }

    /// RuntimeError 13 if the text is not a number.
    Checked operator[](Field field) const { return Numbers::requireLocal(m_texts[field]); }

    /// J/(mol K)
    std::optional<Checked> vaporisationEntropy() const { return m_vaporisationEntropy; }

    /// Later reads of the field see the new text; filled() does not change.
    void write(Field field, Checked number);

    void refuse(const char *message) { m_outcome.message = message; }

    const Outcome &outcome() const { return m_outcome; }

private:
    FieldTexts m_texts;
    FieldSet m_filled{};
    std::optional<Checked> m_vaporisationEntropy;
    Outcome m_outcome;
};

/// If these fields are filled and those are empty: the message to show, or the calculation.
struct Pattern
{
    FieldSet filled;
    FieldSet empty;
    std::variant<const char *, void (*)(Calculation &)> answer;
};

/// What a click on "Calculate" does on a tab: count the filled fields, run the check, then apply the first
/// pattern that fits.
struct TabSolver
{
    FieldSet counted;
    int fewestFilled;
    const char *tooFew;
    void (*check)(Calculation &);
    std::span<const Pattern> patterns;
};

extern const TabSolver AmountSolver; ///< tabs 1 and 2
extern const TabSolver VolumicMassSolver;
extern const TabSolver DilutionSolver;
extern const TabSolver FractionSolver;
extern const TabSolver VapourPressureSolver;
