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

/// The decoded pages of a Jet 4 file. Every function throws RuntimeError DatabaseFailure on damage.
///
/// Work is counted in bytes. Reading a sound file touches each byte about twice: with its page and with its
/// cell. In a crafted file thousands of rows or texts can share a byte, so work is limited in proportion to
/// the size of the file.
class JetPages final
{
    Q_DISABLE_COPY_MOVE(JetPages)

public:
    /// @p file is the whole file. Older (Jet 3) and newer (.accdb) formats are rejected.
    explicit JetPages(QByteArray file);

    /// In pages.
    quint32 count() const { return quint32(m_file.size() / Jet::PageSize); }
    /// The password of the file, empty if it has none.
    QString password() const;

    /// A page that must be of that type.
    JetBytes page(quint32 number, Jet::PageType type) const;

    /// The slots of a data page. It must belong to @p owner: a definition page or LongValueOwner.
    QList<JetSlot> slotsOf(quint32 number, quint32 owner) const;

    /// The row at @p pointer. It must not be a pointer itself, and is flagged as deleted if @p
    /// flaggedDeleted.
    JetBytes row(JetRowPointer pointer, quint32 owner, bool flaggedDeleted = false) const;

    /// The page numbers in the usage map at @p pointer, ascending. All of them are in the file.
    QList<quint32> usageMap(JetRowPointer pointer) const;

    /// Adds @p bytes to the work of all readers of the file. Damage once the limit is exceeded.
    void spend(qsizetype bytes) const;

private:
    JetBytes dataPage(quint32 number, quint32 owner) const;
    void addBits(JetBytes bitmap, quint32 firstPage, QList<quint32> *pages) const;
    void decodePages(quint32 key);

    QByteArray m_file;
    mutable qsizetype m_workLeft;
};
