#pragma once

#include <QString>

/// Texts that are stored as letters of a Symbol typeface ("a" for alpha), shown as the signs themselves: no
/// desktop can be relied on to have such a face. Stored texts and reports keep the letters.
namespace SymbolText {

/// Each letter becomes the Greek letter that the typeface shows for it; digits and punctuation stay.
QString toUnicode(const QString &letters);

/// The same for the decay modes of isotopes, whose capitals are abbreviations and stay: "e, SF" is "ε, SF".
QString decayModes(const QString &letters);

} // namespace SymbolText
