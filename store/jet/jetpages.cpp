#include "store/jet/jetpages.h"

#include "core/runtimeerror.h"

using namespace Jet;

namespace {

const QByteArrayView Signature("\0\1\0\0Standard Jet DB\0", 20);
const QByteArrayView AceSignature("\0\1\0\0Standard ACE DB\0", 20);

// Pages that one bitmap page of a usage map speaks of.
constexpr quint32 PagesPerBitmap = (PageSize - 4) * 8;

} // namespace

void jetDamage(const char *what)
{
    throw RuntimeError(ErrorNumber::DatabaseFailure, QString::fromLatin1(what));
}

JetPages::JetPages(QByteArray file) : m_file(std::move(file))
{
    const QByteArrayView start = QByteArrayView(m_file).first(qMin<qsizetype>(m_file.size(), 20));
    if (start != Signature && start != AceSignature)
        jetDamage("not an Access database");
    const quint32 version = JetBytes(m_file).u32(VersionAt);
    if (start == AceSignature || version > Jet4Version)
        jetDamage("an .accdb database; save it as .mdb of Access 2000 to 2003");
    if (version == Jet3Version)
        jetDamage("a database of Access 97 or older; save it as .mdb of Access 2000 to 2003");
    if (m_file.size() % PageSize != 0)
        jetDamage("the file is cut off");

    maskHeader(m_file);
    if (const quint32 key = JetBytes(m_file).u32(PageKeyAt); key != 0)
        decodePages(key);
}

void JetPages::decodePages(quint32 key)
{
    for (quint32 number = 1; number < count(); ++number) {
        char pageKey[4];
        qToLittleEndian(key ^ number, pageKey);
        const QByteArray stream = keyStream(QByteArrayView(pageKey, 4), PageSize);
        char *page = m_file.data() + qsizetype(number) * PageSize;
        for (int i = 0; i < PageSize; ++i)
            page[i] = char(page[i] ^ stream[i]);
    }
}

QString JetPages::password() const
{
    QByteArray field = m_file.mid(PasswordAt, PasswordSize);
    maskPassword(field, JetBytes(m_file).number<double>(CreationDateAt));
    QString password;
    for (int i = 0; i < PasswordSize; i += 2) {
        const char16_t c = JetBytes(field).u16(i);
        if (c == 0)
            break;
        password += QChar(c);
    }
    return password;
}

JetBytes JetPages::page(quint32 number, PageType type) const
{
    if (number == 0 || number >= count())
        jetDamage("a page number lies outside the file");
    const JetBytes page = JetBytes(m_file).mid(qsizetype(number) * PageSize, PageSize);
    if (page.u8(0) != type || page.u8(1) != 1)
        jetDamage("a page is not of the type that is expected");
    return page;
}

QList<JetSlot> JetPages::slotsIn(JetBytes page) const
{
    const int count = page.u16(SlotCountAt);
    const int firstRow = SlotsAt + 2 * count;
    QList<JetSlot> result;
    result.reserve(count);
    int end = PageSize;
    for (int i = 0; i < count; ++i) {
        const quint16 slot = page.u16(SlotsAt + 2 * i);
        const int start = slot & SlotOffset;
        if (start < firstRow || start > end)
            jetDamage("the rows of a page overlap");
        result.append(
            {page.mid(start, end - start), (slot & SlotIsPointer) != 0, (slot & SlotIsDeleted) != 0});
        end = start;
    }
    return result;
}

QList<JetSlot> JetPages::slotsOf(quint32 number, quint32 owner) const
{
    const JetBytes data = page(number, DataPage);
    if (data.u32(4) != owner)
        jetDamage("a data page belongs to another table");
    return slotsIn(data);
}

JetBytes JetPages::row(JetRowPointer pointer, quint32 owner, bool flaggedDeleted) const
{
    const QList<JetSlot> rows = slotsOf(pointer >> 8, owner);
    const qsizetype slot = pointer & 0xFF;
    if (slot >= rows.size() || rows[slot].isPointer || rows[slot].isDeleted != flaggedDeleted)
        jetDamage("a pointer leads to no row");
    return rows[slot].bytes;
}

QList<quint32> JetPages::usageMap(JetRowPointer pointer) const
{
    const QList<JetSlot> rows = slotsIn(page(pointer >> 8, DataPage));
    const qsizetype slot = pointer & 0xFF;
    if (slot >= rows.size() || rows[slot].isPointer || rows[slot].isDeleted)
        jetDamage("a pointer leads to no usage map");
    const JetBytes map = rows[slot].bytes;

    QList<quint32> pages;
    switch (map.u8(0)) {
    case 0:
        addBits(map.from(5), map.u32(1), &pages);
        break;
    case 1:
        for (qsizetype at = 1; at + 4 <= map.size(); at += 4) {
            if (const quint32 bitmap = map.u32(at); bitmap != 0)
                addBits(page(bitmap, BitmapPage).from(4), quint32(at / 4) * PagesPerBitmap, &pages);
        }
        break;
    default:
        jetDamage("a usage map of unknown form");
    }
    return pages;
}

void JetPages::addBits(JetBytes bitmap, quint32 firstPage, QList<quint32> *pages) const
{
    for (qsizetype i = 0; i < bitmap.size(); ++i) {
        const quint8 bits = bitmap.u8(i);
        for (quint32 bit = 0; bits >> bit != 0; ++bit) {
            if ((bits >> bit & 1) == 0)
                continue;
            const quint64 number = quint64(firstPage) + quint64(i) * 8 + bit;
            if (number == 0 || number >= count())
                jetDamage("a usage map names a page outside the file");
            pages->append(quint32(number));
        }
    }
}
