#include "core/filecopy.h"

#include "core/fileerrors.h"

#include <QFile>
#include <QSaveFile>

namespace {

constexpr qint64 PieceSize = 1 << 20;

} // namespace

void copyFileOver(const QString &source, const QString &destination)
{
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        throw FileErrors::of(from);
    // Written beside the destination and put in its place at the end: a copy that fails half-way harms
    // nothing, nor does one of a file onto itself.
    QSaveFile to(destination);
    if (!to.open(QIODevice::WriteOnly)) {
        // An existing file that may not be written is told as a failed write.
        throw to.error() == QFileDevice::WriteError ? RuntimeError(ErrorNumber::PathAccess, destination)
                                                    : FileErrors::ofWriting(to);
    }
    // Up to the read that gives nothing: a file that cannot be read at all calls itself at its end.
    for (bool more = true; more;) {
        const QByteArray piece = from.read(PieceSize);
        more = !piece.isEmpty();
        if (from.error() != QFileDevice::NoError)
            throw FileErrors::of(from);
        if (to.write(piece) != piece.size())
            throw RuntimeError(ErrorNumber::DiskFull, destination);
    }
    // The commit knows nothing of a piece that was written in part, and would put it in the file's place.
    if (!to.flush())
        throw RuntimeError(ErrorNumber::DiskFull, destination);
    if (!to.commit())
        throw FileErrors::ofWriting(to);
}
