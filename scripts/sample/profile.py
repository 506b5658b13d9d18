"""The profile view of an approach: the 3 degree path over the distance from the threshold."""

from . import ink
from .route import CROSSING, GLIDE, three_digits


class Profile:
    def __init__(self, page, chart, frame):
        self.page, self.chart, self.airport, self.frame = page, chart, chart.airport, frame
        names = chart.tracks[0]
        self.intermediate, self.final = names[-3], names[-2]
        self.far = sum(distance for _, _, _, distance in chart.legs(names[-3:]))

    def x(self, distance):
        """Page abscissa of a distance (NM) before the threshold."""
        left, _, right, _ = self.frame
        return right - 250 - distance * (right - left - 370) / self.far

    def y(self, height):
        """Page ordinate of a height in feet, ground at the airport's elevation."""
        _, top, _, bottom = self.frame
        highest = self.chart.final_height
        return bottom - 92 - (height - self.airport.elevation) * (bottom - top - 188) / (highest
                                                                                       - self.airport.elevation)

    def draw(self):
        left, top, right, bottom = self.frame
        self.page.box(left, top, right - left, bottom - top)
        ground = self.y(self.airport.elevation)
        self.page.box(left + 1, ground, right - left - 2, 12, ink.PANEL, None)
        self.page.line([(left, ground), (right, ground)], ink.INK, 2)
        self.draw_path(ground)
        self.draw_fixes(ground)
        self.draw_heights(bottom)

    def draw_path(self, ground):
        page, chart = self.page, self.chart
        level, final = chart.final_height, chart.final_distance()
        start, joint, end = (self.x(self.far), self.y(level)), (self.x(final), self.y(level)), (self.x(0), ground - 7)
        page.line([(start[0] - 46, start[1]), start, joint, end], ink.INK, 4)
        page.box(self.x(0), ground, 96, 7, ink.INK)
        page.text(self.x(0) + 48, ground + 36, f"PISTA {chart.runway}", 18, True, align=0.5)
        page.text(self.x(0) + 48, ground + 58, f"THR {self.airport.elevation} ft", 17, align=0.5)
        over = (self.x(0.9), self.y(self.airport.elevation + CROSSING + 0.9 * GLIDE))
        climb = (self.x(0) + 150, self.y(level) + 6)
        page.line([over, (over[0] + 50, over[1] - 6), climb], ink.INK, 2.4, (11, 7))
        page.shape([climb, (climb[0] - 19, climb[1] + 5), (climb[0] - 9, climb[1] + 17)], ink.INK)
        page.text(climb[0] - 96, climb[1] - 34, "MANCATO", 17, True, ink.INK)
        page.text(climb[0] - 96, climb[1] - 14, "AVVICINAMENTO", 17, True, ink.INK)
        middle = final * 0.55
        ils = self.airport.ils_of(chart.runway)
        course = ils.course if ils else three_digits(self.airport.end(chart.runway)[1] - 2)
        slope = "GP 3.00°" if chart.kind == "ILS" else "3.00°"
        page.text(self.x(middle) + 26, self.y(self.airport.elevation + CROSSING + middle * GLIDE) - 10,
                  f"{course}°  {slope}", 19, True, ink.BLUE, halo=ink.WHITE)

    def draw_fixes(self, ground):
        page, chart = self.page, self.chart
        for name, distance, role in ((self.intermediate, self.far, "IF"), (self.final, chart.final_distance(), "FAF")):
            x, y = self.x(distance), self.y(chart.final_height)
            page.line([(x, y - 8), (x, ground)], ink.INK, 1.6, (4, 5))
            page.text(x, y - 48, f"{name} ({role})", 20, True, align=0.5)
            wide = page.text(x, y - 20, f"{chart.final_height}", 21, True, ink.BLUE, 0.5)
            for bar in (y - 15, y - 39)[:1 if role == "IF" else 2]:
                page.line([(x - wide / 2 - 2, bar), (x + wide / 2 + 2, bar)], ink.BLUE, 2)
            page.text(x, ground + 36, f"THR {distance:.1f}", 18, True, align=0.5)
        between = (self.x(self.far) + self.x(chart.final_distance())) / 2
        page.text(between, ground + 36, f"{self.far - chart.final_distance():.1f} NM", 17, align=0.5)
        page.text((self.x(chart.final_distance()) + self.x(0)) / 2, ground + 36, f"{chart.final_distance():.1f} NM", 17,
                  align=0.5)

    def draw_heights(self, bottom):
        """Height on the path for each whole mile, read from the table when the glide path is out."""
        left, page = self.frame[0], self.page
        miles = [d for d in range(8, 0, -1) if d < self.chart.final_distance()]
        wide, name = 88, 190
        y = bottom - 24
        page.text(left + 16, y + 10, "DIST. THR / QUOTA", 16, True)
        for number, mile in enumerate(miles):
            height = self.airport.elevation + CROSSING + mile * GLIDE
            page.text(left + name + wide * 1.25 * number, y + 10, f"{mile}", 17, True)
            page.text(left + name + 16 + wide * 1.25 * number, y + 10, f"/ {round(height, -1):.0f}", 17)
