#include "viewer/viewport/chart_frame.h"

namespace quarvel {
namespace {

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

template <class Step>
auto ChartFrame::run(Step step) {
    viewport_.setFrame({measureOf(frame_, Measure::Width), measureOf(frame_, Measure::Height)});
    viewport_.place(measureOf(image_, Measure::Left), measureOf(image_, Measure::Top),
                    measureOf(image_, Measure::Width), measureOf(image_, Measure::Height));
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

void ChartFrame::show() {
    image_.setMeasures({viewport_.left(), viewport_.top(), viewport_.width(), viewport_.height()});
    showBar(horizontal_, viewport_.horizontal());
    showBar(vertical_, viewport_.vertical());
}

} // namespace quarvel
