#pragma once

/// Windows smaller than normal.
///
/// Qt applies a scale factor below 1 to sizes and positions, but still draws a logical pixel as a screen
/// pixel. This scales the drawing too.
namespace SmallScale {

/// For all windows made afterwards. Does nothing if no screen has such a factor.
void install();

} // namespace SmallScale
