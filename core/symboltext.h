#pragma once

#include <QString>

/// Converts texts stored for a Symbol typeface ("a" is alpha) to Unicode, because a desktop may not have such
/// a typeface. Stored texts and reports keep the letters.
namespace SymbolText {

/// Replaces each letter by the Greek letter of the typeface; digits and punctuation stay.
QString toUnicode(const QString &letters);

/// The same for decay modes, whose capitals are abbreviations and stay: "e, SF" becomes "ε, SF".
QString decayModes(const QString &letters);

} // namespace SymbolText
