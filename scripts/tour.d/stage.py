"""What all steps of the tour share: the running program, its windows, its files, and the telling of the steps."""

from pathlib import Path

from disk import Airport
from program import Program
from screen import Eyes, difference
from steps import Steps
from tray import BusTray, Tray
from windows import Companion, MainWindow, Viewer

AIRPORT = "LIRF"


class Stage:
    def __init__(self, executable, data, scratch, pictures):
        self.scratch = Path(scratch)
        self.pictures = Path(pictures)
        self.eyes = Eyes(scratch)
        self.program = Program(executable, data, self.scratch / "program")
        self.airport = Airport(self.program.folder, AIRPORT)
        self.italian = self.program.language("Italiano")
        self.english = self.program.language("English")
        self.main = MainWindow(self.program, self.italian)
        self.viewer = Viewer(self.program, self.italian)
        self.companion = Companion(self.program, self.italian)
        self.tray = Tray()
        self._hosts = []
        self.steps = Steps(self.program, self.eyes)

    def step(self, claim):
        return self.steps.step(claim)

    def bus_tray(self):
        self._hosts.append(BusTray())
        return self._hosts[-1]

    def stop(self):
        self.program.stop()
        for notification_area in (self.tray, *self._hosts):
            notification_area.stop()

    def keep(self, name):
        """A picture of the window for the manual."""
        self.eyes.keep(self.program.window(), self.pictures / f"{name}.png")

    def apart(self, box, picture):
        """How far the screen inside a box is from a picture of that size."""
        return difference(self.eyes.part(box), picture)
