#include "store/jet/jetpages.h"

#include "core/runtimeerror.h"

using namespace Jet;

namespace {

const QByteArrayView Signature("\0\1\0\0Standard Jet DB\0", 20);
const QByteArrayView AceSignature("\0\1\0\0Standard ACE DB\0", 20);

// Number of pages that one bitmap page of a usage map covers.
constexpr quint32 PagesPerBitmap = (PageSize - 4) * 8;

// Work for a row besides its bytes: the pointer to it and its slot.
constexpr qsizetype RowWork = 6;

// Allowance for small files of many numbers: formatting a number is more work than its bytes.
constexpr qsizetype SmallFileWork = qsizetype(16) * 1024 * 1024;

// Rows fill a page from its end: each row ends where the previous one starts.
JetSlot slotAt(JetBytes page, int index)
{
    const int count = page.u16(SlotCountAt);
    const quint16 slot = page.u16(SlotsAt + 2 * index);
    const int start = slot & SlotOffset;
    const int end = index == 0 ? PageSize : page.u16(SlotsAt + 2 * (index - 1)) & SlotOffset;
    if (index >= count || start < SlotsAt + 2 * count)
        jetDamage("a row is not among those of its page");
    return {page.mid(start, end - start), (slot & SlotIsPointer) != 0, (slot & SlotIsDeleted) != 0};
}

} // namespace

void jetDamage(const char *what)
{
    throw RuntimeError(ErrorNumber::DatabaseFailure, QString::fromLatin1(what));
}

JetPages::JetPages(QByteArray file) : m_file(std::move(file)), m_workLeft(2 * m_file.size() + SmallFileWork)
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
        jetDamage("a page number is outside the file");
    const JetBytes page = JetBytes(m_file).mid(qsizetype(number) * PageSize, PageSize);
    if (page.u8(0) != type || page.u8(1) != 1)
        jetDamage("a page is not of the type that is expected");
    return page;
}

void JetPages::spend(qsizetype bytes) const
{
    m_workLeft -= bytes;
    if (m_workLeft < 0)
        jetDamage("the file says the same thing too many times");
}

JetBytes JetPages::dataPage(quint32 number, quint32 owner) const
{
    const JetBytes data = page(number, DataPage);
    if (data.u32(4) != owner)
        jetDamage("a data page belongs to another table");
    return data;
}

QList<JetSlot> JetPages::slotsOf(quint32 number, quint32 owner) const
{
    const JetBytes data = dataPage(number, owner);
    spend(PageSize);
    QList<JetSlot> result;
    const int count = data.u16(SlotCountAt);
    result.reserve(count);
    for (int i = 0; i < count; ++i)
        result.append(slotAt(data, i));
    return result;
}

JetBytes JetPages::row(JetRowPointer pointer, quint32 owner, bool flaggedDeleted) const
{
    const JetSlot slot = slotAt(dataPage(pointer >> 8, owner), int(pointer & 0xFF));
    if (slot.isPointer || slot.isDeleted != flaggedDeleted)
        jetDamage("a pointer leads to no row");
    spend(slot.bytes.size() + RowWork);
    return slot.bytes;
}

QList<quint32> JetPages::usageMap(JetRowPointer pointer) const
{
    const JetSlot slot = slotAt(page(pointer >> 8, DataPage), int(pointer & 0xFF));
    if (slot.isPointer || slot.isDeleted)
        jetDamage("a pointer leads to no usage map");
    const JetBytes map = slot.bytes;

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
