#pragma once

#include "forms/core/control.h"

namespace quarvel {

/// A window as the proportional layout sees it: besides its controls, its sizes and where it stands.
class ResizableWindow : public ControlWindow {
public:
    /// The window's inside, without borders, title and menu bar, in the window's own scale unit.
    [[nodiscard]] virtual double innerWidth() const = 0;
    [[nodiscard]] virtual double innerHeight() const = 0;
    [[nodiscard]] virtual bool isMinimised() const = 0;

    /// Between the two the window is not painted; it is painted once, whole, when drawing resumes.
    virtual void suspendDrawing() = 0;
    virtual void resumeDrawing() = 0;

    /// The whole screen in twips.
    [[nodiscard]] virtual double screenWidth() const = 0;
    [[nodiscard]] virtual double screenHeight() const = 0;
    /// Places or sizes the window, its frame included; twips from the screen's top left corner.
    virtual void setOuterMeasure(Measure which, double twips) = 0;
};

} // namespace quarvel
