#pragma once

#include <QKeyEvent>

namespace quarvel {

/// Whether a key does to the control that has the focus what a click does: Space and both Return keys.
[[nodiscard]] inline bool isPressKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
}

} // namespace quarvel
