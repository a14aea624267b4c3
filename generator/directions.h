#pragma once

#include <array>
#include <cstddef>

namespace generator {

/// The move from one letter of a word to the next. Rows count downwards, columns to the right.
struct Step {
    int row;
    int column;
};

inline constexpr int DirectionCount = 8;

/// The steps of directions 1..DirectionCount; index 0 is unused.
inline constexpr std::array<Step, DirectionCount + 1> Directions{{
    {0, 0},
    {+1, 0},  // downwards
    {-1, 0},  // upwards
    {0, +1},  // left to right
    {0, -1},  // right to left
    {+1, +1}, // down and to the right
    {+1, -1}, // down and to the left
    {-1, +1}, // up and to the right
    {-1, -1}, // up and to the left
}};

/// Returns the step of a direction 1..DirectionCount; not checked.
inline const Step& StepOf(int direction) { return Directions[static_cast<std::size_t>(direction)]; }

} // namespace generator
