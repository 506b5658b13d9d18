"""What a program shows, as an assistive tool sees it on the accessibility bus; what is hidden does not count."""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20.0  # seconds until something expected counts as missing; a busy machine is slow, not wrong
CHARACTER = "animation"
STATE = Atspi.StateType


class Unexpected(Exception):
    """Something is not as it should be; says what was looked at, what was expected and what is there."""

    def __init__(self, what, expected, seen):
        super().__init__(f"{what}\n  expected: {expected!r}\n  seen:     {seen!r}")


def expect(what, probe, wanted=True):
    """Waits until probe() gives what is wanted (a value or a Judge), and returns it."""
    is_wanted = wanted.decide if isinstance(wanted, Judge) else lambda value: value == wanted
    end = time.monotonic() + PATIENCE
    seen = None
    while True:
        try:
            seen = probe()
            if is_wanted(seen):
                return seen
        except GLib.Error as error:  # the object went away while it was looked at
            seen = error.message
        if time.monotonic() > end:
            raise Unexpected(what, wanted, seen)
        time.sleep(0.03)


class Judge:
    """What is wanted, where it is more than one value: told in words, and decided."""

    def __init__(self, words, decide):
        self._words, self.decide = words, decide

    def __repr__(self):
        return self._words


def above(bound):
    return Judge(f"above {bound}", lambda value: value > bound)


def under(bound):
    return Judge(f"under {bound}", lambda value: value < bound)


def near(target, tolerance):
    return Judge(f"{target:.3f}, give or take {tolerance}", lambda value: abs(value - target) <= tolerance)


SOMETHING = Judge("something", lambda found: found is not None)
ONE = Judge("just one of it", lambda found: len(found) == 1)


class Box:
    """A rectangle on the screen, in the program's own (logical) pixels."""

    def __init__(self, x, y, width, height):
        self.x, self.y, self.width, self.height = x, y, width, height

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height

    def within(self, other):
        x, y = max(self.x, other.x), max(self.y, other.y)
        return Box(x, y, min(self.right, other.right) - x, min(self.bottom, other.bottom) - y)


class Thing:
    """A window or a control."""

    def __init__(self, node):
        self._node = node

    @property
    def role(self):
        return self._node.get_role_name()

    @property
    def name(self):
        return self._node.get_name()

    def _has(self, state):
        return self._node.get_state_set().contains(state)

    @property
    def showing(self):
        return self._has(STATE.SHOWING)

    @property
    def enabled(self):
        return self._has(STATE.ENABLED)

    @property
    def focused(self):
        return self._has(STATE.FOCUSED)

    @property
    def checked(self):
        return self._has(STATE.CHECKED)

    @property
    def text(self):
        return Atspi.Text.get_text(self._node, 0, Atspi.Text.get_character_count(self._node))

    @property
    def value(self):
        return Atspi.Value.get_current_value(self._node)

    @property
    def range(self):
        return Atspi.Value.get_minimum_value(self._node), Atspi.Value.get_maximum_value(self._node)

    @property
    def box(self):
        place = self._node.get_extents(Atspi.CoordType.SCREEN)
        return Box(place.x, place.y, place.width, place.height)

    def children(self):
        found = (self._node.get_child_at_index(i) for i in range(self._node.get_child_count()))
        return [Thing(node) for node in found if node is not None]

    def everything(self, depth=0):
        """This and all below it that is showing, from the top of the tree, with the depth of each."""
        for child in self.children():
            if child.showing:
                yield depth, child
                yield from child.everything(depth + 1)

    def forget(self):
        self._node.clear_cache()

    def __str__(self):
        states = {"focused": self.focused, "checked": self.checked, "off": not self.enabled}
        flags = "".join(f" {word}" for word, on in states.items() if on)
        text = f" {self.text!r}" if "Text" in self._node.get_interfaces() else ""
        box = self.box
        return f"{self.role} {self.name!r}{text}{flags} {box.x},{box.y} {box.width}x{box.height}"


class Shown:
    """All that one process shows."""

    def __init__(self, process_id):
        def application():
            desktop = Atspi.get_desktop(0)
            for i in range(desktop.get_child_count()):
                node = desktop.get_child_at_index(i)
                if node is not None and node.get_process_id() == process_id:
                    return node
            return None

        self._application = Thing(expect("the program on the accessibility bus", application, SOMETHING))

    def all(self, role, name=None):
        self._application.forget()
        return [
            thing
            for _, thing in self._application.everything()
            if thing.role == role and (name is None or thing.name == name)
        ]

    def menu_items(self, name):
        """The items of this name in open menus. A menu belongs to its window, also when only the menu is showing."""
        self._application.forget()
        open_things = [self._application]
        found = []
        while open_things:
            thing = open_things.pop()
            open_things += thing.children()
            if thing.role == "menu item" and thing.name == name and thing.showing:
                found.append(thing)
        return found

    def windows(self):
        self._application.forget()
        return [window for window in self._application.children() if window.showing and window.role != CHARACTER]

    def character(self):
        """The presenter on the desktop, or None; its name is the line that it is speaking."""
        self._application.forget()
        found = (window for window in self._application.children() if window.showing and window.role == CHARACTER)
        return next(found, None)

    def one(self, role, name):
        """The one showing thing of this role and name; waits for it."""
        return expect(f"{role} {name!r}", lambda: self.all(role, name), ONE)[0]

    def none(self, role, name):
        expect(f"{role} {name!r} on the screen", lambda: len(self.all(role, name)), 0)

    def no_window(self, title):
        expect(f"window {title!r}", lambda: title in [window.name for window in self.windows()], False)

    def tree(self):
        self._application.forget()
        return "\n".join("  " * depth + str(thing) for depth, thing in self._application.everything())


