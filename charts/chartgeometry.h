// Sizes and places of the chart pictures, shared by the tool that draws them and by the panes that show them.
// Pixels at 96 dpi.
#pragma once

namespace ChartGeometry {

/// All charts are equally wide.
inline constexpr int Width = 660;

/// What the chart areas show without scrolling: single charts and equations fit, overviews may be taller.
inline constexpr int VisibleHeight = 440;

/// The infrared charts are linear in wave number: 500 cm-1 take IrStep, from 4000 cm-1 at IrLeft down to 0 at
/// IrRight. The frame of the chart begins where its picture begins, so the printed scales above it use the
/// same abscissae: the middle of "4000" (or "2.50") stands over IrLeft, the middle of the last "0" over
/// IrRight.
inline constexpr int IrLeft = 30;
inline constexpr int IrStep = 74;
inline constexpr int IrRight = IrLeft + 8 * IrStep;

/// In the printed scales a digit is as wide as two blanks; in this unit "4000" begins 4 blanks left of IrLeft
/// and "2.50" begins 3.5 blanks left of it, and the next mark follows 16 or 17 blanks on. DejaVu Sans of 14
/// pixels has blanks of this width.
inline constexpr double IrScaleBlank = 8 * IrStep / 133.0;

/// The abscissa of a wave number in cm-1.
constexpr double irAbscissa(double waveNumber)
{
    return IrLeft + (4000 - waveNumber) * IrStep / 500;
}

} // namespace ChartGeometry
