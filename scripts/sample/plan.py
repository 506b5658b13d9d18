"""The plan view of a chart: land, runways, tracks, fixes and navaids, north up, to scale."""

import math

from . import ink
from .facts import METRES_PER_NM, VARIATION
from .labels import Labels
from .land import LANDS, blob
from .panels import Panels
from .route import onward, vor_place
from .shapes import smooth, toward
from .space import Space

TURN = 1.1  # NM by which drawn tracks cut a corner
HOLD_LEG, HOLD_WIDTH = 3.4, 1.9  # NM


class Plan:
    def __init__(self, page, chart, frame):
        self.page, self.chart, self.airport, self.frame = page, chart, chart.airport, frame
        self.fit()
        x0, y0, x1, y1 = frame
        self.space = Space((x0 + 8, y0 + 8, x1 - 8, y1 - 26))

    def fit(self):
        """Chooses the scale (page units a NM) and the centre so that the whole procedure has room."""
        spots = [self.chart.place(name) for name in self.chart.fixes]
        spots += [self.airport.end(end)[0] for strip in self.airport.runways for end in (strip.low, strip.high)]
        for hold in self.chart.holds:
            spots += self.racetrack(hold)
        east, north = [p[0] for p in spots], [p[1] for p in spots]
        x0, y0, x1, y1 = self.frame
        self.scale = min((x1 - x0 - 270) / (max(east) - min(east)), (y1 - y0 - 170) / (max(north) - min(north)), 30)
        self.centre = ((max(east) + min(east)) / 2, (max(north) + min(north)) / 2)

    def at(self, point):
        x0, y0, x1, y1 = self.frame
        return ((x0 + x1) / 2 + (point[0] - self.centre[0]) * self.scale,
                (y0 + y1) / 2 - 6 - (point[1] - self.centre[1]) * self.scale)

    def draw(self):
        x0, y0, x1, y1 = self.frame
        pen = self.page.pen
        pen.save()
        pen.rectangle(x0, y0, x1 - x0, y1 - y0)
        pen.clip()
        self.draw_land()
        self.take_everything()
        self.draw_graticule()
        self.draw_tracks()
        pen.restore()
        self.page.box(x0, y0, x1 - x0, y1 - y0)
        Panels(self).draw()
        Labels(self).draw()

    # land ---------------------------------------------------------------------------------------------------

    def draw_land(self):
        land, page = LANDS[self.chart.icao], self.page
        for east, north, radius, _ in land.hills:
            seed = east * 0.7 + north
            for part, fill in ((1.0, ink.HILL), (0.72, ink.HILL), (0.45, ink.HILL_HIGH), (0.2, ink.HILL_HIGH)):
                ring = blob(east, north, radius * part, 0.8, 0.4, 0.13, seed)
                page.shape([self.at(p) for p in ring], fill, ink.CONTOUR, 1.2)
        for river in land.rivers:
            page.line([self.at(p) for p in smooth(river)], ink.SHORE, 1.8)
        for lake in land.water:
            page.shape([self.at(p) for p in lake], ink.WATER, ink.SHORE, 2)
        for island in land.islands:
            page.shape([self.at(p) for p in island], ink.WHITE, ink.SHORE, 1.5)

    def draw_graticule(self):
        """Ticks and figures on the frame, every 10 minutes of latitude and longitude."""
        x0, y0, x1, y1 = self.frame
        cosine = math.cos(math.radians(self.airport.at[0]))
        for axis, letter, span in ((0, "N", (y0, y1)), (1, "E", (x0, x1))):
            for minute in range(0, 60 * 60, 10):
                off = minute - self.airport.at[axis] * 60
                name = f"{letter}{minute // 60:0{2 + axis}d}° {minute % 60:02d}'"
                if axis == 0:
                    y = self.at((0, off))[1]
                    if span[0] + 40 < y < span[1] - 50:
                        self.page.line([(x0, y), (x0 + 9, y)])
                        self.page.line([(x1, y), (x1 - 9, y)])
                        self.page.text(x0 + 13, y + 5, name, 15, colour=ink.GREY)
                        self.space.take(x0, y - 9, x0 + 90, y + 9)
                else:
                    x = self.at((off * cosine, 0))[0]
                    if span[0] + 60 < x < span[1] - 60:
                        self.page.line([(x, y0), (x, y0 + 9)])
                        self.page.line([(x, y1), (x, y1 - 9)])
                        self.page.text(x, y1 - 12, name, 15, colour=ink.GREY, align=0.5)

    # tracks -------------------------------------------------------------------------------------------------

    def points(self, names):
        return [self.at(self.chart.place(name)) for name in names]

    def take_everything(self):
        """Reserves every line and symbol before the first label looks for room."""
        for names in self.chart.tracks + [self.chart.missed]:
            if names:
                self.space.take_line(self.points(names), 8, 3.0)
        for hold in self.chart.holds:
            self.space.take_line([self.at(p) for p in self.racetrack(hold)], 8, 2.0)
        for name in self.chart.fixes:
            x, y = self.at(self.chart.place(name))
            self.space.take(x - 13, y - 13, x + 13, y + 13, 4.0)
        for strip in self.airport.runways:
            self.space.take_line([self.at(self.airport.end(end)[0]) for end in (strip.low, strip.high)], 9, 4.0)
        x, y = self.at(vor_place(self.airport))
        self.space.take(x - 15, y - 15, x + 15, y + 15, 3.0)

    def draw_tracks(self):
        page, chart = self.page, self.chart
        if chart.kind == "ILS":
            self.draw_beam()
        for hold in chart.holds:
            page.line([self.at(p) for p in self.racetrack(hold)], ink.INK, 2.2)
        if chart.missed:
            self.curve(self.points(chart.missed), ink.INK, 2.4, (11, 7))
        for number, names in reversed(list(enumerate(chart.tracks))):
            self.curve(self.points(names), ink.INK, 4 if number == 0 else 2.8)
            for start, end in zip(self.points(names), self.points(names)[1:]):
                self.arrow(start, end)
        for strip in self.airport.runways:
            low, high = (self.at(self.airport.end(end)[0]) for end in (strip.low, strip.high))
            page.line([low, high], ink.INK, max(6, 60 / METRES_PER_NM * self.scale))
        self.draw_vor(*self.at(vor_place(self.airport)))
        for name in chart.fixes:
            self.draw_fix(*self.at(chart.place(name)))

    def curve(self, points, colour, width, dash=()):
        """A track that cuts its corners as an aircraft does."""
        pen = self.page.pen
        pen.new_path()
        pen.move_to(*points[0])
        for before, corner, after in zip(points, points[1:], points[2:]):
            cut = min(TURN * self.scale, 0.4 * math.dist(before, corner), 0.4 * math.dist(corner, after))
            start, end = toward(corner, before, cut), toward(corner, after, cut)
            pen.line_to(*start)
            pen.curve_to(*toward(start, corner, cut * 0.66), *toward(end, corner, cut * 0.66), *end)
        pen.line_to(*points[-1])
        self.page.stroke(colour, width, dash)

    def arrow(self, start, end):
        if math.dist(start, end) < 60:
            return
        tip = toward(start, end, math.dist(start, end) * 0.5 + 9)
        angle = math.atan2(end[1] - start[1], end[0] - start[0])
        wings = [(tip[0] - 19 * math.cos(angle + side), tip[1] - 19 * math.sin(angle + side)) for side in (.36, -.36)]
        self.page.shape([tip, wings[0], wings[1]], ink.INK)

    def draw_beam(self):
        """The localizer as a slim shaded wedge on the final course."""
        threshold, heading = self.airport.end(self.chart.runway)
        far = onward(threshold, heading + 180, self.chart.final_distance() + 3.2)
        left, right = onward(far, heading - 90, 0.55), onward(far, heading + 90, 0.55)
        self.page.shape([self.at(p) for p in (threshold, left, far)], ink.PANEL, ink.GREY, 1.2)
        self.page.shape([self.at(p) for p in (threshold, right, far)], ink.GREY, ink.GREY, 1.2)

    def racetrack(self, hold):
        """The outline of a holding pattern, NM, starting and ending at its fix."""
        fix, inbound = self.chart.place(hold.fix), hold.inbound + VARIATION
        side = 1 if hold.turn == "R" else -1
        ring, radius = [], HOLD_WIDTH / 2
        for base, first in ((fix, -90 * side), (onward(fix, inbound + 180, HOLD_LEG), 90 * side)):
            centre = onward(base, inbound + 90 * side, radius)
            for i in range(13):
                ring.append(onward(centre, inbound + first + side * 15 * i, radius))
        return ring + [fix]

    # symbols ------------------------------------------------------------------------------------------------

    def draw_fix(self, x, y):
        corners = [(x + 11 * math.sin(a), y - 11 * math.cos(a)) for a in (0, 2 * math.pi / 3, 4 * math.pi / 3)]
        self.page.shape(corners, ink.WHITE, ink.WHITE, 6)
        self.page.shape(corners, ink.INK, ink.INK, 1.5)

    def draw_vor(self, x, y):
        ring = [(x + 12 * math.cos(i * math.pi / 3), y + 12 * math.sin(i * math.pi / 3)) for i in range(6)]
        self.page.shape(ring, ink.WHITE, ink.BLUE, 2.6)
        self.page.circle(x, y, 2.5, ink.BLUE, ink.BLUE, 1)
