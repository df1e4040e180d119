#pragma once

#include <optional>

/// The four arrow buttons `cmdpre`, by index.
enum class Direction { Left, Right, Up, Down };

/// Steps through the periodic table. An element is its index, atomic number - 1.
namespace Navigation {

inline constexpr int LastElement = 117;

/// The element one step from @p element: left and right by atomic number, up and down by the printed grid.
/// Nothing beyond the table's edge; left of the first element is that element itself.
std::optional<int> step(Direction direction, int element);

} // namespace Navigation
