#include "viewer/viewport/viewport.h"

#include "text/rounding.h"

#include <algorithm>
#include <limits>

namespace quarvel {
namespace {

constexpr qint32 zoomInLimit = 10;
constexpr float zoomOutLimit = 10; // pixels
constexpr qint16 firstValue = 1;   // of a chart's scroll ranges, and the value it is shown at
constexpr double widestRange = std::numeric_limits<qint16>::max();

/// How far a chart of this size scrolls in a frame of this size. Of two singles the difference in double is
/// exact.
double scrollRange(float size, float frame) {
    return roundHalfEven(static_cast<double>(size) - static_cast<double>(frame));
}

} // namespace

/// Sets the bar's range anew, the maximum before the minimum: the value may be pulled along by either. False
/// when the range does not fit into 16 bits; the bar is then enabled with its old range.
bool Viewport::Axis::recomputeRange() {
    bar.enabled = size > frame;
    if (!bar.enabled) return true;
    const double range = scrollRange(size, frame);
    if (range > widestRange) return false;
    bar.maximum = static_cast<qint16>(range);
    keepValueInRange();
    bar.minimum = firstValue;
    keepValueInRange();
    bar.smallChange = 10;
    bar.largeChange = 100;
    return true;
}

/// A range change that leaves the value outside pulls it to the nearest bound.
void Viewport::Axis::keepValueInRange() {
    const auto [lowest, highest] = std::minmax(bar.minimum, bar.maximum);
    moveTo(std::clamp(bar.value, lowest, highest));
}

/// Sets the value rounded; one that then lies outside the range is refused (written so that no number at all
/// is, too).
void Viewport::Axis::changeValue(double value) {
    const double rounded = roundHalfEven(value);
    const auto [lowest, highest] = std::minmax(bar.minimum, bar.maximum);
    if (rounded >= lowest && rounded <= highest) moveTo(static_cast<qint16>(rounded));
}

/// The chart follows a value that changes; an equal value leaves it where another hand has placed it.
void Viewport::Axis::moveTo(qint16 value) {
    if (value == bar.value) return;
    bar.value = value;
    place = static_cast<float>(-value);
}

/// From where the chart stands, be it out of step with the value. A bound of the range may lie on the chart's
/// other side then, and nothing moves the wrong way.
void Viewport::Axis::panTo(double wanted) {
    if (!bar.enabled) return;
    const auto [lowest, highest] = std::minmax(bar.minimum, bar.maximum);
    const double value = roundHalfEven(std::clamp<double>(-wanted, lowest, highest));
    const auto from = static_cast<double>(place);
    if ((wanted - from) * (-value - from) <= 0) return;
    bar.value = static_cast<qint16>(value);
    place = static_cast<float>(-value);
}

/// How much a click at this distance from the chart's edge (pixels) moves the value: a quarter of the
/// distance, divided once more by the twips per pixel.
double Viewport::Axis::zoomOffset(float point) const {
    return static_cast<double>(point) / twipsPerPixel / 4;
}

Viewport::Viewport(float left, float top, float width, float height)
    : across_{.place = left, .size = width}, down_{.place = top, .size = height} {}

void Viewport::setFrame(FrameMeasures frame) {
    across_.frame = frame.width;
    down_.frame = frame.height;
}

void Viewport::setTwipsPerPixel(TwipsPerPixel twips) {
    across_.twipsPerPixel = twips.x;
    down_.twipsPerPixel = twips.y;
}

bool Viewport::fits(QSize chart) const {
    return scrollRange(static_cast<float>(chart.width()), across_.frame) <= widestRange &&
           scrollRange(static_cast<float>(chart.height()), down_.frame) <= widestRange;
}

void Viewport::load(QSize chart) {
    across_.size = static_cast<float>(chart.width());
    down_.size = static_cast<float>(chart.height());
    Set_Scrolls();
    across_.changeValue(firstValue);
    down_.changeValue(firstValue);
    zoomLevel_ = 0;
}

void Viewport::Set_Scrolls() {
    for (Axis* axis : {&across_, &down_})
        if (!axis->recomputeRange()) return;
}

ZoomOutcome Viewport::zoomIn(float x, float y, ZoomBy by) {
    if (zoomLevel_ >= zoomInLimit) return ZoomOutcome::Refused;
    for (Axis* axis : {&across_, &down_}) axis->size = axis->size / 4 + axis->size;
    const bool atPoint = by == ZoomBy::Mouse;
    scrollAfterZoomIn(across_, atPoint ? x : 0);
    scrollAfterZoomIn(down_, atPoint ? y : 0);
    ++zoomLevel_;
    if (atPoint) Set_Scrolls();
    return ZoomOutcome::Done;
}

ZoomOutcome Viewport::zoomOut(float x, float y) {
    if (across_.size <= zoomOutLimit || down_.size <= zoomOutLimit) return ZoomOutcome::Refused;
    for (Axis* axis : {&across_, &down_}) axis->size = axis->size - axis->size / 4;
    scrollAfterZoomOut(across_, x);
    scrollAfterZoomOut(down_, y);
    --zoomLevel_;
    Set_Scrolls();
    return ZoomOutcome::Done;
}

void Viewport::scrollAfterZoomIn(Axis& axis, float point) {
    if (axis.size < axis.frame) {
        axis.place = 0;
        return;
    }
    Set_Scrolls(); // of both bars, and before the value: it may use the room that the zoom has given
    axis.changeValue(std::min<double>(axis.bar.value + axis.zoomOffset(point), axis.bar.maximum));
}

void Viewport::scrollAfterZoomOut(Axis& axis, float point) {
    if (axis.size < axis.frame) {
        axis.place = 0;
        return;
    }
    // Against the range from before the shrink; the new one pulls the value in afterwards.
    const double value = axis.bar.value - axis.zoomOffset(point);
    axis.changeValue(value > axis.bar.maximum ? axis.bar.maximum : std::max<double>(value, firstValue));
}

void Viewport::setHorizontal(double value) { across_.changeValue(value); }

void Viewport::setVertical(double value) { down_.changeValue(value); }

void Viewport::panTo(double left, double top) {
    across_.panTo(left);
    down_.panTo(top);
}

void Viewport::place(float left, float top, float width, float height) {
    across_.place = left;
    across_.size = width;
    down_.place = top;
    down_.size = height;
}

} // namespace quarvel
