#include "core/codepage.h"

#include <algorithm>
#include <array>

namespace {

// Bytes 0x80 to 0x9F; all others are Latin-1. 81, 8D, 8F, 90 and 9D are unassigned and map to themselves.
constexpr std::array<char16_t, 32> Upper{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

int byteOf(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    const auto *found = std::find(Upper.begin(), Upper.end(), c);
    return found == Upper.end() ? -1 : 0x80 + int(found - Upper.begin());
}

} // namespace

QByteArray CodePage::encode(QStringView text)
{
    QByteArray bytes;
    append(text, bytes);
    return bytes;
}

void CodePage::append(QStringView text, QByteArray &bytes)
{
    const qsizetype before = bytes.size();
    bytes.resize(before + text.size());
    char *out = bytes.data() + before;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        // A surrogate pair is one character: one question mark.
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
        const int byte = byteOf(c.unicode());
        *out++ = byte < 0 ? '?' : char(byte);
    }
    bytes.truncate(out - bytes.constData());
}

QString CodePage::decode(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &c : text) {
        if (c.unicode() >= 0x80 && c.unicode() < 0xA0)
            c = QChar(Upper[c.unicode() - 0x80]);
    }
    return text;
}

bool CodePage::contains(QChar character)
{
    return byteOf(character.unicode()) >= 0;
}
