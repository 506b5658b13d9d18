#pragma once

#include "forms/core/wheel_turn.h"
#include "forms/event.h"
#include "forms/widget_control.h"

#include <QPointF>

namespace quarvel {

/// The parts of a drag with the middle button.
enum class Drag { Begun, Moved, Ended };

/// A picture box: a plain area that clips the controls in it. What a picture in it leaves alone reaches it:
/// the wheel and the middle button. It takes the focus, and says so at its edge once the keyboard is used.
class PictureBox : public WidgetControl, public Container {
public:
    /// `inner` is the unit in which the controls inside are measured.
    PictureBox(Container& container, const ControlSpec& spec, ScaleUnit inner);

    /// The wheel was turned over it, or over what it clips save the scroll bars.
    Event<const WheelTurn&> wheelTurned;
    /// The middle button drags in it; the point is the pointer's, in pixels of the screen. A drag that has
    /// begun ends, be it that the window loses the pointer.
    Event<Drag, QPointF> dragged;
};

} // namespace quarvel
