#pragma once

#include "support/test_program.h"

#include <QApplication>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

namespace quarvel {

/// The wheel and the middle button over a window's chart, as the desktop tells the window of them.
class ChartDriver {
public:
    explicit ChartDriver(QWidget* window)
        : image(TestProgram::control(window, QStringLiteral("Image1"))),
          frame(TestProgram::control(window, QStringLiteral("Picture1"))) {}

    /// Turns the wheel at a point of a widget, by eighths of a degree.
    static void wheel(const QWidget* over, QPoint at, QPoint eighths, Qt::KeyboardModifiers held = {}) {
        QWheelEvent event(inWindow(over, at), over->mapToGlobal(at), {}, eighths, Qt::NoButton, held,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // what a program sends itself is not passed on
        qApp->notify(over->window()->windowHandle(), &event);
    }
    /// Holds the middle button at a point of the frame, moves to others, and lets go.
    void hold(QPoint at) const { QTest::mousePress(handle(), Qt::MiddleButton, {}, inWindow(frame, at)); }
    void moveTo(QPoint at) const { QTest::mouseMove(handle(), inWindow(frame, at)); }
    void release(QPoint at) const {
        QTest::mouseRelease(handle(), Qt::MiddleButton, {}, inWindow(frame, at));
    }

    QWidget* image;
    QWidget* frame;

private:
    static QPoint inWindow(const QWidget* widget, QPoint at) { return widget->mapTo(widget->window(), at); }
    [[nodiscard]] QWindow* handle() const { return frame->window()->windowHandle(); }
};

} // namespace quarvel
