#pragma once

#include <QString>

/// File locks of other processes.
namespace FileLock {

enum class Access { Read, Write };

/// Whether a lock of another process forbids @p access to the file at @p path: an exclusive lock forbids
/// both, a shared lock writing. False if it is not a regular file or cannot be read.
bool forbids(Access access, const QString &path);

} // namespace FileLock
