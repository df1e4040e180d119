#pragma once

#include <QPalette>

/// Colours with enough contrast, whatever the desktop's palette.
namespace Readable {

/// Minimum contrast of texts and of edges to their background.
inline constexpr double TextContrast = 4.5;
inline constexpr double EdgeContrast = 3;

/// From 1 to 21, by the formula of the accessibility guidelines.
double contrast(const QColor &one, const QColor &other);

/// A palette with a link colour if that of @p desktop is unreadable, else an empty one. Many dark desktops
/// keep dark blue links.
QPalette ownLinks(const QPalette &desktop);

/// Makes the edges of fields, lists and boxes visible on a dark desktop, in all windows. Call it again when
/// the palette changes.
void showEdges();

} // namespace Readable
