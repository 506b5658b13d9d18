#include "viewer/viewport/chart_frame.h"

#include <algorithm>
#include <cstdlib>

namespace quarvel {
namespace {

constexpr int notchSteps = 3;      // small changes that a notch of the wheel scrolls by
constexpr double everything = 1e6; // frame pixels, further than any scroll range

float measureOf(const WidgetControl& control, Measure which) {
    return static_cast<float>(control.measure(which).value_or(0));
}

void showBar(ScrollControl& control, const ScrollBar& bar) {
    control.setUsable(bar.enabled ? Usable::Yes : Usable::No);
    control.setState(bar.minimum, bar.maximum, bar.value, bar.smallChange, bar.largeChange);
}

} // namespace

ChartFrame::ChartFrame(PictureBox& frame, Image& image, ScrollControl& horizontal, ScrollControl& vertical,
                       TwipsPerPixel twips, qint32& zoomLevel)
    : frame_(frame), image_(image), horizontal_(horizontal), vertical_(vertical), zoomLevel_(zoomLevel),
      viewport_(measureOf(image, Measure::Left), measureOf(image, Measure::Top),
                measureOf(image, Measure::Width), measureOf(image, Measure::Height)) {
    viewport_.setTwipsPerPixel(twips);
    viewport_.setZoomLevel(zoomLevel);
    show();
}

void ChartFrame::takeMeasures() {
    viewport_.setFrame({measureOf(frame_, Measure::Width), measureOf(frame_, Measure::Height)});
    viewport_.place(measureOf(image_, Measure::Left), measureOf(image_, Measure::Top),
                    measureOf(image_, Measure::Width), measureOf(image_, Measure::Height));
}

template <class Step>
auto ChartFrame::run(Step step) {
    takeMeasures();
    const auto outcome = step();
    zoomLevel_ = viewport_.zoomLevel();
    show();
    return outcome;
}

ChartShown ChartFrame::load(const Picture& chart) {
    return run([&] {
        if (!viewport_.fits(chart.size())) return ChartShown::TooLarge;
        viewport_.load(chart.size());
        image_.setPicture(chart);
        image_.setUsable(Usable::Yes);
        return ChartShown::Yes;
    });
}

ZoomOutcome ChartFrame::mouseDown(int button, float x, float y) {
    return run([&] {
        if (button == 1) return viewport_.zoomIn(x, y, ZoomBy::Mouse);
        if (button == 2) return viewport_.zoomOut(x, y);
        viewport_.Set_Scrolls();
        return ZoomOutcome::Done;
    });
}

ZoomOutcome ChartFrame::zoomInByButton() {
    return run([&] { return viewport_.zoomIn(0, 0, ZoomBy::Button); });
}

ZoomOutcome ChartFrame::zoomOutByButton() {
    return run([&] { return viewport_.zoomOut(0, 0); });
}

void ChartFrame::horizontalMoved() {
    run([&] {
        viewport_.setHorizontal(horizontal_.value());
        return ZoomOutcome::Done;
    });
}

void ChartFrame::verticalMoved() {
    run([&] {
        viewport_.setVertical(vertical_.value());
        return ZoomOutcome::Done;
    });
}

ZoomOutcome ChartFrame::wheelTurned(const WheelTurn& turn) {
    if (!image_.isUsable()) return ZoomOutcome::Done;
    const NotchWay notch{notchSteps * viewport_.horizontal().smallChange,
                         notchSteps * viewport_.vertical().smallChange};
    const WheelMove move = wheel_.take(turn, notch);
    if (move.zoom == 0) {
        if (move.across != 0 || move.down != 0) scrollBy(move.across, move.down);
        return ZoomOutcome::Done;
    }
    const ZoomOutcome outcome = zoomAt(turn.at, move.zoom);
    if (outcome == ZoomOutcome::Refused) wheel_.zoomRefused();
    return outcome;
}

ZoomOutcome ChartFrame::zoomAt(QPointF point, int steps) {
    const QWidget& chart = image_.widget();
    for (int step = 0; step < std::abs(steps); ++step) {
        const QPointF at = chart.mapFrom(&frame_.widget(), point); // anew: each step moves the chart
        const auto x = static_cast<float>(std::clamp<double>(at.x(), 0, chart.width()));
        const auto y = static_cast<float>(std::clamp<double>(at.y(), 0, chart.height()));
        if (mouseDown(steps > 0 ? 1 : 2, x, y) == ZoomOutcome::Refused) return ZoomOutcome::Refused;
    }
    return ZoomOutcome::Done;
}

void ChartFrame::scrollBy(double across, double down) {
    takeMeasures();
    panTo(place() - QPointF(across, down));
}

void ChartFrame::panTo(QPointF place) {
    run([&] {
        viewport_.panTo(place.x(), place.y());
        return ZoomOutcome::Done;
    });
}

void ChartFrame::dragged(Drag part, QPointF pointer) {
    takeMeasures();
    if (part == Drag::Begun && image_.isUsable()) drag_.emplace(pointer, place());
    if (part == Drag::Moved && drag_) {
        panTo(drag_->moved(pointer, place()));
        drag_->standsAt(place());
    }
    if (part == Drag::Ended) drag_.reset();
}

ZoomOutcome ChartFrame::keyDown(KeyDown& key) {
    const std::optional<ChartKey> wanted = chartKey(key.key, key.modifiers);
    if (!wanted || !image_.isUsable()) return ZoomOutcome::Done;
    if (isArrow(*wanted) && key.focus != nullptr && key.focus != &frame_.widget()) return ZoomOutcome::Done;
    key.used = true;
    return doKey(*wanted);
}

ZoomOutcome ChartFrame::doKey(ChartKey key) {
    const ScrollBar& across = viewport_.horizontal();
    const ScrollBar& down = viewport_.vertical();
    switch (key) {
    case ChartKey::Left: scrollBy(-across.smallChange, 0); break;
    case ChartKey::Right: scrollBy(across.smallChange, 0); break;
    case ChartKey::Up: scrollBy(0, -down.smallChange); break;
    case ChartKey::Down: scrollBy(0, down.smallChange); break;
    case ChartKey::PageLeft: scrollBy(-across.largeChange, 0); break;
    case ChartKey::PageRight: scrollBy(across.largeChange, 0); break;
    case ChartKey::PageUp: scrollBy(0, -down.largeChange); break;
    case ChartKey::PageDown: scrollBy(0, down.largeChange); break;
    case ChartKey::LeftEnd: scrollBy(-everything, 0); break;
    case ChartKey::RightEnd: scrollBy(everything, 0); break;
    case ChartKey::Top: scrollBy(0, -everything); break;
    case ChartKey::Bottom: scrollBy(0, everything); break;
    case ChartKey::ZoomIn: return zoomInByButton();
    case ChartKey::ZoomOut: return zoomOutByButton();
    }
    return ZoomOutcome::Done;
}

void ChartFrame::show() {
    image_.setMeasures({viewport_.left(), viewport_.top(), viewport_.width(), viewport_.height()});
    showBar(horizontal_, viewport_.horizontal());
    showBar(vertical_, viewport_.vertical());
}

} // namespace quarvel
