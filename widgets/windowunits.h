#pragma once

#include <QRect>
#include <cmath>

/// Positions and sizes of the window are given in twips, 1/1440 inch: 15 to a logical pixel. A picture is
/// measured in units of its own, hundredths of a millimetre at 96 dots to the inch.
namespace WindowUnits {

inline constexpr int TwipsPerPixel = 15;

inline int pixels(double twips)
{
    return int(std::lround(twips / TwipsPerPixel));
}

inline QRect rect(double left, double top, double width, double height)
{
    return {pixels(left), pixels(top), pixels(width), pixels(height)};
}

inline double pictureUnits(int pixels)
{
    return pixels * 2540.0 / 96.0;
}

} // namespace WindowUnits
