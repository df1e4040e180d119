#pragma once

#include <QList>
#include <QStringView>
#include <string>

/// Texts made alike for a search: small letters without accents, digits in place of sub- and superscripts,
/// "alpha" in place of the Greek letter. UTF-8.
namespace Folding {

/// @p origins gets, for each byte of the result, the index in @p text of the character it came from.
std::string fold(QStringView text, QList<qsizetype> *origins = nullptr);

/// The name of the Greek letter that a Symbol typeface shows for the Latin letter @p letter: "alpha" for 'a'.
/// Empty if there is none.
std::string greekName(char letter);

/// Whether @p byte of a folded text is part of a word.
bool isOfWord(char byte);

} // namespace Folding
