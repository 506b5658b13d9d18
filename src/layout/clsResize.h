#pragma once

#include "forms/core/resizable_window.h"

#include <QtGlobal>
#include <vector>

namespace quarvel {

/// A control's recorded place, in the unit of its container, whole numbers; of a line X1, Y1, X2 and Y2.
struct ControlPosition {
    Control* Ctl = nullptr;
    qint32 Left = 0;
    qint32 Top = 0;
    qint32 Width = 0;
    qint32 Height = 0;
};

/// Keeps a window's controls in proportion to its inner size: records their places once and, from then on,
/// sets each to the recorded value times the ratio of the window's size to the recorded one. A control's tag
/// may name the measures that follow (layout/resize_tag.h). Nothing is told of a control that lacks a measure
/// or refuses one.
///
/// The window, and the controls that it had when they were recorded, outlive this: a window lets go of its
/// resizer when it unloads.
class clsResize {
public:
    clsResize() = default;
    clsResize(const clsResize&) = delete;
    clsResize& operator=(const clsResize&) = delete;
    ~clsResize() = default;

    [[nodiscard]] ResizableWindow* SourceForm() const { return SourceForm_; }
    /// Records nothing; a record of another window stays.
    void setSourceForm(ResizableWindow* window) { SourceForm_ = window; }

    /// Records the layout as it is now.
    void ReInitialise() { Initialise(); }

    /// Records one control's place as it is now, as though it had been there when the layout was recorded.
    /// Before that there is nothing to correct.
    void recordAnew(const Control& control);

    /// Makes the window `percentage` (0 to 255) of the screen wide and high, in its middle, and then scales
    /// the controls.
    void SizeFormToScreen(quint8 percentage);

    /// Records on its first call; scales on later ones. Does nothing while the window is minimised or has no
    /// controls.
    void ResizeControls();

private:
    void Initialise();
    void scale(const ControlPosition& position, double horizontal, double vertical) const;

    ResizableWindow* SourceForm_ = nullptr;
    qint32 RecordedWidth = 0; ///< of the window's inside, in its scale unit
    qint32 RecordedHeight = 0;
    std::vector<ControlPosition> ControlPositions; ///< in the order of the window's control list
    bool FirstTime = true;
};

} // namespace quarvel
