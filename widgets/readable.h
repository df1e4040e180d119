#pragma once

#include <QPalette>

/// Colours that can be told apart, whatever palette the desktop has.
namespace Readable {

/// Least contrast of a text, and of an edge, to what it is on.
inline constexpr double TextContrast = 4.5;
inline constexpr double EdgeContrast = 3;

/// From 1 to 21, as accessibility guidelines count it.
double contrast(const QColor &one, const QColor &other);

/// A palette with a colour of links, if that of @p desktop cannot be read; else an empty one. Many dark
/// desktops leave links in their dark blue.
QPalette ownLinks(const QPalette &desktop);

/// Makes the edges of fields, lists and boxes visible on a dark desktop, in the whole application. Call it
/// again after a change of the palette.
void showEdges();

} // namespace Readable
