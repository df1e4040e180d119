#include "options/filefigures.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QFileInfo existingFile(const QString &path)
{
    QFileInfo file(path);
    if (!file.isFile())
        throw RuntimeError(ErrorNumber::FileNotFound, path);
    return file;
}

} // namespace

qint64 FileFigures::fileLength(const QString &path)
{
    return existingFile(path).size();
}

qint64 FileFigures::folderSize(const QString &path)
{
    const QDir folder(path);
    if (!folder.exists())
        throw RuntimeError(ErrorNumber::PathNotFound, path);
    qint64 size = 0;
    const QFileInfoList entries =
        folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        if (!entry.isDir())
            size += entry.size();
        else if (!entry.isSymLink())
            size += folderSize(entry.filePath());
    }
    return size;
}

QString FileFigures::kilobytes(qint64 bytes)
{
    return Numbers::formatLocal(double(bytes) / 1024) + u" Ko"_s;
}

QString FileFigures::megabytes(qint64 bytes)
{
    return Numbers::formatLocal(std::nearbyint(double(bytes) / 1048576 * 100) / 100) + u" Mo"_s;
}

QString FileFigures::modificationDate(const QString &path)
{
    return QLocale::system().toString(existingFile(path).lastModified(), QLocale::ShortFormat);
}
