#pragma once

#include <QString>

namespace quarvel {

/// The number at the start of a text: blanks anywhere are ignored; an optional sign, digits and one decimal
/// point are read, up to the first other character. 0 for a text without one (09L gives 9, "1 8" gives 18,
/// L09 gives 0).
[[nodiscard]] double leadingNumber(const QString& text);

} // namespace quarvel
