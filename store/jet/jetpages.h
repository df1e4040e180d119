#pragma once

#include "store/jet/jetbytes.h"
#include "store/jet/jetformat.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// Where a row is: page number and slot, `page << 8 | slot`.
using JetRowPointer = quint32;

/// One slot of a data page.
struct JetSlot
{
    JetBytes bytes;
    bool isPointer = false;
    bool isDeleted = false;
};

/// The pages of a Jet 4 file, in plain form. Every function throws RuntimeError DatabaseFailure on damage.
///
/// Work is counted in bytes of the file. A sound file has each byte read about twice: with its page and with
/// its cell. A crafted one can share a byte among thousands of rows or texts, so reading ends at a limit that
/// grows with the size of the file.
class JetPages final
{
    Q_DISABLE_COPY_MOVE(JetPages)

public:
    /// @p file is the whole file. Older (Jet 3) and newer (.accdb) files are refused.
    explicit JetPages(QByteArray file);

    /// In pages.
    quint32 count() const { return quint32(m_file.size() / Jet::PageSize); }
    /// The password of the file, empty if it has none.
    QString password() const;

    /// A page that must be of that type.
    JetBytes page(quint32 number, Jet::PageType type) const;

    /// The slots of a data page, which must belong to @p owner: a definition page or LongValueOwner.
    QList<JetSlot> slotsOf(quint32 number, quint32 owner) const;

    /// The row there: neither a pointer nor, unless @p flaggedDeleted, deleted.
    JetBytes row(JetRowPointer pointer, quint32 owner, bool flaggedDeleted = false) const;

    /// The page numbers in the usage map at @p pointer, ascending; all of them exist.
    QList<quint32> usageMap(JetRowPointer pointer) const;

    /// Counts @p bytes of work for all readers of the file together; damage once the limit is passed.
    void spend(qsizetype bytes) const;

private:
    JetBytes dataPage(quint32 number, quint32 owner) const;
    void addBits(JetBytes bitmap, quint32 firstPage, QList<quint32> *pages) const;
    void decodePages(quint32 key);

    QByteArray m_file;
    mutable qsizetype m_workLeft;
};
