#pragma once

#include "forms/event.h"

class QWidget;

namespace quarvel {

/// Whether a command may begin in the window of a widget. None does while a message of that window is due or
/// open: the message would be about something else by the time it is answered. What the user clicked then
/// does not happen. A command that may begin is counted as begun.
[[nodiscard]] bool beginsCommand(const QWidget& in);

/// The one way by which a control's command reaches its window.
template <class... Args>
void command(const QWidget& control, const Event<Args...>& event, Args... args) {
    if (beginsCommand(control)) event.raise(args...);
}

} // namespace quarvel
