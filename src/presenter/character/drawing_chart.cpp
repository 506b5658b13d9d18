#include "presenter/character/drawing_parts.h"
#include "presenter/character/palette.h"

#include <QLineF>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace quarvel::drawing {
namespace {

constexpr int panels = 4;

/// Where the sheet is: the print's coordinates are 0 .. 100 across and 0 .. 60 down.
struct Sheet {
    QPointF corner; ///< upper left
    QPointF across; ///< from there to the upper right
    QPointF down;   ///< ... and to the lower left
    double crease;  ///< how far the odd folds stand off, as a part of the height

    [[nodiscard]] QPointF at(QPointF print) const {
        const double u = print.x() / 100 * panels;
        const double saw = 1 - std::abs(std::fmod(u, 2) - 1); // 0 on even folds, 1 on odd ones
        return corner + across * (u / panels) + down * (print.y() / 60 + crease * saw);
    }
};

Sheet sheetOf(const Pose& pose) {
    constexpr QPointF inBag(61, 190);
    constexpr double foldedWidth = 22;
    const double height = 36 + 20 * pose.unfold;
    const QPointF upwards(0, -14 * std::sin(pose.chart * std::numbers::pi)); // the way out of the bag
    const QPointF left = inBag + (palm(pose, Side::Left) + QPointF(-9, 0) - inBag) * pose.chart + upwards;
    const QPointF folded = left + QPointF(foldedWidth, -2 * (1 - pose.chart));
    const QPointF right = folded + (palm(pose, Side::Right) + QPointF(9, 0) - folded) * pose.unfold;
    const QPointF across = right - left;
    const double length = std::max(1e-6, std::hypot(across.x(), across.y()));
    const QPointF down = QPointF(-across.y(), across.x()) / length * height;
    return {left - down * (0.62 - 0.2 * pose.unfold), across, down,
            0.035 + 0.06 * std::sin(pose.unfold * std::numbers::pi)};
}

/// A printed path laid on the sheet, bent where it is folded.
QPainterPath laid(const Sheet& sheet, const QPainterPath& print) {
    QPainterPath path;
    for (const QPolygonF& line : print.toSubpathPolygons()) {
        QPolygonF bent;
        for (qsizetype i = 0; i < line.size(); ++i) {
            constexpr int pieces = 6;
            for (int piece = 1; i > 0 && piece < pieces; ++piece)
                bent << sheet.at(QLineF(line[i - 1], line[i]).pointAt(1.0 * piece / pieces));
            bent << sheet.at(line[i]);
        }
        path.addPolygon(bent);
    }
    return path;
}

void drawPaper(QPainter& painter, const Sheet& sheet) {
    QPainterPath edge;
    edge.addRect(0, 0, 100, 60);
    outlined(painter, laid(sheet, edge), plumage::paper, 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plumage::mist);
    for (int panel = 1; panel < panels; panel += 2) {
        const double from = 100.0 / panels * panel;
        const double to = from + 100.0 / panels;
        painter.drawPolygon(
            QPolygonF({sheet.at({from, 0}), sheet.at({to, 0}), sheet.at({to, 60}), sheet.at({from, 60})}));
    }
}

/// Hills, a runway with its approach, and the aircraft on it: what one knows a chart by.
void drawPrint(QPainter& painter, const Sheet& sheet) {
    const double pen = std::clamp(sheet.across.x() / 100, 0.25, 1.0);
    const auto line = [&](const QPainterPath& print, const QColor& colour, double width) {
        painter.strokePath(laid(sheet, print),
                           QPen(colour, width * pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    QPainterPath hills;
    for (const double r : {8.0, 15.0, 22.0}) {
        hills.moveTo(100 - r * 1.3, 0);
        hills.quadTo(100 - r * 1.2, r * 0.9, 100, r * 1.1);
        hills.moveTo(0, 60 - r);
        hills.quadTo(r * 1.1, 60 - r * 1.1, r * 1.4, 60);
    }
    line(hills, plumage::lilac, 1.3);
    QPainterPath frame;
    frame.addRect(4, 4, 92, 52);
    line(frame, plumage::iris, 1.2);
    QPainterPath runway(QPointF(20, 44));
    runway.lineTo(40, 35);
    line(runway, plumage::ink, 4.2);
    QPainterPath approach(QPointF(44, 33));
    approach.lineTo(66, 23);
    line(approach, plumage::slate, 1.5);
    QPainterPath plane(QPointF(61, 25.2));
    plane.lineTo(80, 16.5);
    plane.moveTo(69.3, 11.5);
    plane.lineTo(69, 21.5);
    plane.lineTo(76.5, 28);
    plane.moveTo(78, 13);
    plane.lineTo(79, 17);
    plane.lineTo(82, 19.6);
    line(plane, plumage::ember, 3);
    QPainterPath compass;
    compass.addEllipse(QPointF(76, 42), 8, 8);
    compass.moveTo(76, 46);
    compass.lineTo(76, 36.5);
    line(compass, plumage::indigo, 1.4);
    QPainterPath heading;
    heading.moveTo(11, 11);
    heading.lineTo(36, 11);
    line(heading, plumage::indigo, 4);
    QPainterPath lettering;
    for (const double y : {18.0, 23.0}) {
        lettering.moveTo(10, y);
        lettering.lineTo(y < 20 ? 32 : 26, y);
    }
    line(lettering, plumage::slate, 1.5);
}

} // namespace

void drawChart(QPainter& painter, const Pose& pose) {
    const Sheet sheet = sheetOf(pose);
    drawPaper(painter, sheet);
    drawPrint(painter, sheet);
}

} // namespace quarvel::drawing
