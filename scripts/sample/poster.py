"""The picture of an airport: a drawn view from above over a title panel, 658 x 1186 pixels.

The program shows it squeezed to half, so nothing on it is written small.
"""

import math

from . import gif, ink
from .aerial import SITES
from .country import (CREAM, GOLD, GRASS, NIGHT, ROOF, ROOF_EDGE, RUNWAY, SEA_EDGE, SHADE, TARMAC, TAXI, TOWN,
                      Country)
from .facts import METRES_PER_NM
from .land import LANDS
from .shapes import rotated

WIDTH, HEIGHT, VIEW = 658, 1186, 880  # the view from above ends at VIEW


def draw(airport, path):
    page = ink.Page(WIDTH, HEIGHT, WIDTH)
    Poster(page, airport).draw()
    picture = gif.picture_of(page.surface)
    gif.write(picture, gif.scene_colours(picture), path)


class Poster:
    def __init__(self, page, airport):
        self.page, self.airport = page, airport
        self.site, self.land = SITES[airport.icao], LANDS[airport.icao]
        self.plates = []
        shown = [end for strip in airport.runways for end in self.ends(strip)] + list(self.site.shown)
        east, north = [p[0] for p in shown], [p[1] for p in shown]
        self.scale = min((WIDTH - 130) / (max(east) - min(east)), (VIEW - 170) / (max(north) - min(north)), 0.24)
        self.centre = ((max(east) + min(east)) / 2, (max(north) + min(north)) / 2)

    def at(self, metres):
        return (WIDTH / 2 + (metres[0] - self.centre[0]) * self.scale,
                VIEW / 2 - (metres[1] - self.centre[1]) * self.scale)

    def miles(self, points):
        return [self.at((x * METRES_PER_NM, y * METRES_PER_NM)) for x, y in points]

    def draw(self):
        pen = self.page.pen
        pen.save()
        pen.rectangle(0, 0, WIDTH, VIEW)
        pen.clip()
        Country(self, WIDTH, VIEW).draw()
        self.draw_field()
        for number, strip in enumerate(self.airport.runways):
            self.draw_taxiways(number, strip)
        self.draw_aprons()
        for strip in self.airport.runways:
            self.draw_runway(strip)
        self.draw_buildings()
        self.draw_plates()
        self.draw_compass()
        pen.restore()
        self.draw_title()

    # airfield -----------------------------------------------------------------------------------------------

    def ends(self, strip):
        return [tuple(METRES_PER_NM * part for part in self.airport.end(end)[0]) for end in (strip.low, strip.high)]

    def draw_field(self):
        """The mown ground along runways and aprons."""
        for strip in self.airport.runways:
            low, high = self.ends(strip)
            beyond = 160 / math.dist(low, high)
            a = [low[i] - (high[i] - low[i]) * beyond for i in (0, 1)]
            b = [high[i] + (high[i] - low[i]) * beyond for i in (0, 1)]
            self.page.line([self.at(a), self.at(b)], GRASS, 420 * self.scale)
        for east, north, long, short, bearing in self.site.aprons + self.site.terminals:
            self.block(east, north, long + 260, short + 260, bearing, GRASS, None)

    def draw_taxiways(self, number, strip):
        """A parallel taxiway on the terminal's side with six links."""
        side = self.site.sides[number]
        if not side:
            return
        low, high = self.ends(strip)
        heading = math.radians(strip.true_heading + 90 * side)
        off = (175 * math.sin(heading), 175 * math.cos(heading))
        wide = max(4.5, 32 * self.scale)
        along = lambda part, far: self.at((low[0] + (high[0] - low[0]) * part + off[0] * far,
                                           low[1] + (high[1] - low[1]) * part + off[1] * far))
        self.page.line([along(0, 1), along(1, 1)], TAXI, wide)
        for part in (0.006, 0.22, 0.4, 0.6, 0.78, 0.994):
            lean = 0.0 if part in (0.006, 0.994) else 0.035 * (1 if part > 0.5 else -1)
            self.page.line([along(part, 0), along(part + lean, 1)], TAXI, wide)

    def draw_aprons(self):
        for apron in self.site.aprons:
            self.block(*apron, TARMAC, None)
        for east, north, number, row, nose in self.site.stands:
            for i in range(number):
                x, y = rotated(0, 88 * (i - (number - 1) / 2), row)
                self.draw_aircraft(*self.at((east + x, north + y)), math.radians(nose))

    def draw_runway(self, strip):
        """Asphalt with threshold stripes, centre line and designators, to length and heading."""
        page, pen = self.page, self.page.pen
        low, high = (self.at(end) for end in self.ends(strip))
        long, wide = math.dist(low, high), max(15.0, 60 * self.scale)
        for point, other, name in ((low, high, strip.low), (high, low, strip.high)):
            pen.save()
            pen.translate(*point)
            pen.rotate(math.atan2(other[1] - point[1], other[0] - point[0]))
            half = long / 2
            page.box(-3, -wide / 2, half + 4, wide, RUNWAY, None)
            for i in range(4):
                for sign in (-1, 1):
                    page.line([(3, sign * (1.2 + 1.7 * i)), (12, sign * (1.2 + 1.7 * i))], ink.WHITE, 0.9)
            for i in range(int((half - 42) / 14)):
                page.line([(44 + 14 * i, 0), (51 + 14 * i, 0)], ink.WHITE, 1.2)
            pen.translate(22, 0)
            pen.rotate(math.pi / 2)
            page.text(0, 5, name, 10, True, ink.WHITE, 0.5)
            pen.restore()
    def draw_plates(self):
        """Every runway end's plate, last, so that nothing covers one."""
        for strip in self.airport.runways:
            low, high = (self.at(end) for end in self.ends(strip))
            for point, other, name in ((low, high, strip.low), (high, low, strip.high)):
                long = math.dist(low, high)
                self.plate(point, ((point[0] - other[0]) / long, (point[1] - other[1]) / long), name)

    def plate(self, point, outward, name):
        """The designator again, large, on a small plate near the threshold, clear of runways and other plates."""
        wide = self.page.measure(name, 25, True) + 14
        spots = [(far + 1.5 * abs(aside), point[0] + outward[0] * far - outward[1] * aside,
                  point[1] + outward[1] * far + outward[0] * aside)
                 for far in range(-30, 90, 6) for aside in range(-72, 73, 6)]
        _, x, y = min(spot for spot in spots if self.is_clear(spot[1], spot[2], wide / 2 + 5, 22))
        self.plates.append((x, y))
        self.page.box(x - wide / 2, y - 17, wide, 34, NIGHT, CREAM, 2)
        self.page.text(x, y + 9, name, 25, True, CREAM, 0.5)

    def is_clear(self, x, y, half_width, half_height):
        """Whether a plate centred there lies in the view and covers no runway, no plate and not the scale."""
        if not (half_width + 8 < x < WIDTH - half_width - 8 and half_height + 8 < y < VIEW - half_height - 52):
            return False
        if any(abs(x - other[0]) < half_width * 2 and abs(y - other[1]) < 44 for other in self.plates):
            return False
        for strip in self.airport.runways:
            (ax, ay), (bx, by) = (self.at(end) for end in self.ends(strip))
            for i in range(81):
                if (abs(ax + (bx - ax) * i / 80 - x) < half_width + 8
                        and abs(ay + (by - ay) * i / 80 - y) < half_height + 8):
                    return False
        return True

    def draw_buildings(self):
        for building in self.site.sheds:
            self.block(*building, TOWN, ROOF_EDGE, True)
        for building in self.site.terminals:
            self.block(*building, ROOF, ROOF_EDGE, True)
            east, north, long, short, bearing = building
            self.block(east, north, long * 0.9, short * 0.22, bearing, SEA_EDGE, None)

    def block(self, east, north, long, short, bearing, fill, edge, shade=False):
        """A rectangle on the ground, with a shadow to the south-east if it stands up."""
        corners = []
        for along, across in ((1, 1), (1, -1), (-1, -1), (-1, 1)):
            x, y = rotated(across * short / 2, along * long / 2, bearing)
            corners.append(self.at((east + x, north + y)))
        if shade:
            self.page.shape([(x + 4, y + 5) for x, y in corners], SHADE)
        self.page.shape(corners, fill, edge, 1.5)

    def draw_aircraft(self, x, y, nose):
        size = max(5.2, 42 * self.scale)
        outline = ((0, 1), (.09, .75), (.1, .25), (.85, -.25), (.85, -.42), (.1, -.14), (.08, -.7), (.36, -.92),
                   (.36, -1.02), (0, -.92))
        ring = list(outline) + [(-a, b) for a, b in outline[::-1]]
        sine, cosine = math.sin(nose), math.cos(nose)
        points = [(x + size * (a * cosine + b * sine), y + size * (a * sine - b * cosine)) for a, b in ring]
        self.page.shape([(a + 1.5, b + 2) for a, b in points], TAXI)
        self.page.shape(points, ink.WHITE)

    # title --------------------------------------------------------------------------------------------------

    def draw_compass(self):
        corners = ((596, 62), (62, 62))
        x, y = max(corners, key=lambda corner: min(math.dist(corner, plate) for plate in self.plates))
        self.page.circle(x, y, 36, CREAM, NIGHT, 3)
        self.page.shape([(x, y - 25), (x + 9, y + 22), (x, y + 13), (x - 9, y + 22)], NIGHT)
        self.page.text(x, y + 66, "N", 28, True, NIGHT, 0.5, CREAM)
        long = 1000 * self.scale
        self.page.box(30, VIEW - 40, long, 10, NIGHT, CREAM, 2)
        self.page.text(42 + long, VIEW - 27, "1 km", 25, True, NIGHT, halo=CREAM)

    def draw_title(self):
        page, airport = self.page, self.airport
        page.box(0, VIEW, WIDTH, HEIGHT - VIEW, NIGHT, None)
        page.box(0, VIEW, WIDTH, 8, GOLD, None)
        page.fitted(34, VIEW + 78, airport.city, 66, 330, bold=True, colour=CREAM)
        page.fitted(34, VIEW + 122, airport.name, 38, 330, colour=GOLD)
        page.text(WIDTH - 34, VIEW + 110, airport.icao, 100, True, CREAM, 1.0)
        page.line([(34, VIEW + 142), (WIDTH - 34, VIEW + 142)], GOLD, 3)
        page.text(34, VIEW + 180, f"{airport.latitude}   {airport.longitude}", 28, colour=CREAM)
        page.text(WIDTH - 34, VIEW + 180, f"{airport.elevation} ft", 28, True, CREAM, 1.0)
        for number, strip in enumerate(airport.runways):
            y = VIEW + 218 + 33 * number
            page.text(34, y, f"{strip.low} / {strip.high}", 27, True, GOLD)
            page.text(190, y, f"{strip.metres()} m", 27, colour=CREAM)
