#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <array>

namespace quarvel::drawing {
namespace {

/// A foot with its three toes, under x.
void drawFoot(QPainter& painter, double x, double lift) {
    const double base = ground - 13 * lift;
    QPainterPath leg(QPointF(x - 4, 208));
    leg.lineTo(x + 4, 208);
    leg.lineTo(x + 3.5, base - 5);
    leg.lineTo(x - 3.5, base - 5);
    leg.closeSubpath();
    outlined(painter, leg, plumage::ember);
    QPainterPath toes(QPointF(x, base - 9));
    toes.cubicTo(x + 9, base - 8, x + 16, base - 5, x + 15, base - 2);
    toes.cubicTo(x + 14, base, x + 8, base, x + 6.5, base - 1.2);
    toes.cubicTo(x + 5, base + 0.8, x - 5, base + 0.8, x - 6.5, base - 1.2);
    toes.cubicTo(x - 8, base, x - 14, base, x - 15, base - 2);
    toes.cubicTo(x - 16, base - 5, x - 9, base - 8, x, base - 9);
    QLinearGradient skin(x, base - 9, x, base);
    skin.setColorAt(0, plumage::amber);
    skin.setColorAt(1, plumage::ember);
    outlined(painter, toes, skin);
}

QPainterPath belly() {
    static constexpr std::array half{QPointF(100, 134), QPointF(118, 142), QPointF(130, 164),
                                     QPointF(132, 188), QPointF(121, 209), QPointF(100, 216)};
    return evenShape(half);
}

/// Rows of small feather marks on the breast.
void drawBreastFeathers(QPainter& painter) {
    painter.setPen(QPen(plumage::mist, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    for (const QPointF& at : {QPointF(100, 168), QPointF(116, 174), QPointF(86, 178), QPointF(102, 184),
                              QPointF(119, 191), QPointF(107, 200)}) {
        QPainterPath mark(at + QPointF(-4, -2));
        mark.quadTo(at + QPointF(0, 4), at + QPointF(4, -2));
        painter.drawPath(mark);
    }
}

/// The bag's strap, from the right shoulder down to the left hip.
void drawStrap(QPainter& painter) {
    QPainterPath strap(QPointF(133, 142));
    strap.cubicTo(116, 168, 96, 182, 74, 192);
    painter.strokePath(strap, QPen(plumage::ink, 8.4, Qt::SolidLine, Qt::FlatCap));
    painter.strokePath(strap, QPen(plumage::leather, 4.6, Qt::SolidLine, Qt::FlatCap));
}

} // namespace

void drawFeet(QPainter& painter, const Pose& pose) {
    drawFoot(painter, middle - 19, pose.tuck);
    drawFoot(painter, middle + 19, pose.tuck);
}

void drawTail(QPainter& painter, const Pose& /*pose*/) {
    QPainterPath fork(QPointF(134, 196));
    fork.quadTo(158, 198, 171, 191);
    fork.quadTo(168, 203, 156, 207);
    fork.quadTo(166, 210, 174, 208);
    fork.quadTo(164, 220, 132, 214);
    fork.closeSubpath();
    QLinearGradient dark(140, 200, 172, 204);
    dark.setColorAt(0, plumage::slate);
    dark.setColorAt(1, plumage::indigo);
    outlined(painter, fork, dark);
}

void drawBody(QPainter& painter) {
    static constexpr std::array half{QPointF(100, 122),  QPointF(126, 129), QPointF(145, 156),
                                     QPointF(149, 186),  QPointF(137, 210), QPointF(116, 219.5),
                                     QPointF(100, 220.5)};
    const QPainterPath trunk = evenShape(half);
    QRadialGradient round(QPointF(80, 160), 84);
    round.setColorAt(0, plumage::periwinkle);
    round.setColorAt(0.55, plumage::iris);
    round.setColorAt(1, plumage::slate);
    outlined(painter, trunk, round);
    QLinearGradient light(100, 140, 100, 216);
    light.setColorAt(0, plumage::paper);
    light.setColorAt(0.6, plumage::face);
    light.setColorAt(1, plumage::mist);
    painter.fillPath(belly(), light);
    drawBreastFeathers(painter);
    drawStrap(painter);
}

void drawBagBack(QPainter& painter) {
    QPainterPath inside;
    inside.addRoundedRect(QRectF(57, 184, 31, 14), 4, 4);
    outlined(painter, inside, plumage::leatherDark);
}

void drawBagFront(QPainter& painter) {
    QPainterPath pouch(QPointF(57, 190));
    pouch.lineTo(88, 190);
    pouch.lineTo(88, 205);
    pouch.quadTo(88, 213, 80, 213);
    pouch.lineTo(65, 213);
    pouch.quadTo(57, 213, 57, 205);
    pouch.closeSubpath();
    QLinearGradient hide(57, 190, 88, 213);
    hide.setColorAt(0, plumage::leather.lighter(125));
    hide.setColorAt(1, plumage::leather);
    outlined(painter, pouch, hide);
    painter.setPen(QPen(plumage::leatherDark, 1.3, Qt::DashLine, Qt::RoundCap));
    painter.drawLine(QPointF(59.5, 193.5), QPointF(85.5, 193.5));
    painter.setPen(Qt::NoPen); // a pair of wings for a badge
    painter.setBrush(plumage::amber);
    QPainterPath badge(QPointF(62, 199));
    badge.quadTo(69, 199.5, 72.5, 201.5);
    badge.quadTo(76, 199.5, 83, 199);
    badge.quadTo(79, 204.5, 74.5, 204.5);
    badge.lineTo(72.5, 207);
    badge.lineTo(70.5, 204.5);
    badge.quadTo(66, 204.5, 62, 199);
    painter.drawPath(badge);
}

} // namespace quarvel::drawing
