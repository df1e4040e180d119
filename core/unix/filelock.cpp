#include "core/filelock.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace {

// The system has two kinds of locks, independent of each other.

bool recordLockForbids(FileLock::Access access, int file)
{
    struct flock lock
    {
    };
    lock.l_type = access == FileLock::Access::Read ? F_RDLCK : F_WRLCK;
    lock.l_whence = SEEK_SET;
    return fcntl(file, F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

// If this takes the lock, closing the file releases it.
bool wholeFileLockForbids(FileLock::Access access, int file)
{
    const int kind = access == FileLock::Access::Read ? LOCK_SH : LOCK_EX;
    return flock(file, kind | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

} // namespace

bool FileLock::forbids(Access access, const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || // opening a pipe could block
        !file.open(QIODevice::ReadOnly))
        return false;
    return recordLockForbids(access, file.handle()) || wholeFileLockForbids(access, file.handle());
}
