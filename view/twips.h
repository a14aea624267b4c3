#pragma once

namespace view {

inline constexpr int TwipsPerInch = 1440;
inline constexpr double TwipsPerPoint = 20;

} // namespace view
