#pragma once

#include "store/memorytables.h"

#include <QStringList>
#include <array>
#include <optional>

/// The colour code of resistors: what each colour means on each ring.
///
/// The colours are the rows of `ResistorColourData`, whose order matters. RuntimeError 13 if a cell should be
/// a number and is not.
class ResistorCode final
{
public:
    using Colours = TextTable<13, 8>;

    /// A ring with its list `Combo2(list)` and its band `Shape3(band)`.
    struct Ring
    {
        int list;
        int band;
        int fewestRings;             ///< of a resistor that has this ring
        int column;                  ///< of the table: what the colour means on this ring
        std::optional<int> firstRow; ///< of the list in the table; none: rows are found by the colour's name
    };

    /// The colour of a band; each part is 0 to 255.
    struct Paint
    {
        int red;
        int green;
        int blue;
    };

    static const std::array<Ring, 6> &rings();

    /// The numbers of rings, in the order of `Combo3`.
    static QStringList ringCounts();

    /// Whether a resistor with @p ringCount rings ("3" to "6") has the ring of `Combo2(list)`.
    static bool hasRing(const QString &ringCount, int list);

    struct Fields
    {
        QString resistance;                 ///< `tbm(7)`, ohm
        QString tolerance;                  ///< `tbm(8)`, percent
        std::optional<QString> temperature; ///< `tbm(9)`, ppm/°C; none: unchanged
    };

    explicit ResistorCode(const Colours &colours) : m_colours(colours) {}

    /// Sets the ring to the colour @p name at @p position (from 0) of its list. Returns the colour of its
    /// band, or nothing if there is no such colour.
    std::optional<Paint> choose(const Ring &ring, int position, const QString &name);

    /// The values of the chosen colours.
    Fields result(const QString &ringCount) const;

private:
    Paint take(const Ring &ring, int row);

    const Colours &m_colours;
    std::array<QString, 3> m_digitCode; ///< `DigitCode`(1) to (3)
    QString m_multiplier;
    QString m_tolerance;   ///< percent
    int m_temperature = 0; ///< ppm/°C
};
