"""Public facts about the sample airports. Sources: see the header of make-sample-archive.

Places are degrees (north, east), lengths and elevations feet, true headings degrees, ILS and VOR megahertz,
NDB kilohertz, ILS courses degrees magnetic.
"""

import math
from dataclasses import dataclass

FEET_PER_NM = 6076.12
METRES_PER_NM = 1852.0
VARIATION = 2  # degrees east: the rounded value of 2013, used for all of Italy


@dataclass(frozen=True)
class Ils:
    end: str
    ident: str
    frequency: str
    course: str


@dataclass(frozen=True)
class Runway:
    """One strip with its two ends, the lower-numbered first; thresholds as (latitude, longitude)."""
    low: str
    high: str
    length_ft: int
    true_heading: float  # of the low end
    low_at: tuple
    high_at: tuple

    def metres(self):
        return round(self.length_ft * 0.3048)


@dataclass(frozen=True)
class Airport:
    icao: str
    city: str
    name: str
    at: tuple
    latitude: str
    longitude: str
    elevation: int
    transition: int
    runways: tuple
    ils: tuple
    vor: tuple
    ndb: tuple

    def local(self, place):
        """Nautical miles (east, north) of a (latitude, longitude) from the airport's reference point."""
        return ((place[1] - self.at[1]) * 60 * math.cos(math.radians(self.at[0])), (place[0] - self.at[0]) * 60)

    def end(self, designator):
        """Threshold (NM east, north) and true landing heading of a runway end."""
        for strip in self.runways:
            middle = [(a + b) / 2 for a, b in zip(self.local(strip.low_at), self.local(strip.high_at))]
            half = strip.length_ft / FEET_PER_NM / 2
            sine, cosine = math.sin(math.radians(strip.true_heading)), math.cos(math.radians(strip.true_heading))
            if designator == strip.low:
                return (middle[0] - half * sine, middle[1] - half * cosine), strip.true_heading
            if designator == strip.high:
                return (middle[0] + half * sine, middle[1] + half * cosine), (strip.true_heading + 180) % 360
        raise KeyError(f"{self.icao} has no runway end {designator}")

    def opposite(self, designator):
        for strip in self.runways:
            if designator in (strip.low, strip.high):
                return strip.high if designator == strip.low else strip.low
        raise KeyError(designator)

    def ils_of(self, designator):
        return next((ils for ils in self.ils if ils.end == designator), None)


AIRPORTS = {airport.icao: airport for airport in (
    Airport("LIRF", "ROMA", "Fiumicino", (41.8000, 12.2383), "N41 48.0", "E012 14.3", 15, 6000,
            (Runway("16L", "34R", 12801, 163, (41.84600, 12.26150), (41.81240, 12.27550)),
             Runway("16R", "34L", 12801, 163, (41.81550, 12.22640), (41.78200, 12.24040)),
             Runway("07", "25", 10826, 70, (41.79930, 12.23210), (41.80960, 12.26950))),
            (Ils("16L", "FLL", "108.10", "161"), Ils("16R", "FRR", "110.30", "161"),
             Ils("25", "FEE", "110.15", "248"), Ils("34L", "ISW", "108.90", "341"),
             Ils("34R", "FSS", "111.55", "341")),
            ("OST", "114.90"), ("OST", "321")),
    Airport("LIMC", "MILANO", "Malpensa", (45.6300, 8.7233), "N45 37.8", "E008 43.4", 767, 6000,
            (Runway("17L", "35R", 12861, 169.6, (45.65040, 8.72841), (45.61570, 8.73750)),
             Runway("17R", "35L", 12861, 169.6, (45.64550, 8.71873), (45.61080, 8.72781))),
            (Ils("17L", "IMSL", "110.75", "169"), Ils("35L", "IMA", "109.10", "349"),
             Ils("35R", "MLP", "109.90", "349")),
            ("MAL", "111.20"), ("MAL", "364")),
    Airport("LIPZ", "VENEZIA", "Tessera", (45.5050, 12.3517), "N45 30.3", "E012 21.1", 7, 6000,
            (Runway("04R", "22L", 10827, 42, (45.49410, 12.33770), (45.51620, 12.36600)),
             Runway("04L", "22R", 9121, 42, (45.49520, 12.33560), (45.51370, 12.35940))),
            (Ils("04R", "VTS", "109.95", "041"),),
            ("TES", "115.30"), ("VEN", "379")),
    Airport("LIPE", "BOLOGNA", "Borgo Panigale", (44.5350, 11.2883), "N44 32.1", "E011 17.3", 123, 6000,
            (Runway("12", "30", 9196, 117, (44.54110, 11.27290), (44.52980, 11.30440)),),
            (Ils("12", "BLN", "108.90", "116"), Ils("30", "IBBP", "109.75", "295")),
            ("BOA", "117.10"), ("BOA", "413")),
    Airport("LICJ", "PALERMO", "Punta Raisi", (38.1750, 13.0917), "N38 10.5", "E013 05.5", 65, 6000,
            (Runway("07", "25", 10912, 66.9, (38.17430, 13.08650), (38.18580, 13.12080)),
             Runway("02", "20", 6804, 24, (38.16610, 13.08560), (38.18320, 13.09520))),
            (Ils("20", "ITO", "110.55", "202"), Ils("25", "RAI", "109.50", "245")),
            ("PRS", "113.00"), ("PRS", "329")),
    Airport("LIML", "MILANO", "Linate", (45.4450, 9.2767), "N45 26.7", "E009 16.6", 353, 6000,
            (Runway("17", "35", 8012, 176, (45.45620, 9.27587), (45.43430, 9.27823)),),
            (Ils("35", "ILNT", "109.55", "355"),),
            ("LIN", "112.25"), ("LIN", "386")),
)}
