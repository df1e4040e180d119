#include "core/filecopy.h"

#include "core/fileerrors.h"

#include <QFile>
#include <QSaveFile>

namespace {

// A temporary file, which replaces the destination at the end: a failure before that changes nothing, and a
// file can be copied onto itself.
class Replacement final
{
public:
    explicit Replacement(const QString &destination) : m_file(destination)
    {
        if (m_file.open(QIODevice::WriteOnly))
            return;
        // Qt reports an existing file without write permission as a failed write.
        throw m_file.error() == QFileDevice::WriteError ? RuntimeError(ErrorNumber::PathAccess, destination)
                                                        : FileErrors::ofWriting(m_file);
    }

    void write(const QByteArray &bytes) { requireDisk(m_file.write(bytes) == bytes.size()); }

    void finish()
    {
        // commit() does not notice a partial write and would replace the file with it.
        requireDisk(m_file.flush());
        if (!m_file.commit())
            throw FileErrors::ofWriting(m_file);
    }

private:
    void requireDisk(bool written) const
    {
        if (!written)
            throw RuntimeError(ErrorNumber::DiskFull, m_file.fileName());
    }

    QSaveFile m_file;
};

} // namespace

void copyFileOver(const QString &source, const QString &destination)
{
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        throw FileErrors::of(from);
    Replacement to(destination);
    constexpr qint64 PieceSize = 1 << 20;
    // Not until atEnd(): an unreadable file claims to be at its end.
    for (bool more = true; more;) {
        const QByteArray piece = from.read(PieceSize);
        more = !piece.isEmpty();
        if (from.error() != QFileDevice::NoError)
            throw FileErrors::of(from);
        to.write(piece);
    }
    to.finish();
}

void writeFileOver(const QByteArray &bytes, const QString &destination)
{
    FileErrors::refuseSpecialFile(destination);
    Replacement to(destination);
    to.write(bytes);
    to.finish();
}
