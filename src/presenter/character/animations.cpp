#include "presenter/character/animations.h"

#include "presenter/character/keyframes.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>
#include <utility>

namespace quarvel {
namespace {

using Keys = std::span<const Keyframe>;

/// How fast a number changes at a keyframe, per millisecond: not at all at the ends and where it turns back,
/// otherwise the harmonic mean of its neighbours' slopes, so that the curve is smooth and never swings past a
/// keyframe (monotone cubic interpolation after Fritsch and Butland).
double slopeAt(Keys keys, size_t i, double Pose::*number) {
    if (i == 0 || i + 1 == keys.size()) return 0;
    const auto rise = [&](size_t from) {
        return (keys[from + 1].pose.*number - keys[from].pose.*number) / (keys[from + 1].ms - keys[from].ms);
    };
    const double before = rise(i - 1);
    const double after = rise(i);
    return before * after <= 0 ? 0 : 2 * before * after / (before + after);
}

/// 0 .. 1 with a soft beginning and end; outside of 0 .. 1 it stays at the nearer end.
double eased(double t) {
    const double inside = std::clamp(t, 0.0, 1.0);
    return inside * inside * (3 - 2 * inside);
}

/// How far the lids are open `ms` after a blink began: it takes a fifth of a second.
double lids(double ms) {
    constexpr double half = 100;
    return ms < 0 || ms > 2 * half ? 1 : 1 - eased(ms < half ? ms / half : 2 - ms / half);
}

/// Lids that blink at these times of every round of `round` milliseconds.
double blinking(double ms, double round, std::initializer_list<double> times) {
    double open = 1;
    for (const double time : times) open = std::min(open, lids(std::fmod(ms, round) - time));
    return open;
}

/// Rises from 0 to 1 at `from`, falls back at `to`, taking `over` each time.
double stretch(double ms, double from, double to, double over) {
    return eased((ms - from) / over) * (1 - eased((ms - to) / over));
}

void breathe(Pose& pose, double ms) {
    const double breath = std::sin(ms * 2 * std::numbers::pi / 3400);
    pose.squash += 0.012 * breath;
    pose.leftWing += 2.2 * breath;
    pose.rightWing += 2.2 * breath;
    pose.crest += 2.5 * std::sin(ms * 2 * std::numbers::pi / 2600);
    pose.scarf += 2.5 * std::sin(ms * 2 * std::numbers::pi / 4300);
}

/// Looks about now and then.
Pose standingStill(double ms) {
    constexpr double round = 13000;
    Pose pose = standing;
    breathe(pose, ms);
    const double now = std::fmod(ms, round);
    const double left = stretch(now, 3600, 5400, 350);
    const double tilt = stretch(now, 8200, 10400, 450);
    pose.lookX = 0.3 * tilt - 0.7 * left;
    pose.headTurn = 0.15 * tilt - 0.45 * left;
    pose.headTilt = 6 * tilt;
    pose.cheer = 0.35 * tilt;
    pose.eyeOpen *= blinking(ms, round, {1900, 3600, 6900, 7200, 11200});
    return pose;
}

/// Follows three lines with the eyes, then looks up at the listener for a moment.
Pose readingOn(double ms) {
    constexpr double line = 1500;
    constexpr double round = 4 * line;
    Pose pose = reading;
    breathe(pose, ms);
    const double now = std::fmod(ms, round);
    const double inLine = std::fmod(std::min(now, 3 * line - 1), line) / line;
    const double along = inLine < 0.82 ? inLine / 0.82 : 1 - eased((inLine - 0.82) / 0.18);
    const double up = stretch(now, 3 * line, 4 * line - 400, 300);
    pose.lookX += 1.2 * along + (0.6 - 1.2 * along) * up;
    pose.headTurn = (0.24 * along) * (1 - up);
    pose.lookY -= 0.7 * up;
    pose.headNod -= 0.45 * up;
    pose.cheer = 0.4 * up;
    pose.eyeOpen = (pose.eyeOpen + (1 - pose.eyeOpen) * up) * blinking(ms, round, {1230, 4400});
    return pose;
}

} // namespace

std::optional<Animation> animationNamed(QStringView name) {
    static constexpr std::pair<const char16_t*, Animation> named[] = {
        {u"Greet", Animation::Greet},           {u"RestPose", Animation::RestPose},
        {u"Decline", Animation::Decline},       {u"Read", Animation::Read},
        {u"ReadReturn", Animation::ReadReturn}, {u"Wave", Animation::Wave},
    };
    const auto* const found =
        std::ranges::find(named, name, [](const auto& each) { return QStringView(each.first); });
    return found == std::end(named) ? std::nullopt : std::optional(found->second);
}

int durationOf(Animation animation) { return static_cast<int>(keyframesOf(animation).back().ms); }

Stance stanceAfter(Animation animation) {
    if (animation == Animation::Hide) return Stance::Away;
    return animation == Animation::Read ? Stance::Reading : Stance::Standing;
}

Pose poseAt(Animation animation, double ms) {
    const Keys keys = keyframesOf(animation);
    if (ms <= 0) return keys.front().pose;
    if (ms >= keys.back().ms) return keys.back().pose;
    const auto next = std::ranges::upper_bound(keys, ms, {}, &Keyframe::ms);
    const auto i = static_cast<size_t>(std::distance(keys.begin(), next)) - 1;
    const double span = keys[i + 1].ms - keys[i].ms;
    const double t = (ms - keys[i].ms) / span;
    Pose pose = blend(keys[i].pose, keys[i + 1].pose, eased(t));
    for (const PoseNumber& each : poseNumbers) // the rest of the cubic curve: what the slopes add
        pose.*each.number +=
            span * t * (1 - t) *
            ((1 - t) * slopeAt(keys, i, each.number) - t * slopeAt(keys, i + 1, each.number));
    return pose;
}

Pose idlePose(Stance stance, double ms) {
    switch (stance) {
    case Stance::Standing: return standingStill(ms);
    case Stance::Reading: return readingOn(ms);
    case Stance::Away: break;
    }
    return keyframesOf(Animation::Show).front().pose;
}

} // namespace quarvel
