#pragma once

#include <QStringList>
#include <array>
#include <optional>

/// What `frmana` shows, in the order of `Comboana`.
enum class SpectroscopyMode { ProtonNmr, CarbonNmr, IrCharts, IrTable };

/// What choosing a mode does to the controls of the pane.
namespace SpectroscopyModes {

inline constexpr int Count = 4;

/// The items of `Comboana`.
const QStringList &captions();

/// A control and whether it is shown, by the mode.
struct Visibility
{
    const char *control;
    std::array<bool, Count> shown;
};

const QList<Visibility> &visibility();

/// Where the chart and what goes with it stand, in twips; `Picture3` within `grdFrame19`, the others within
/// `grdFrame17(0)`.
struct Places
{
    int Picture3Left;
    int Picture3Top;
    int grdFrame19Top;
    int grdFrame19Height;
    int VScroll10Top;
    int VScroll10Height;
};

struct Settings
{
    bool emptiesTitle;            ///< of `Label20`; otherwise the title of the last chart stays
    std::optional<Places> places; ///< none: they stay as they are
    const char *heading;          ///< of `Label2(104)`; null: it stays
    const char *toolTip;          ///< of `Command1`, where help balloons are on; null: it stays
};

const Settings &settings(SpectroscopyMode mode);

} // namespace SpectroscopyModes
