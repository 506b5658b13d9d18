#include "forms/focus_ring.h"

#include "forms/look.h"

#include <QApplication>
#include <QEvent>
#include <QList>
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

QList<QWidget*> neighboursOf(const QWidget& control) {
    QList<QWidget*> all = control.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    all.removeIf(
        [](const QWidget* widget) { return !widget->isVisible() || widget->objectName() == ringName; });
    return all; // from the back to the front
}

/// The place of a control's ring in its parent: around it where that covers no neighbour; else on its edge,
/// and clear of the neighbours in front, which a ring over them would slow down.
QRect ringPlace(QWidget& control) {
    const QList<QWidget*> neighbours = neighboursOf(control);
    const QRect around = grown(control.geometry());
    const bool room = std::none_of(neighbours.begin(), neighbours.end(), [&](const QWidget* neighbour) {
        return neighbour != &control && neighbour->geometry().intersects(around);
    });
    return room ? around : seenPart(control);
}

} // namespace

QRect seenPart(QWidget& control) {
    const QList<QWidget*> neighbours = neighboursOf(control);
    QRegion seen = control.geometry() & control.parentWidget()->rect();
    for (qsizetype i = neighbours.indexOf(&control) + 1; i < neighbours.size(); ++i)
        seen -= neighbours[i]->geometry();
    return seen.boundingRect();
}

void marksItsFocus(QWidget& widget) { widget.setProperty(ownMark, true); }

FocusRing::FocusRing(QWidget& window) : QFocusFrame(&window) {
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
    const QRect place = ringPlace(*focused_);
    const QPoint corner = focused_->parentWidget()->mapTo(parentWidget(), place.topLeft());
    // Beyond the window's edge there is nothing to see: there the ring stands at the edge.
    const QRect outer = QRect(corner, place.size()) & parentWidget()->rect();
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
    return QFocusFrame::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), colour::ink);
    painter.fillRect(rect().adjusted(dark, dark, -dark, -dark), Qt::white);
}

} // namespace quarvel
