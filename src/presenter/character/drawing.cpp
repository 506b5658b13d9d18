#include "presenter/character/drawing.h"

#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>
#include <vector>

namespace quarvel {
namespace drawing {

QPainterPath softShape(std::span<const QPointF> points) {
    const size_t count = points.size();
    const auto at = [&](size_t i) { return points[i % count]; };
    QPainterPath path(points[0]);
    for (size_t i = 0; i < count; ++i) { // the tangent at a point is half the way between its neighbours
        const QPointF leave = (at(i + 1) - at(i + count - 1)) / 6;
        const QPointF arrive = (at(i + 2) - at(i)) / 6;
        path.cubicTo(at(i) + leave, at(i + 1) - arrive, at(i + 1));
    }
    path.closeSubpath();
    return path;
}

QPainterPath evenShape(std::span<const QPointF> rightHalf) {
    std::vector<QPointF> points(rightHalf.begin(), rightHalf.end());
    for (size_t i = rightHalf.size(); i-- > 0;)
        if (rightHalf[i].x() != middle) points.emplace_back(2 * middle - rightHalf[i].x(), rightHalf[i].y());
    return softShape(points);
}

void outlined(QPainter& painter, const QPainterPath& shape, const QBrush& fill, double width) {
    painter.strokePath(shape, QPen(plumage::ink, 2 * width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(shape, fill);
}

namespace {

/// The soft shadow on the ground; it stays there, fainter and smaller, when the figure is in the air.
void drawShadow(QPainter& painter, const Pose& pose) {
    const double near = std::clamp(1 + pose.y / 110, 0.0, 1.0) * pose.scale;
    QRadialGradient soft(QPointF(), 1);
    QColor dark = plumage::ink;
    dark.setAlphaF(static_cast<float>(0.34 * near * near));
    soft.setColorAt(0, dark);
    dark.setAlphaF(dark.alphaF() * 0.7F);
    soft.setColorAt(0.5, dark);
    dark.setAlphaF(0);
    soft.setColorAt(1, dark);
    painter.save();
    painter.translate(middle + pose.x, ground + 1);
    painter.scale(58 * near + 1, 8 * near + 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(soft);
    painter.drawEllipse(QPointF(), 1, 1);
    painter.restore();
}

/// Feet on the ground, or the whole figure in the air: everything is placed about the point between the feet.
void place(QPainter& painter, const Pose& pose) {
    painter.translate(middle + pose.x, ground + pose.y);
    painter.scale(pose.scale * fitting, pose.scale * fitting);
    painter.rotate(pose.lean);
    painter.translate(-middle, -ground);
}

/// The body's own give: breath, crouching, landing. The feet do not take part.
void squash(QPainter& painter, const Pose& pose) {
    constexpr double hip = 216;
    painter.translate(middle, hip);
    painter.scale(1 + (1 - pose.squash) * 0.6, pose.squash);
    painter.translate(-middle, -hip);
}

/// The chart in the bag is behind the bag's front and behind the wings; in the hand, from half its way on
/// clear of the bag, it is before both, and only the thumbs are before it.
void drawChartAndWings(QPainter& painter, const Pose& pose) {
    const bool stowed = pose.chart < 0.5;
    if (stowed) drawChart(painter, pose);
    drawBagFront(painter);
    drawWing(painter, pose, Side::Left);
    drawWing(painter, pose, Side::Right);
    if (stowed) return;
    drawChart(painter, pose);
    drawThumb(painter, pose, Side::Left, 2 * pose.chart - 1);
    drawThumb(painter, pose, Side::Right, pose.unfold);
}

} // namespace
} // namespace drawing

void drawCharacter(QPainter& painter, const Pose& pose) {
    using namespace drawing;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(painter.opacity() * pose.opacity);
    drawShadow(painter, pose);
    place(painter, pose);
    drawFeet(painter, pose);
    squash(painter, pose);
    drawTail(painter, pose);
    drawBody(painter);
    drawBagBack(painter);
    drawScarf(painter, pose);
    drawHead(painter, pose);
    drawChartAndWings(painter, pose);
    painter.restore();
}

} // namespace quarvel
