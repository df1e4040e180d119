#pragma once

#include <QString>

/// Locks of other processes on files.
namespace FileLock {

enum class Access { Read, Write };

/// Whether another process holds a lock that forbids @p access to the file at @p path: an exclusive lock
/// forbids both, a shared one writing. False for what is no regular file or cannot be read.
bool forbids(Access access, const QString &path);

} // namespace FileLock
