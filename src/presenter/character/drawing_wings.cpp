#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace quarvel::drawing {
namespace {

/// A wing on the right side; the left one is its mirror picture.
struct Arm {
    QPointF shoulder;
    QPointF elbow;
    QPointF palm;
    double hand; ///< where the feathers point, as the angles of a pose
};

/// `length` in the direction of a wing's angle: 0 down, 90 to the right, 180 up.
QPointF reach(double degrees, double length) {
    const double angle = degrees * std::numbers::pi / 180;
    return {std::sin(angle) * length, std::cos(angle) * length};
}

Arm armOf(const Pose& pose, Side side) {
    const double angle = side == Side::Left ? pose.leftWing : pose.rightWing;
    const double bend = side == Side::Left ? pose.leftBend : pose.rightBend;
    Arm arm{};
    arm.shoulder = {130, 148};
    arm.elbow = arm.shoulder + reach(angle, 20);
    arm.hand = angle + bend;
    arm.palm = arm.elbow + reach(arm.hand, 15);
    return arm;
}

/// A point of the wing's bent middle line and the direction across it.
struct Rib {
    QPointF at;
    QPointF across;
};

Rib ribOf(const Arm& arm, double t) {
    const QPointF at = arm.shoulder * (1 - t) * (1 - t) + arm.elbow * 2 * t * (1 - t) + arm.palm * t * t;
    const QPointF along = (arm.elbow - arm.shoulder) * (1 - t) + (arm.palm - arm.elbow) * t;
    const double length = std::max(1e-6, std::hypot(along.x(), along.y()));
    return {at, QPointF(-along.y(), along.x()) / length};
}

QPainterPath sleeve(const Arm& arm) {
    static constexpr std::array halfWidths{9.0, 11.4, 12.2, 11.8, 10.6, 9.4};
    std::vector<QPointF> there;
    std::vector<QPointF> back;
    for (size_t i = 0; i < halfWidths.size(); ++i) {
        const Rib rib = ribOf(arm, static_cast<double>(i) / (halfWidths.size() - 1));
        there.push_back(rib.at + rib.across * halfWidths[i]);
        back.push_back(rib.at - rib.across * halfWidths[i]);
    }
    there.push_back(arm.palm + reach(arm.hand, 5));
    there.insert(there.end(), back.rbegin(), back.rend());
    there.push_back(arm.shoulder * 1.3 - arm.elbow * 0.3);
    return softShape(there);
}

/// A feather of the hand: from the palm, `degrees` off the hand's direction.
QPainterPath feather(const Arm& arm, double degrees, double length) {
    const double angle = arm.hand + degrees;
    const QPointF root = arm.palm - reach(angle, 7);
    const QPointF across = reach(angle + 90, 1);
    QPainterPath path(root - across * 5.5);
    path.cubicTo(root + reach(angle, length * 0.35) - across * 8,
                 root + reach(angle, length * 0.8) - across * 6.5,
                 root + reach(angle, length) - across * 0.8);
    path.quadTo(root + reach(angle, length + 1.5), root + reach(angle, length) + across * 0.8);
    path.cubicTo(root + reach(angle, length * 0.8) + across * 6.5,
                 root + reach(angle, length * 0.35) + across * 8, root + across * 5.5);
    path.closeSubpath();
    return path;
}

/// The captain's rings around the forearm.
void drawRings(QPainter& painter, const Arm& arm) {
    painter.setPen(QPen(plumage::amber, 2.3, Qt::SolidLine, Qt::FlatCap));
    for (const double t : {0.72, 0.86}) {
        const Rib rib = ribOf(arm, t);
        const QPointF half = rib.across * (t < 0.8 ? 11.1 : 10.2);
        QPainterPath ring(rib.at - half);
        ring.quadTo(rib.at + reach(arm.hand, 3), rib.at + half);
        painter.strokePath(ring, painter.pen());
    }
}

} // namespace

QPointF palm(const Pose& pose, Side side) {
    const QPointF right = armOf(pose, side).palm;
    return side == Side::Right ? right : QPointF(2 * middle - right.x(), right.y());
}

void drawWing(QPainter& painter, const Pose& pose, Side side) {
    const Arm arm = armOf(pose, side);
    const double spread = side == Side::Left ? pose.leftSpread : pose.rightSpread;
    const double fan = 7.5 + 13.5 * spread;
    const std::array shapes{feather(arm, -1.5 * fan, 24), feather(arm, 1.5 * fan, 26),
                            feather(arm, -0.5 * fan, 32), feather(arm, 0.5 * fan, 34), sleeve(arm)};
    painter.save();
    if (side == Side::Left) {
        painter.translate(2 * middle, 0);
        painter.scale(-1, 1);
    }
    for (const QPainterPath& shape : shapes)
        painter.strokePath(shape,
                           QPen(plumage::ink, 2 * outlineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QLinearGradient vane(arm.shoulder, arm.palm + reach(arm.hand, 16));
    vane.setColorAt(0, plumage::iris);
    vane.setColorAt(0.5, plumage::slate);
    vane.setColorAt(1, plumage::dusk);
    for (size_t i = 0; i < shapes.size(); ++i) {
        painter.fillPath(shapes[i], vane);
        if (i + 1 < shapes.size()) painter.strokePath(shapes[i], QPen(plumage::ink, 1.2));
    }
    drawRings(painter, arm);
    painter.restore();
}

void drawThumb(QPainter& painter, const Pose& pose, Side side, double grip) {
    if (grip <= 0) return;
    const QPointF at = palm(pose, side);
    painter.save();
    painter.translate(at);
    painter.scale(side == Side::Right ? grip : -grip, grip);
    QPainterPath thumb(QPointF(12, 9));
    thumb.cubicTo(4, 10, -8, 6, -10, 1);
    thumb.cubicTo(-11, -3, -7, -5, -3, -4);
    thumb.cubicTo(2, -3, 6, -5, 12, -6);
    thumb.cubicTo(15, -3, 15, 6, 12, 9);
    QLinearGradient vane(-10, 0, 12, 0);
    vane.setColorAt(0, plumage::slate);
    vane.setColorAt(1, plumage::indigo);
    outlined(painter, thumb, vane, 2);
    painter.restore();
}

} // namespace quarvel::drawing
