#pragma once

#include <optional>

/// The four arrow buttons `cmdpre`, by index.
enum class Direction { Left, Right, Up, Down };

/// Walking through the periodic table. Elements are known by their index, atomic number - 1.
namespace Navigation {

inline constexpr int LastElement = 117;

/// Where one step from @p element leads: along the atomic numbers for left and right, along the printed grid
/// for up and down. Nothing where the step ends at the table's edge; left of the first element is that
/// element itself.
std::optional<int> step(Direction direction, int element);

} // namespace Navigation
