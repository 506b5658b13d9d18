#pragma once

#include "forms/event.h"
#include "forms/widget_control.h"

class QScrollBar;

namespace quarvel {

/// A scroll bar with its two notifications.
class ScrollControl : public WidgetControl {
public:
    ScrollControl(Container& container, const ControlSpec& spec, Qt::Orientation orientation);

    /// What the bar shows and allows. Raises no notification: whoever sets it knows.
    void setState(int minimum, int maximum, int value, int smallChange, int largeChange);
    /// Where the thumb stands, also while it is being dragged.
    [[nodiscard]] int value() const;

    Event<> scrolled; ///< the thumb is being dragged
    Event<> changed;  ///< the user changed the value

private:
    [[nodiscard]] QScrollBar& bar() const;
};

} // namespace quarvel
