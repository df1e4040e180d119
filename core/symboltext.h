#pragma once

#include <QString>

/// Converts texts that are stored for a Symbol typeface ("a" for alpha) to Unicode, because a desktop may not
/// have such a typeface. Stored texts and reports keep the letters.
namespace SymbolText {

/// Each letter becomes the Greek letter that the typeface shows for it; digits and punctuation stay.
QString toUnicode(const QString &letters);

/// The same for the decay modes of isotopes, whose capitals are abbreviations and stay: "e, SF" is "ε, SF".
QString decayModes(const QString &letters);

} // namespace SymbolText
