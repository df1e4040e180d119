#pragma once

#include <QString>

/// Sizes and dates of files for the options dialog.
namespace FileFigures {

/// Bytes. RuntimeError 53 if there is no such file.
qint64 fileLength(const QString &path);

/// Bytes of all files in the folder and below, including linked files but not linked folders. RuntimeError 76
/// if there is no such folder.
qint64 folderSize(const QString &path);

/// "1.5 Ko": bytes / 1024, not rounded.
QString kilobytes(qint64 bytes);

/// "1.46 Mo": bytes / 1048576, at most two decimals, rounded half to even.
QString megabytes(qint64 bytes);

/// The time of the last change, in the short format of the user's locale. RuntimeError 53 as above.
QString modificationDate(const QString &path);

} // namespace FileFigures
