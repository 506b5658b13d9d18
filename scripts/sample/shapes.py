"""Small plane geometry for drawing."""

import math


def toward(point, goal, distance):
    """The point `distance` away from `point` in the direction of `goal`."""
    length = math.dist(point, goal) or 1.0
    return (point[0] + (goal[0] - point[0]) * distance / length, point[1] + (goal[1] - point[1]) * distance / length)


def smooth(points):
    """A line with its corners cut twice, for rivers."""
    for _ in range(2):
        cut = [points[0]]
        for a, b in zip(points, points[1:]):
            cut += [(a[0] * 0.75 + b[0] * 0.25, a[1] * 0.75 + b[1] * 0.25),
                    (a[0] * 0.25 + b[0] * 0.75, a[1] * 0.25 + b[1] * 0.75)]
        points = cut + [points[-1]]
    return points


def rotated(right, ahead, bearing):
    """Metres (east, north) of a point `ahead` along a bearing in degrees and `right` of it."""
    angle = math.radians(bearing)
    return ahead * math.sin(angle) + right * math.cos(angle), ahead * math.cos(angle) - right * math.sin(angle)
