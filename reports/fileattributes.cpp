#include "reports/fileattributes.h"

#include "core/module1.h"

#include <QFile>
#include <QFileInfo>
#include <fcntl.h>

int FileAttributes::of(const QString &path)
{
    if (isLockedElsewhere(path))
        return 0;
    return QFile::permissions(path).testFlag(QFile::WriteOwner) ? Archive : Archive + ReadOnly;
}

bool FileAttributes::isLockedElsewhere(const QString &path)
{
    // Opening a pipe might block until its other end is opened.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    struct flock lock
    {
    };
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return fcntl(file.handle(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

void ProbeFileLength(const QString &path, Module1 &module)
{
    const QFileInfo info(path);
    module.ProbedLength = info.isFile() ? info.size() : 0;
}
