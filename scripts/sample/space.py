"""Finds free room for labels, so that no label covers a line, a symbol or another label."""

import math

DIRECTIONS = 24
OUTSIDE = 1e6


class Space:
    """The room of a frame (x0, y0, x1, y1), with what has been taken of it."""

    def __init__(self, frame):
        self.frame = frame
        self.taken = []

    def take(self, x0, y0, x1, y1, weight=1.0):
        self.taken.append((x0, y0, x1, y1, weight))

    def take_line(self, points, width=5, weight=1.0):
        """Takes a line as a string of small squares."""
        for (ax, ay), (bx, by) in zip(points, points[1:]):
            steps = max(1, int(math.hypot(bx - ax, by - ay) / width))
            for i in range(steps + 1):
                x, y = ax + (bx - ax) * i / steps, ay + (by - ay) * i / steps
                self.take(x - width / 2, y - width / 2, x + width / 2, y + width / 2, weight)

    def cost(self, x0, y0, x1, y1):
        """What it costs to cover a rectangle: the area shared with what is taken, dear outside the frame."""
        left, top, right, bottom = self.frame
        if x0 < left or y0 < top or x1 > right or y1 > bottom:
            return OUTSIDE
        total = 0.0
        for ax, ay, bx, by, weight in self.taken:
            if ax < x1 and bx > x0 and ay < y1 and by > y0:
                total += weight * (min(bx, x1) - max(ax, x0)) * (min(by, y1) - max(ay, y0))
        return total

    def beside(self, anchor, width, height, gaps=(12, 22, 36, 54, 76)):
        """The best corner (x0, y0) for a label of that size beside `anchor`; the place is taken."""
        best = None
        for gap in gaps:
            for i in range(DIRECTIONS):
                angle = 2 * math.pi * i / DIRECTIONS
                cosine, sine = math.cos(angle), math.sin(angle)
                x = anchor[0] + cosine * gap + (cosine - 1) * width / 2
                y = anchor[1] + sine * gap + (sine - 1) * height / 2
                price = self.cost(x - 3, y - 3, x + width + 3, y + height + 3) + gap * 2.0
                if best is None or price < best[0]:
                    best = (price, x, y)
        _, x, y = best
        self.take(x - 3, y - 3, x + width + 3, y + height + 3, 3.0)
        return x, y

    def along_edge(self, width, height, inset=16):
        """The best corner for a panel that leans on the frame's edge, corners preferred; the place is taken."""
        left, top, right, bottom = self.frame
        columns = [left + inset + (right - left - width - 2 * inset) * i / 12 for i in range(13)]
        rows = [top + inset + (bottom - top - height - 2 * inset) * i / 12 for i in range(13)]
        spots = [(x, y) for x in columns for y in rows
                 if x in (columns[0], columns[-1]) or y in (rows[0], rows[-1])]
        corners = {(x, y) for x in (columns[0], columns[-1]) for y in (rows[0], rows[-1])}
        x, y = min(spots, key=lambda s: self.cost(s[0], s[1], s[0] + width, s[1] + height) + 4 * (s not in corners))
        self.take(x - 8, y - 8, x + width + 8, y + height + 8, 3.0)
        return x, y
