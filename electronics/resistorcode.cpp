#include "electronics/resistorcode.h"

#include "core/numbers.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

enum Column { Couleur, Coef1, Coef2, Coef3, Mult, Tol, Temp, Col };

int wholeNumber(const QString &cell)
{
    const double value = Numbers::requireInvariant(cell);
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        throw RuntimeError(ErrorNumber::Overflow, cell);
    return Numbers::roundHalfToEven(value);
}

/// Colours are stored with blue in the highest byte and red in the lowest.
ResistorCode::Paint colour(const QString &cell)
{
    const int value = wholeNumber(cell);
    return {value & 0xff, value >> 8 & 0xff, value >> 16 & 0xff};
}

} // namespace

const std::array<ResistorCode::Ring, 6> &ResistorCode::rings()
{
    // The lists of digits leave out the two rows without a digit, the last two lists leave out other rows.
    // Band 5 (tolerance) is left of band 4 (temperature).
    static constexpr std::array<Ring, 6> table{{
        {4, 0, 3, Coef1, 2},
        {5, 1, 3, Coef2, 2},
        {6, 2, 5, Coef3, 2},
        {7, 3, 3, Mult, 0},
        {8, 5, 4, Tol, std::nullopt},
        {9, 4, 6, Temp, std::nullopt},
    }};
    return table;
}

QStringList ResistorCode::ringCounts()
{
    return {u"3"_s, u"4"_s, u"5"_s, u"6"_s};
}

bool ResistorCode::hasRing(const QString &ringCount, int list)
{
    const auto *ring = std::ranges::find(rings(), list, &Ring::list);
    return ringCount.toInt() >= ring->fewestRings;
}

std::optional<ResistorCode::Paint> ResistorCode::choose(const Ring &ring, int position, const QString &name)
{
    if (ring.firstRow)
        return take(ring, *ring.firstRow + position);
    // If a name occurs twice, the last row counts.
    std::optional<Paint> painted;
    for (int row = 0; row < Colours::rowCount(); ++row) {
        if (m_colours(row, Couleur) == name)
            painted = take(ring, row);
    }
    return painted;
}

ResistorCode::Paint ResistorCode::take(const Ring &ring, int row)
{
    const Paint painted = colour(m_colours(row, Col));
    const QString &meaning = m_colours(row, ring.column);
    switch (ring.column) {
    case Mult:
        m_multiplier = meaning;
        break;
    case Tol:
        m_tolerance = meaning;
        break;
    case Temp:
        m_temperature = wholeNumber(meaning);
        break;
    default:
        m_digitCode[size_t(ring.column - Coef1)] = meaning;
    }
    return painted;
}

ResistorCode::Fields ResistorCode::result(const QString &ringCount) const
{
    // The digits are joined as texts: "4" and "7" are 47.
    QString digits = m_digitCode[0] + m_digitCode[1];
    if (hasRing(ringCount, 6))
        digits += m_digitCode[2];
    Fields fields;
    fields.resistance =
        Numbers::formatLocal(Numbers::requireInvariant(m_multiplier) * Numbers::requireInvariant(digits));
    // Without a tolerance ring, the tolerance is 20 percent.
    fields.tolerance = hasRing(ringCount, 8) ? m_tolerance : u"20"_s;
    if (hasRing(ringCount, 9))
        fields.temperature = QString::number(m_temperature);
    return fields;
}
