#include "core/numbers.h"

#include <QLocale>
#include <cmath>

namespace {

QLocale withoutGroups(QLocale locale)
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

// Made once: a locale is costly to set up, and a conversion runs at every key press.
const QLocale &userLocale()
{
    static const QLocale locale = withoutGroups(QLocale::system());
    return locale;
}

const QLocale &fixedLocale()
{
    static const QLocale locale = withoutGroups(QLocale::c());
    return locale;
}

std::optional<double> readBy(const QLocale &locale, QStringView text)
{
    // QLocale would read "inf" and "nan", and would forgive blanks around the number.
    for (const QChar c : text) {
        if (c.isSpace() || (c.isLetter() && c != QLatin1Char('e') && c != QLatin1Char('E')))
            return std::nullopt;
    }
    bool ok = false;
    const double number = locale.toDouble(text, &ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

} // namespace

std::optional<double> Numbers::read(QStringView text)
{
    return readBy(userLocale(), text);
}

QString Numbers::write(double number)
{
    // The separator alone is the user's. The signs and digits of some locales, Swedish "×10^" among them, are
    // texts that QLocale writes but does not read.
    return writeFixed(number).replace(QLatin1Char('.'), decimalPoint());
}

std::optional<double> Numbers::readFixed(QStringView text)
{
    return readBy(fixedLocale(), text);
}

QString Numbers::writeFixed(double number)
{
    if (number == 0)
        number = 0; // never "-0"
    return fixedLocale().toString(number, 'G', 15);
}

QString Numbers::decimalPoint()
{
    return userLocale().decimalPoint();
}

int Numbers::roundHalfToEven(double number)
{
    return int(std::nearbyint(number));
}
