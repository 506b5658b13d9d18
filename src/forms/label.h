#pragma once

#include "forms/event.h"
#include "forms/widget_control.h"

class QLabel;

namespace quarvel {

class MouseLabel;

/// A label; its text is centred, and wrapped where it does not fit in one line.
class Label : public WidgetControl {
public:
    Label(Container& container, const ControlSpec& spec);
    [[nodiscard]] std::optional<QString> caption() const override;
    Setting setCaption(const QString& text) override;

    void setTextColour(const QColor& colour);

    Event<> clicked;    ///< the left button was released on it
    Event<> mouseMoved; ///< the pointer moved over it

protected:
    Label(Container& container, const ControlSpec& spec, MouseLabel* widget);

private:
    [[nodiscard]] QLabel& label() const;
};

/// A label that is a command: the keyboard reaches it too, and Space and Return click it.
class Link : public Label {
public:
    Link(Container& container, const ControlSpec& spec);
    Setting setCaption(const QString& text) override;
};

} // namespace quarvel
