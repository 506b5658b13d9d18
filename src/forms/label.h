#pragma once

#include "forms/event.h"
#include "forms/widget_control.h"

class QLabel;

namespace quarvel {

/// A label; its text is centred, and wrapped where it does not fit in one line.
class Label : public WidgetControl {
public:
    Label(Container& container, const ControlSpec& spec);
    [[nodiscard]] std::optional<QString> caption() const override;
    Setting setCaption(const QString& text) override;

    void setTextColour(const QColor& colour);

    Event<> clicked;    ///< the left button was released on it
    Event<> mouseMoved; ///< the pointer moved over it

private:
    [[nodiscard]] QLabel& label() const;
};

} // namespace quarvel
