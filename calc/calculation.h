#pragma once

#include "calc/checked.h"
#include "calc/solver.h"

#include <span>

/// One click on "Calculate" while it runs: the texts it reads, and what has come of it so far.
class Calculation final
{
public:
    Calculation(const FieldTexts &texts, std::optional<double> vaporisationEntropy);

    /// A field counts as filled when its text is not empty; nothing is trimmed.
    FieldSet filled() const { return m_filled; }
    const QString &text(Field field) const { return m_texts[field]; }

    /// The number in a field. RuntimeError 13 if its text is none.
    Checked operator[](Field field) const;

    /// J/(mol K)
    std::optional<Checked> vaporisationEntropy() const { return m_vaporisationEntropy; }

    /// From now on the field reads as the text written. What counted as filled at the click stays so.
    void write(Field field, Checked number);

    /// A message ends the click.
    void refuse(const char *message) { m_outcome.message = QString::fromLatin1(message); }

    const Outcome &outcome() const { return m_outcome; }

private:
    FieldTexts m_texts;
    FieldSet m_filled{};
    std::optional<Checked> m_vaporisationEntropy;
    Outcome m_outcome;
};

/// A row of a tab's table: what to do when these fields are filled and those are empty.
struct Pattern
{
    FieldSet filled;
    FieldSet empty;
    void (*act)(Calculation &);
};

/// What a tab does at a click on "Calculate": first it counts, then it checks, then the first pattern that
/// fits decides.
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
