// Sizes and places in the chart pictures, for the tool that draws them and the panes that show them. Pixels
// at 96 dpi.
#pragma once

namespace ChartGeometry {

/// The width of every chart.
inline constexpr int Width = 660;

/// Height of the visible area. Single charts and equations fit; overviews may be taller and scroll.
inline constexpr int VisibleHeight = 440;

/// The infrared charts are linear in wave number: 4000 cm-1 at IrLeft, 0 at IrRight, IrStep for each 500
/// cm-1. The scales printed above a chart use the same abscissae.
inline constexpr int IrLeft = 30;
inline constexpr int IrStep = 74;
inline constexpr int IrRight = IrLeft + 8 * IrStep;

/// The abscissa of a wave number in cm-1.
constexpr double irAbscissa(double waveNumber)
{
    return IrLeft + (4000 - waveNumber) * IrStep / 500;
}

} // namespace ChartGeometry
