#include "elements/navigation.h"

#include <array>

namespace {

/// The elements from first to last, both included, move by step; 0 is no move.
struct MoveRange
{
    int first;
    int last;
    int step;
};

// By the printed grid. Fixed lists, not computed from button positions: the detached rows join each other but
// have no way up into the main grid, and yttrium leads down to lanthanum.
constexpr std::array<MoveRange, 9> MovingUp{{
    {0, 1, 0},      // H, He
    {2, 2, -2},     // Li to H
    {3, 8, 0},      // Be to F: nothing above
    {9, 9, -8},     // Ne to He
    {10, 19, -8},   // Na to Ca
    {20, 29, 0},    // Sc to Zn: nothing above
    {30, 56, -18},  // Ga to La
    {57, 70, 0},    // Ce to Lu: the upper detached row
    {71, 117, -32}, // Hf to Uuo
}};

constexpr std::array<MoveRange, 6> MovingDown{{
    {0, 0, 2},    // H to Li
    {1, 1, 8},    // He to Ne
    {2, 11, 8},   // Li to Mg
    {12, 38, 18}, // Al to Y
    {39, 85, 32}, // Zr to Rn
    {86, 117, 0}, // Fr to Uuo: nothing below
}};

template<size_t Size>
std::optional<int> stepBy(const std::array<MoveRange, Size> &table, int element)
{
    for (const MoveRange &range : table) {
        if (element >= range.first && element <= range.last)
            return range.step == 0 ? std::nullopt : std::optional(element + range.step);
    }
    return std::nullopt;
}

} // namespace

std::optional<int> Navigation::step(Direction direction, int element)
{
    switch (direction) {
    case Direction::Left:
        return element == 0 ? 0 : element - 1;
    case Direction::Right:
        return element < LastElement ? std::optional(element + 1) : std::nullopt;
    case Direction::Up:
        return stepBy(MovingUp, element);
    case Direction::Down:
        return stepBy(MovingDown, element);
    }
    return std::nullopt;
}
