#pragma once

#include <QFocusFrame>
#include <QPointer>
#include <QRect>

namespace quarvel {

/// The part of a control that its parent's edge and its neighbours in front leave to be seen, in the parent's
/// pixels.
[[nodiscard]] QRect seenPart(QWidget& control);

/// Leaves a widget without a ring: it shows by itself that it has the focus.
void marksItsFocus(QWidget& widget);

/// Shows which control of a window has the keyboard: a ring of two colours, dark outside and light inside, so
/// that it is seen on every background. It lies around the control, or on its edge where a neighbour is too
/// near. As a focus frame it is none of the things that assistive tools meet in a window.
class FocusRing : public QFocusFrame {
public:
    explicit FocusRing(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(QWidget* focused);
    void surround();

    QPointer<QWidget> focused_;
};

} // namespace quarvel
