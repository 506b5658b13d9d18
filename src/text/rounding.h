#pragma once

#include <cmath>

namespace quarvel {

/// The nearest whole number; a half goes to the even neighbour (12.5 gives 12, 13.5 gives 14).
/// Independent of the floating-point environment's rounding mode.
[[nodiscard]] inline double roundHalfEven(double value) noexcept {
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest < 0.5) return below;
    if (rest > 0.5) return below + 1;
    return std::fmod(below, 2.0) == 0.0 ? below : below + 1;
}

} // namespace quarvel
