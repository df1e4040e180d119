// Structural motifs of the shift tables: SMARTS patterns drawn as structures.
#pragma once

#include "tools/make_pictures/formula.h"

/// The motif that @p smarts describes, with a disc behind its first atom, the one that is observed.
///
/// What the pattern leaves open is a wavy bond: any group or hydrogen. Ends that may be any carbon group are
/// R, any aromatic ring is Ar, rings that only the surroundings determine are named. Nothing if the pattern
/// cannot be read or gives no sound structure.
std::optional<Formula> motifFormula(const QString &smarts, const Formula::Style &style);
