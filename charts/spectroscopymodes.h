#pragma once

#include <array>
#include <optional>

/// What `frmana` shows, in the order of `Comboana`.
enum class SpectroscopyMode { ProtonNmr, CarbonNmr, IrCharts, IrTable };

/// What choosing a mode does to the chart and its texts.
namespace SpectroscopyModes {

/// Twips; `Picture3` within `grdFrame19`, the others within `grdFrame17(0)`.
struct Places
{
    int Picture3Left;
    int Picture3Top;
    int grdFrame19Top;
    int grdFrame19Height;
    int VScroll10Top;
    int VScroll10Height;
};

inline constexpr Places NmrPlaces{60, 0, 840, 6840, 840, 6825};
inline constexpr Places IrPlaces{-60, 100, 1080, 6720, 1170, 6630};

struct Settings
{
    bool emptiesTitle;            ///< of `Label20`; otherwise the title of the last chart remains
    std::optional<Places> places; ///< none: unchanged
    const char *toolTip;          ///< of `Command1`, if help balloons are on; null: unchanged
};

inline constexpr const char *References = "Display explanation of references";

/// By mode. The infrared charts keep the title of the last NMR chart until a row is chosen.
inline constexpr std::array<Settings, 4> AllSettings{{
    {true, NmrPlaces, References},
    {true, NmrPlaces, References},
    {false, IrPlaces, "Display color code"},
    {false, std::nullopt, nullptr},
}};

} // namespace SpectroscopyModes
