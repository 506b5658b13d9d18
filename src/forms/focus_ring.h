#pragma once

#include <QPointer>
#include <QWidget>

namespace quarvel {

/// Leaves a widget without a ring: it shows by itself that it has the focus.
void marksItsFocus(QWidget& widget);

/// Shows which control of a window has the keyboard: a ring of two colours, dark outside and light inside, so
/// that it is seen on every background. It lies around the control, or on its edge where a neighbour is too
/// near.
class FocusRing : public QWidget {
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
