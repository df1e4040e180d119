#pragma once

#include <QString>

/// Text files of sections and keys, in Windows-1252: "[section]", then lines "key=value".
namespace ProfileFile {

/// Longer values are truncated.
inline constexpr int LongestValue = 254;

/// The value of the first @p key in the first section named @p section; empty if there is none. Ignores case
/// and blanks around names and values, and removes a pair of quotes around the value. A line that begins with
/// ";" is a comment.
QString value(const QString &path, const QString &section, const QString &key);

} // namespace ProfileFile
