"""The country around an airport on its picture: fields, woods, towns, roads and water."""

import math
import random

from .shapes import rotated, smooth

SEA, SEA_EDGE, SAND = (0.45, 0.66, 0.76), (0.60, 0.77, 0.84), (0.90, 0.86, 0.73)
GROUND = (0.80, 0.83, 0.66)
FIELDS = ((0.83, 0.85, 0.69), (0.76, 0.81, 0.61), (0.86, 0.85, 0.70), (0.72, 0.78, 0.58), (0.88, 0.84, 0.66))
GRASS, TAXI, TARMAC, RUNWAY = (0.69, 0.77, 0.54), (0.60, 0.62, 0.63), (0.68, 0.69, 0.69), (0.30, 0.32, 0.35)
ROOF, ROOF_EDGE, SHADE = (0.97, 0.95, 0.90), (0.62, 0.60, 0.56), (0.42, 0.45, 0.38)
TOWN, WOOD, ROAD = (0.80, 0.72, 0.63), (0.47, 0.60, 0.41), (0.96, 0.94, 0.87)
NIGHT, CREAM, GOLD = (0.07, 0.17, 0.28), (0.97, 0.94, 0.86), (0.91, 0.70, 0.33)


class Country:
    """What lies below and around the airfield of a poster (`view`); chance is seeded by the airport's code."""

    def __init__(self, view, width, height):
        self.view, self.page, self.site, self.land = view, view.page, view.site, view.land
        self.width, self.height = width, height
        self.chance = random.Random(view.airport.icao)

    def draw(self):
        self.draw_country()
        self.draw_water()

    def draw_country(self):
        """Fields as a tilted patchwork, then woods, towns and roads."""
        page, tilt, size = self.page, self.chance.uniform(0.1, 0.5), 66
        page.box(0, 0, self.width, self.height, GROUND, None)
        for row in range(-10, 24):
            shift = self.chance.uniform(0, size)
            for column in range(-12, 22):
                x, y = column * size * 1.3 + shift, row * size
                wide = size * self.chance.choice((0.62, 1.26, 1.26))
                corners = [(x, y), (x + wide, y), (x + wide, y + size - 3), (x, y + size - 3)]
                turned = [(a * math.cos(tilt) - b * math.sin(tilt), a * math.sin(tilt) + b * math.cos(tilt))
                          for a, b in corners]
                page.shape(turned, self.chance.choice(FIELDS))
        for river in self.land.rivers:
            page.line(self.view.miles(smooth(river)), SEA, 9)
        for east, north, radius in self.site.towns:
            self.draw_town(east, north, radius)
        for road in self.site.roads:
            page.line([self.view.at(p) for p in smooth(road)], SHADE, 7.5)
            page.line([self.view.at(p) for p in smooth(road)], ROAD, 5.5)

    def draw_town(self, east, north, radius):
        """Rows of small houses with gaps, inside a round outline."""
        step = 62
        turn = self.chance.uniform(0, 90)
        for row in range(int(-radius / step), int(radius / step) + 1):
            for column in range(int(-radius / step), int(radius / step) + 1):
                if math.hypot(row, column) * step < radius and self.chance.random() < 0.72:
                    x, y = rotated(column * step, row * step, turn)
                    self.view.block(east + x, north + y, self.chance.choice((34, 44, 50)), 34, turn + 90, TOWN, None)

    def draw_woods(self):
        for east, north, radius in self.site.woods:
            for _ in range(int(radius / 7)):
                angle, far = self.chance.uniform(0, 6.28), radius * math.sqrt(self.chance.random())
                x, y = self.view.at((east + far * math.cos(angle), north + far * math.sin(angle)))
                size = self.chance.uniform(4, 7)
                self.page.circle(x + 1.5, y + 2, size, SHADE, None)
                self.page.circle(x, y, size, WOOD, None)

    def draw_water(self):
        page = self.page
        for lake in self.land.water:
            outline = self.view.miles(lake)
            page.shape(outline, SEA, SAND, 20)
            page.shape(outline, SEA, SEA_EDGE, 9)
            page.shape(outline, SEA)
        for island in self.land.islands:
            page.shape(self.view.miles(island), SAND, SEA_EDGE, 6)
        self.draw_woods()
