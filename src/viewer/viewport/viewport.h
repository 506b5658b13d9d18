#pragma once

#include <QSize>
#include <QtGlobal>

namespace quarvel {

/// A scroll bar as the viewport computes with it: 16-bit values in frame pixels. Where `maximum` falls below
/// `minimum` the value stays between the two.
struct ScrollBar {
    bool enabled = true;
    qint16 minimum = 0;
    qint16 maximum = 32767;
    qint16 value = 0;
    qint16 smallChange = 10;
    qint16 largeChange = 100;
};

/// The frame's width and height as the window's own coordinate unit measures them, which need not be pixels.
struct FrameMeasures {
    float width;
    float height;
};

/// The screen's twips per pixel, whole numbers.
struct TwipsPerPixel {
    qint32 x;
    qint32 y;
};

/// What a zoom did.
enum class ZoomOutcome { Done, Refused }; ///< Refused: at a limit; the window sounds the warning beep

/// What a zoom was asked with. A button zooms without a point.
enum class ZoomBy { Mouse, Button };

/// The arithmetic of a chart in its frame: its size after each zoom step, the scroll ranges and values and,
/// following them, the chart's place. No widget: a window sets what it computes on its image and scroll bars.
/// All of the chart's measures are single-precision frame pixels; (x, y) of a zoom is the point's distance
/// from the chart's left and top edges.
class Viewport {
public:
    /// The chart image before the first chart: its design place and size in frame pixels.
    Viewport(float left, float top, float width, float height);

    [[nodiscard]] float left() const { return across_.place; }
    [[nodiscard]] float top() const { return down_.place; }
    [[nodiscard]] float width() const { return across_.size; }
    [[nodiscard]] float height() const { return down_.size; }
    [[nodiscard]] const ScrollBar& horizontal() const { return across_.bar; }
    [[nodiscard]] const ScrollBar& vertical() const { return down_.bar; }
    [[nodiscard]] qint32 zoomLevel() const { return zoomLevel_; }
    /// Goes on counting from a level that a window has kept.
    void setZoomLevel(qint32 level) { zoomLevel_ = level; }

    void setFrame(FrameMeasures frame);
    void setTwipsPerPixel(TwipsPerPixel twips);

    /// Whether a chart of this size can be given its scroll ranges (at most 32767).
    [[nodiscard]] bool fits(QSize chart) const;

    /// A chart of this size (pixels) takes the frame at its natural size.
    void load(QSize chart);

    /// Recomputes both scroll bars from the chart and frame sizes. Stops at a range beyond 16 bits: that bar
    /// is enabled but keeps its range, and a bar not yet handled stays as it is.
    void Set_Scrolls();

    /// Width and height grow by a quarter; refused from ZoomLevel 10 upwards.
    ZoomOutcome zoomIn(float x, float y, ZoomBy by);
    /// Down by a quarter; refused once a side is 10 pixels or less.
    ZoomOutcome zoomOut(float x, float y);

    /// The user or the program moved a bar. A value outside the bar's range is refused and changes nothing.
    void setHorizontal(double value);
    void setVertical(double value);

    /// Moves the chart to a place in the frame as far as the ranges allow, and the values with it; a
    /// direction whose bar is disabled stays.
    void panTo(double left, double top);

    /// Another hand (the proportional layout) placed the chart: position and size as given, the bars
    /// untouched.
    void place(float left, float top, float width, float height);

private:
    /// All that the viewport knows of one direction; everything it computes is the same across and down.
    struct Axis {
        float place; ///< of the chart's left or top edge in the frame, pixels
        float size;  ///< the chart's width or height, pixels
        ScrollBar bar{};
        float frame = 0; ///< the frame's width or height, in the window's unit
        qint32 twipsPerPixel = 15;

        [[nodiscard]] bool recomputeRange();
        void keepValueInRange();
        void changeValue(double value);
        void moveTo(qint16 value);
        void panTo(double wanted);
        [[nodiscard]] double zoomOffset(float point) const;
    };

    void scrollAfterZoomIn(Axis& axis, float point);
    static void scrollAfterZoomOut(Axis& axis, float point);

    Axis across_;
    Axis down_;
    qint32 zoomLevel_ = 0;
};

} // namespace quarvel
