#pragma once

#include <QString>

struct Module1;

/// What the save flows ask of a file that is in their way.
namespace FileAttributes {

inline constexpr int ReadOnly = 1;
inline constexpr int Archive = 32;

/// `Archive`, and `ReadOnly` besides if its permission bits give its owner no right to write, whoever asks.
/// 0 for a file that is locked elsewhere.
int of(const QString &path);

/// Whether another process holds a lock on any part of the file. False for what is no file or cannot be read.
bool isLockedElsewhere(const QString &path);

} // namespace FileAttributes

/// Stores the length of the file in bytes as the `ProbedLength` of @p module, 0 if there is no such file. A
/// folder has no length.
void ProbeFileLength(const QString &path, Module1 &module);
