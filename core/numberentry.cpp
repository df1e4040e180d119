#include "core/numberentry.h"

#include "core/numbers.h"

#include <QLocale>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar DecimalSigns[]{u'.', u','};

struct Parts
{
    QString minus;
    QString whole;
    QString point;
    QString fraction;
    QString exponent;

    QString text() const { return minus + whole + point + fraction + exponent; }
};

// Any part may be empty: a lone sign is valid.
std::optional<Parts> partsOf(const QString &text)
{
    static const QString Form = u"^([-%1]?)(\\d*)(%2?)(\\d*)(E[-+]?\\d+)?$"_s.arg(
        QRegularExpression::escape(QLocale::system().negativeSign()),
        QRegularExpression::escape(Numbers::decimalPoint()));
    static const QRegularExpression Entry(Form, QRegularExpression::UseUnicodePropertiesOption |
                                                    QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = Entry.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    return Parts{match.captured(1), match.captured(2), match.captured(3), match.captured(4),
                 match.captured(5)};
}

bool fits(const Parts &entry, const NumberEntry &field)
{
    const QString text = entry.text();
    return (field.length <= 0 || text.size() <= field.length) &&
           (field.takesMinus || entry.minus.isEmpty()) && (field.decimals > 0 || entry.point.isEmpty()) &&
           entry.fraction.size() <= std::max(field.decimals, 0) && Numbers::parseLocal(text);
}

// "1,234", but neither "0,234" nor "1,234E5".
bool mayBeThousands(const QString &text)
{
    static const QRegularExpression Thousands(u"^\\W?[1-9]\\d{0,2}[.,]\\d{3}$"_s);
    return Thousands.match(text).hasMatch();
}

/// The first @p count of @p digits, rounded half up; one more digit if the first one carries.
QString rounded(QString digits, qsizetype count)
{
    const bool up = digits[count].digitValue() >= 5;
    digits.truncate(count);
    for (qsizetype i = count; up && i-- > 0;) {
        const bool nine = digits[i].digitValue() == 9;
        digits[i] = QChar(digits[i].unicode() + (nine ? -9 : 1));
        if (!nine)
            return digits;
    }
    return up ? u'1' + digits : digits;
}

void round(Parts &number, qsizetype decimals)
{
    const QString digits = rounded(number.whole + number.fraction, number.whole.size() + decimals);
    number.whole = digits.chopped(decimals);
    number.fraction = digits.last(decimals);
    if (decimals == 0)
        number.point.clear();
}

} // namespace

std::optional<QString> NumberEntry::typed(QString text) const
{
    for (const QChar sign : DecimalSigns)
        text.replace(sign, Numbers::decimalPoint());
    std::optional<Parts> parts = partsOf(text);
    if (!parts)
        return std::nullopt;
    if (parts->whole.isEmpty() && parts->fraction.isEmpty() && !parts->point.isEmpty())
        parts->whole = u'0';
    if (parts->text() == parts->minus)
        return takesMinus ? std::optional(text) : std::nullopt;
    return fits(*parts, *this) ? std::optional(parts->text()) : std::nullopt;
}

std::optional<QString> NumberEntry::pasted(const QString &text) const
{
    const QString point = Numbers::decimalPoint();
    QString entry = text.trimmed().toUpper();
    for (const QChar sign : DecimalSigns) {
        if (point != sign && entry.contains(sign) && mayBeThousands(entry))
            return std::nullopt;
        entry.replace(sign, point);
    }
    std::optional<Parts> parts = partsOf(entry);
    const std::optional<double> number = Numbers::parseLocal(entry);
    if (!parts || !number)
        return std::nullopt;
    const qsizetype free = length > 0 ? length - (entry.size() - parts->fraction.size()) : decimals;
    const qsizetype room = std::clamp<qsizetype>(free, 0, std::max(decimals, 0));
    if (parts->fraction.size() > room)
        round(*parts, room);
    // A number other than 0 must not round to 0.
    if (!fits(*parts, *this) || (*number != 0 && Numbers::parseLocal(parts->text()) == 0.0))
        return std::nullopt;
    return parts->text();
}
