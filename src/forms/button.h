#pragma once

#include "forms/event.h"
#include "forms/widget_control.h"

class QAbstractButton;

namespace quarvel {

/// A button with a small picture above its caption. Space and Return press it while it has the focus.
class Button : public WidgetControl {
public:
    Button(Container& container, const ControlSpec& spec);
    [[nodiscard]] std::optional<QString> caption() const override;
    Setting setCaption(const QString& text) override;

    Event<> clicked;

private:
    [[nodiscard]] QAbstractButton& button() const;
};

/// An option button; of those in one container at most one is chosen.
class OptionButton : public WidgetControl {
public:
    OptionButton(Container& container, const ControlSpec& spec);
    [[nodiscard]] std::optional<QString> caption() const override;
    Setting setCaption(const QString& text) override;

    /// Takes the choice away, which raises no event.
    void clear();
    /// Chooses it, which raises no event either.
    void choose();
    [[nodiscard]] bool isChosen() const;

    Event<> chosen; ///< it became the chosen one; not raised while it already is

private:
    [[nodiscard]] QAbstractButton& button() const;
};

} // namespace quarvel
