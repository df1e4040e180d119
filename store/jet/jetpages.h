#pragma once

#include "store/jet/jetbytes.h"
#include "store/jet/jetformat.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// Where a row stands: page number and slot, `page << 8 | slot`.
using JetRowPointer = quint32;

/// One slot of a data page.
struct JetSlot
{
    JetBytes bytes;
    bool isPointer = false;
    bool isDeleted = false;
};

/// The pages of a Jet 4 file, in plain form. Every function throws RuntimeError DatabaseFailure on damage.
class JetPages final
{
public:
    /// @p file is the whole file. Older (Jet 3) and newer (.accdb) files are refused.
    explicit JetPages(QByteArray file);

    /// In pages.
    quint32 count() const { return quint32(m_file.size() / Jet::PageSize); }
    /// In bytes.
    qsizetype size() const { return m_file.size(); }

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

private:
    QList<JetSlot> slotsIn(JetBytes page) const;
    void addBits(JetBytes bitmap, quint32 firstPage, QList<quint32> *pages) const;
    void decodePages(quint32 key);

    QByteArray m_file;
};
