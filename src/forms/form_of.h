#pragma once

#include "forms/form.h"
#include "forms/form_widget.h"

#include <memory>

namespace quarvel {

/// A window whose controls are the members of one struct, constructed from the window's inside.
template <class Controls>
class FormOf : public Form {
public:
    using Form::Form;

protected:
    /// Connects every control's events to the window's handlers.
    virtual void wire() = 0;

    void build(FormWidget& widget) override {
        auto controls = std::make_shared<Controls>(widget);
        c = controls.get();
        widget.keep(std::move(controls));
        wire();
    }

    void forgetControls() override { c = nullptr; }

    Controls* c = nullptr; ///< null while the window is not loaded
};

} // namespace quarvel
