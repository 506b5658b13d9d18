#include "layout/clsResize.h"

#include "layout/resize_tag.h"
#include "text/rounding.h"

#include <cmath>
#include <limits>

namespace quarvel {
namespace {

/// Rounded to a whole number of 32 bits; 0 for one beyond them, or none.
qint32 recorded(double value) {
    const double rounded = roundHalfEven(value);
    const bool fits = rounded >= std::numeric_limits<qint32>::min() && // false of what is no number, too
                      rounded <= std::numeric_limits<qint32>::max();
    return fits ? static_cast<qint32>(rounded) : 0;
}

ControlPosition positionOf(Control& control) {
    const auto read = [&control](Measure which) { return recorded(control.measure(which).value_or(0)); };
    return {&control, read(Measure::Left), read(Measure::Top), read(Measure::Width), read(Measure::Height)};
}

/// While it lives, the window is not painted.
class DrawingSuspended {
public:
    explicit DrawingSuspended(ResizableWindow& window) : window_(window) { window_.suspendDrawing(); }
    ~DrawingSuspended() { window_.resumeDrawing(); }
    DrawingSuspended(const DrawingSuspended&) = delete;
    DrawingSuspended& operator=(const DrawingSuspended&) = delete;

private:
    ResizableWindow& window_;
};

} // namespace

void clsResize::Initialise() {
    if (SourceForm_ == nullptr) return;
    const qint32 width = recorded(SourceForm_->innerWidth());
    const qint32 height = recorded(SourceForm_->innerHeight());
    // Nothing can be in proportion to a window without a size: its next size is recorded.
    if (width == 0 || height == 0) return;
    RecordedWidth = width;
    RecordedHeight = height;
    ControlPositions.clear();
    for (Control* control : SourceForm_->controls()) ControlPositions.push_back(positionOf(*control));
    FirstTime = false;
}

void clsResize::recordAnew(const Control& control) {
    for (ControlPosition& position : ControlPositions)
        if (position.Ctl == &control) position = positionOf(*position.Ctl);
}

void clsResize::ResizeControls() {
    if (SourceForm_ == nullptr || SourceForm_->controls().empty() || SourceForm_->isMinimised()) return;
    if (FirstTime) {
        Initialise();
        return;
    }
    const DrawingSuspended suspended(*SourceForm_);
    const double vertical = SourceForm_->innerHeight() / RecordedHeight;
    const double horizontal = SourceForm_->innerWidth() / RecordedWidth;
    // Always from the record, never from the present measures: rounding does not add up.
    for (const ControlPosition& position : ControlPositions) scale(position, horizontal, vertical);
}

void clsResize::scale(const ControlPosition& position, double horizontal, double vertical) const {
    const ResizeTag follows = readResizeTag(position.Ctl->tag().value_or(QString()));
    struct Step {
        bool selected;
        Measure measure;
        double value;
    };
    for (const Step& step : {Step{follows.left, Measure::Left, position.Left * horizontal},
                             Step{follows.top, Measure::Top, position.Top * vertical},
                             Step{follows.width, Measure::Width, position.Width * horizontal},
                             Step{follows.height, Measure::Height, position.Height * vertical}})
        if (step.selected && position.Ctl->setMeasure(step.measure, step.value) == Setting::Failed) return;
}

void clsResize::SizeFormToScreen(quint8 percentage) {
    if (SourceForm_ == nullptr) return;
    if (FirstTime) Initialise();
    const double height = std::floor(percentage / 100.0 * SourceForm_->screenHeight());
    const double width = std::floor(percentage / 100.0 * SourceForm_->screenWidth());
    SourceForm_->setOuterMeasure(Measure::Top, (SourceForm_->screenHeight() - height) / 2);
    SourceForm_->setOuterMeasure(Measure::Left, (SourceForm_->screenWidth() - width) / 2);
    SourceForm_->setOuterMeasure(Measure::Height, height);
    SourceForm_->setOuterMeasure(Measure::Width, width);
    ResizeControls();
}

} // namespace quarvel
