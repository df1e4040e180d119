#pragma once

#include <QString>

/// Versions of dotted numbers, "1.1.0".
namespace VersionNumber {

/// Whether @p remote is above @p running, by their joined digits: 1.1.0 is 110, but 1.2 is 12 and so older.
/// Published versions therefore always have three parts.
///
/// RuntimeError 13 if a text without its dots is not a number, 6 if that is above 32767.
bool isNewer(const QString &remote, const QString &running);

} // namespace VersionNumber
