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

} // namespace FileErrors
