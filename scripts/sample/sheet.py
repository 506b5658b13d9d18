"""The sheet of a chart: header, plan, profile, tables and footer, laid out on a page 1200 units wide."""

from . import gif, ink
from .facts import VARIATION
from .plan import Plan
from .profile import Profile
from .route import limit_words

MARGIN, UNITS = 40, 1200
WARNING = "NON PER USO IN NAVIGAZIONE  -  NOT FOR NAVIGATION"
KINDS = {"Sid": "PARTENZA STRUMENTALE (SID)", "Star": "ARRIVO STRUMENTALE (STAR)",
         "Approach": "AVVICINAMENTO STRUMENTALE"}
HABITS = {"Sid": "Se non altrimenti autorizzati, 250 kt al massimo sotto FL100. Rateo minimo di salita 300 ft per "
                 "miglio.",
          "Star": "Se non altrimenti autorizzati, 250 kt al massimo sotto FL100 e 220 kt nel circuito di attesa."}


def draw(chart, path):
    """Draws a chart and writes it as a GIF to `path`."""
    page = ink.Page(*chart.size, UNITS)
    Sheet(page, chart).draw()
    gif.write(gif.picture_of(page.surface), ink.chart_colours(), path)


class Sheet:
    def __init__(self, page, chart):
        self.page, self.chart, self.airport = page, chart, chart.airport
        self.left, self.right, self.bottom = MARGIN, UNITS - MARGIN, page.height - MARGIN

    def draw(self):
        self.draw_header()
        self.draw_warning(226)
        foot = self.bottom - 62
        if self.chart.family == "Approach":
            Plan(self.page, self.chart, (self.left, 272, self.right, foot - 612)).draw()
            Profile(self.page, self.chart, (self.left, foot - 600, self.right, foot - 330)).draw()
            self.draw_missed(foot - 318)
            self.draw_minima(foot - 226)
        else:
            Plan(self.page, self.chart, (self.left, 272, self.right, foot - 300)).draw()
            self.draw_route(foot - 288)
        self.draw_footer()

    def draw_header(self):
        page, airport = self.page, self.airport
        page.box(self.left, 40, 1120, 128)
        page.box(self.left, 40, 190, 128, ink.INK)
        page.text(self.left + 95, 122, airport.icao, 66, True, ink.WHITE, 0.5)
        page.text(250, 92, f"{airport.city} / {airport.name}", 38, True)
        page.text(250, 124, KINDS[self.chart.family], 21)
        page.text(250, 150, f"{airport.latitude}  {airport.longitude}", 18, colour=ink.GREY)
        page.text(self.right - 18, 104, self.chart.title, 54, True, ink.BLUE, 1.0)
        page.text(self.right - 18, 148, f"PISTA {self.chart.runway}", 28, True, align=1.0)
        ils = airport.ils_of(self.chart.runway) if self.chart.kind == "ILS" else None
        cells = [("ILS " + ils.ident, f"{ils.frequency}  {ils.course}°")] if ils else []
        cells += [("VOR/DME " + airport.vor[0], airport.vor[1]), ("NDB " + airport.ndb[0], airport.ndb[1]),
                  ("ELEVAZIONE", f"{airport.elevation} ft"), ("ALT. TRANSIZIONE", f"{airport.transition} ft"),
                  ("VARIAZIONE", f"{VARIATION}°E (2013)")]
        self.draw_cells(168, 54, cells)

    def draw_cells(self, y, height, cells):
        wide = 1120 / len(cells)
        for number, (name, value) in enumerate(cells):
            x = self.left + wide * number
            self.page.box(x, y, wide, height)
            self.page.text(x + wide / 2, y + 20, name, 15, colour=ink.GREY, align=0.5)
            self.page.text(x + wide / 2, y + 45, value, 22, True, align=0.5)

    def draw_warning(self, y):
        self.page.box(self.left, y, 1120, 40, ink.WHITE, ink.RED, 3)
        self.page.text(600, y + 29, WARNING, 25, True, ink.RED, 0.5)

    def draw_route(self, y):
        """Below the plan of a departure or arrival: the table of its first track, and the text."""
        page, chart = self.page, self.chart
        columns = ((self.left, 130, "PUNTO"), (170, 100, "ROTTA"), (270, 110, "DIST."), (380, 220, "QUOTA"))
        rows = [(end if end in chart.fixes else "", f"{chart.course_shown(course)}°", f"{distance:.1f} NM",
                 limit_words(chart.fixes[end].limit)) for _, end, course, distance in chart.legs(chart.tracks[0])]
        step = 44
        for x, wide, name in columns:
            page.box(x, y, wide, 38, ink.PANEL)
            page.text(x + wide / 2, y + 26, name, 18, True, align=0.5)
        for number, row in enumerate(rows):
            for (x, wide, _), value in zip(columns, row):
                page.box(x, y + 38 + step * number, wide, step)
                page.text(x + wide / 2, y + 67 + step * number, value, 20, wide == 130, align=0.5)
        page.box(616, y, self.right - 616, 288 - 12)
        page.text(634, y + 30, "DESCRIZIONE", 18, True, ink.BLUE)
        for number, line in enumerate(page.wrap(chart.text + "\n" + HABITS[chart.family], 20, self.right - 616 - 36)):
            page.text(634, y + 61 + 27 * number, line, 20)
        page.text(self.left, y + 66 + step * len(rows), f"Da {chart.tracks[0][0]}."
                  .replace("Da END:", "Dalla pista "), 17, colour=ink.GREY, italic=True)

    def draw_missed(self, y):
        page = self.page
        page.box(self.left, y, 1120, 80)
        page.text(58, y + 32, "MANCATO", 18, True, ink.BLUE)
        page.text(58, y + 56, "AVVICINAMENTO", 18, True, ink.BLUE)
        for number, line in enumerate(page.wrap(self.chart.missed_text, 21, 850)):
            page.text(258, y + 33 + 28 * number, line, 21)

    def draw_minima(self, y):
        """Minima by category and, beside them, rates of descent on the 3 degree path."""
        page, elevation = self.page, self.airport.elevation
        up = lambda feet, step: -(-(elevation + feet) // step) * step
        rows = [("LOC / GP INOP", [up(420, 10)] * 4, ["1200 m", "1200 m", "1400 m", "1600 m"])]
        if self.chart.kind == "ILS":
            rows.insert(0, ("ILS CAT I", [up(200, 1)] * 4, ["550 m"] * 4))
        else:
            rows = [("VOR / DME", [up(480, 10)] * 4, ["1300 m", "1300 m", "1600 m", "1800 m"])]
        rows.append(("CIRCLING", [up(700, 10), up(750, 10), up(950, 10), up(1100, 10)],
                     ["1500 m", "1600 m", "2400 m", "3600 m"]))
        wide = (180, 130, 130, 130, 130)
        edges = [self.left + sum(wide[:i]) for i in range(5)]
        for x, w, name in zip(edges, wide, ("MINIMI (ft / vis.)", "CAT A", "CAT B", "CAT C", "CAT D")):
            page.box(x, y, w, 36, ink.PANEL)
            page.text(x + w / 2, y + 25, name, 18, True, align=0.5)
        step = (214 - 36) / len(rows)
        for number, (name, heights, sights) in enumerate(rows):
            top = y + 36 + step * number
            for x, w, index in zip(edges, wide, range(-1, 4)):
                page.box(x, top, w, step)
                if index < 0:
                    page.text(x + w / 2, top + step / 2 + 7, name, 19, True, align=0.5)
                else:
                    page.text(x + w / 2, top + step / 2 - 2, f"{heights[index]}", 21, True, align=0.5)
                    page.text(x + w / 2, top + step / 2 + 20, sights[index], 17, align=0.5)
        self.draw_descent(y)

    def draw_descent(self, y):
        page, x = self.page, 752
        wide = (self.right - x) / 3
        far = self.chart.final_distance()
        for i, name in enumerate(("GS (kt)", "ft/min", "FAF - THR")):
            page.box(x + wide * i, y, wide, 36, ink.PANEL)
            page.text(x + wide * (i + 0.5), y + 25, name, 18, True, align=0.5)
        speeds = (90, 110, 130, 150, 170)
        step = (214 - 36) / len(speeds)
        for number, speed in enumerate(speeds):
            seconds = round(far / speed * 3600)
            values = (f"{speed}", f"{round(speed * 5.307):d}", f"{seconds // 60}:{seconds % 60:02d}")
            for i, value in enumerate(values):
                page.box(x + wide * i, y + 36 + step * number, wide, step)
                page.text(x + wide * (i + 0.5), y + 36 + step * (number + 0.5) + 7, value, 20, i == 0, align=0.5)

    def draw_footer(self):
        page = self.page
        page.line([(self.left, self.bottom - 48), (self.right, self.bottom - 48)], ink.INK, 2)
        page.text(self.left, self.bottom - 26, f"{self.airport.icao}  {self.chart.title}", 20, True)
        page.text(600, self.bottom - 26, WARNING, 20, True, ink.RED, 0.5)
        page.text(self.right, self.bottom - 26, "QUARVEL - archivio di prova", 17, align=1.0)
        page.text(self.left, self.bottom - 4, "Procedura, punti e quote inventati a scopo dimostrativo. Rotte "
                  "magnetiche, distanze in miglia nautiche, quote in piedi sul livello del mare.", 16,
                  colour=ink.GREY)
