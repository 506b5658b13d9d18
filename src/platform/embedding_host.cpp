#include "platform/embedding_host.h"

#include "platform/x11.h"

#include <QGuiApplication>
#include <utility>
#include <xcb/xcb.h>

namespace quarvel {
namespace {

constexpr quint32 requestDock = 0; // SYSTEM_TRAY_REQUEST_DOCK
constexpr int alphaDepth = 32;     // bits

int depthOf(const xcb_screen_t& screen, xcb_visualid_t visual) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0; xcb_depth_next(&depth))
        for (auto type = xcb_depth_visuals_iterator(depth.data); type.rem > 0; xcb_visualtype_next(&type))
            if (type.data->visual_id == visual) return depth.data->depth;
    return 0;
}

const xcb_screen_t& firstScreen(xcb_connection_t* connection) {
    return *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
}

} // namespace

EmbeddingHost::EmbeddingHost(std::function<void()> started)
    : started_(std::move(started)), connection_(x11Connection()) {
    if (connection_ == nullptr) return;
    selection_ = x11Atom("_NET_SYSTEM_TRAY_S0");
    manager_ = x11Atom("MANAGER");
    watchRootWindow();
    QCoreApplication::instance()->installNativeEventFilter(this);
}

/// A notification area that starts tells it to the root window. Qt watches that one as well and the server
/// keeps one choice of events a connection, so that ours is added to Qt's.
void EmbeddingHost::watchRootWindow() const {
    const xcb_window_t root = firstScreen(connection_).root;
    const X11Reply<xcb_get_window_attributes_reply_t> now(
        xcb_get_window_attributes_reply(connection_, xcb_get_window_attributes(connection_, root), nullptr));
    if (now == nullptr) return;
    const quint32 events = now->your_event_mask | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_, root, XCB_CW_EVENT_MASK, &events);
}

EmbeddingHost::Id EmbeddingHost::owner() const {
    if (connection_ == nullptr) return XCB_WINDOW_NONE;
    const auto asked = xcb_get_selection_owner(connection_, selection_);
    const X11Reply<xcb_get_selection_owner_reply_t> answer(
        xcb_get_selection_owner_reply(connection_, asked, nullptr));
    return answer != nullptr ? answer->owner : Id{XCB_WINDOW_NONE};
}

bool EmbeddingHost::isThere() const { return owner() != XCB_WINDOW_NONE; }

bool EmbeddingHost::isTranslucent() const {
    const Id host = owner();
    if (host == XCB_WINDOW_NONE) return false;
    const auto asked =
        xcb_get_property(connection_, 0, host, x11Atom("_NET_SYSTEM_TRAY_VISUAL"), XCB_ATOM_VISUALID, 0, 1);
    const X11Reply<xcb_get_property_reply_t> answer(xcb_get_property_reply(connection_, asked, nullptr));
    if (answer == nullptr || answer->format != 32 || xcb_get_property_value_length(answer.get()) < 4)
        return false;
    const auto visual = *static_cast<const xcb_visualid_t*>(xcb_get_property_value(answer.get()));
    return depthOf(firstScreen(connection_), visual) == alphaDepth;
}

void EmbeddingHost::take(WId window) const {
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = owner();
    message.type = x11Atom("_NET_SYSTEM_TRAY_OPCODE");
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = requestDock;
    message.data.data32[2] = static_cast<quint32>(window);
    xcb_send_event(connection_, 0, message.window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection_);
}

bool EmbeddingHost::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    if ((event.response_type & 0x7F) != XCB_CLIENT_MESSAGE)
        return false; // the high bit: another program sent it
    const auto& told = *static_cast<const xcb_client_message_event_t*>(message);
    if (told.type == manager_ && told.data.data32[1] == selection_)
        QMetaObject::invokeMethod(
            &context_, [this] { started_(); }, Qt::QueuedConnection);
    return false;
}

} // namespace quarvel
