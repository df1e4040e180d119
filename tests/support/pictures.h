#pragma once

#include <QImage>
#include <algorithm>
#include <cstdlib>

/// Levels of 255 by which two pictures that look the same may differ. Processors round the edges of lines and
/// letters differently, by a few levels; a line that moves by half a pixel, or a colour that is another,
/// changes pixels by more than this.
inline constexpr int Tolerance = 24;

/// The highest difference of two pixels in red, green or blue; 256 where the sizes differ.
inline int difference(const QImage &a, const QImage &b)
{
    int highest = a.size() == b.size() && !a.isNull() ? 0 : 256;
    for (int pixel = 0; highest < 256 && pixel < a.width() * a.height(); ++pixel) {
        const QRgb one = a.pixel(pixel % a.width(), pixel / a.width());
        const QRgb two = b.pixel(pixel % a.width(), pixel / a.width());
        highest = std::max({highest, std::abs(qRed(one) - qRed(two)), std::abs(qGreen(one) - qGreen(two)),
                            std::abs(qBlue(one) - qBlue(two))});
    }
    return highest;
}
