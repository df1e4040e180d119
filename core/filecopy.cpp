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
    if (!to.open(QIODevice::WriteOnly))
        throw FileErrors::of(to);
    // Up to the read that gives nothing: a file that cannot be read at all calls itself at its end.
    for (bool more = true; more;) {
        const QByteArray piece = from.read(PieceSize);
        more = !piece.isEmpty();
        if (from.error() != QFileDevice::NoError)
            throw FileErrors::of(from);
        if (to.write(piece) != piece.size())
            throw FileErrors::of(to);
    }
    if (!to.commit())
        throw FileErrors::of(to);
}
