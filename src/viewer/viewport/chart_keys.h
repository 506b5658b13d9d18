#pragma once

#include <Qt>
#include <optional>

namespace quarvel {

/// What a key does with the chart.
enum class ChartKey {
    Left,
    Right,
    Up,
    Down,
    PageLeft,
    PageRight,
    PageUp,
    PageDown,
    LeftEnd,
    RightEnd,
    Top,
    Bottom,
    ZoomIn,
    ZoomOut
};

/// The meaning of a key (Qt::Key) with its modifiers; none where it means nothing to a chart. Shift turns the
/// page keys and the keys to the ends sideways, as it does the wheel.
[[nodiscard]] std::optional<ChartKey> chartKey(int key, Qt::KeyboardModifiers modifiers);

/// The keys of a single step, which other controls use to go from one to the next.
[[nodiscard]] bool isArrow(ChartKey key);

} // namespace quarvel
