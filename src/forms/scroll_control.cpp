#include "forms/scroll_control.h"

#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>

namespace quarvel {

ScrollControl::ScrollControl(Container& container, const ControlSpec& spec, Qt::Orientation orientation)
    : WidgetControl(container, spec, new QScrollBar(orientation)) {
    bar().setAutoFillBackground(true);
    bar().setFocusPolicy(Qt::StrongFocus);
    QObject::connect(&bar(), &QScrollBar::sliderMoved, &bar(), [this] { scrolled.raise(); });
    QObject::connect(&bar(), &QScrollBar::valueChanged, &bar(), [this] { changed.raise(); });
}

QScrollBar& ScrollControl::bar() const { return static_cast<QScrollBar&>(widget()); }

void ScrollControl::setState(int minimum, int maximum, int value, int smallChange, int largeChange) {
    const QSignalBlocker quiet(bar());
    bar().setRange(std::min(minimum, maximum), std::max(minimum, maximum));
    bar().setSingleStep(smallChange);
    bar().setPageStep(largeChange);
    // Setting the value it has would throw back a thumb that is being dragged.
    if (bar().value() != value) bar().setValue(value);
}

int ScrollControl::value() const { return bar().sliderPosition(); }

} // namespace quarvel
