#pragma once

#include "forms/form.h"
#include "forms/image.h"
#include "forms/picture_box.h"
#include "forms/scroll_control.h"
#include "pictures/picture.h"
#include "viewer/viewport/chart_drag.h"
#include "viewer/viewport/chart_keys.h"
#include "viewer/viewport/viewport.h"
#include "viewer/viewport/wheel_steps.h"

#include <optional>

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

    /// The wheel over the frame scrolls the chart or zooms it at the pointer, just as a click there would.
    /// Refused once for a turn that was refused.
    [[nodiscard]] ZoomOutcome wheelTurned(const WheelTurn& turn);
    /// The middle button drags the chart. The press itself has come to mouseDown() before.
    void dragged(Drag part, QPointF pointer);
    /// A key that moves or zooms a chart, unless no chart is shown. The arrow keys are for the frame with the
    /// focus, or for a window in which nothing has it; the others also for a window whose focused control has
    /// left them.
    [[nodiscard]] ZoomOutcome keyDown(KeyDown& key);

private:
    /// Scrolls by frame pixels, to the right and downwards.
    void scrollBy(double across, double down);
    /// Zooms by steps, above 0 in, at a point of the frame; where that is paper, at the point of the chart
    /// next to it. Ends with the first step that is refused.
    [[nodiscard]] ZoomOutcome zoomAt(QPointF point, int steps);
    [[nodiscard]] ZoomOutcome doKey(ChartKey key);
    void panTo(QPointF place);
    [[nodiscard]] QPointF place() const { return {viewport_.left(), viewport_.top()}; }
    /// Takes over the measures as the controls have them now, runs a step of the arithmetic, and shows what
    /// it gave.
    template <class Step>
    auto run(Step step);
    void takeMeasures();
    void show();

    PictureBox& frame_;
    Image& image_;
    ScrollControl& horizontal_;
    ScrollControl& vertical_;
    qint32& zoomLevel_;
    Viewport viewport_;
    WheelSteps wheel_;
    std::optional<ChartDrag> drag_; ///< while the middle button holds the chart
};

} // namespace quarvel
