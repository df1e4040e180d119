#pragma once

/// Windows in less than their normal size.
///
/// Qt takes a scale factor below 1 for sizes and places, but still draws a logical pixel as one of the
/// screen. This makes it draw as small as that.
namespace SmallScale {

/// For all windows of the application from now on. Does nothing where no screen has such a factor.
void install();

} // namespace SmallScale
