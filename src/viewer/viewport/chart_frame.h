#pragma once

#include "forms/frame.h"
#include "forms/image.h"
#include "forms/scroll_control.h"
#include "pictures/picture.h"
#include "viewer/viewport/viewport.h"

namespace quarvel {

enum class ChartShown { Yes, TooLarge };

/// A chart on the screen: the frame that clips it, its image and its two scroll bars, kept in step with the
/// viewport's arithmetic. The controls belong to the window and outlive this.
class ChartFrame {
public:
    /// `zoomLevel` is the window's own count, which goes on from where it stands.
    ChartFrame(PictureBox& frame, Image& image, ScrollControl& horizontal, ScrollControl& vertical,
               TwipsPerPixel twips, qint32& zoomLevel);

    /// Shows a chart at its natural size and lets it take clicks. One whose scroll range would pass 16 bits
    /// is refused, and the chart shown before stays.
    [[nodiscard]] ChartShown load(const Picture& chart);

    /// Button 1 zooms in and 2 zooms out at a point of the chart (pixels from its left and top edges), any
    /// other only recomputes the scroll bars.
    [[nodiscard]] ZoomOutcome mouseDown(int button, float x, float y);
    [[nodiscard]] ZoomOutcome zoomInByButton();
    [[nodiscard]] ZoomOutcome zoomOutByButton();

    /// A scroll bar has moved: the chart follows.
    void horizontalMoved();
    void verticalMoved();

private:
    /// Takes over the measures as the controls have them now, runs a step of the arithmetic, and shows what
    /// it gave.
    template <class Step>
    auto run(Step step);
    void show();

    PictureBox& frame_;
    Image& image_;
    ScrollControl& horizontal_;
    ScrollControl& vertical_;
    qint32& zoomLevel_;
    Viewport viewport_;
};

} // namespace quarvel
