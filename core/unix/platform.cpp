#include "core/platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <unistd.h>

int Platform::fileAttributes(const QString &path)
{
    return QFile::permissions(path).testFlag(QFile::WriteOwner) ? Archive : Archive + ReadOnly;
}

QString Platform::defaultFolder(const QString &program)
{
    return program;
}

QString Platform::socketPath(const QString &name)
{
    // No other user can put a socket into the session's folder.
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QDir place(QFileInfo(session).isDir() ? session : QDir::tempPath());
    return place.absoluteFilePath(name);
}

void Platform::startAgain(char **argv)
{
    ::execv("/proc/self/exe", argv);
}
