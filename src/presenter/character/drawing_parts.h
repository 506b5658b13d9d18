#pragma once

#include "presenter/character/pose.h"

#include <QBrush>
#include <QPainterPath>
#include <QPointF>
#include <span>

class QPainter;

/// The parts that the character is put together from. Coordinates are those of the figure at rest in its
/// frame of 200 x 240, standing on y = 226 about x = 100.
namespace quarvel::drawing {

inline constexpr double middle = 100;
inline constexpr double ground = 226;
inline constexpr double outlineWidth = 2.4;
inline constexpr double fitting = 0.92; ///< the figure against its frame: room for raised wings

enum class Side { Left, Right };

/// A closed curve that runs smoothly through the points.
[[nodiscard]] QPainterPath softShape(std::span<const QPointF> points);
/// A closed curve, alike on both sides of x = 100, through the points of its right half from top to bottom.
[[nodiscard]] QPainterPath evenShape(std::span<const QPointF> rightHalf);
/// Fills a shape that has an ink outline outside of it.
void outlined(QPainter& painter, const QPainterPath& shape, const QBrush& fill, double width = outlineWidth);

/// The inside of the hand, where the wing holds things.
[[nodiscard]] QPointF palm(const Pose& pose, Side side);

void drawFeet(QPainter& painter, const Pose& pose);
void drawTail(QPainter& painter, const Pose& pose);
void drawBody(QPainter& painter);
void drawBagBack(QPainter& painter);
void drawBagFront(QPainter& painter);
void drawScarf(QPainter& painter, const Pose& pose);
void drawHead(QPainter& painter, const Pose& pose);
void drawFace(QPainter& painter, const Pose& pose);
void drawGoggles(QPainter& painter, const Pose& pose, const QPainterPath& skull);
void drawChart(QPainter& painter, const Pose& pose);
void drawWing(QPainter& painter, const Pose& pose, Side side);
/// The feather that holds on to the chart's edge, `grip` 0 (not there) .. 1.
void drawThumb(QPainter& painter, const Pose& pose, Side side, double grip);

} // namespace quarvel::drawing
