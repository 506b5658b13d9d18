#pragma once

#include <QByteArrayView>
#include <cstdlib>
#include <memory>

class QWidget;
struct xcb_connection_t;

namespace quarvel {

/// The connection to the X server that the windows are on; nullptr on other window systems.
[[nodiscard]] xcb_connection_t* x11Connection();

/// The server's number for a name.
[[nodiscard]] quint32 x11Atom(QByteArrayView name);

/// Replies of the X server are the receiver's to free.
struct X11Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename T>
using X11Reply = std::unique_ptr<T, X11Free>;

/// Asks the window manager to keep a window on the screen above all others. A window that comes back from
/// being hidden or minimised may be there before the toolkit has written down anew that it is to stay on top.
/// Does nothing on other window systems.
void askToStayAbove(const QWidget& window);

} // namespace quarvel
