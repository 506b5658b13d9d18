"""The panels on the edge of a plan view: safe heights, north arrow and scale."""

import math

from . import ink
from .facts import VARIATION
from .route import three_digits


class Panels:
    """Panels for a plan, in the corners where they cover least."""

    def __init__(self, plan):
        self.page, self.chart, self.airport = plan.page, plan.chart, plan.airport
        self.space, self.scale = plan.space, plan.scale

    def draw(self):
        self.draw_msa(*self.space.along_edge(208, 218))
        self.draw_north(*self.space.along_edge(116, 112))
        self.draw_scale()

    def draw_msa(self, x, y):
        page, cx, cy, radius = self.page, x + 104, y + 124, 66
        page.box(x, y, 208, 218, ink.WHITE, ink.INK, 1.6)
        page.text(cx, y + 24, f"MSA 25 NM {self.airport.vor[0]}", 17, True, align=0.5)
        page.circle(cx, cy, radius, ink.WHITE, ink.INK, 2)
        sectors = self.chart.msa
        for start, end, feet in sectors:
            angle = math.radians(start + VARIATION)
            rim = (cx + radius * math.sin(angle), cy - radius * math.cos(angle))
            if len(sectors) > 1:
                page.line([rim, (cx, cy)], ink.INK, 1.6)
                page.text(cx + (radius + 19) * math.sin(angle), cy - (radius + 13) * math.cos(angle) + 5,
                          f"{three_digits(start + 180)}°", 15, align=0.5)
            middle = math.radians((start + end) / 2)
            reach = 0 if len(sectors) == 1 else 40 if end - start < 90 else 32
            page.text(cx + reach * math.sin(middle), cy - reach * math.cos(middle) + 7, f"{feet}", 17, True, ink.BLUE,
                      align=0.5, halo=ink.WHITE)

    def draw_north(self, x, y):
        """True north as an arrow, magnetic north as a thin barb."""
        page, cx = self.page, x + 40
        page.shape([(cx, y + 4), (cx + 13, y + 76), (cx, y + 62)], ink.INK, ink.INK, 1.5)
        page.shape([(cx, y + 4), (cx - 13, y + 76), (cx, y + 62)], ink.WHITE, ink.INK, 1.5)
        page.line([(cx, y + 62), (cx + 20, y + 4), (cx + 20, y + 16)], ink.BLUE, 2)
        page.text(cx - 8, y + 96, "N", 22, True, align=0.5, halo=ink.WHITE)
        page.text(cx + 6, y + 96, f"VAR {VARIATION}°E", 15, colour=ink.BLUE, halo=ink.WHITE)

    def draw_scale(self):
        miles = 10 if 10 * self.scale < 230 else 5
        long = miles * self.scale
        x, y = self.space.along_edge(max(long, 90) + 50, 42)
        page = self.page
        for i in range(5):
            page.box(x + long * i / 5, y + 10, long / 5, 8, ink.INK if i % 2 == 0 else ink.WHITE, ink.INK, 1.5)
        for part in (0, miles):
            page.text(x + long * part / miles, y + 36, f"{part}", 16, align=0.5 if part else 0.0, halo=ink.WHITE)
        page.text(x + long + 14, y + 36, "NM", 16, halo=ink.WHITE)
