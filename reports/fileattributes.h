#pragma once

#include <QString>

struct Module1;

/// Attributes of a file that a save would replace.
namespace FileAttributes {

inline constexpr int ReadOnly = 1;
inline constexpr int Archive = 32;

/// `Archive`, plus `ReadOnly` if the permission bits give the owner no right to write, whoever the user is. 0
/// if another process has locked the file.
int of(const QString &path);

} // namespace FileAttributes

/// Stores the length of the file in bytes as the `ProbedLength` of @p module, 0 if there is no such file or
/// it is a folder.
void ProbeFileLength(const QString &path, Module1 &module);
