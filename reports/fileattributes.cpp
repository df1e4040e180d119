#include "reports/fileattributes.h"

#include "core/filelock.h"
#include "core/module1.h"

#include <QFile>
#include <QFileInfo>

int FileAttributes::of(const QString &path)
{
    if (FileLock::forbids(FileLock::Access::Write, path))
        return 0;
    return QFile::permissions(path).testFlag(QFile::WriteOwner) ? Archive : Archive + ReadOnly;
}

void ProbeFileLength(const QString &path, Module1 &module)
{
    const QFileInfo info(path);
    module.ProbedLength = info.isFile() ? info.size() : 0;
}
