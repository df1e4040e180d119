#pragma once

#include <QString>

/// Versions in the form of dotted numbers, "1.1.0".
namespace VersionNumber {

/// Whether @p remote is above @p running by their joined digits: 1.1.0 is 110, 1.10.0 is 1100, and 1.2 is 12
/// and so older than 1.1.0. Published versions therefore keep the same number of parts; the comparison stays
/// as simple as the version files in use expect it.
///
/// RuntimeError 13 where a text is no number without its dots, 6 above 32767.
bool isNewer(const QString &remote, const QString &running);

} // namespace VersionNumber
