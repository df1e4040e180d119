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

/// What a formula weighs.
struct MolarMass
{
    double value;            ///< g/mol; the mass of the electrons that a charge adds or takes is left out
    int decimals;            ///< as many as the least exact atomic mass in it carries
    QList<MassShare> shares; ///< in Hill order

    /// Of a formula whose elements all have a mass in @p masses; D and T have theirs in any case.
    static MolarMass of(const Formula &formula, const AtomicMasses &masses);

    /// "198.17", with the decimal separator of the user's locale.
    QString text() const;
};
