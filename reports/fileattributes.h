#pragma once

#include "core/platform.h"

struct Module1;

/// Attributes of a file that a save would replace.
namespace FileAttributes {

using Platform::Archive;
using Platform::ReadOnly;

/// Platform::fileAttributes, but 0 if another process has locked the file.
int of(const QString &path);

} // namespace FileAttributes

/// Sets `ProbedLength` of @p module to the length of the file in bytes, 0 if there is no such file.
void ProbeFileLength(const QString &path, Module1 &module);
