#pragma once

#include <QString>

/// Sizes and dates of files, as the options dialog shows them.
namespace FileFigures {

/// Bytes. A file that is not there is RuntimeError 53.
qint64 fileLength(const QString &path);

/// Bytes of all files in the folder and below. A linked file counts, a linked folder does not. RuntimeError
/// 76 if the folder is not there.
qint64 folderSize(const QString &path);

/// "1.5 Ko": bytes by 1024, in as many decimals as it takes.
QString kilobytes(qint64 bytes);

/// "1.46 Mo": bytes by 1048576, in two decimals at most, half to even.
QString megabytes(qint64 bytes);

/// The file's last change in the short form of the user's locale. RuntimeError 53 as above.
QString modificationDate(const QString &path);

} // namespace FileFigures
