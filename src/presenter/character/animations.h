#pragma once

#include "presenter/character/pose.h"

#include <QStringView>
#include <array>
#include <optional>

namespace quarvel {

/// What the character can be seen doing. Show begins and Hide ends out of view; Read ends, and ReadReturn
/// begins, with the opened chart held up to be read; all the rest begins and ends standing.
enum class Animation { Show, Hide, Greet, RestPose, Decline, Read, ReadReturn, Wave };

inline constexpr std::array allAnimations{Animation::Show,       Animation::Hide,    Animation::Greet,
                                          Animation::RestPose,   Animation::Decline, Animation::Read,
                                          Animation::ReadReturn, Animation::Wave};

/// How the character stands between two animations.
enum class Stance { Away, Standing, Reading };

/// The animation that can be asked for under a name, which is told apart by upper and lower case; Show and
/// Hide have none.
[[nodiscard]] std::optional<Animation> animationNamed(QStringView name);

/// How long an animation takes, in milliseconds.
[[nodiscard]] int durationOf(Animation animation);

/// The stance that an animation ends in.
[[nodiscard]] Stance stanceAfter(Animation animation);

/// The pose `ms` milliseconds into an animation; before its beginning its first, after its end its last one.
[[nodiscard]] Pose poseAt(Animation animation, double ms);

/// The pose of somebody who has stood still for `ms` milliseconds: breathing, blinking, and with a chart in
/// hand following its lines. At 0 it is the pose that animations end in.
[[nodiscard]] Pose idlePose(Stance stance, double ms);

} // namespace quarvel
