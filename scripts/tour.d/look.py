"""Pictures of every window and state in one language, for eyes to judge.

Usage: look.py EXECUTABLE DATA SCRATCH PICTURES LANGUAGE      (in the desktop of scripts/with-desktop)
"""

import sys
from pathlib import Path

from accessible import ONE, SOMETHING, Box, expect
from disk import Airport
from program import Program
from screen import Eyes, click, click_at, minimise, move_to, press
from stage import AIRPORT
from tray import Tray
from windows import Companion, MainWindow, Viewer

UNKNOWN = "zzzz"
PANELS = (16, 22, 24, 32)  # screen pixels, the heights of usual notification areas


class Look:
    def __init__(self, executable, data, scratch, pictures, language):
        self.program = Program(executable, data, Path(scratch) / "program", language)
        self.language = self.program.language(language)
        self.airport = Airport(self.program.folder, AIRPORT)
        self.main = MainWindow(self.program, self.language)
        self.viewer = Viewer(self.program, self.language)
        self.companion = Companion(self.program, self.language)
        self.eyes = Eyes(scratch)
        self.pictures = Path(pictures)
        self.count = 0

    def keep(self, what, pointer=(0, 0)):
        self.eyes.keep(self.program.window(), self.next(what), pointer)

    def next(self, what):
        self.count += 1
        return self.pictures / f"{self.count:02}-{what}.png"

    def run(self):
        self.search()
        self.airport_view()
        self.charts()
        self.new_airport()

    def search(self):
        self.main.expect_search()
        self.keep("search")
        self.main.search("li")
        expect("list", lambda: f"[{AIRPORT}]" in self.main.entries(), True)
        self.keep("results")
        press("Tab", "Tab")
        self.keep("focus-on-the-list")

    def airport_view(self):
        self.main.open_from_list(AIRPORT)
        self.keep("airport")
        self.character()
        self.tool_tip(self.main.button("cmdGrafica"))
        self.main.choose("cmdInfo")
        self.main.button("cmdEsciMail")
        self.keep("information")
        click(self.main.button("cmdEsciMail"))
        click(self.main.button("cmdEsci"))
        self.main.message_box("0011", "0012")
        self.keep("quit")
        self.main.answer("0011", "0012", "0105")

    def character(self):
        """The presenter, which only speaks Italian."""
        if self.language.caption("frmMain", "cmdEsci") != "Uscita":
            return
        shown = self.program.shown
        expect("character", shown.character, SOMETHING)
        window, character = self.program.window(), shown.character().box
        both = Box(window.x, window.y, character.right - window.x, max(window.bottom, character.bottom) - window.y)
        self.eyes.snapshot(both, self.next("character"))

    def tool_tip(self, button):
        box = button.box
        middle = (box.x + box.width // 2, box.y + box.height // 2)
        move_to(*middle)
        expect("tool tip", lambda: self.program.shown.all("tool tip"), ONE)
        self.keep("tool-tip", middle)

    def charts(self):
        self.main.choose("cmdGrafica")
        self.viewer.expect_shown(AIRPORT)
        self.keep("viewer")
        self.choose("Sid", 0)
        self.keep("departure")
        paper = self.viewer.paper()
        for _ in range(3):
            click_at(paper.x + 200, paper.y + 200)
        self.keep("zoomed-in")
        self.choose("Star", 1)
        self.keep("arrival")
        self.choose("Approach", 2)
        self.keep("approach")
        for _ in range(4):
            click(self.viewer.button("Command2"))
        self.keep("zoomed-out")
        click(self.viewer.button("cmdSave"))
        self.viewer.message_box("0027", "0028")
        self.keep("save")
        self.viewer.answer("0027", "0028", "0103")
        self.companion_view()
        self.focus_on_the_chart()
        self.no_charts()
        self.viewer.choose("Command3")

    def focus_on_the_chart(self):
        self.choose("Sid", 0)
        press("shift+Tab", "shift+Tab", "Tab")
        self.keep("focus-on-the-family")
        press(*["Tab"] * 11)
        self.keep("focus-on-the-chart")

    def no_charts(self):
        """A family without charts says where they belong."""
        for name in self.airport.charts("Star"):
            self.airport.chart("Star", name).unlink()
        self.viewer.family(1)
        expect("charts", self.viewer.charts, [])
        self.keep("no-charts")

    def companion_view(self):
        companion, tray = self.companion, Tray()
        self.viewer.choose("Command4")
        companion.expect_shown()
        self.icon_sizes()
        tray.start()
        try:
            self.keep("companion")
            companion.open_menu()
            companion.item("mPopExit")
            self.keep("companion-menu")
            companion.choose_item("mPopExit")
            companion.message_box("0025", "0026")
            self.keep("companion-exit")
            companion.answer("0025", "0026", "0105")
            tray.expect_icons(1)
            minimise()
            companion.expect_hidden()
            tray.click(3)
            companion.item("mPopExit")
            self.eyes.corner(self.pictures / "icon-menu.png")
            companion.choose_item("mnuAeroporto")
            companion.expect_shown()
            self.keep("companion-airport")
            companion.open_menu()
            companion.choose_item("mnuNuovaproc")
            self.viewer.expect_shown(AIRPORT)
        finally:
            tray.stop()

    def icon_sizes(self):
        """The icon in notification areas of several heights, as long as the companion is there."""
        for height in PANELS:
            tray = Tray(height)
            tray.start()
            try:
                tray.expect_icons(1)
                self.eyes.corner(self.pictures / f"icon-{height}.png")
            finally:
                tray.stop()

    def choose(self, family, option):
        """The chart of a family that has the most to read."""
        self.viewer.family(option)
        charts = self.airport.charts(family)
        expect("charts", lambda: sorted(self.viewer.charts()), charts)
        kinds = ("ROTTA", "DECOLLO", "ALTITUDINE", "MISSED")
        self.viewer.choose_chart(max(charts, key=lambda chart: sum(
            len(self.airport.note(family, kind, chart)) for kind in kinds)))

    def new_airport(self):
        self.main.expect_search()
        self.main.search(UNKNOWN)
        expect("list", self.main.entries, [])
        self.keep("no-match")
        click(self.main.button("cmdElabora"))
        self.main.message_box("0013", "0014")
        self.keep("not-found")
        self.main.answer("0013", "0014", "0102")
        self.main.button("cmdReset")
        press("Tab")
        self.keep("new-airport")


if __name__ == "__main__":
    look = Look(*sys.argv[1:6])
    try:
        look.run()
        print(f"{look.count} pictures in {look.pictures}")
    finally:
        look.program.stop()
