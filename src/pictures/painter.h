#pragma once

#include "pictures/picture.h"

#include <QImage>
#include <QRect>
#include <QSizeF>

namespace quarvel {

/// Paints a picture stretched to `stretched` target pixels (its whole width and height, fractions allowed,
/// both axes on their own) into `target`, of which only the part that shows is ever touched: `part` is the
/// rectangle, in target pixels from the stretched picture's top left corner, that fills `target` (whose size
/// is part.size() and whose format is Format_RGB32). Outside the picture, white. Natural size copies; larger
/// blends neighbours (bilinear); smaller averages over the area that each target pixel covers, exactly in
/// colours and to within about a shade in greys, so that thin lines stay whole and small print legible.
void paintPicture(const Picture& picture, QSizeF stretched, QRect part, QImage& target);

} // namespace quarvel
