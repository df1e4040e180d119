#include "search/numberspan.h"

#include "core/numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr QChar Minus(0x2212);
constexpr QChar EnDash(0x2013);

bool isDigit(QStringView text, qsizetype at)
{
    return at < text.size() && text[at] >= u'0' && text[at] <= u'9';
}

// Length of the number at the front of @p text; 0 if there is none.
qsizetype numberLength(QStringView text, QChar secondPoint)
{
    qsizetype end = !text.isEmpty() && (text[0] == u'-' || text[0] == u'+' || text[0] == Minus) ? 1 : 0;
    if (!isDigit(text, end))
        return 0;
    while (isDigit(text, end) ||
           (end < text.size() && (text[end] == u'.' || text[end] == secondPoint) && isDigit(text, end + 1)))
        ++end;
    return end;
}

std::optional<double> take(QStringView &text, bool isTyped)
{
    const qsizetype length = numberLength(text, u',');
    QString number = text.first(length).toString().replace(Minus, u'-');
    if (isTyped)
        number.replace(u',', u'.');
    else
        number.remove(u','); // between thousands
    const std::optional<double> value = Numbers::parseInvariant(number);
    if (value)
        text = text.sliced(length);
    return value;
}

bool takeWord(QStringView &text, QStringView word)
{
    if (!text.startsWith(word))
        return false;
    text = text.sliced(word.size()).trimmed();
    return true;
}

// The upper end of a range: "-7.2", " - 60,000".
std::optional<double> takeUpperEnd(QStringView &text, bool isTyped)
{
    QStringView after = text.trimmed();
    if (!after.startsWith(u'-') && !after.startsWith(EnDash))
        return {};
    after = after.sliced(1).trimmed();
    const std::optional<double> upper = take(after, isTyped);
    if (upper)
        text = after;
    return upper;
}

std::optional<NumberSpan> takeSpan(QStringView &text, bool isTyped)
{
    const std::optional<double> first = take(text, isTyped);
    if (!first)
        return {};
    const double second = takeUpperEnd(text, isTyped).value_or(*first);
    return NumberSpan{std::min(*first, second), std::max(*first, second)};
}

std::optional<NumberSpan> inPart(QStringView part)
{
    part = part.trimmed();
    const bool isUpperBound = takeWord(part, u"<") || takeWord(part, u"below ");
    const bool isLowerBound = !isUpperBound && takeWord(part, u">");
    for (const QStringView sign : {QStringView(u"~"), QStringView(u"[")})
        takeWord(part, sign);
    std::optional<NumberSpan> span = takeSpan(part, false);
    if (span && isUpperBound)
        span->low = -Infinity;
    if (span && isLowerBound)
        span->high = Infinity;
    return span;
}

} // namespace

double NumberSpan::middle() const
{
    if (std::isinf(low))
        return high;
    return std::isinf(high) ? low : (low + high) / 2;
}

double NumberSpan::gapTo(const NumberSpan &other) const
{
    return std::max({0.0, other.low - high, low - other.high});
}

QList<NumberSpan> NumberSpan::inCell(QStringView cell)
{
    QList<NumberSpan> spans;
    for (qsizetype start = 0; start < cell.size();) {
        qsizetype end = start;
        while (end < cell.size() && cell[end] != u';' && !(cell[end] == u',' && !isDigit(cell, end + 1)))
            ++end;
        if (const auto span = inPart(cell.sliced(start, end - start)))
            spans << *span;
        start = end + 1;
    }
    return spans;
}

std::optional<NumberSpan> NumberSpan::typed(QStringView text, QStringView *rest)
{
    const std::optional<NumberSpan> span = takeSpan(text, true);
    *rest = text;
    return span;
}
