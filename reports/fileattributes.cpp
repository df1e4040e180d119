#include "reports/fileattributes.h"

#include "core/filelock.h"
#include "core/module1.h"

#include <QFileInfo>

int FileAttributes::of(const QString &path)
{
    return FileLock::forbids(FileLock::Access::Write, path) ? 0 : Platform::fileAttributes(path);
}

void ProbeFileLength(const QString &path, Module1 &module)
{
    const QFileInfo info(path);
    module.ProbedLength = info.isFile() ? info.size() : 0;
}
