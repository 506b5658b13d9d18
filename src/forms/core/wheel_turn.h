#pragma once

#include <QPoint>
#include <QPointF>
#include <Qt>
#include <QtGlobal>

namespace quarvel {

/// One turn of a wheel, or one move of the fingers on a touchpad, over a control.
struct WheelTurn {
    QPointF at;     ///< the pointer, pixels from the control's top left corner
    QPoint eighths; ///< eighths of a degree, 120 a notch; above 0 is away from the user, left
    QPoint pixels;  ///< the way of the fingers where the touchpad tells it, else (0, 0)
    Qt::KeyboardModifiers modifiers = {}; ///< the keys held
    quint64 milliseconds = 0;             ///< when, on the desktop's clock
};

} // namespace quarvel
