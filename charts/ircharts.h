#pragma once

#include <QString>
#include <optional>

class OptionSlots;
class RowList;

/// The infrared charts: one for each class of functional groups, under one of two printed scales.
namespace IrCharts {

/// Left edge of the picture in `Picture3`, twips.
inline constexpr int PaintLeft = 100;

/// The title of chart "1" to "6"; nothing for other texts.
std::optional<QString> title(const QString &ChartKey);

/// The first row of @p bands for the functional group @p motif of the list of charts: the name begins with
/// the motif, else with its first part ("Azides" of "Azides, diazo, azo"), else with @p title. -1 if there is
/// none.
int bandsOf(const RowList &bands, QStringView motif, const QString &title);

/// "Data/ir/1.gif"
QString file(const QString &ChartKey);

// `Label24` and `Label27`: wave numbers and the wavelengths at the same places.
inline constexpr const char *WaveNumbers = "4000         3500        3000         2500        2000         "
                                           "1500        1000          500             0";
inline constexpr const char *Wavelengths =
    "2.50          2.85         3.33          4.00         5.00          6.66        10.00        20.00 ";

/// The scale of the charts, by the option "IR graduation".
struct Graduation
{
    bool inWaveNumbers;   ///< shows `Label24`, otherwise `Label27`
    const char *quantity; ///< of `Label26`, a letter of the Symbol typeface
    const char *unit;     ///< of `Label25`
    int quantityLeft;     ///< twips, within `grdFrame17(0)`
    int unitLeft;
};

const Graduation &graduation(const OptionSlots &slots);

} // namespace IrCharts
