#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

namespace quarvel::drawing {
namespace {

/// An eye's place: `side` is -1 left, 1 right.
struct Eye {
    QPointF centre;
    double halfWidth;
    double halfHeight;
};

Eye eyeOf(const Pose& pose, double side) {
    const double away =
        std::max(0.0, side * pose.headTurn); // the far eye of a turned head is the narrower one
    return {QPointF(middle + side * (22 - 3 * away) + 10 * pose.headTurn, 93 + 6 * pose.headNod),
            11.5 - 2 * away, 13.5};
}

/// The opening between the lids: the upper one sinks to close, the lower one rises with a smile.
QPainterPath openingOf(const Eye& eye, const Pose& pose, double side) {
    const double top = eye.centre.y() + eye.halfHeight * (1 - 2.0 * pose.eyeOpen);
    const double bottom = eye.centre.y() + eye.halfHeight * (1 - 0.75 * pose.cheer);
    const double droop =
        5 * side * pose.eyeOpen * std::max(0.0, -pose.brow); // sorry eyes hang at their outer ends
    QPainterPath ball;
    ball.addEllipse(eye.centre, eye.halfWidth, eye.halfHeight);
    const double edge = top + 12 * (1 - pose.eyeOpen);
    QPainterPath between(QPointF(eye.centre.x() - 20, edge - droop));
    between.quadTo(eye.centre.x(), top - 4 - 4 * (1 - pose.eyeOpen), eye.centre.x() + 20, edge + droop);
    between.lineTo(eye.centre.x() + 20, bottom + 4 + 8 * pose.cheer);
    between.quadTo(eye.centre.x(), bottom - 10 * pose.cheer, eye.centre.x() - 20,
                   bottom + 4 + 8 * pose.cheer);
    between.closeSubpath();
    return ball.intersected(between);
}

void drawIris(QPainter& painter, const Eye& eye, const Pose& pose) {
    const QPointF at = eye.centre + QPointF(pose.lookX * 3.6, pose.lookY * 4);
    QLinearGradient deep(at - QPointF(0, 9), at + QPointF(0, 9));
    deep.setColorAt(0, plumage::ink);
    deep.setColorAt(0.55, plumage::indigo);
    deep.setColorAt(1, plumage::periwinkle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(deep);
    painter.drawEllipse(at, eye.halfWidth * 0.8, 10.6);
    painter.setBrush(plumage::ink);
    painter.drawEllipse(at, eye.halfWidth * 0.46, 6.2);
    painter.setBrush(plumage::paper);
    painter.drawEllipse(at + QPointF(-3, -4.2), 3.2, 3.5);
    painter.drawEllipse(at + QPointF(3.2, 4.4), 1.6, 1.6);
}

void drawEye(QPainter& painter, const Pose& pose, double side) {
    const Eye eye = eyeOf(pose, side);
    const QPainterPath opening = openingOf(eye, pose, side);
    const double shut = eye.centre.y() + 7 - 6 * pose.cheer;
    if (pose.eyeOpen * 2 * eye.halfHeight < 4 || opening.boundingRect().height() < 4) {
        QPainterPath lid(QPointF(eye.centre.x() - eye.halfWidth, shut - 2 + 4 * pose.cheer));
        lid.quadTo(eye.centre.x(), shut + 5 - 12 * pose.cheer, eye.centre.x() + eye.halfWidth,
                   shut - 2 + 4 * pose.cheer);
        painter.strokePath(lid, QPen(plumage::ink, 2.8, Qt::SolidLine, Qt::RoundCap));
        return;
    }
    painter.fillPath(opening, plumage::paper);
    painter.save();
    painter.setClipPath(opening, Qt::IntersectClip);
    drawIris(painter, eye, pose);
    painter.restore();
    painter.strokePath(opening, QPen(plumage::ink, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

void drawBrow(QPainter& painter, const Pose& pose, double side) {
    const Eye eye = eyeOf(pose, side);
    const double lift = 19 + 3 * pose.brow;
    const QPointF inner(eye.centre.x() - side * 7, eye.centre.y() - lift + 1 - 3 * std::max(0.0, -pose.brow));
    const QPointF outer(eye.centre.x() + side * 8, eye.centre.y() - lift + 2 + 5 * std::max(0.0, -pose.brow));
    QPainterPath brow(inner);
    brow.quadTo((inner + outer) / 2 - QPointF(0, 3.4), outer);
    painter.strokePath(brow, QPen(plumage::ink, 3, Qt::SolidLine, Qt::RoundCap));
}

/// A chick's short beak. Shut it smiles; the lower half drops as it opens.
void drawBeak(QPainter& painter, const Pose& pose) {
    painter.save();
    painter.translate(middle + 13 * pose.headTurn, 110 + 7 * pose.headNod);
    const double drop = 13 * pose.beak;
    QPainterPath lower(QPointF(-12, 2));
    lower.cubicTo(-10, 8 + drop, -5, 11 + drop, 0, 11 + drop);
    lower.cubicTo(5, 11 + drop, 10, 8 + drop, 12, 2);
    lower.closeSubpath();
    outlined(painter, lower, plumage::ember, 2);
    QPainterPath inside(QPointF(-10, 3));
    inside.cubicTo(-8, 5 + drop, -4, 7.5 + drop, 0, 7.5 + drop);
    inside.cubicTo(4, 7.5 + drop, 8, 5 + drop, 10, 3);
    inside.closeSubpath();
    painter.fillPath(inside, plumage::mouth);
    QPainterPath tongue;
    tongue.addEllipse(QPointF(0, 8 + drop), 5.5, 1 + 4.5 * pose.beak);
    painter.fillPath(tongue.intersected(inside), plumage::tongue);
    QPainterPath upper(QPointF(-15, 1));
    upper.cubicTo(-10, -4, -6, -10, 0, -10);
    upper.cubicTo(6, -10, 10, -4, 15, 1);
    upper.cubicTo(10, 4, 5, 4, 0, 8);
    upper.cubicTo(-5, 4, -10, 4, -15, 1);
    QLinearGradient horn(0, -10, 0, 8);
    horn.setColorAt(0, plumage::sunlit);
    horn.setColorAt(0.5, plumage::amber);
    horn.setColorAt(1, plumage::ember);
    outlined(painter, upper, horn, 2);
    QPainterPath corners(QPointF(-16, 0.5)); // the smile's ends
    corners.quadTo(-18.5, -1, -19, -4 - 2 * pose.cheer);
    corners.moveTo(16, 0.5);
    corners.quadTo(18.5, -1, 19, -4 - 2 * pose.cheer);
    painter.strokePath(corners, QPen(plumage::ink, 2, Qt::SolidLine, Qt::RoundCap));
    painter.restore();
}

} // namespace

void drawFace(QPainter& painter, const Pose& pose) {
    for (const double side : {-1.0, 1.0}) {
        drawEye(painter, pose, side);
        drawBrow(painter, pose, side);
    }
    drawBeak(painter, pose);
}

} // namespace quarvel::drawing
