"""Contour lines of an invented terrain, as closed loops ready for an even-odd fill."""

from math import exp


class Terrain:
    """A height field of rounded hills on a rectangle; heights have no unit.

    Hills are (x, y, radius x, radius y, height). The field falls below every level at the rim of
    the rectangle, so each contour is closed; give the rectangle a margin that the picture clips.
    """

    def __init__(self, left, top, right, bottom, step, hills):
        self.left, self.top, self.step = left, top, step
        self.columns = int((right - left) / step) + 1
        self.rows = int((bottom - top) / step) + 1
        self.heights = [
            [self._height(column, row, hills) for column in range(self.columns)] for row in range(self.rows)
        ]

    def _height(self, column, row, hills):
        if column in (0, self.columns - 1) or row in (0, self.rows - 1):
            return -1.0
        x, y = self.left + column * self.step, self.top + row * self.step
        return sum(h * exp(-(((x - cx) / rx) ** 2) - ((y - cy) / ry) ** 2) for cx, cy, rx, ry, h in hills)

    def loops(self, level):
        """Closed loops of points (x, y) around all ground higher than the level."""
        follow = {}
        for row in range(self.rows - 1):
            for column in range(self.columns - 1):
                for start, end in self._crossings(column, row, level):
                    follow[start] = end
        result = []
        while follow:
            start, edge = follow.popitem()
            loop = [start]
            while edge != start:
                loop.append(edge)
                edge = follow.pop(edge)
            result.append([self._point(each, level) for each in loop])
        return result

    def _crossings(self, column, row, level):
        """The directed pieces of contour in one cell, high ground on the right, between named edges."""
        corners = [(column, row), (column + 1, row), (column + 1, row + 1), (column, row + 1)]
        high = [self.heights[r][c] > level for c, r in corners]
        edges = [(corners[i], corners[(i + 1) % 4]) for i in range(4)]
        entries = [i for i in range(4) if high[i] and not high[(i + 1) % 4]]
        exits = [i for i in range(4) if not high[i] and high[(i + 1) % 4]]
        for leaving in entries:
            # With two pairs in a saddle cell the nearest one backwards keeps the pieces from crossing.
            coming = min(exits, key=lambda i: (leaving - i) % 4)
            yield tuple(sorted(edges[leaving])), tuple(sorted(edges[coming]))

    def _point(self, edge, level):
        (c1, r1), (c2, r2) = edge
        h1, h2 = self.heights[r1][c1], self.heights[r2][c2]
        part = (level - h1) / (h2 - h1)
        return (
            self.left + (c1 + part * (c2 - c1)) * self.step,
            self.top + (r1 + part * (r2 - r1)) * self.step,
        )


def smooth(loops, project=lambda x, y: (x, y)):
    """One SVG path through all loops, rounded: the points steer, the curve runs through their middles."""
    d = ""
    for loop in loops:
        points = [project(x, y) for x, y in loop[::2]]
        if len(points) < 4:
            continue
        middles = [((a[0] + b[0]) / 2, (a[1] + b[1]) / 2) for a, b in zip(points, points[1:] + points[:1])]
        d += f"M{middles[-1][0]:.1f},{middles[-1][1]:.1f}"
        for point, middle in zip(points, middles):
            d += f"Q{point[0]:.1f},{point[1]:.1f} {middle[0]:.1f},{middle[1]:.1f}"
        d += "Z"
    return d
