#include "core/numbers.h"

#include "core/runtimeerror.h"

#include <QLocale>
#include <cmath>

namespace {

QLocale withoutGroups(QLocale locale)
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

const QLocale &userLocale()
{
    static const QLocale locale = withoutGroups(QLocale::system());
    return locale;
}

const QLocale &invariantLocale()
{
    static const QLocale locale = withoutGroups(QLocale::c());
    return locale;
}

std::optional<double> parse(const QLocale &locale, QStringView text)
{
    // QLocale would read "inf" and "nan", and would accept blanks around the number.
    for (const QChar c : text) {
        if (c.isSpace() || (c.isLetter() && c != u'e' && c != u'E'))
            return std::nullopt;
    }
    bool ok = false;
    const double number = locale.toDouble(text, &ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

double require(std::optional<double> number, const QString &text)
{
    if (!number)
        throw RuntimeError(ErrorNumber::TypeMismatch, text);
    return *number;
}

} // namespace

std::optional<double> Numbers::parseLocal(QStringView text)
{
    return parse(userLocale(), text);
}

QString Numbers::formatLocal(double number)
{
    // Only the separator is the user's: QLocale cannot parse the signs and digits that it writes in some
    // locales, such as the Swedish "×10^".
    return formatInvariant(number).replace(u'.', decimalPoint());
}

QString Numbers::formatLocal(double number, int significantDigits)
{
    return formatLocal(QString::number(number, 'g', significantDigits).toDouble());
}

std::optional<double> Numbers::parseInvariant(QStringView text)
{
    return parse(invariantLocale(), text);
}

QString Numbers::formatInvariant(double number)
{
    if (number == 0)
        number = 0; // never "-0"
    return invariantLocale().toString(number, 'G', 15);
}

double Numbers::requireLocal(const QString &text)
{
    return require(parseLocal(text), text);
}

double Numbers::requireInvariant(const QString &text)
{
    return require(parseInvariant(text), text);
}

QString Numbers::decimalPoint()
{
    return userLocale().decimalPoint();
}

int Numbers::roundHalfToEven(double number)
{
    return int(std::nearbyint(number));
}
