#include "presenter/character/compositing.h"

#include <QByteArray>
#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace quarvel {
namespace {

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Freed>;

/// The selection that the compositing manager of the screen owns while it runs, as the desktops have agreed
/// on in the Extended Window Manager Hints: _NET_WM_CM_Sn.
QByteArray selectionOfTheScreen() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0) std::free(host);
    return "_NET_WM_CM_S" + QByteArray::number(screen);
}

} // namespace

bool compositorRuns() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr) return true; // other desktops always blend
    xcb_connection_t* const server = x11->connection();
    const QByteArray name = selectionOfTheScreen();
    const auto asked = xcb_intern_atom(server, 1, static_cast<uint16_t>(name.size()), name.constData());
    const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(server, asked, nullptr));
    if (atom == nullptr || atom->atom == XCB_ATOM_NONE) return false;
    const auto owner = xcb_get_selection_owner(server, atom->atom);
    const Owned<xcb_get_selection_owner_reply_t> answer(
        xcb_get_selection_owner_reply(server, owner, nullptr));
    return answer != nullptr && answer->owner != XCB_WINDOW_NONE;
}

} // namespace quarvel
