#include "tools/make_database/indexleaf.h"

#include "store/jet/jetformat.h"
#include "tools/make_database/bytewriter.h"
#include "tools/tables/builderror.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype BitsAt = 27;
constexpr qsizetype EntriesAt = 480;
constexpr qsizetype Room = Jet::PageSize - EntriesAt;
constexpr char NotNull = '\x7F';

// Sort codes of 0 to 9 and of A to Z; small letters have those of capital letters.
// NOLINTBEGIN(modernize-raw-string-literal): codes, of which some happen to be letters
const QByteArrayView DigitCodes("\x36\x38\x3A\x3C\x3E\x40\x42\x44\x46\x48");
const QByteArrayView LetterCodes("\x4A\x4C\x4D\x4F\x51\x53\x55\x57\x59\x5B\x5C\x5E\x60"
                                 "\x62\x64\x66\x68\x69\x6B\x6D\x6F\x71\x73\x75\x76\x78");
// NOLINTEND(modernize-raw-string-literal)

char sortCode(QChar c)
{
    if (c >= u'0' && c <= u'9')
        return DigitCodes[c.unicode() - u'0'];
    const QChar upper = c.toUpper();
    if (upper >= u'A' && upper <= u'Z')
        return LetterCodes[upper.unicode() - u'A'];
    throw BuildError(u"a table name may consist of letters and digits only, not of \"%1\""_s.arg(c));
}

} // namespace

QByteArray IndexLeaf::key(quint32 number)
{
    QByteArray key(5, NotNull);
    qToBigEndian(number ^ 0x80000000, key.data() + 1);
    return key;
}

QByteArray IndexLeaf::key(const QString &text)
{
    QByteArray key(1, NotNull);
    for (const QChar c : text)
        key += sortCode(c);
    return key + '\1' + '\0';
}

void IndexLeaf::add(const QByteArray &key, quint32 page, quint8 slot)
{
    QByteArray entry = key + QByteArray(4, '\0');
    qToBigEndian(page << 8 | slot, entry.data() + key.size());
    m_entries.append(entry);
}

QByteArray IndexLeaf::page(quint32 owner) const
{
    QList<QByteArray> sorted = m_entries;
    // As unsigned bytes.
    std::sort(sorted.begin(), sorted.end(), [](const QByteArray &a, const QByteArray &b) { return a < b; });
    const QByteArray entries = sorted.join();
    if (entries.size() > Room)
        throw BuildError(u"too many tables: an index needs a second page"_s);

    ByteWriter page;
    page.u8(Jet::IndexLeafPage).u8(1).u16(quint16(Room - entries.size())).u32(owner);
    page.zeros(EntriesAt - page.size()).bytes(entries).zeros(Room - entries.size());
    qsizetype end = 0;
    for (const QByteArray &entry : std::as_const(sorted)) {
        end += entry.size();
        char &bits = page.data()[BitsAt + end / 8];
        bits = char(bits | 1 << end % 8);
    }
    return page.data();
}
