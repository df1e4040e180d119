#include "electronics/resistorcode.h"

#include "core/numbers.h"

#include <limits>

namespace {

enum Column { Couleur, Coef1, Coef2, Coef3, Mult, Tol, Temp, Col };

double number(const QString &cell)
{
    const std::optional<double> value = Numbers::parseInvariant(cell);
    if (!value)
        throw RuntimeError(ErrorNumber::TypeMismatch, cell);
    return *value;
}

int wholeNumber(const QString &cell)
{
    const double value = number(cell);
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
    // The lists of the digits leave out the two rows without a digit, the last two lists leave out rows here
    // and there. The band of the tolerance, 5, stands left of that of the temperature, 4.
    static constexpr std::array<Ring, 6> table{{
        {4, 0, Coef1, 2},
        {5, 1, Coef2, 2},
        {6, 2, Coef3, 2},
        {7, 3, Mult, 0},
        {8, 5, Tol, std::nullopt},
        {9, 4, Temp, std::nullopt},
    }};
    return table;
}

const QStringList &ResistorCode::ringCounts()
{
    static const QStringList table{QStringLiteral("3"), QStringLiteral("4"), QStringLiteral("5"),
                                   QStringLiteral("6")};
    return table;
}

bool ResistorCode::hasRing(const QString &ringCount, int list)
{
    switch (list) {
    case 6:
        return ringCount == QLatin1StringView("5") || ringCount == QLatin1StringView("6");
    case 8:
        return ringCount != QLatin1StringView("3");
    case 9:
        return ringCount == QLatin1StringView("6");
    default:
        return true;
    }
}

std::optional<ResistorCode::Paint> ResistorCode::choose(const Ring &ring, int position, const QString &name)
{
    if (ring.firstRow)
        return take(ring, *ring.firstRow + position);
    // A name that occurs twice counts where it stands last.
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
    fields.resistance = Numbers::formatLocal(number(m_multiplier) * number(digits));
    // A resistor without a ring for the tolerance keeps to 20 percent.
    fields.tolerance = hasRing(ringCount, 8) ? m_tolerance : QStringLiteral("20");
    if (hasRing(ringCount, 9))
        fields.temperature = QString::number(m_temperature);
    return fields;
}
