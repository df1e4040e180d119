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
    while (!from.atEnd()) {
        const QByteArray piece = from.read(PieceSize);
        if (from.error() != QFileDevice::NoError)
            throw FileErrors::of(from);
        if (to.write(piece) != piece.size())
            throw FileErrors::of(to);
    }
    if (!to.commit())
        throw FileErrors::of(to);
}
