#pragma once

#include <QString>

struct Module1;

/// Attributes of a file that a save would replace.
namespace FileAttributes {

inline constexpr int ReadOnly = 1;
inline constexpr int Archive = 32;

/// `Archive`, plus `ReadOnly` if the permission bits do not let the owner write, whoever the user is. 0 if
/// another process has locked the file.
int of(const QString &path);

} // namespace FileAttributes

/// Sets `ProbedLength` of @p module to the length of the file in bytes, 0 if there is no such file.
void ProbeFileLength(const QString &path, Module1 &module);
