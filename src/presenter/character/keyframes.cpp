#include "presenter/character/keyframes.h"

namespace quarvel {
namespace {

// clang-format off

/// Comes flying from the upper right, lands, and pushes the goggles up.
constexpr Keyframe show[] = {
    {0, {.x = 62, .y = -138, .scale = 0.12, .opacity = 0, .lean = -22, .tuck = 1, .headTurn = -0.6,
         .crest = 25, .goggles = 1, .leftWing = 150, .leftSpread = 1, .rightWing = 150, .rightSpread = 1,
         .scarf = 45}},
    {150, {.x = 60, .y = -130, .scale = 0.2, .opacity = 0.6, .lean = -22, .tuck = 1, .headTurn = -0.6,
           .crest = 25, .goggles = 1, .leftWing = 60, .leftSpread = 1, .rightWing = 60, .rightSpread = 1,
           .scarf = 45}},
    {300, {.x = 54, .y = -118, .scale = 0.32, .lean = -20, .tuck = 1, .headTurn = -0.6, .crest = 30,
           .goggles = 1, .leftWing = 145, .leftSpread = 1, .rightWing = 145, .rightSpread = 1, .scarf = 38}},
    {450, {.x = 43, .y = -100, .scale = 0.47, .lean = -18, .tuck = 1, .headTurn = -0.5, .crest = 25,
           .goggles = 1, .leftWing = 55, .leftSpread = 1, .rightWing = 55, .rightSpread = 1, .scarf = 45}},
    {600, {.x = 28, .y = -78, .scale = 0.64, .lean = -13, .tuck = 1, .headTurn = -0.35, .crest = 28,
           .goggles = 1, .leftWing = 140, .leftSpread = 1, .rightWing = 140, .rightSpread = 1, .scarf = 35}},
    {750, {.x = 14, .y = -54, .scale = 0.8, .lean = -6, .tuck = 0.9, .headTurn = -0.2, .crest = 18,
           .goggles = 1, .leftWing = 60, .leftSpread = 1, .rightWing = 60, .rightSpread = 1, .scarf = 30}},
    {900, {.x = 4, .y = -26, .scale = 0.94, .lean = 2, .tuck = 0.4, .headNod = 0.3, .crest = -12,
           .lookY = 0.7, .brow = 0.6, .goggles = 1, .leftWing = 130, .leftSpread = 1, .rightWing = 130,
           .rightSpread = 1, .scarf = 10}},
    {1040, {.squash = 0.86, .headNod = 0.5, .crest = 20, .eyeOpen = 0.3, .goggles = 1, .leftWing = 85,
            .leftSpread = 0.8, .rightWing = 85, .rightSpread = 0.8, .scarf = -14}},
    {1200, {.squash = 1.05, .headNod = -0.2, .crest = -14, .brow = 0.6, .goggles = 1, .leftWing = 45,
            .leftBend = 0, .rightWing = 95, .rightBend = 60, .scarf = 12}},
    {1380, {.squash = 1, .headNod = 0.2, .headTilt = 4, .crest = 4, .brow = 0.4, .goggles = 1,
            .rightWing = 140, .rightBend = 46, .scarf = -5}},
    {1600, {.squash = 1.02, .headNod = -0.3, .headTilt = -3, .crest = -8, .cheer = 0.5, .brow = 1,
            .goggles = 0, .rightWing = 158, .rightBend = 22, .scarf = 2}},
    {1720, {.headNod = -0.1, .headTilt = -3, .crest = 6, .cheer = 0.7, .brow = 1, .rightWing = 150,
            .rightBend = 22, .rightSpread = 0.4}},
    {2000, standing},
};

/// Pulls the goggles down, crouches, takes off and flies away where it came from.
constexpr Keyframe hide[] = {
    {0, standing},
    {250, {.headNod = -0.2, .headTilt = -3, .crest = -6, .rightWing = 158, .rightBend = 22}},
    {480, {.squash = 0.99, .headNod = 0.3, .headTilt = 3, .crest = 8, .eyeOpen = 0.6, .goggles = 1,
           .rightWing = 140, .rightBend = 46}},
    {660, {.squash = 0.85, .headNod = 0.45, .crest = 14, .brow = -0.1, .goggles = 1, .leftWing = 60,
           .leftBend = -30, .leftSpread = 0.5, .rightWing = 70, .rightBend = -10, .rightSpread = 0.5,
           .scarf = -6}},
    {820, {.y = -10, .squash = 1.07, .tuck = 0.3, .headNod = -0.5, .crest = -12, .brow = 0.8, .goggles = 1,
           .leftWing = 140, .leftSpread = 1, .rightWing = 140, .rightSpread = 1, .scarf = 10}},
    {960, {.x = 6, .y = -34, .scale = 0.9, .lean = 6, .tuck = 0.8, .headTurn = 0.2, .headNod = -0.4,
           .crest = -24, .brow = 0.5, .goggles = 1, .leftWing = 50, .leftSpread = 1, .rightWing = 50,
           .rightSpread = 1, .scarf = -25}},
    {1100, {.x = 18, .y = -60, .scale = 0.76, .lean = 13, .tuck = 1, .headTurn = 0.4, .headNod = -0.3,
            .crest = -28, .goggles = 1, .leftWing = 145, .leftSpread = 1, .rightWing = 145,
            .rightSpread = 1, .scarf = -35}},
    {1240, {.x = 32, .y = -84, .scale = 0.6, .lean = 18, .tuck = 1, .headTurn = 0.6, .headNod = -0.2,
            .crest = -30, .goggles = 1, .leftWing = 55, .leftSpread = 1, .rightWing = 55, .rightSpread = 1,
            .scarf = -45}},
    {1390, {.x = 45, .y = -106, .scale = 0.43, .lean = 20, .tuck = 1, .headTurn = 0.6, .headNod = -0.2,
            .crest = -30, .goggles = 1, .leftWing = 145, .leftSpread = 1, .rightWing = 145,
            .rightSpread = 1, .scarf = -38}},
    {1540, {.x = 56, .y = -124, .scale = 0.26, .opacity = 0.6, .lean = 22, .tuck = 1, .headTurn = 0.6,
            .crest = -30, .goggles = 1, .leftWing = 60, .leftSpread = 1, .rightWing = 60, .rightSpread = 1,
            .scarf = -45}},
    {1700, {.x = 62, .y = -138, .scale = 0.12, .opacity = 0, .lean = 22, .tuck = 1, .headTurn = 0.6,
            .crest = -25, .goggles = 1, .leftWing = 150, .leftSpread = 1, .rightWing = 150,
            .rightSpread = 1, .scarf = -45}},
};

/// A hop for joy, then a pilot's salute.
constexpr Keyframe greet[] = {
    {0, standing},
    {180, {.squash = 0.9, .headNod = 0.35, .crest = 10, .cheer = 0.3, .leftWing = 14, .rightWing = 14,
           .scarf = -4}},
    {380, {.y = -17, .squash = 1.06, .tuck = 0.5, .headNod = -0.3, .crest = -16, .cheer = 0.9, .brow = 1,
           .beak = 0.5, .leftWing = 112, .leftBend = 10, .leftSpread = 1, .rightWing = 112, .rightBend = 10,
           .rightSpread = 1, .scarf = 22}},
    {580, {.squash = 0.91, .headNod = 0.2, .crest = 18, .cheer = 0.8, .brow = 0.8, .beak = 0.3,
           .leftWing = 70, .leftSpread = 0.7, .rightWing = 80, .rightSpread = 0.7, .scarf = -16}},
    {820, {.squash = 1.03, .headNod = -0.15, .headTilt = 3, .crest = -8, .brow = 0.6, .leftWing = 16,
           .leftBend = -6, .rightWing = 122, .rightBend = 48, .scarf = 8}},
    {950, {.squash = 1.02, .headNod = -0.1, .headTilt = 4, .brow = 0.7, .leftWing = 14, .leftBend = -6,
           .rightWing = 125, .rightBend = 53, .scarf = -3}},
    {1380, {.squash = 1.02, .headNod = -0.1, .headTilt = 4, .cheer = 0.35, .brow = 0.8, .leftWing = 14,
            .leftBend = -6, .rightWing = 125, .rightBend = 53}},
    {1580, {.lean = 1, .squash = 1, .headNod = 0.25, .headTilt = -2, .crest = 8, .cheer = 0.9, .brow = 1,
            .beak = 0.2, .leftWing = 22, .rightWing = 108, .rightBend = 4, .rightSpread = 0.7, .scarf = 5}},
    {1800, {.headTilt = -2, .crest = -4, .cheer = 0.7, .brow = 0.6, .leftWing = 28, .rightWing = 60,
            .scarf = -2}},
    {2100, standing},
};

/// Fluffs itself up, gives itself a shake and settles.
constexpr Keyframe restPose[] = {
    {0, standing},
    {220, {.squash = 1.04, .headNod = -0.2, .crest = -10, .cheer = 0.3, .brow = 0.5, .leftWing = 52,
           .leftSpread = 0.6, .rightWing = 52, .rightSpread = 0.6, .scarf = 4}},
    {360, {.lean = -1, .squash = 1.01, .headTurn = -0.25, .headTilt = -6, .crest = 14, .eyeOpen = 0,
           .leftWing = 40, .leftSpread = 0.4, .rightWing = 54, .rightSpread = 0.6, .scarf = -10}},
    {480, {.lean = 1, .squash = 0.99, .headTurn = 0.25, .headTilt = 6, .crest = -14, .eyeOpen = 0,
           .leftWing = 50, .leftSpread = 0.5, .rightWing = 38, .rightSpread = 0.4, .scarf = 10}},
    {600, {.squash = 0.97, .headTurn = -0.1, .headTilt = -3, .crest = 8, .eyeOpen = 0.2, .cheer = 0.3,
           .leftWing = 26, .rightWing = 30, .scarf = -5}},
    {760, {.squash = 0.985, .headNod = 0.1, .headTilt = 1, .crest = -3, .cheer = 0.4, .leftWing = 24,
           .rightWing = 24, .scarf = 2}},
    {1000, standing},
};

/// Shakes its head with a sorry face and shrugs: there is nothing.
constexpr Keyframe decline[] = {
    {0, standing},
    {260, {.headNod = 0.3, .headTilt = 3, .crest = 6, .lookY = 0.4, .brow = -0.8, .leftWing = 26,
           .rightWing = 26}},
    {480, {.headTurn = -0.85, .headNod = 0.25, .headTilt = -3, .crest = 10, .lookX = -0.4, .lookY = 0.2,
           .eyeOpen = 0.8, .brow = -1, .leftWing = 24, .rightWing = 30, .scarf = 5}},
    {740, {.headTurn = 0.85, .headNod = 0.25, .headTilt = 3, .crest = -10, .lookX = 0.4, .lookY = 0.2,
           .eyeOpen = 0.15, .brow = -1, .leftWing = 34, .rightWing = 28, .scarf = -6}},
    {1000, {.headTurn = -0.75, .headNod = 0.2, .headTilt = -3, .crest = 9, .lookX = -0.3, .lookY = 0.3,
            .eyeOpen = 0.85, .brow = -1, .leftWing = 42, .leftBend = 10, .rightWing = 42, .rightBend = 10,
            .scarf = 5}},
    {1260, {.squash = 1.03, .headTurn = 0.1, .headNod = -0.1, .headTilt = 8, .crest = -6, .eyeOpen = 0.9,
            .brow = -1, .leftWing = 58, .leftBend = 52, .leftSpread = 0.9, .rightWing = 58, .rightBend = 52,
            .rightSpread = 0.9, .scarf = -4}},
    {1640, {.squash = 1.02, .headNod = -0.05, .headTilt = 9, .eyeOpen = 0.85, .brow = -1, .leftWing = 55,
            .leftBend = 50, .leftSpread = 0.9, .rightWing = 55, .rightBend = 50, .rightSpread = 0.9}},
    {1840, {.squash = 0.97, .headNod = 0.3, .headTilt = 3, .crest = 6, .lookY = 0.4, .eyeOpen = 0.7,
            .brow = -0.7, .leftWing = 22, .rightWing = 22, .scarf = 3}},
    {2100, standing},
};

/// Takes the folded chart out of the bag and opens it.
constexpr Keyframe read[] = {
    {0, standing},
    {240, {.lean = -1, .headTurn = -0.5, .headNod = 0.45, .headTilt = -4, .crest = 6, .lookX = -0.7,
           .lookY = 0.8, .leftWing = 62, .leftBend = -70, .leftSpread = 0.4, .scarf = -2}},
    {440, {.lean = -2, .squash = 0.98, .headTurn = -0.55, .headNod = 0.6, .headTilt = -6, .crest = 8,
           .lookX = -0.7, .lookY = 0.9, .leftWing = 47, .leftBend = -92, .scarf = -4}},
    {540, {.lean = -2, .squash = 0.975, .headTurn = -0.55, .headNod = 0.6, .headTilt = -6, .crest = 8,
           .lookX = -0.7, .lookY = 0.9, .leftWing = 47, .leftBend = -92, .chart = 0.05, .scarf = -4}},
    {840, {.lean = 1, .squash = 1.03, .headTurn = -0.6, .headNod = -0.1, .headTilt = 2, .crest = -8,
           .lookX = -0.7, .cheer = 0.4, .brow = 0.9, .leftWing = 78, .leftBend = 32, .chart = 1, .scarf = 6}},
    {1000, {.lean = 1, .squash = 1.02, .headTurn = -0.5, .headNod = 0, .headTilt = 2, .crest = -2,
            .lookX = -0.6, .cheer = 0.4, .brow = 0.8, .leftWing = 72, .leftBend = 24, .rightWing = 26,
            .rightBend = -40, .chart = 1, .scarf = 2}},
    {1260, {.squash = 0.98, .headNod = 0.5, .crest = 8, .lookY = 0.8, .leftWing = 4, .leftBend = -96,
            .rightWing = 12, .rightBend = -80, .chart = 1, .unfold = 0.06, .scarf = -3}},
    {1560, {.squash = 1.025, .headNod = 0.3, .crest = -8, .lookX = -0.2, .lookY = 0.6, .brow = 0.5,
            .leftWing = 58, .leftBend = -58, .rightWing = 58, .rightBend = -58, .chart = 1, .unfold = 1,
            .scarf = 4}},
    {1760, {.squash = 0.99, .headNod = 0.5, .crest = 3, .lookX = -0.5, .lookY = 0.75, .eyeOpen = 0.9,
            .leftWing = 48, .leftBend = -61, .rightWing = 48, .rightBend = -61, .chart = 1, .unfold = 1,
            .scarf = -1}},
    {2000, reading},
};

/// Looks up, folds the chart and puts it back.
constexpr Keyframe readReturn[] = {
    {0, reading},
    {220, {.squash = 1.01, .headNod = -0.05, .headTilt = 3, .crest = -6, .cheer = 0.5, .brow = 0.6,
           .leftWing = 52, .leftBend = -60, .rightWing = 52, .rightBend = -60, .chart = 1, .unfold = 1}},
    {420, {.squash = 1, .headNod = 0.15, .headTilt = 2, .lookY = 0.4, .cheer = 0.4, .brow = 0.4,
           .leftWing = 52, .leftBend = -60, .rightWing = 52, .rightBend = -60, .chart = 1, .unfold = 1}},
    {720, {.squash = 0.98, .headNod = 0.45, .crest = 6, .lookY = 0.8, .leftWing = 4, .leftBend = -96,
           .rightWing = 12, .rightBend = -80, .chart = 1, .unfold = 0.06, .scarf = -3}},
    {960, {.lean = 1, .squash = 1.02, .headTurn = -0.5, .headNod = 0.1, .headTilt = 1, .lookX = -0.6,
           .lookY = 0.3, .leftWing = 72, .leftBend = 24, .rightWing = 24, .rightBend = -30, .chart = 1,
           .scarf = 4}},
    {1260, {.lean = -2, .squash = 0.975, .headTurn = -0.55, .headNod = 0.6, .headTilt = -6, .crest = 8,
            .lookX = -0.7, .lookY = 0.9, .leftWing = 47, .leftBend = -92, .chart = 0.05, .scarf = -4}},
    {1360, {.lean = -2, .squash = 0.97, .headTurn = -0.55, .headNod = 0.6, .headTilt = -6, .crest = 8,
            .lookX = -0.7, .lookY = 0.9, .leftWing = 44, .leftBend = -90, .scarf = -4}},
    {1600, {.squash = 1.01, .headTurn = -0.15, .headNod = 0, .crest = -5, .cheer = 0.5, .brow = 0.5,
            .leftWing = 52, .leftBend = -50, .leftSpread = 0.3, .scarf = 3}},
    {1900, standing},
};

/// Waves good-bye.
constexpr Keyframe wave[] = {
    {0, standing},
    {280, {.lean = 1, .squash = 1.02, .headTilt = 5, .crest = -8, .cheer = 0.6, .brow = 1, .beak = 0.25,
           .rightWing = 108, .rightBend = 62, .rightSpread = 0.9, .scarf = 3}},
    {500, {.lean = -1, .headTilt = 8, .crest = 6, .cheer = 0.9, .brow = 1, .beak = 0.35, .rightWing = 98,
           .rightBend = 2, .rightSpread = 0.9, .scarf = -5}},
    {720, {.lean = 1, .squash = 1.015, .headTilt = 5, .crest = -6, .cheer = 1, .brow = 1, .beak = 0.35,
           .rightWing = 110, .rightBend = 66, .rightSpread = 0.9, .scarf = 5}},
    {940, {.lean = -1, .headTilt = 8, .crest = 6, .cheer = 1, .brow = 1, .beak = 0.35, .rightWing = 98,
           .rightBend = 2, .rightSpread = 0.9, .scarf = -5}},
    {1160, {.lean = 1, .squash = 1.015, .headTilt = 5, .crest = -6, .cheer = 1, .brow = 1, .beak = 0.35,
            .rightWing = 110, .rightBend = 66, .rightSpread = 0.9, .scarf = 5}},
    {1380, {.lean = -1, .headTilt = 7, .crest = 5, .cheer = 0.9, .brow = 1, .beak = 0.25, .rightWing = 98,
            .rightBend = 6, .rightSpread = 0.9, .scarf = -4}},
    {1580, {.headTilt = 3, .crest = -4, .cheer = 0.7, .brow = 0.6, .rightWing = 84, .rightBend = 10,
            .rightSpread = 0.5, .scarf = 2}},
    {1900, standing},
};

// clang-format on

} // namespace

std::span<const Keyframe> keyframesOf(Animation animation) {
    switch (animation) {
    case Animation::Show: return show;
    case Animation::Hide: return hide;
    case Animation::Greet: return greet;
    case Animation::RestPose: return restPose;
    case Animation::Decline: return decline;
    case Animation::Read: return read;
    case Animation::ReadReturn: return readReturn;
    case Animation::Wave: return wave;
    }
    return restPose;
}

} // namespace quarvel
