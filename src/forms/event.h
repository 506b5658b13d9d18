#pragma once

#include <functional>

namespace quarvel {

/// Something that happens to a control, wired to one handler of its window by a typed pointer to member.
template <class... Args>
class Event {
public:
    /// Wires the event to a window's handler. Values given after the handler (an index of a control array)
    /// are passed in front of the event's own arguments.
    template <class Window, class Handler, class... Bound>
    void calls(Window* window, Handler handler, Bound... bound) {
        handler_ = [=](Args... args) { (window->*handler)(bound..., static_cast<Args>(args)...); };
    }

    void raise(Args... args) const {
        // The handler may rewire or unload the window that it belongs to: it runs from a copy.
        if (const auto handler = handler_) handler(static_cast<Args>(args)...);
    }

private:
    std::function<void(Args...)> handler_;
};

} // namespace quarvel
