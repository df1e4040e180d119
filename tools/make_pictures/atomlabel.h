// Labels that RDKit draws verbatim.
#pragma once

#include <QByteArray>

namespace RDKit {
class Atom;
}

/// Draws @p label for the atom, and @p leftwards where its bond leaves to the right. "<sub>" and "<sup>" are
/// known.
void setLabel(RDKit::Atom &atom, const QByteArray &label, const QByteArray &leftwards);

/// Writes the symbol out with hydrogens and charge: "CH3", or "H3C" where the bond leaves to the right. The
/// charge of an atom at the end of a chain then stands first, clear of the bond.
void labelWithHydrogens(RDKit::Atom &atom);
