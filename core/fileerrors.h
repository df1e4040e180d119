#pragma once

#include "core/runtimeerror.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

/// Maps failed file operations to error numbers.
namespace FileErrors {

/// The error of a @p file that could not be opened, read or written.
inline RuntimeError of(const QFileDevice &file)
{
    const QString path = file.fileName();
    const QFileInfo info(path);
    if (info.isDir())
        return RuntimeError(ErrorNumber::PathAccess, path);
    if (file.error() == QFileDevice::ResourceError || file.error() == QFileDevice::WriteError)
        return RuntimeError(ErrorNumber::DiskFull, path);
    if (file.error() == QFileDevice::PermissionsError)
        return RuntimeError(ErrorNumber::PathAccess, path);
    if (!info.dir().exists())
        return RuntimeError(ErrorNumber::PathNotFound, path);
    return RuntimeError(info.exists() ? ErrorNumber::PathAccess : ErrorNumber::FileNotFound, path);
}

/// The error of a @p file that could not be created or replaced: never 53.
inline RuntimeError ofWriting(const QFileDevice &file)
{
    const RuntimeError error = of(file);
    return error.number() == ErrorNumber::FileNotFound
               ? RuntimeError(ErrorNumber::PathAccess, file.fileName())
               : error;
}

/// The content of the file at @p path. RuntimeError 53, 76 or 75 if it cannot be opened or fully read.
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

/// RuntimeError 75 if @p path exists but is not a regular file: opening a pipe or a device could block for
/// ever.
inline void refuseSpecialFile(const QString &path)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        throw RuntimeError(ErrorNumber::PathAccess, path);
}

/// Why the file at @p path cannot be written: a paragraph to append to the message of error 75. Empty if
/// unknown.
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
    return reason ? QString("\n\nReason: ") + reason : QString();
}

} // namespace FileErrors
