#pragma once

#include "core/runtimeerror.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Maps failed file operations to the error numbers of the platform.
namespace FileErrors {

/// For a @p file that could not be opened, read or written.
inline RuntimeError of(const QFileDevice &file)
{
    const QString path = file.fileName();
    const QFileInfo info(path);
    if (info.isDir())
        return RuntimeError(ErrorNumber::PathAccess, path);
    switch (file.error()) {
    case QFileDevice::ResourceError:
    case QFileDevice::WriteError:
        return RuntimeError(ErrorNumber::DiskFull, path);
    case QFileDevice::PermissionsError:
        return RuntimeError(ErrorNumber::PathAccess, path);
    default:
        break;
    }
    if (!info.dir().exists())
        return RuntimeError(ErrorNumber::PathNotFound, path);
    return RuntimeError(info.exists() ? ErrorNumber::PathAccess : ErrorNumber::FileNotFound, path);
}

/// For a @p file that could not be created or replaced. Never "file not found".
inline RuntimeError ofWriting(const QFileDevice &file)
{
    const RuntimeError error = of(file);
    return error.number() == ErrorNumber::FileNotFound
               ? RuntimeError(ErrorNumber::PathAccess, file.fileName())
               : error;
}

/// All bytes of the file at @p path. RuntimeError 53, 76 or 75 where it cannot be opened or read to its end.
inline QByteArray readWhole(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw of(file);
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) // a failed read returns no bytes, like an empty file
        throw of(file);
    return bytes;
}

/// RuntimeError 75 if there is something at @p path that is not a regular file: opening a pipe or a device
/// might block for ever.
inline void refuseSpecialFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        throw RuntimeError(ErrorNumber::PathAccess, path);
}

/// Why the file at @p path cannot be written, as a paragraph to follow the message of error 75. Empty if the
/// reason cannot be seen.
inline QString reasonNotWritable(const QString &path)
{
    constexpr qsizetype LongestName = 255; // bytes, on all common file systems
    const QFileInfo info(path);
    const char *reason = nullptr;
    if (info.isDir())
        reason = "this is a folder.";
    else if (info.exists() && !info.isFile())
        reason = "this is a pipe or a device, not a file.";
    else if (QFile::encodeName(info.fileName()).size() > LongestName)
        reason = "the name is too long.";
    else if (info.exists() && !info.isWritable())
        reason = "the file is not writable.";
    else if (!QFileInfo(info.path()).isWritable())
        reason = "the folder is not writable.";
    return reason ? QStringLiteral("\n\nReason: ") + QLatin1StringView(reason) : QString();
}

} // namespace FileErrors
