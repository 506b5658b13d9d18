#include "forms/picture_box.h"

#include "forms/accessible_role.h"
#include "forms/focus_ring.h"
#include "forms/look.h"

#include <QEnterEvent>
#include <QFocusEvent>
#include <QFocusFrame>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <utility>

namespace quarvel {
namespace {

/// The mark of the focus, in front of all that the box holds: dark for a light ground, light for a dark one.
class FocusEdge : public QFocusFrame {
public:
    explicit FocusEdge(QWidget* box) : QFocusFrame(box) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(QPen(colour::mark, 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
        painter.setPen(Qt::white);
        painter.drawRect(rect().adjusted(2, 2, -3, -3));
    }
};

class PictureArea : public QWidget, public WithAccessibleRole {
public:
    PictureBox* owner = nullptr;

    PictureArea() {
        setFocusPolicy(Qt::StrongFocus);
        marksItsFocus(*this);
    }
    [[nodiscard]] QAccessible::Role accessibleRole() const override { return QAccessible::Pane; }

protected:
    void wheelEvent(QWheelEvent* event) override {
        // What a scroll bar has left, being at its end, is none of the picture's.
        if (qobject_cast<QScrollBar*>(childAt(event->position().toPoint())) != nullptr) {
            event->ignore();
            return;
        }
        // A wheel tells pixels, too, and they mean nothing: only a touchpad has phases.
        const bool fingers = event->phase() != Qt::NoScrollPhase;
        owner->wheelTurned.raise({.at = event->position(),
                                  .eighths = event->angleDelta(),
                                  .pixels = fingers ? event->pixelDelta() : QPoint(),
                                  .modifiers = event->modifiers(),
                                  .milliseconds = event->timestamp()});
    }

    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::MiddleButton) {
            QWidget::mousePressEvent(event);
            return;
        }
        endDrag(event->globalPosition());
        dragging_ = true;
        setCursor(Qt::ClosedHandCursor);
        owner->dragged.raise(Drag::Begun, event->globalPosition());
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!dragging_) return;
        if (!event->buttons().testFlag(Qt::MiddleButton))
            endDrag(event->globalPosition());
        else
            owner->dragged.raise(Drag::Moved, event->globalPosition());
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::MiddleButton) endDrag(event->globalPosition());
    }
    void enterEvent(QEnterEvent* event) override {
        // The release went to another window: the pointer comes back with nothing held.
        if (!QGuiApplication::mouseButtons().testFlag(Qt::MiddleButton)) endDrag(event->globalPosition());
    }
    void hideEvent(QHideEvent* event) override {
        QWidget::hideEvent(event);
        endDrag({});
    }
    bool event(QEvent* event) override {
        if (event->type() == QEvent::WindowDeactivate) endDrag({});
        return QWidget::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        showFocus(); // whoever uses the keys sees where they go
        QWidget::keyPressEvent(event);
    }
    void focusInEvent(QFocusEvent* event) override {
        QWidget::focusInEvent(event);
        const auto reason = event->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) showFocus();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QWidget::focusOutEvent(event);
        if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
            edge_.hide();
    }
    void resizeEvent(QResizeEvent* event) override {
        QWidget::resizeEvent(event);
        if (edge_.isVisible()) showFocus();
    }

private:
    void endDrag(QPointF at) {
        if (!std::exchange(dragging_, false)) return;
        unsetCursor();
        owner->dragged.raise(Drag::Ended, at);
    }

    /// Marks the part that can be seen: a box may reach beyond its window, or below a neighbour.
    void showFocus() {
        edge_.setGeometry(seenPart(*this).translated(-pos()));
        edge_.raise();
        edge_.show();
    }

    FocusEdge& edge_ = *new FocusEdge(this);
    bool dragging_ = false;
};

} // namespace

PictureBox::PictureBox(Container& container, const ControlSpec& spec, ScaleUnit inner)
    : WidgetControl(container, opaque(spec), new PictureArea),
      Container(widget(), inner, container.controlList()) {
    static_cast<PictureArea&>(widget()).owner = this;
}

} // namespace quarvel
