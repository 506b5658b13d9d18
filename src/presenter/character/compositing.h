#pragma once

namespace quarvel {

/// Whether somebody blends see-through windows with what lies behind them. Where nobody does, on an X screen
/// without a compositing manager, their see-through parts show black.
[[nodiscard]] bool compositorRuns();

} // namespace quarvel
