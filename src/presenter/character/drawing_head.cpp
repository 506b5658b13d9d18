#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <array>

namespace quarvel::drawing {
namespace {

QPainterPath skullShape() {
    static constexpr std::array half{QPointF(100, 39),  QPointF(127, 45),  QPointF(148, 64), QPointF(156, 92),
                                     QPointF(148, 117), QPointF(126, 132), QPointF(100, 136)};
    return evenShape(half);
}

/// Three feathers standing on the head; they follow its movements late.
void drawCrest(QPainter& painter, const Pose& pose) {
    painter.save();
    painter.translate(middle - 4 * pose.headTurn, 46 + 2 * pose.headNod);
    painter.rotate(pose.crest);
    const auto strand = [&](double angle, double length) {
        painter.save();
        painter.rotate(angle);
        QPainterPath shape(QPointF(-5, 0));
        shape.cubicTo(-6, -length * 0.5, -2, -length * 0.85, 5, -length);
        shape.cubicTo(4, -length * 0.6, 7, -length * 0.4, 5, 0);
        shape.closeSubpath();
        outlined(painter, shape, plumage::slate);
        painter.restore();
    };
    strand(-34, 17);
    strand(30, 19);
    strand(-4, 24);
    painter.restore();
}

/// The down that sticks out at the cheeks.
void drawCheekDown(QPainter& painter) {
    for (const double side : {-1.0, 1.0}) {
        const auto x = [side](double offset) { return middle + side * offset; };
        QPainterPath down(QPointF(x(50), 96));
        down.quadTo(x(58), 106, x(62), 107);
        down.quadTo(x(57), 113, x(52), 112);
        down.quadTo(x(54), 119, x(57), 121);
        down.quadTo(x(49), 125, x(40), 124);
        down.closeSubpath();
        outlined(painter, down, side < 0 ? plumage::iris : plumage::slate);
    }
}

/// The pale mask around eyes and beak, with the cap's point between the eyes.
QPainterPath mask(const Pose& pose) {
    static constexpr std::array half{QPointF(100, 80),  QPointF(108, 71),  QPointF(125, 68), QPointF(142, 82),
                                     QPointF(145, 104), QPointF(132, 123), QPointF(100, 130)};
    return evenShape(half).translated(7 * pose.headTurn, 5 * pose.headNod);
}

void drawBlush(QPainter& painter, const Pose& pose) {
    painter.setPen(Qt::NoPen);
    for (const double side : {-1.0, 1.0}) {
        const QPointF at(middle + side * 36 + 7 * pose.headTurn, 111 + 5 * pose.headNod - 2 * pose.cheer);
        QRadialGradient warm(at, 10);
        QColor colour = plumage::blush;
        colour.setAlphaF(static_cast<float>(0.55 + 0.3 * pose.cheer));
        warm.setColorAt(0, colour);
        colour.setAlphaF(0);
        warm.setColorAt(1, colour);
        painter.setBrush(warm);
        painter.drawEllipse(at, 10, 8);
    }
}

} // namespace

void drawHead(QPainter& painter, const Pose& pose) {
    painter.save();
    painter.translate(3 * pose.headTurn, 3 * pose.headNod);
    painter.translate(middle, 130);
    painter.rotate(pose.headTilt);
    painter.translate(-middle, -130);
    drawCrest(painter, pose);
    drawCheekDown(painter);
    const QPainterPath skull = skullShape();
    QRadialGradient round(QPointF(82, 62), 84);
    round.setColorAt(0, plumage::periwinkle);
    round.setColorAt(0.5, plumage::iris);
    round.setColorAt(1, plumage::slate);
    outlined(painter, skull, round);
    QLinearGradient pale(100, 70, 100, 130);
    pale.setColorAt(0, plumage::paper);
    pale.setColorAt(0.6, plumage::face);
    pale.setColorAt(1, plumage::mist);
    painter.save();
    painter.setClipPath(skull, Qt::IntersectClip);
    painter.fillPath(mask(pose), pale);
    painter.restore();
    drawBlush(painter, pose);
    drawFace(painter, pose);
    drawGoggles(painter, pose, skull);
    painter.restore();
}

} // namespace quarvel::drawing
