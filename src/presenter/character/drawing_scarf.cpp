#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <array>

namespace quarvel::drawing {
namespace {

constexpr QPointF knot(119, 147);

QLinearGradient cloth(QPointF from, QPointF to) {
    QLinearGradient gradient(from, to);
    gradient.setColorAt(0, plumage::sunlit);
    gradient.setColorAt(0.4, plumage::amber);
    gradient.setColorAt(1, plumage::ember);
    return gradient;
}

/// One loose end hanging from the knot, `length` long; its hem lags behind its beginning.
void drawLooseEnd(QPainter& painter, double angle, double length) {
    painter.save();
    painter.translate(knot);
    painter.rotate(angle);
    const double lag = angle * 0.12;
    QPainterPath end(QPointF(-4, 0));
    end.cubicTo(-5, length * 0.4, -9 + lag, length * 0.6, -8 + lag, length);
    end.lineTo(8 + lag, length - 1.5);
    end.cubicTo(7 + lag, length * 0.6, 5, length * 0.4, 4, 0);
    end.closeSubpath();
    outlined(painter, end, cloth(QPointF(-8, 0), QPointF(10, length * 0.8)));
    painter.setPen(QPen(plumage::paper, 2.2, Qt::SolidLine, Qt::FlatCap));
    for (const double up : {5.0, 9.5})
        painter.drawLine(QPointF(-8 + lag * 0.9, length - up), QPointF(7.6 + lag * 0.9, length - up - 1.2));
    painter.restore();
}

} // namespace

void drawScarf(QPainter& painter, const Pose& pose) {
    drawLooseEnd(painter, -pose.scarf - 16, 26);
    drawLooseEnd(painter, -pose.scarf + 8, 36);
    static constexpr std::array half{QPointF(100, 126), QPointF(124, 126), QPointF(138, 134),
                                     QPointF(133, 143), QPointF(116, 149), QPointF(100, 150.5)};
    const QPainterPath wrap = evenShape(half);
    outlined(painter, wrap, cloth(QPointF(70, 128), QPointF(136, 156)));
    painter.setPen(QPen(plumage::ember, 1.6, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    QPainterPath folds(QPointF(67, 138));
    folds.quadTo(88, 148, 113, 144.5);
    folds.moveTo(80, 146);
    folds.quadTo(92, 149, 104, 148);
    painter.drawPath(folds);
    QPainterPath tie;
    tie.addRoundedRect(QRectF(knot.x() - 7.5, knot.y() - 7, 15, 12), 5.5, 5.5);
    outlined(painter, tie, cloth(QPointF(knot.x() - 7, knot.y() - 7), QPointF(knot.x() + 8, knot.y() + 8)));
}

} // namespace quarvel::drawing
