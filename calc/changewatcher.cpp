#include "calc/changewatcher.h"

#include "core/numbers.h"

#include <optional>

using namespace CalcFields;

namespace {

constexpr char OutOfBounds[] = "Please use a value between 0 and 1";

// "0." or, with a decimal comma, "0,".
bool isZeroBeingTyped(const QString &text)
{
    return text == u"0." || text == u'0' + Numbers::decimalPoint();
}

// The echo of the partner: 1 - 0.94 is not exactly 0.06, but the 0.06 being typed must not change.
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
    // The echo of the first keys in the partner: writing it back would remove the separator.
    if (isZeroBeingTyped(texts[partner]))
        return {};
    const double fraction = Numbers::requireLocal(text);
    if (fraction <= 1 && isComplement(text, texts[partner]))
        return {};
    if (fraction <= 1)
        return {{}, {{partner, Numbers::formatLocal(1 - fraction)}}};
    return {OutOfBounds, {{changed, {}}, {partner, {}}}};
}

} // namespace

ChangeWatcher::Reaction ChangeWatcher::react(Field changed, const FieldTexts &texts)
{
    constexpr Field Partners[]{Xn2, Xn1, Xm2, Xm1}; // of Xn1, Xn2, Xm1, Xm2
    if (changed <= Xm2)
        return keepSumOfOne(changed, Partners[changed], texts);
    // A fraction may be 1, a dilution ratio must be below 1, also when calculated.
    if (changed == T && !texts[T].isEmpty() && Numbers::requireLocal(texts[T]) >= 1)
        return {OutOfBounds, {{T, {}}}};
    return {};
}
