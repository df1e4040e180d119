#include "store/jet/jettext.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <QDate>
#include <QLocale>
#include <QTime>
#include <QUuid>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

using namespace Jet;

namespace {

// Formatting a number takes about as long as copying that many bytes.
constexpr qsizetype NumberWork = 32;

void appendPlain(JetBytes bytes, QString &text)
{
    if (bytes.size() % 2 != 0)
        jetDamage("a text has half a character");
    for (qsizetype at = 0; at < bytes.size(); at += 2)
        text += QChar(bytes.u16(at));
}

// After the mark, one byte is one character. A zero byte switches to two bytes for each character, the next
// one back.
void appendPacked(JetBytes bytes, QString &text)
{
    bool wide = false;
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        if (bytes.view()[at] == 0)
            wide = !wide;
        else if (wide)
            text += QChar(bytes.u16(at++));
        else
            text += QLatin1Char(bytes.view()[at]);
    }
}

void appendAny(const JetColumn &column, JetBytes bytes, QString &text)
{
    constexpr quint16 PackedMark = 0xFEFF;
    constexpr qsizetype MarkSize = sizeof PackedMark;
    if (column.mayBePacked && bytes.size() >= MarkSize && bytes.u16(0) == PackedMark)
        appendPacked(bytes.from(MarkSize), text);
    else
        appendPlain(bytes, text);
}

QString withPoint(QString digits, int scale, bool negative)
{
    if (scale > 0) {
        digits = digits.rightJustified(scale + 1, u'0');
        while (scale > 0 && digits.endsWith(u'0')) {
            digits.chop(1);
            --scale;
        }
        if (scale > 0)
            digits.insert(digits.size() - scale, Numbers::decimalPoint());
    }
    return negative && digits != u"0" ? u'-' + digits : digits;
}

QString currencyText(qint64 tenThousandths)
{
    const bool negative = tenThousandths < 0;
    const quint64 amount = negative ? 0 - quint64(tenThousandths) : quint64(tenThousandths);
    return withPoint(QString::number(amount), 4, negative);
}

// A sign byte and 128 bits, as 32-bit words with the highest first.
QString decimalText(JetBytes bytes, int scale)
{
    std::array<quint32, 4> words;
    for (size_t i = 0; i < words.size(); ++i)
        words[i] = bytes.u32(1 + 4 * qsizetype(i));
    QString digits;
    while (words != std::array<quint32, 4>{}) {
        quint64 rest = 0;
        for (quint32 &word : words) {
            const quint64 part = rest << 32 | word;
            word = quint32(part / 10);
            rest = part % 10;
        }
        digits.prepend(QChar(u'0' + char16_t(rest)));
    }
    if (digits.isEmpty())
        digits = u"0"_s;
    return withPoint(digits, scale, (bytes.u8(0) & 0x80) != 0);
}

QString numberText(double number)
{
    if (!std::isfinite(number))
        jetDamage("a number is not finite");
    return Numbers::formatLocal(number);
}

QString singleText(float number)
{
    if (!std::isfinite(number))
        jetDamage("a number is not finite");
    return Numbers::formatLocal(double(number), 7);
}

// On day 0 only the time, at midnight only the date, else both. Before day 0 the time of day still counts
// away from zero: -1.25 is 29 December 1899, 6 o'clock.
QString dateText(double days)
{
    constexpr double FirstDay = -657434; // year 100
    constexpr double LastDay = 2958466;  // after the year 9999
    if (!(days >= FirstDay && days < LastDay))
        jetDamage("a date is out of range");
    const double day = std::trunc(days);
    const int seconds = int(std::lround(std::abs(days - day) * 86400));
    const QLocale locale = QLocale::system();
    const QString date =
        locale.toString(QDate(1899, 12, 30).addDays(qint64(day) + seconds / 86400), QLocale::ShortFormat);
    const QString time = locale.toString(QTime(0, 0).addSecs(seconds % 86400), u"HH:mm:ss"_s);
    if (day == 0)
        return time;
    return seconds % 86400 == 0 ? date : date + u' ' + time;
}

// The text of a type other than text.
QString otherText(const JetColumn &column, JetBytes cell)
{
    switch (column.type) {
    case Type::Byte:
        return QString::number(cell.u8(0));
    case Type::Int16:
        return QString::number(cell.number<qint16>(0));
    case Type::Int32:
        return QString::number(cell.number<qint32>(0));
    case Type::Currency:
        return currencyText(cell.number<qint64>(0));
    case Type::Single:
        return singleText(cell.number<float>(0));
    case Type::Double:
        return numberText(cell.number<double>(0));
    case Type::Date:
        return dateText(cell.number<double>(0));
    case Type::Guid:
        return QUuid(cell.u32(0), cell.u16(4), cell.u16(6), cell.u8(8), cell.u8(9), cell.u8(10), cell.u8(11),
                     cell.u8(12), cell.u8(13), cell.u8(14), cell.u8(15))
            .toString()
            .toUpper();
    case Type::Decimal:
        return decimalText(cell, column.scale);
    default:
        throw RuntimeError(ErrorNumber::TypeMismatch, column.name);
    }
}

} // namespace

QString JetTexts::fromBoolean(bool value)
{
    return value ? u"True"_s : u"False"_s;
}

void JetTexts::append(const JetColumn &column, JetBytes cell, QString &text)
{
    switch (column.type) {
    case Type::Text:
        return appendAny(column, cell, text);
    case Type::Memo:
        return appendAny(column, JetBytes(longValue(cell)), text);
    default:
        m_pages.spend(NumberWork);
        text += otherText(column, cell);
    }
}

// A long value is in the row itself, in one row elsewhere, or in a chain of rows.
QByteArray JetTexts::longValue(JetBytes cell)
{
    constexpr quint32 InRow = 0x80000000;
    constexpr quint32 InOneRow = 0x40000000;
    constexpr qsizetype HeaderSize = 12;
    const quint32 flags = cell.u32(0);
    const qsizetype size = flags & 0x3FFFFFFF;
    JetRowPointer next = cell.u32(4);
    if ((flags & InRow) != 0)
        return cell.mid(HeaderSize, size).view().toByteArray();

    if ((flags & InOneRow) != 0)
        return m_pages.row(next, LongValueOwner).mid(0, size).view().toByteArray();
    QByteArray value;
    while (value.size() < size) {
        const JetBytes piece = m_pages.row(next, LongValueOwner);
        next = piece.u32(0);
        if (piece.size() == 4)
            jetDamage("a long text does not go on");
        value += piece.from(4).view();
    }
    if (value.size() != size || next != 0)
        jetDamage("a long text has another length than it announces");
    return value;
}
