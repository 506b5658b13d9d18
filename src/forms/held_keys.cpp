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
        if (state != Qt::ApplicationActive) down_.clear();
    });
}

void HeldKeys::commandBegins() {
    if (!keyWasLast_) return;
    for (Press& press : down_) press.used = true;
}

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease) keyWasLast_ = false;
    const bool press = type == QEvent::ShortcutOverride || type == QEvent::KeyPress;
    if ((!press && type != QEvent::KeyRelease) || !watched->isWidgetType()) return false;
    const auto& at = *static_cast<const QWidget*>(watched);
    const auto& key = *static_cast<const QKeyEvent*>(event);
    if (!press) return letGo(at, key);
    if (isRepeatFromElsewhere(at, key)) {
        event->accept();
        return true;
    }
    pressed(at, key);
    return false;
}

void HeldKeys::pressed(const QWidget& at, const QKeyEvent& event) {
    if (event.isAutoRepeat()) return;
    keyWasLast_ = true;
    const quint32 place = placeOf(event);
    // Each press is announced to the shortcuts first; only that is sure to be a new one, for the press itself
    // goes on to whatever lies around a control that has no use for it.
    if (event.type() == QEvent::ShortcutOverride || !down_.contains(place))
        down_.insert(place, {at.window(), false});
}

/// A key that is held down answers no message that comes up meanwhile.
bool HeldKeys::isRepeatFromElsewhere(const QWidget& at, const QKeyEvent& event) const {
    const auto press = down_.constFind(placeOf(event));
    return event.isAutoRepeat() && press != down_.constEnd() && press->window != at.window();
}

/// Whether the release is to be kept from the widget.
bool HeldKeys::letGo(const QWidget& at, const QKeyEvent& event) {
    const auto press = down_.constFind(placeOf(event));
    if (event.isAutoRepeat() || press == down_.constEnd()) return false;
    keyWasLast_ = false;
    const bool spent = press->used || press->window != at.window();
    down_.erase(press);
    return spent && isTextBox(at);
}

} // namespace quarvel
