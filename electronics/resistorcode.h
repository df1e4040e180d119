#pragma once

#include "store/memorytables.h"

#include <QStringList>
#include <array>
#include <optional>

/// The colour code of resistors: which colours mean what on which ring.
///
/// The colours are the rows of `ResistorColourData`, whose order is part of the design. A cell that is empty
/// or no number where one is needed is RuntimeError 13.
class ResistorCode final
{
public:
    using Colours = TextTable<13, 8>;

    /// A ring: the list `Combo2(list)` that its colour is chosen from, and the band `Shape3(band)` it is
    /// painted on.
    struct Ring
    {
        int list;
        int band;
        int column; ///< of the table: what the colour means on this ring

        /// Row of the first entry of the list; the others follow. None: the row is found by the colour's
        /// name.
        std::optional<int> firstRow;
    };

    /// What a band is painted with; each part 0 to 255.
    struct Paint
    {
        int red;
        int green;
        int blue;
    };

    static const std::array<Ring, 6> &rings();

    /// The numbers of rings, in the order of `Combo3`.
    static const QStringList &ringCounts();

    /// Whether a resistor with that many rings ("3" to "6") has the ring of `Combo2(list)`.
    static bool hasRing(const QString &ringCount, int list);

    struct Fields
    {
        QString resistance;                 ///< `tbm(7)`, ohm
        QString tolerance;                  ///< `tbm(8)`, percent
        std::optional<QString> temperature; ///< `tbm(9)`, ppm/°C; none: the field stays as it is
    };

    explicit ResistorCode(const Colours &colours) : m_colours(colours) {}

    /// Takes over the colour @p name at @p position, from 0, of the ring's list. Returns what its band is
    /// painted with; nothing if there is no such colour.
    std::optional<Paint> choose(const Ring &ring, int position, const QString &name);

    /// What the chosen colours mean together.
    Fields result(const QString &ringCount) const;

private:
    Paint take(const Ring &ring, int row);

    const Colours &m_colours;
    std::array<QString, 3> m_digitCode; ///< `DigitCode`(1) to (3)
    QString m_multiplier;
    QString m_tolerance;   ///< percent
    int m_temperature = 0; ///< ppm/°C
};
