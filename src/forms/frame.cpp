#include "forms/frame.h"

#include "forms/accessible_role.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

namespace quarvel {
namespace {

constexpr int captionIndent = 8; // pixels from the frame's left edge

/// A line of one pixel inside `outline`. As four full bars, since the toolkit paints the sides of a rectangle
/// row by row, and hands the rows to threads that cost more than the painting.
void drawOutline(QPainter& painter, const QRect& outline, const QColor& colour) {
    painter.fillRect(QRect(outline.left(), outline.top(), outline.width(), 1), colour);
    painter.fillRect(QRect(outline.left(), outline.bottom(), outline.width(), 1), colour);
    painter.fillRect(QRect(outline.left(), outline.top(), 1, outline.height()), colour);
    painter.fillRect(QRect(outline.right(), outline.top(), 1, outline.height()), colour);
}

/// The toolkit's own group box measures its title while it is made, which would load a font for every hidden
/// frame.
class FrameBox : public QWidget, public WithAccessibleRole {
public:
    [[nodiscard]] QAccessible::Role accessibleRole() const override { return QAccessible::Grouping; }
    [[nodiscard]] const QString& title() const { return title_; }
    void setTitle(const QString& title) {
        title_ = title;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const int middle = fontMetrics().height() / 2;
        const int edge = title().isEmpty() ? 0 : middle;
        // Square, and open where it leaves the window: frames lie edge to edge and partly under what they
        // hold, where half a round corner or a bit of a side would be a smudge.
        const QRect outline = rect().adjusted(x() > 0 ? 0 : -2, edge, 0, 0);
        drawOutline(painter, outline, lineColour());
        if (title().isEmpty()) return;
        const int begin = captionIndent + std::max(0, -x()); // a frame may begin left of its window
        const QRect text(begin, 0, width() - begin - captionIndent, fontMetrics().height());
        const QRect used = painter.boundingRect(text, Qt::AlignLeft | Qt::TextShowMnemonic, title());
        painter.fillRect(used.adjusted(-3, 0, 3, 0), palette().color(QPalette::Window));
        const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        painter.setPen(palette().color(group, QPalette::WindowText));
        painter.drawText(text, Qt::AlignLeft | Qt::TextShowMnemonic, title());
    }

private:
    /// The text's colour at less than half its strength, mixed beforehand: a full colour is painted quicker.
    [[nodiscard]] QColor lineColour() const {
        constexpr int strength = 110;
        const QColor text = palette().color(QPalette::WindowText);
        const QColor ground = palette().color(QPalette::Window);
        const auto mixed = [](int over, int under) {
            return (over * strength + under * (255 - strength)) / 255;
        };
        return {mixed(text.red(), ground.red()), mixed(text.green(), ground.green()),
                mixed(text.blue(), ground.blue())};
    }

    QString title_;
};

FrameBox& boxOf(const Frame& frame) { return static_cast<FrameBox&>(frame.widget()); }

} // namespace

Frame::Frame(Container& container, const ControlSpec& spec)
    : WidgetControl(container, opaque(spec), new FrameBox),
      Container(widget(), scaleTwips, container.controlList()) {
    Frame::setCaption(QString::fromUtf16(spec.caption));
}

std::optional<QString> Frame::caption() const { return boxOf(*this).title(); }

Setting Frame::setCaption(const QString& text) {
    boxOf(*this).setTitle(text);
    setSpokenName(text);
    return Setting::Done;
}

} // namespace quarvel
