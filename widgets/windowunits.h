#pragma once

#include <QRect>
#include <cmath>

/// Positions and sizes of the windows are in twips, 1/1440 inch: 15 to a logical pixel. Pictures are measured
/// in hundredths of a millimetre at 96 dots per inch.
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
