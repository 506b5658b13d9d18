#pragma once

#include <QString>

namespace quarvel {

/// A text by whose characters file names sort as people sort them: without regard to letter case, accents
/// composed, numbers by their value (2 before 10, and 007 as 7), what stands before the last dot first.
[[nodiscard]] QString sortingKey(const QString& name);

} // namespace quarvel
