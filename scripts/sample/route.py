"""Procedures as data, and the geometry that turns them into points, courses and distances."""

import math
from dataclasses import dataclass, field

from .facts import AIRPORTS, FEET_PER_NM, VARIATION

GLIDE = math.tan(math.radians(3.0)) * FEET_PER_NM  # feet of height a nautical mile
CROSSING = 50  # feet over the threshold


@dataclass
class Fix:
    place: object  # (east, north) NM, or "END:runway:NM" past the departure end, or "FIN:runway:NM" on final
    limit: str = ""  # "+4000" at or above, "-FL110" at or below, "=3000" at, "" none


@dataclass
class Hold:
    fix: str
    inbound: float  # magnetic course
    turn: str  # "L" or "R"
    level: str


@dataclass
class Chart:
    icao: str
    family: str  # "Sid", "Star" or "Approach"
    name: str  # file name without its extension
    title: str
    runway: str
    size: tuple  # pixels
    fixes: dict
    tracks: list  # lists of names; the first track is the one tabulated
    text: str
    missed: list = field(default_factory=list)
    missed_text: str = ""
    holds: list = field(default_factory=list)
    kind: str = ""  # approach aid: "ILS" or "VOR"
    final_height: int = 2000  # feet at the final approach fix
    msa: tuple = ((0, 360, 5000),)  # (from, to, feet): bearings from the VOR

    @property
    def airport(self):
        return AIRPORTS[self.icao]

    def final_distance(self):
        """Nautical miles from the threshold at which the 3 degree path meets `final_height`."""
        return (self.final_height - self.airport.elevation - CROSSING) / GLIDE

    def place(self, name):
        """Position (east, north) NM of a fix, of a threshold "THR:16L" or of the VOR."""
        spot = self.fixes[name].place if name in self.fixes else name
        if not isinstance(spot, str):
            return spot
        if spot == "VOR":
            return vor_place(self.airport)
        word, runway, *far = spot.split(":")
        distance = self.final_distance() if far == ["FAF"] else float(far[0]) if far else 0.0
        if word == "END":  # beyond the departure end of the runway
            threshold, _ = self.airport.end(self.airport.opposite(runway))
            return onward(threshold, self.airport.end(runway)[1], distance)
        threshold, heading = self.airport.end(runway)
        return onward(threshold, heading, -distance)

    def course_shown(self, course):
        """Three digits: the published course for a leg on the localizer or runway line, else as measured."""
        ils = self.airport.ils_of(self.runway)
        off = (course + VARIATION - self.airport.end(self.runway)[1] + 180) % 360 - 180
        return ils.course if ils and abs(off) < 0.6 else three_digits(course)

    def legs(self, names):
        """(from, to, magnetic course, NM) of each leg of a track."""
        for start, end in zip(names, names[1:]):
            course, distance = vector(self.place(start), self.place(end))
            yield start, end, course, distance


def onward(point, true_course, distance):
    angle = math.radians(true_course)
    return point[0] + distance * math.sin(angle), point[1] + distance * math.cos(angle)


def vector(start, end):
    """Magnetic course (degrees, 0..360) and distance (NM) between two local points."""
    east, north = end[0] - start[0], end[1] - start[1]
    return (math.degrees(math.atan2(east, north)) - VARIATION) % 360, math.hypot(east, north)


def vor_place(airport):
    """The VOR of the sample charts: drawn beside the field, clear of the first runway's symbol."""
    strip = airport.runways[0]
    middle = [(a + b) / 2 for a, b in zip(airport.end(strip.low)[0], airport.end(strip.high)[0])]
    return onward(middle, strip.true_heading - 90, 1.3)


def three_digits(course):
    return f"{round(course) % 360 or 360:03d}"


def limit_words(limit):
    """A height limit in words for the tables."""
    mark, value = limit[:1], limit[1:]
    shown = value if value.startswith("FL") else f"{value} ft"
    return {"+": f"{shown} o più", "-": f"{shown} o meno", "=": shown}.get(mark, "-")
