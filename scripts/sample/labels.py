"""The words on a plan view: names, heights, courses and distances, each put where it covers nothing."""

import math

from . import ink
from .land import LANDS
from .route import three_digits, vector, vor_place
from .shapes import toward

LABEL, SMALL = 19, 16


class Labels:
    """Labels for a plan whose lines and symbols have already taken their room."""

    def __init__(self, plan):
        self.plan, self.page, self.chart, self.airport = plan, plan.page, plan.chart, plan.airport
        self.space, self.at = plan.space, plan.at

    def draw(self):
        self.label_fixes()
        self.label_legs()
        self.label_hills()

    def label_fixes(self):
        chart = self.chart
        vor = vor_place(self.airport)
        x, y = self.at(vor)
        ident, frequency = self.airport.vor
        self.tag((x, y), [(f"{ident} {frequency}", True), ("VOR/DME", False)], ink.BLUE, gaps=(30, 44, 60, 80, 100))
        for name, fix in chart.fixes.items():
            radial, distance = vector(vor, chart.place(name))
            self.tag(self.at(chart.place(name)), [(name, True), (f"{ident} R-{three_digits(radial)} D{distance:.1f}",
                                                                False)], ink.INK, fix.limit)
        for hold in chart.holds:
            ring = self.plan.racetrack(hold)
            middle = (sum(p[0] for p in ring) / len(ring), sum(p[1] for p in ring) / len(ring))
            back = three_digits(hold.inbound + 180)
            self.tag(self.at(middle), [(f"ATTESA {three_digits(hold.inbound)}° / {back}°", False),
                                       (f"{hold.level} - 1 MIN", False)], ink.INK, gaps=(30, 45, 60, 80))

    def tag(self, anchor, lines, colour, limit="", gaps=(14, 22, 32, 46, 62, 84)):
        """A small block of text beside `anchor`: a name, a line below it and a barred height."""
        page = self.page
        height = 23 + 19 * (len(lines) - 1) + (28 if limit else 0)
        wide = max(page.measure(text, LABEL if bold else SMALL, bold) for text, bold in lines)
        x, y = self.space.beside(anchor, wide, height, gaps)
        for number, (text, bold) in enumerate(lines):
            page.text(x, y + 17 + 19 * number, text, LABEL if bold else SMALL, bold, colour, halo=ink.WHITE)
        if limit:
            self.barred(x, y + 19 * (len(lines) - 1) + 42, limit)

    def barred(self, x, y, limit):
        """A height with the bar of "at or above" below it, of "at or below" above it, or both."""
        wide = self.page.text(x + 2, y, limit[1:], LABEL, True, ink.BLUE, halo=ink.WHITE) + 4
        if limit[0] in "+=":
            self.page.line([(x, y + 4), (x + wide, y + 4)], ink.BLUE, 2)
        if limit[0] in "-=":
            self.page.line([(x, y - 18), (x + wide, y - 18)], ink.BLUE, 2)

    def label_legs(self):
        """Course and distance of every leg, along the line where it is long enough, else beside its middle."""
        named = list(self.chart.tracks) + ([self.chart.missed] if self.chart.missed else [])
        done = set()
        for names in named:
            for start, end, course, distance in self.chart.legs(names):
                if (start, end) not in done:
                    done.add((start, end))
                    self.label_leg(self.at(self.chart.place(start)), self.at(self.chart.place(end)),
                                   f"{self.chart.course_shown(course)}°  {distance:.1f}")

    def label_leg(self, start, end, text):
        page, length = self.page, math.dist(start, end)
        wide = page.measure(text, SMALL, True) + 10
        angle = math.atan2(end[1] - start[1], end[0] - start[0])
        if not -math.pi / 2 < angle <= math.pi / 2:
            angle += math.pi
        spots = []
        for part in (0.5, 0.4, 0.6, 0.3, 0.7):
            for off in (-19, 20):
                middle = toward(start, end, length * part)
                x, y = middle[0] - off * math.sin(angle), middle[1] + off * math.cos(angle)
                if wide < length * 0.86:
                    price = sum(self.space.cost(*square) for square in self.squares(x, y, wide, angle))
                    spots.append((price + 30 * abs(part - 0.5), x, y))
        if spots and min(spots)[0] < 260:
            _, x, y = min(spots)
            for square in self.squares(x, y, wide, angle):
                self.space.take(*square, 2.0)
            page.text(x - 6 * math.sin(angle), y + 6 * math.cos(angle), text, SMALL, True, ink.INK, 0.5, ink.WHITE,
                      turn=angle)
        else:
            x, y = self.space.beside(toward(start, end, length / 2), wide, 20, (16, 24, 34, 46, 60, 80))
            page.text(x + 5, y + 16, text, SMALL, True, halo=ink.WHITE)

    @staticmethod
    def squares(x, y, wide, angle):
        for i in range(-4, 5):
            cx, cy = x + wide * i / 9 * math.cos(angle), y + wide * i / 9 * math.sin(angle)
            yield cx - 8, cy - 8, cx + 8, cy + 8

    def label_hills(self):
        """Spot heights last, and only where they disturb nothing."""
        for east, north, _, height in LANDS[self.chart.icao].hills:
            x, y = self.at((east, north))
            wide = self.page.measure(f"{height}", SMALL) + 16
            if self.space.cost(x - 10, y - 12, x + wide, y + 12) == 0:
                self.page.circle(x, y, 2.6, ink.INK)
                self.page.text(x + 9, y + 6, f"{height}", SMALL, italic=True)
                self.space.take(x - 10, y - 12, x + wide, y + 12)
