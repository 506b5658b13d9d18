#pragma once

#include "forms/widget_control.h"

namespace quarvel {

/// A frame with a caption on its border. Never transparent: what lies behind it does not show.
class Frame : public WidgetControl, public Container {
public:
    Frame(Container& container, const ControlSpec& spec);
    [[nodiscard]] std::optional<QString> caption() const override;
    Setting setCaption(const QString& text) override;
};

} // namespace quarvel
