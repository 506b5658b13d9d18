"""The hands and the eyes: real keys, real mouse buttons, and pictures of the screen."""

import os
import re
import subprocess
from pathlib import Path

from accessible import Unexpected

SCALE = float(os.environ.get("QT_SCALE_FACTOR", "1"))  # screen pixels in one of the program's pixels


def _run(*command):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True, text=True).stdout


def press(*keys):
    _run("xdotool", "key", "--clearmodifiers", *keys)


def write(text):
    """Types text as a person would: what capital letters there are is the program's doing."""
    for number, line in enumerate(text.split("\n")):
        if number > 0:
            press("Return")
        _run("xdotool", "type", "--delay", "12", line)


def move_to(x, y):
    _run("xdotool", "mousemove", round(x * SCALE), round(y * SCALE))


def click_at(x, y, button=1):
    move_to(x, y)
    _run("xdotool", "click", button)


def click(thing):
    box = thing.box
    click_at(box.x + box.width // 2, box.y + box.height // 2)


def turn_wheel(notches, *, key=None):
    """Where the mouse is: above 0 away from the user; with a key held, if named."""
    turns = ["click", "--repeat", abs(notches), "--delay", 20, 4 if notches > 0 else 5]
    _run("xdotool", *(["keydown", key, *turns, "keyup", key] if key else turns))


def drag(start, end, button=1):
    """Holds a button from one point to the other."""
    move_to(*start)
    _run("xdotool", "mousedown", button)
    move_to((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
    move_to(*end)
    _run("xdotool", "mouseup", button)


def title():
    """The title bar of the window that has the keyboard."""
    found = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True, text=True)
    return found.stdout.rstrip("\n")


def _borders():
    """Left, right, top and bottom border of the active window, in screen pixels."""
    answer = _run("xprop", "-id", _run("xdotool", "getactivewindow").strip(), "_NET_FRAME_EXTENTS")
    return [int(number) for number in re.findall(r"\d+", answer.partition("=")[2])] or [0, 0, 0, 0]


def active_states():
    """What the window manager says of the active window: _NET_WM_STATE_ABOVE and its like."""
    answer = _run("xprop", "-id", _run("xdotool", "getactivewindow").strip(), "_NET_WM_STATE")
    return answer.partition("=")[2].replace(",", " ").split()


def minimise():
    """As the button in the title bar does."""
    _run("xdotool", "getactivewindow", "windowminimize")


def resize_to(width, height):
    """As dragging a corner of the active window does; without its borders, in the program's pixels."""
    _run("xdotool", "getactivewindow", "windowsize", round(width * SCALE), round(height * SCALE))


def activate(name):
    """As a click on a window's entry in the task bar does."""
    _run("wmctrl", "-a", name)


def window_states(name):
    """The state of each window of this title that has an entry in the task bar: Normal or Iconic."""
    found = subprocess.run(["xdotool", "search", "--name", f"^{re.escape(name)}$"], capture_output=True, text=True)
    states = [_run("xprop", "-id", window, "WM_STATE") for window in found.stdout.split()]
    return re.findall(r"window state: (Normal|Iconic)", "".join(states))


class Eyes:
    """Takes pictures of the screen; `scratch` is where those go that are only looked at."""

    def __init__(self, scratch):
        self._scratch = Path(scratch)

    def whole(self, name="screen"):
        path = self._scratch / f"{name}.png"
        _run("import", "-window", "root", path)
        return path

    def part(self, box, name="part"):
        """The pixels of a box, in screen pixels."""
        path = self._scratch / f"{name}.png"
        _run("convert", self.whole(), "-crop", _crop(box), "+repage", path)
        return path

    def corner(self, path):
        """The lower right corner of the screen, where the notification area is, as a small picture file."""
        width, height = (int(side) for side in _run("xdotool", "getdisplaygeometry").split())
        # clear of the presenter, who may still be reading
        cut_width, cut_height = round(420 * SCALE), round(170 * SCALE)
        corner = self.still(f"{cut_width}x{cut_height}+{width - cut_width}+{height - cut_height}")
        _save(corner, path)

    def still(self, crop):
        """A picture of a part of the screen (as ImageMagick writes it) once nothing moves there."""
        def look(name):
            return prepare(self.whole(), self._scratch / f"{name}.png", "-crop", crop)

        before = look("before")
        for _ in range(20):
            now = look("now")
            if difference(before, now) == 0:
                break
            now.replace(before)
        return before

    def keep(self, window, path, pointer=(0, 0)):
        """A small picture file of a window (a box), its borders and what lies on it; the mouse is put aside, or
        stays at `pointer`."""
        move_to(*pointer)
        _save(self.still(_crop(window, _borders())), path)

    def snapshot(self, box, path):
        """A picture file of a box as it is at this moment, for what never stands still."""
        _save(self.part(box), path)


def _crop(box, borders=(0, 0, 0, 0)):
    """A box and what lies around it, as ImageMagick writes a part of a picture, in screen pixels."""
    left, right, top, bottom = borders
    x, y, width, height = (round(side * SCALE) for side in (box.x, box.y, box.width, box.height))
    return f"{width + left + right}x{height + top + bottom}{x - left:+}{y - top:+}"


def _save(picture, path):
    Path(path).parent.mkdir(parents=True, exist_ok=True)
    small = ("-strip", "-define", "png:compression-level=9", "-define", "png:compression-filter=5")
    _run("convert", picture, *small, f"png:{path}")


def difference(one, other):
    """How far two pictures of one size are apart: 0 for the same, 1 for black against white."""
    command = ["compare", "-metric", "RMSE", str(one), str(other), "null:"]
    answer = subprocess.run(command, capture_output=True, text=True)
    found = re.search(r"\(([\d.e+-]+)\)", answer.stderr)
    if not found:
        raise Unexpected("comparing two pictures", "a number", answer.stderr)
    return float(found.group(1))


def prepare(picture, path, *operations):
    """A copy of a picture with ImageMagick operations applied, as a PNG file."""
    _run("convert", picture, *operations, "+repage", path)
    return path


def measure(picture, wanted, *operations):
    """Numbers of a picture by ImageMagick's format letters, after operations."""
    answer = _run("convert", picture, *operations, "-format", wanted, "info:")
    return [float(number) for number in answer.split()]


def pages_of(pdf):
    return int(re.search(r"^Pages:\s+(\d+)", _run("pdfinfo", pdf), re.MULTILINE).group(1))


def first_page(pdf, path):
    _run("pdftoppm", "-r", "72", "-png", "-singlefile", pdf, Path(path).with_suffix(""))
    return path
