#pragma once

#include <cmath>

namespace view {

/// The nearest whole number, a half to its even neighbour; independent of the rounding mode in force.
inline double RoundHalfToEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
    return up ? below + 1.0 : below;
}

} // namespace view
