#pragma once

#include <QByteArray>
#include <QList>

/// A data page in the making: rows fill it from the end backwards, their slots from the start.
class DataPageWriter final
{
public:
    /// @p owner is the definition page of the table, 0 for usage maps.
    explicit DataPageWriter(quint32 owner) : m_owner(owner) {}

    /// False, and nothing is added, if @p row does not fit. A page takes 255 rows at most.
    bool add(const QByteArray &row);

    qsizetype rowCount() const { return m_rows.size(); }

    /// In bytes, without the slot that a further row needs.
    qsizetype freeBytes() const;

    /// Whether a further row is worth trying here.
    bool hasRoom() const;

    QByteArray page() const;

private:
    quint32 m_owner;
    QList<QByteArray> m_rows;
    qsizetype m_rowBytes = 0;
};

namespace Pages {

/// The longest row that a table may have, in bytes.
inline constexpr qsizetype LongestRow = 4060;

/// @p rows on as many pages as they need, in their order. No row is longer than LongestRow.
QList<DataPageWriter> layOut(const QList<QByteArray> &rows, quint32 owner);

/// A usage map of @p pages. It covers the first 512 pages of the file; BuildError for a larger file.
QByteArray usageMap(const QList<quint32> &pages);

/// The map of free pages, in a file of @p pageCount pages: all after its end.
QByteArray freePageMap(quint32 pageCount);

} // namespace Pages
