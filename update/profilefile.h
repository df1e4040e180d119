#pragma once

#include <QString>

/// Text files of sections and keys: "[section]", then lines "key=value".
namespace ProfileFile {

/// Longest value, in characters; what is longer is cut.
inline constexpr int LongestValue = 254;

/// The value of the first @p key in the first section named @p section. The case of letters does not count,
/// blanks around names and values do not either, one pair of quotes around a value is taken off, and a line
/// that begins with ";" is a comment. The file is in Windows-1252.
///
/// Empty where the file, the section or the key is not there.
QString value(const QString &path, const QString &section, const QString &key);

} // namespace ProfileFile
