"""Notification areas: one that takes icons' windows in, and one that is told of icons over the session bus."""

import itertools
import os
import re
import select
import subprocess
import sys
import time
from contextlib import contextmanager
from pathlib import Path

from accessible import Box, expect
from screen import SCALE, click_at, move_to

PANEL = ("--edge", "bottom", "--align", "right", "--widthtype", "request", "--SetDockType", "true", "--expand", "true",
         "--transparent", "false")


@contextmanager
def silent_bus():
    """The session bus takes calls and answers none."""
    bus = ["-f", "--", f"--address={os.environ['DBUS_SESSION_BUS_ADDRESS']}"]
    subprocess.run(["pkill", "-STOP", *bus], check=True)
    try:
        yield
    finally:
        subprocess.run(["pkill", "-CONT", *bus], check=True)


class Tray:
    """A notification area of the older kind, in the lower right corner of the screen."""

    def __init__(self, height=24):
        """A notification area of this height, in screen pixels."""
        self._panel = ("trayer", *PANEL, "--height", str(height))
        self._process = None

    def start(self):
        self._process = subprocess.Popen(self._panel, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def stop(self):
        if self._process is not None:
            self._process.kill()
            self._process.wait()
            self._process = None

    def icons(self):
        """The boxes of the program's icons, in its own pixels."""
        found = subprocess.run(["xwininfo", "-root", "-tree"], check=True, capture_output=True, text=True).stdout
        placed = re.findall(r'\("quarvel" "[Qq]uarvel"\)\s+(\d+)x(\d+)\S+\s+\+(-?\d+)\+(-?\d+)', found)
        boxes = [Box(*(int(number) / SCALE for number in (x, y, w, h))) for w, h, x, y in placed]
        return [box for box in boxes if box.width <= 32 and box.y > self._panel_top()]

    @staticmethod
    def _panel_top():
        screen = subprocess.run(["xdotool", "getdisplaygeometry"], check=True, capture_output=True, text=True).stdout
        return int(screen.split()[1]) / SCALE - 40

    def expect_icons(self, count):
        expect("icons in the notification area", lambda: len(self.icons()), count)

    def click(self, button=1):
        """A click on the one icon."""
        click_at(*self._middle(), button)

    def point_at(self):
        move_to(*self._middle())

    def _middle(self):
        """Of the one icon, once it stands still: the area moves and resizes a fresh one for a while."""
        self.expect_icons(1)
        expect("moves of the icon", self._moves, 0)
        box = self.icons()[0]
        return box.x + box.width / 2, box.y + box.height / 2

    def _moves(self):
        places = []
        for _ in range(4):
            places.append([(box.x, box.y, box.width, box.height) for box in self.icons()])
            time.sleep(0.05)
        return sum(before != after for before, after in itertools.pairwise(places))


class BusTray:
    """A notification area of the newer kind (status_notifier_host.py), as a process of its own."""

    def __init__(self):
        host = Path(__file__).with_name("status_notifier_host.py")
        self._process = subprocess.Popen([sys.executable, "-B", host], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                         text=True, bufsize=1)
        self._tips = []

    def expect_icon(self, tip):
        """Waits until an icon has come, with this tip."""
        def told():
            ready, _, _ = select.select([self._process.stdout], [], [], 0)
            if ready:
                self._tips.append(self._process.stdout.readline().strip())
            return self._tips[-1:]

        expect("tip of the icon", told, [tip])

    def click(self, button=1):
        """As the host tells an icon of a click: 1 left, 2 middle, 3 right."""
        self._process.stdin.write(f"{button}\n")
        self._process.stdin.flush()

    def stop(self):
        self._process.kill()
        self._process.wait()
