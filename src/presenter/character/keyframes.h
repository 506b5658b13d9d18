#pragma once

#include "presenter/character/animations.h"
#include "presenter/character/pose.h"

#include <span>

namespace quarvel {

/// A pose that an animation passes through, and when.
struct Keyframe {
    double ms;
    Pose pose;
};

inline constexpr Pose standing{};

/// The opened chart held up in both wings, the eyes at the beginning of a line.
inline constexpr Pose reading{.headNod = 0.45,
                              .lookX = -0.6,
                              .lookY = 0.7,
                              .eyeOpen = 0.86,
                              .leftWing = 50,
                              .leftBend = -60,
                              .rightWing = 50,
                              .rightBend = -60,
                              .chart = 1,
                              .unfold = 1};

/// An animation's poses in the order of their times, from 0 to its end. A number that a keyframe does not
/// mention is at rest there.
[[nodiscard]] std::span<const Keyframe> keyframesOf(Animation animation);

} // namespace quarvel
