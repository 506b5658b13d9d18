#include "platform/x11.h"

#include <QGuiApplication>
#include <QWidget>
#include <xcb/xcb.h>

namespace quarvel {
namespace {

// Of the client message _NET_WM_STATE (freedesktop.org, Extended Window Manager Hints 1.5).
constexpr quint32 addState = 1;
constexpr quint32 fromApplication = 1;

} // namespace

xcb_connection_t* x11Connection() {
    const auto* const x11 =
        qGuiApp != nullptr ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 != nullptr ? x11->connection() : nullptr;
}

quint32 x11Atom(QByteArrayView name) {
    xcb_connection_t* const connection = x11Connection();
    const auto asked = xcb_intern_atom(connection, 0, static_cast<quint16>(name.size()), name.data());
    const X11Reply<xcb_intern_atom_reply_t> answer(xcb_intern_atom_reply(connection, asked, nullptr));
    return answer != nullptr ? answer->atom : quint32{XCB_ATOM_NONE};
}

void askToStayAbove(const QWidget& window) {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr || !window.isVisible()) return;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.internalWinId());
    message.type = x11Atom("_NET_WM_STATE");
    message.data.data32[0] = addState;
    message.data.data32[1] = x11Atom("_NET_WM_STATE_ABOVE");
    message.data.data32[3] = fromApplication;
    xcb_send_event(connection, 0, xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

} // namespace quarvel
