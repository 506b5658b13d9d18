#pragma once

#include "pictures/picture.h"

#include <QPixmap>

namespace quarvel {

/// A picture that is compiled into the program, by its name without extension; at a scaled screen in its
/// larger form.
[[nodiscard]] QPixmap compiledPicture(const char* name);

/// The same for a picture that is compiled in as a GIF; a null picture when there is none of that name.
[[nodiscard]] Picture compiledDecoration(const char* name);

} // namespace quarvel
