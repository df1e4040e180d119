#pragma once

#include "calc/formula.h"

#include <QHash>

/// Atomic masses as the table of elements prints them, in g/mol: "12.011"; "[97]" for an element that has no
/// stable isotope.
using AtomicMasses = QHash<QString, QString>;

/// An element's part in a compound.
struct MassShare
{
    QString symbol;
    double count;
    double percent; ///< of the mass
};

/// The molar mass of a formula.
struct MolarMass
{
    double value;            ///< g/mol; without the mass of the electrons of a charge
    int decimals;            ///< those of the least exact atomic mass
    QList<MassShare> shares; ///< in Hill order

    /// @p masses must have all elements of the formula, except D and T.
    static MolarMass of(const Formula &formula, const AtomicMasses &masses);

    /// "198.17", with the decimal separator of the user's locale.
    QString text() const;
};
