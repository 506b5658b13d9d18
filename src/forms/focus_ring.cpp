#include "forms/focus_ring.h"

#include "forms/look.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int dark = 2;  // pixels of the outer colour
constexpr int light = 1; // and of the inner one
constexpr int thickness = dark + light;
constexpr QLatin1StringView ringName("focusRing");
constexpr const char* ownMark = "quarvelMarksItsFocus";

QRect grown(const QRect& control) { return control.adjusted(-thickness, -thickness, thickness, thickness); }

/// Whether a ring around a control would cover none of its neighbours.
bool hasRoomAround(const QWidget& control) {
    const QRect ring = grown(control.geometry());
    const QList<QWidget*> neighbours =
        control.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    return std::none_of(neighbours.begin(), neighbours.end(), [&](const QWidget* neighbour) {
        return neighbour != &control && neighbour->isVisible() && neighbour->objectName() != ringName &&
               neighbour->geometry().intersects(ring);
    });
}

} // namespace

void marksItsFocus(QWidget& widget) { widget.setProperty(ownMark, true); }

FocusRing::FocusRing(QWidget& window) : QWidget(&window) {
    setObjectName(ringName);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*old*/, QWidget* focused) { follow(focused); });
}

void FocusRing::follow(QWidget* focused) {
    if (focused_ != nullptr) focused_->removeEventFilter(this);
    const bool inside =
        focused != nullptr && parentWidget()->isAncestorOf(focused) && !focused->property(ownMark).toBool();
    focused_ = inside ? focused : nullptr;
    if (focused_ != nullptr) focused_->installEventFilter(this);
    surround();
}

void FocusRing::surround() {
    if (focused_ == nullptr || !focused_->isVisible()) {
        hide();
        return;
    }
    const QRect control(focused_->mapTo(parentWidget(), QPoint()), focused_->size());
    // Beyond the window's edge there is nothing to see: there the ring stands at the edge.
    const QRect outer =
        hasRoomAround(*focused_) ? grown(control) & parentWidget()->rect() : control & parentWidget()->rect();
    setGeometry(outer);
    const QRect inner = outer.adjusted(thickness, thickness, -thickness, -thickness);
    setMask(QRegion(rect()) - inner.translated(-outer.topLeft()));
    raise();
    show();
    update();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        if (watched == focused_) surround();
        break;
    default: break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), colour::ink);
    painter.fillRect(rect().adjusted(dark, dark, -dark, -dark), Qt::white);
}

} // namespace quarvel
