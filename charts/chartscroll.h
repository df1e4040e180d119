#pragma once

#include <optional>

/// How far a chart scrolls. Scroll values and the resulting positions are twips.
namespace ChartScroll {

/// Pictures of at least this height, in picture units, get a scroll bar.
inline constexpr double TallPicture = 12500;

inline constexpr int Minimum = 1;

/// The highest scroll value for a picture of @p height, in picture units; nothing if it gets no scroll bar.
/// RuntimeError 6 if the value exceeds 16 bits.
std::optional<int> maximum(double height);

/// `Picture3`.Top for a scroll value. Infrared charts begin a little lower.
constexpr int pictureTop(int value, bool infrared)
{
    return (infrared ? 99 : 0) - value;
}

} // namespace ChartScroll
