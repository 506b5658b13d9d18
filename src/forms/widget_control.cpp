#include "forms/widget_control.h"

#include "text/rounding.h"

#include <QPalette>
#include <algorithm>

namespace quarvel {
namespace {

/// A chart that is zoomed again and again between resizes may outgrow what the toolkit can place.
int pixels(double units, double perPixel) {
    return static_cast<int>(
        std::clamp<double>(roundHalfEven(units / perPixel), -QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

} // namespace

void applyLook(QWidget& widget, const Look& look) {
    widget.setFont(fontOf(look));
    QPalette palette = widget.palette();
    if (look.text.isValid())
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, look.text);
    if (look.background.isValid()) {
        for (const auto role : {QPalette::Window, QPalette::Base}) palette.setColor(role, look.background);
        widget.setAutoFillBackground(true);
    }
    widget.setPalette(palette);
}

ControlSpec opaque(ControlSpec spec) {
    if (!spec.look.background.isValid()) spec.look.background = colour::face;
    return spec;
}

WidgetControl::WidgetControl(Container& container, const ControlSpec& spec, QWidget* widget)
    : name_(QString::fromLatin1(spec.name)), index_(spec.index), widget_(widget), unit_(container.unit()) {
    widget_->setParent(&container.inside());
    widget_->lower();
    widget_->setObjectName(controlKey(*this));
    applyLook(*widget_, spec.look);
    widget_->setToolTip(QString::fromUtf16(spec.toolTip));
    const double x = unit_.perPixelX / twipsPerPixel;
    const double y = unit_.perPixelY / twipsPerPixel;
    measures_ = {spec.place.left * x, spec.place.top * y, spec.place.width * x, spec.place.height * y};
    putOnScreen();
    setShown(spec.shown);
    setUsable(spec.usable);
    container.controlList().push_back(this);
}

Setting WidgetControl::setToolTip(const QString& text) {
    widget_->setToolTip(text);
    return Setting::Done;
}

Setting WidgetControl::setTag(const QString& text) {
    tag_ = text;
    return Setting::Done;
}

std::optional<double> WidgetControl::measure(Measure which) const {
    return measures_[static_cast<std::size_t>(which)];
}

Setting WidgetControl::setMeasure(Measure which, double value) {
    const bool extent = which == Measure::Width || which == Measure::Height;
    if (extent && value < 0) return Setting::Failed;
    measures_[static_cast<std::size_t>(which)] = value;
    putOnScreen();
    return Setting::Done;
}

void WidgetControl::setMeasures(const std::array<double, 4>& measures) {
    measures_ = measures;
    putOnScreen();
}

void WidgetControl::putOnScreen() {
    widget_->setGeometry(pixels(measures_[0], unit_.perPixelX), pixels(measures_[1], unit_.perPixelY),
                         pixels(measures_[2], unit_.perPixelX), pixels(measures_[3], unit_.perPixelY));
}

} // namespace quarvel
