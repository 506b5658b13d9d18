#pragma once

#include "presenter/character/pose.h"

class QPainter;

namespace quarvel {

/// The frame that the character is drawn in: it never reaches the border. Units, that is logical pixels at
/// the size of CharacterWindow.
inline constexpr int characterWidth = 200;
inline constexpr int characterHeight = 240;

/// Draws the character, a swift's chick with a pilot's goggles, scarf and chart bag, with the painter's
/// origin at the frame's upper left corner.
void drawCharacter(QPainter& painter, const Pose& pose);

} // namespace quarvel
