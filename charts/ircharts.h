#pragma once

#include <QString>
#include <optional>

class OptionSlots;
class RowList;

/// The infrared charts: one for each group of functional groups, under one of two printed scales.
namespace IrCharts {

/// Where in `Picture3` the picture is painted, twips.
inline constexpr int PaintLeft = 100;

/// Title of the group with number @p ChartKey, "1" to "6"; nothing for other texts.
std::optional<QString> title(const QString &ChartKey);

/// The first row of the table of @p bands that belongs to the functional group @p motif, in words of the list
/// of charts: one whose name begins with it, or with its first part ("Azides" of "Azides, diazo, azo"), or
/// else the heading @p title. -1 if there is none.
int bandsOf(const RowList &bands, QStringView motif, const QString &title);

/// "Data/ir/1.gif"
QString file(const QString &ChartKey);

/// `Label24`: wave numbers. `Label27`: the wavelengths at the same places. Each mark stands over its tick.
inline constexpr const char *WaveNumbers = "4000         3500        3000         2500        2000         "
                                           "1500        1000          500             0";
inline constexpr const char *Wavelengths =
    "2.50          2.85         3.33          4.00         5.00          6.66        10.00        20.00 ";

/// What the option says on the scale of the charts.
struct Graduation
{
    bool inWaveNumbers;   ///< `Label24` is shown, otherwise `Label27`
    const char *quantity; ///< of `Label26`, a letter of the Symbol typeface
    const char *unit;     ///< of `Label25`
    int quantityLeft;     ///< twips, within `grdFrame17(0)`
    int unitLeft;
};

const Graduation &graduation(const OptionSlots &slots);

} // namespace IrCharts
