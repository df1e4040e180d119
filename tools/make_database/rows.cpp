#include "tools/make_database/rows.h"

#include "tools/make_database/bytewriter.h"

#include <algorithm>

QByteArray Rows::encode(const Parts &parts)
{
    ByteWriter row;
    row.u16(quint16(parts.columns)).bytes(parts.fixed);
    QList<quint16> starts;
    for (const std::optional<QByteArray> &value : parts.variable) {
        starts.prepend(quint16(row.size()));
        row.bytes(value.value_or(QByteArray()));
    }
    row.u16(quint16(row.size()));
    for (const quint16 start : std::as_const(starts))
        row.u16(start);
    return row.u16(quint16(starts.size())).bytes(parts.nullMask).data();
}

QByteArray Rows::nullMask(int columns, const QList<int> &present)
{
    QByteArray mask((columns + 7) / 8, '\0');
    for (const int column : present)
        mask[column / 8] = char(mask[column / 8] | 1 << column % 8);
    return mask;
}

QByteArray Rows::ofTexts(const QStringList &cells)
{
    Parts parts;
    parts.columns = int(cells.size());
    QList<int> present;
    for (const QString &cell : cells) {
        present.append(int(parts.variable.size()));
        parts.variable.append(packedText(cell));
    }
    parts.nullMask = nullMask(parts.columns, present);
    return encode(parts);
}

QByteArray Rows::plainText(const QString &text)
{
    ByteWriter bytes;
    for (const QChar c : text)
        bytes.u16(c.unicode());
    return bytes.data();
}

QByteArray Rows::packedText(const QString &text)
{
    const bool latin1 = std::all_of(text.begin(), text.end(),
                                    [](QChar c) { return c.unicode() >= 0x01 && c.unicode() <= 0xFF; });
    if (text.size() < 3 || !latin1)
        return plainText(text);
    return QByteArrayLiteral("\xFF\xFE") + text.toLatin1();
}
