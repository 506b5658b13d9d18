#include "platform/embedded_icon.h"

#include "platform/embedding_host.h"
#include "platform/notification_area.h"
#include "platform/x11.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <optional>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int usualSide = 22; // logical pixels; the host may choose another size

/// What happened to a button, as the distance from the message of its press.
enum class ButtonChange { Down = 0, Up = 1, DoubleClick = 2 };

void tellButton(ShownIconEvents& events, Qt::MouseButton button, ButtonChange change) {
    std::optional<int> down;
    if (button == Qt::LeftButton) down = iconMessage::leftDown;
    if (button == Qt::RightButton) down = iconMessage::rightDown;
    if (button == Qt::MiddleButton) down = iconMessage::middleDown;
    if (down) events.iconMouse(*down + static_cast<int>(change));
}

} // namespace

EmbeddedIcon::EmbeddedIcon(const EmbeddingHost& host, const QIcon& picture, const QString& tip,
                           ShownIconEvents& events)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint), picture_(picture),
      events_(events) {
    setWindowTitle(u"Quarvel"_s);
    setToolTip(tip);
    setMouseTracking(true);
    setAttribute(Qt::WA_AlwaysShowToolTips); // its window is never the active one
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    if (host.isTranslucent())
        setAttribute(Qt::WA_TranslucentBackground);
    else
        setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(usualSide, usualSide);
    resize(usualSide, usualSide);
    window_ = winId();
    QCoreApplication::instance()->installNativeEventFilter(this);
    host.take(window_);
}

/// Taken: the window got a parent. Dropped: it came back to the root window, or went with its parent.
bool EmbeddedIcon::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    const int type = event.response_type & 0x7F;
    bool dropped = false;
    if (type == XCB_REPARENT_NOTIFY) {
        const auto& moved = *static_cast<const xcb_reparent_notify_event_t*>(message);
        if (moved.window != window_ || moved.event != window_) return false;
        const auto roots = xcb_setup_roots_iterator(xcb_get_setup(x11Connection()));
        dropped = moved.parent == roots.data->root;
        if (!dropped) taken(); // at once: Qt complains when it has seen the host map the window first
    }
    if (type == XCB_DESTROY_NOTIFY)
        dropped = static_cast<const xcb_destroy_notify_event_t*>(message)->window == window_;
    if (dropped)
        QMetaObject::invokeMethod(
            this, [this] { events_.iconDropped(); }, Qt::QueuedConnection);
    return false;
}

void EmbeddedIcon::taken() {
    show();
    // A host may paint itself anew when it has made room for the icon, and tells nobody.
    for (const int milliseconds : {300, 1500}) QTimer::singleShot(milliseconds, this, [this] { update(); });
    events_.iconTaken();
}

/// The server's picture of the host behind the icon: it clears a window that has its parent's background.
QPixmap EmbeddedIcon::backgroundOfHost() const {
    xcb_connection_t* const connection = x11Connection();
    const quint32 background = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    xcb_change_window_attributes(connection, static_cast<xcb_window_t>(window_), XCB_CW_BACK_PIXMAP,
                                 &background);
    xcb_clear_area(connection, 0, static_cast<xcb_window_t>(window_), 0, 0, 0, 0);
    return screen()->grabWindow(window_);
}

void EmbeddedIcon::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!testAttribute(Qt::WA_TranslucentBackground)) painter.drawPixmap(QPoint(0, 0), backgroundOfHost());
    picture_.paint(&painter, rect());
}

void EmbeddedIcon::mousePressEvent(QMouseEvent* event) {
    tellButton(events_, event->button(), ButtonChange::Down);
}

void EmbeddedIcon::mouseReleaseEvent(QMouseEvent* event) {
    tellButton(events_, event->button(), ButtonChange::Up);
}

void EmbeddedIcon::mouseDoubleClickEvent(QMouseEvent* event) {
    tellButton(events_, event->button(), ButtonChange::DoubleClick);
}

void EmbeddedIcon::mouseMoveEvent(QMouseEvent*) { events_.iconMouse(iconMessage::mouseMove); }

void EmbeddedIcon::wheelEvent(QWheelEvent*) { events_.iconMouse(iconMessage::wheel); }

} // namespace quarvel
