#pragma once

#include <array>

namespace quarvel {

/// How the character stands at one moment: plain numbers, each with its rest value. Lengths are units of the
/// drawing's frame (200 wide, 240 high, y downwards), angles are degrees, left and right are the onlooker's.
struct Pose {
    double x = 0;       ///< the whole figure moved to the right
    double y = 0;       ///< ... and down: negative in the air
    double scale = 1;   ///< its size, the feet staying in place
    double opacity = 1; ///< 0 unseen .. 1
    double lean = 0;    ///< clockwise about the feet
    double squash = 1;  ///< height, the width making up for it
    double tuck = 0;    ///< legs: 0 standing .. 1 drawn in for the flight

    double headTurn = 0; ///< -1 to the left .. 1 to the right
    double headNod = 0;  ///< -1 looking up .. 1 down
    double headTilt = 0; ///< clockwise
    double crest = 0;    ///< the feathers on the head, clockwise

    double lookX = 0;   ///< pupils: -1 left .. 1 right
    double lookY = 0;   ///< -1 up .. 1 down
    double eyeOpen = 1; ///< upper lids: 0 shut .. 1
    double cheer = 0;   ///< lower lids raised by a smile: 0 .. 1
    double brow = 0;    ///< -1 sorry .. 1 delighted
    double beak = 0;    ///< 0 shut .. 1 wide open
    double goggles = 0; ///< 0 on the forehead .. 1 before the eyes

    double leftWing = 30;   ///< upper arm: 0 hanging .. 90 straight out .. 180 up
    double leftBend = -12;  ///< forearm against the upper arm, positive outwards and up
    double leftSpread = 0;  ///< feathers at the wing's tip: 0 together .. 1 spread
    double rightWing = 30;  ///< as leftWing
    double rightBend = -12; ///< as leftBend
    double rightSpread = 0; ///< as leftSpread

    double chart = 0;  ///< the folded chart: 0 in the bag .. 1 in the left wing
    double unfold = 0; ///< 0 folded .. 1 opened between both wings
    double scarf = 0;  ///< the scarf's loose end, clockwise
};

/// One number of a pose and the range that the drawing is made for.
struct PoseNumber {
    double Pose::*number;
    double least;
    double most;
};

/// All the numbers of a pose.
inline constexpr std::array poseNumbers = std::to_array<PoseNumber>({
    {&Pose::x, -70, 70},          {&Pose::y, -140, 0},          {&Pose::scale, 0.1, 1},
    {&Pose::opacity, 0, 1},       {&Pose::lean, -30, 30},       {&Pose::squash, 0.8, 1.1},
    {&Pose::tuck, 0, 1},          {&Pose::headTurn, -1, 1},     {&Pose::headNod, -1, 1},
    {&Pose::headTilt, -20, 20},   {&Pose::crest, -40, 40},      {&Pose::lookX, -1, 1},
    {&Pose::lookY, -1, 1},        {&Pose::eyeOpen, 0, 1},       {&Pose::cheer, 0, 1},
    {&Pose::brow, -1, 1},         {&Pose::beak, 0, 1},          {&Pose::goggles, 0, 1},
    {&Pose::leftWing, -20, 180},  {&Pose::leftBend, -150, 90},  {&Pose::leftSpread, 0, 1},
    {&Pose::rightWing, -20, 180}, {&Pose::rightBend, -150, 90}, {&Pose::rightSpread, 0, 1},
    {&Pose::chart, 0, 1},         {&Pose::unfold, 0, 1},        {&Pose::scarf, -60, 60},
});

/// The pose a part `t` (0 .. 1) of the way from one to another, every number by itself.
[[nodiscard]] inline Pose blend(const Pose& a, const Pose& b, double t) {
    Pose pose;
    for (const PoseNumber& each : poseNumbers)
        pose.*each.number = a.*each.number + t * (b.*each.number - a.*each.number);
    return pose;
}

} // namespace quarvel
