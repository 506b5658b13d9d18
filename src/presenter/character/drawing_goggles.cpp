#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QLinearGradient>
#include <QPainter>

namespace quarvel::drawing {
namespace {

void drawLens(QPainter& painter, QPointF centre, double radius, double clear) {
    QPainterPath rim;
    rim.addEllipse(centre, radius, radius * 0.96);
    QPainterPath glass;
    glass.addEllipse(centre, radius - 3.4, radius * 0.96 - 3.4);
    QLinearGradient brass(centre - QPointF(radius, radius), centre + QPointF(radius, radius));
    brass.setColorAt(0, plumage::sunlit);
    brass.setColorAt(0.5, plumage::amber);
    brass.setColorAt(1, plumage::ember);
    painter.strokePath(rim, QPen(plumage::ink, 2 * outlineWidth));
    painter.fillPath(rim.subtracted(glass), brass);
    QLinearGradient sky(centre - QPointF(0, radius), centre + QPointF(0, radius));
    const auto tinted = [clear](QColor colour, double through) {
        colour.setAlphaF(static_cast<float>(1 - clear * through));
        return colour;
    };
    sky.setColorAt(0, tinted(plumage::indigo, 0.75));
    sky.setColorAt(0.55, tinted(plumage::iris, 0.85));
    sky.setColorAt(1, tinted(plumage::mist, 0.9));
    painter.fillPath(glass, sky);
    painter.strokePath(glass, QPen(plumage::ink, 1.4));
    QPainterPath glint(centre + QPointF(-radius * 0.48, -radius * 0.02));
    glint.quadTo(centre + QPointF(-radius * 0.42, -radius * 0.44),
                 centre + QPointF(radius * 0.02, -radius * 0.5));
    painter.strokePath(glint, QPen(tinted(plumage::paper, 0.3), radius * 0.17, Qt::SolidLine, Qt::RoundCap));
}

/// One half of the strap: from the lens around the head.
void drawStrap(QPainter& painter, const QPainterPath& skull, QPointF lens, QPointF behind) {
    QPainterPath line(lens);
    line.quadTo(lens * 0.5 + QPointF(behind.x(), lens.y()) * 0.5, behind);
    painter.save();
    painter.setClipPath(skull);
    painter.strokePath(line, QPen(plumage::ink, 12.5, Qt::SolidLine, Qt::FlatCap));
    painter.strokePath(line, QPen(plumage::leather, 9, Qt::SolidLine, Qt::FlatCap));
    painter.restore();
}

} // namespace

void drawGoggles(QPainter& painter, const Pose& pose, const QPainterPath& skull) {
    const double down = pose.goggles;
    const double y = 56 + 37 * down + (4 + 2 * down) * pose.headNod;
    const double x = middle + (8 + 2 * down) * pose.headTurn;
    const double radius = 13.5 + 3 * down;
    const double apart = 17.5 + 4.5 * down;
    drawStrap(painter, skull, {x - apart - radius + 2, y}, {20, y + 34 - 26 * down});
    drawStrap(painter, skull, {x + apart + radius - 2, y}, {180, y + 34 - 26 * down});
    QPainterPath bridge;
    bridge.addRoundedRect(QRectF(x - 6, y - 4, 12, 7), 3, 3);
    outlined(painter, bridge, plumage::amber, 2);
    drawLens(painter, QPointF(x - apart, y), radius, down);
    drawLens(painter, QPointF(x + apart, y), radius, down);
}

} // namespace quarvel::drawing
