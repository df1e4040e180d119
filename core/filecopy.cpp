#include "core/filecopy.h"

#include "core/fileerrors.h"

#include <QFile>
#include <QSaveFile>

void copyFileOver(const QString &source, const QString &destination)
{
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        throw FileErrors::of(from);
    // A temporary file replaces the destination at the end, so a failed copy changes nothing and a file can
    // be copied onto itself.
    QSaveFile to(destination);
    if (!to.open(QIODevice::WriteOnly)) {
        // Qt reports an existing file without write permission as a failed write.
        throw to.error() == QFileDevice::WriteError ? RuntimeError(ErrorNumber::PathAccess, destination)
                                                    : FileErrors::ofWriting(to);
    }
    constexpr qint64 PieceSize = 1 << 20;
    // Not until atEnd(): an unreadable file claims to be at its end.
    for (bool more = true; more;) {
        const QByteArray piece = from.read(PieceSize);
        more = !piece.isEmpty();
        if (from.error() != QFileDevice::NoError)
            throw FileErrors::of(from);
        if (to.write(piece) != piece.size())
            throw RuntimeError(ErrorNumber::DiskFull, destination);
    }
    // commit() does not notice a partial write and would replace the file with it.
    if (!to.flush())
        throw RuntimeError(ErrorNumber::DiskFull, destination);
    if (!to.commit())
        throw FileErrors::ofWriting(to);
}
