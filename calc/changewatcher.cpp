#include "calc/changewatcher.h"

#include "core/numbers.h"
#include "core/runtimeerror.h"

#include <optional>

using namespace CalcFields;

namespace {

constexpr char OutOfBounds[] = "Please use a value between 0 and 1";

double number(const QString &text)
{
    const std::optional<double> number = Numbers::parseLocal(text);
    if (!number)
        throw RuntimeError(ErrorNumber::TypeMismatch, text);
    return *number;
}

std::optional<Field> partnerOf(Field field)
{
    switch (field) {
    case Xn1:
        return Xn2;
    case Xn2:
        return Xn1;
    case Xm1:
        return Xm2;
    case Xm2:
        return Xm1;
    default:
        return std::nullopt;
    }
}

// "0." and, where the locale writes a comma, "0,".
bool isZeroBeingTyped(const QString &text)
{
    return text == QLatin1String("0.") || text == QLatin1Char('0') + Numbers::decimalPoint();
}

// The echo of what is being typed: 1 - 0.94 is not 0.06 to the last digit, and the 0.06 must stay as it is.
bool isComplement(const QString &text, const QString &partner)
{
    const std::optional<double> fraction = Numbers::parseLocal(partner);
    return fraction && text == Numbers::formatLocal(1 - *fraction);
}

ChangeWatcher::Reaction keepSumOfOne(Field changed, Field partner, const FieldTexts &texts)
{
    const QString &text = texts[changed];
    if (text.isEmpty())
        return {{}, {{partner, {}}}};
    // The echo of the user's first keys in the partner: writing it now would take away the separator.
    if (isZeroBeingTyped(texts[partner]))
        return {};
    const double fraction = number(text);
    if (fraction <= 1 && isComplement(text, texts[partner]))
        return {};
    if (fraction <= 1)
        return {{}, {{partner, Numbers::formatLocal(1 - fraction)}}};
    return {QString::fromLatin1(OutOfBounds), {{changed, {}}, {partner, {}}}};
}

} // namespace

ChangeWatcher::Reaction ChangeWatcher::react(Field changed, const FieldTexts &texts)
{
    if (const std::optional<Field> partner = partnerOf(changed))
        return keepSumOfOne(changed, *partner, texts);
    // A fraction may be 1, a dilution ratio must stay below it: also one that the calculation writes.
    if (changed == T && !texts[T].isEmpty() && number(texts[T]) >= 1)
        return {QString::fromLatin1(OutOfBounds), {{T, {}}}};
    return {};
}
