#pragma once

#include <QPixmap>

namespace quarvel {

/// A picture that is compiled into the program, by its name without extension; at a scaled screen in its
/// larger form.
[[nodiscard]] QPixmap compiledPicture(const char* name);

} // namespace quarvel
