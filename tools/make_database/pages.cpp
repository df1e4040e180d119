#include "tools/make_database/pages.h"

#include "store/jet/jetformat.h"
#include "tools/make_database/bytewriter.h"
#include "tools/tables/builderror.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MaxRows = 255;
constexpr qsizetype WorthTrying = 200;
constexpr quint32 PagesInMap = 512;

} // namespace

bool DataPageWriter::add(const QByteArray &row)
{
    if (m_rows.size() == MaxRows || freeBytes() < row.size() + 2)
        return false;
    m_rows.append(row);
    m_rowBytes += row.size();
    return true;
}

qsizetype DataPageWriter::freeBytes() const
{
    return Jet::PageSize - Jet::SlotsAt - 2 * m_rows.size() - m_rowBytes;
}

bool DataPageWriter::hasRoom() const
{
    return m_rows.size() < MaxRows && freeBytes() >= WorthTrying;
}

QByteArray DataPageWriter::page() const
{
    ByteWriter page;
    page.u8(Jet::DataPage).u8(1).u16(quint16(freeBytes())).u32(m_owner).u32(0).u16(quint16(m_rows.size()));
    QByteArray rows;
    for (const QByteArray &row : m_rows) {
        rows.prepend(row);
        page.u16(quint16(Jet::PageSize - rows.size()));
    }
    return page.zeros(freeBytes()).bytes(rows).data();
}

QList<DataPageWriter> Pages::layOut(const QList<QByteArray> &rows, quint32 owner)
{
    QList<DataPageWriter> pages;
    for (const QByteArray &row : rows) {
        Q_ASSERT(row.size() <= LongestRow);
        if (!pages.isEmpty() && pages.last().add(row))
            continue;
        pages.append(DataPageWriter(owner));
        pages.last().add(row);
    }
    return pages;
}

QByteArray Pages::usageMap(const QList<quint32> &pages)
{
    QByteArray bitmap(PagesInMap / 8, '\0');
    for (const quint32 page : pages) {
        if (page >= PagesInMap)
            throw BuildError(u"the tables need more than 2 MiB"_s);
        bitmap[page / 8] = char(bitmap[page / 8] | 1 << page % 8);
    }
    return ByteWriter().u8(0).u32(0).bytes(bitmap).data();
}

QByteArray Pages::freePageMap(quint32 pageCount)
{
    QList<quint32> pages;
    for (quint32 page = pageCount; page < PagesInMap; ++page)
        pages.append(page);
    return usageMap(pages);
}
