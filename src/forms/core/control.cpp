#include "forms/core/control.h"

namespace quarvel {

Setting Control::setCaption(const QString& /*text*/) { return Setting::NoSuchProperty; }
Setting Control::setToolTip(const QString& /*text*/) { return Setting::NoSuchProperty; }
Setting Control::setTag(const QString& /*text*/) { return Setting::NoSuchProperty; }
Setting Control::setTabCaption(int /*tab*/, const QString& /*text*/) { return Setting::NoSuchProperty; }
std::optional<double> Control::measure(Measure /*which*/) const { return std::nullopt; }
Setting Control::setMeasure(Measure /*which*/, double /*value*/) { return Setting::NoSuchProperty; }

QString controlKey(const Control& control) {
    const std::optional<int> index = control.index();
    return index ? control.name() + u'(' + QString::number(*index) + u')' : control.name();
}

} // namespace quarvel
