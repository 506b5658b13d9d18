#include "forms/held_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <utility>

namespace quarvel {
namespace {

/// The key on the keyboard, whatever it means with the others that are down.
quint32 placeOf(const QKeyEvent& event) {
    return event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<quint32>(event.key());
}

bool isTextBox(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
}

} // namespace

HeldKeys& HeldKeys::watched() {
    static QPointer<HeldKeys> ofApplication;
    if (ofApplication == nullptr) ofApplication = new HeldKeys;
    return *ofApplication;
}

HeldKeys::HeldKeys() : QObject(qApp) {
    qApp->installEventFilter(this);
    // Where a key is let go while another program is in front is never told.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive) presses_.clear();
    });
}

void HeldKeys::commandBegins() {
    if (!keyWasLast_) return;
    for (Press& press : presses_)
        if (press.down) press.used = true;
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease) keyWasLast_ = false;
    const bool press = type == QEvent::ShortcutOverride || type == QEvent::KeyPress;
    if ((!press && type != QEvent::KeyRelease) || !watched->isWidgetType()) return false;
    const auto& at = *static_cast<const QWidget*>(watched);
    const auto& key = *static_cast<const QKeyEvent*>(event);
    if (!press) return letGo(at, key);
    if (isUntoldRepeat(key)) {
        if (type == QEvent::KeyPress) {
            QKeyEvent repeat(type, key.key(), key.modifiers(), key.nativeScanCode(), key.nativeVirtualKey(),
                             key.nativeModifiers(), key.text(), true, static_cast<quint16>(key.count()));
            QCoreApplication::sendEvent(watched, &repeat);
        }
        event->accept(); // and so no shortcut's
        return true;
    }
    if (isRepeatFromElsewhere(at, key)) {
        event->accept();
        return true;
    }
    pressed(at, key);
    return false;
}

/// Whether a held key's repeat comes as a new press. Under X11 a repeat is a release and a press of one time;
/// while the press is still under way, the toolkit takes the two for what they look like.
bool HeldKeys::isUntoldRepeat(const QKeyEvent& event) {
    const auto press = presses_.find(placeOf(event));
    if (event.isAutoRepeat() || press == presses_.end()) return false;
    if (press->letGo == 0 || press->letGo != event.timestamp()) return false;
    press->down = true;
    return true;
}

void HeldKeys::pressed(const QWidget& at, const QKeyEvent& event) {
    if (event.isAutoRepeat()) return;
    keyWasLast_ = true;
    const quint32 place = placeOf(event);
    // Each press is announced to the shortcuts first; only that is sure to be a new one, for the press itself
    // goes on to whatever lies around a control that has no use for it.
    if (event.type() == QEvent::ShortcutOverride || !presses_.value(place).down)
        presses_.insert(place, {at.window(), false});
}

/// A key that is held down answers no message that comes up meanwhile.
bool HeldKeys::isRepeatFromElsewhere(const QWidget& at, const QKeyEvent& event) const {
    const auto press = presses_.constFind(placeOf(event));
    return event.isAutoRepeat() && press != presses_.constEnd() && press->down &&
           press->window != at.window();
}

/// Whether the release is to be kept from the widget.
bool HeldKeys::letGo(const QWidget& at, const QKeyEvent& event) {
    const auto press = presses_.find(placeOf(event));
    if (event.isAutoRepeat() || press == presses_.end() || !press->down) return false;
    keyWasLast_ = false;
    press->down = false;
    press->letGo = event.timestamp();
    return (press->used || press->window != at.window()) && isTextBox(at);
}

} // namespace quarvel
