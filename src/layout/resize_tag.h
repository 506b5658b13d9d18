#pragma once

#include <QStringView>

namespace quarvel {

/// Which of a control's measures follow its window's size.
struct ResizeTag {
    bool left = true;
    bool top = true;
    bool width = true;
    bool height = true;

    bool operator==(const ResizeTag&) const = default;
};

/// Reads a control's tag: after an "@" at its beginning, the letters L, T, W and H, large or small and
/// wherever they stand, select a measure each. Any other text selects all four.
[[nodiscard]] ResizeTag readResizeTag(QStringView tag);

} // namespace quarvel
