"""The windows of the main job, each with what is found and done in it, in one language."""

from accessible import ONE, Box, Judge, Unexpected, expect
from disk import size_of
from screen import activate, click, press, title, window_states, write

# Places in the windows, in twips as the program measures them; 15 of them are a pixel.
PICTURE_PLACE = (5400, 0, 4935, 8895)
FRAME_PLACE = (5400, -240, 5955, 9165)
LARGER, SMALLER = 1.25, 0.75  # a zoom step makes the chart so many times as large
NOTES = {"ROTTA": "0005", "DECOLLO": "0003", "ALTITUDINE": "0006", "MISSED": "0009"}
ICON_HEIGHT = 32  # pixels, at most, in a notification area
COLUMNS = ("Label6(0)", "Label6(1)", "Label6(2)", "Label7", "Label8")


class Window:
    name = ""

    def __init__(self, program, language):
        self.program = program
        self.language = language

    @property
    def shown(self):
        return self.program.shown

    def caption(self, control):
        return self.language.caption(self.name, control)

    def button(self, control):
        return self.shown.one("push button", self.caption(control))

    def choose(self, control):
        """By its key, as its underlined letter says."""
        self.button(control)
        press(f"alt+{self.language.key(self.name, control)}")

    def place(self, twips):
        left, top, width, height = (round(value / 15) for value in twips)
        window = self.program.window()
        return Box(window.x + left, window.y + top, width, height).within(window)

    def entry(self, list_of, name):
        """The entry of a list; waits for it."""
        return expect(f"entry {name!r}", lambda: [
            item for item in list_of().children() if item.name == name], ONE)[0]

    def picture_named(self, name):
        return expect(f"picture {name!r}", lambda: self.shown.all("image", name), ONE)[0]

    def expect_picture(self, picture, wanted):
        """The picture has this width and height, to the pixel that rounding leaves open."""
        def size():
            box = self.picture_named(picture).box
            return box.width, box.height

        def close(seen):
            return all(abs(now - side) <= 1 for now, side in zip(seen, wanted))

        expect(f"size of picture {picture!r}", size, Judge(f"{wanted[0]:.1f} x {wanted[1]:.1f} pixels", close))

    def close_box(self):
        press("alt+F4")  # the window manager's key for the close box of the title bar

    def answer(self, text, title_number, button):
        """Reads a message box and presses one of its buttons."""
        self.message_box(text, title_number)
        click(self.shown.one("push button", self.language.message(button).replace("&", "")))
        self.shown.none("alert", self.language.message(title_number))

    def message_box(self, text, title_number):
        """A message box with the texts of these numbers, once it has the keyboard."""
        self.shown.one("alert", self.language.message(title_number))
        self.shown.one("label", self.language.message(text).replace("\\n", "\n"))
        expect("title of the message box", title, self.language.message(title_number))


class MainWindow(Window):
    name = "frmMain"

    def expect_search(self):
        """Only the name box, the flags and the pictures are there, ready for typing."""
        expect("title bar", title, self.caption("frmMain"))
        expect("name box with the keyboard", lambda: self.name_box().focused, True)
        expect("name box", lambda: self.name_box().text, "")
        expect(self.caption("cmdElabora") + " usable", lambda: self.button("cmdElabora").enabled, False)
        for frame in ("Frame3", "Frame4", "Frame5"):
            self.shown.none("panel", self.caption(frame))

    def name_box(self):
        return self.shown.one("text", self.caption("Label1"))

    def entries(self):
        return [item.name for item in self.results().children()]

    def results(self):
        return self.shown.one("list", self.caption("Label16"))

    def search(self, beginning):
        self.name_box()
        write(beginning)
        expect("name box", lambda: self.name_box().text, beginning.upper())

    def open_from_list(self, airport):
        click(self.entry(self.results, f"[{airport}]"))
        self.button("cmdGrafica")

    def headings(self):
        """The accessible name of each entry field, by its position in the record."""
        names = {38: "Label2", 37: "Label11", 0: "Label3", 1: "Label4", 2: "Label5",
                 33: "Label9", 34: "Label10", 35: "Label12", 36: "Label13"}
        found = {position: self.caption(label) for position, label in names.items()}
        for position in range(3, 33):
            row, column = divmod(position - 3, 5)
            found[position] = f"{self.caption(COLUMNS[column])} {row + 1}"
        return found

    def entry_field(self, position):
        return self.shown.one("text", self.headings()[position])

    def record(self):
        """The 39 values on show."""
        texts = {field.name: field.text for field in self.shown.all("text")}
        headings = self.headings()
        return [texts.get(headings[position]) for position in range(len(headings))]

    def flag(self, index):
        """The picture that chooses a language: 0 for English, 1 for Italian."""
        name = self.language.tool_tip(self.name, f"ImgLingua({index})")
        return expect(f"flag {name!r}", lambda: self.shown.all("push button", name), ONE)[0]

    def picture(self):
        return self.place(PICTURE_PLACE)


class Viewer(Window):
    name = "frmView"

    def expect_shown(self, airport):
        caption = f"{self.language.message('0001')} {airport}{self.language.message('0002')}"
        expect("title bar", title, caption)

    def family(self, index):
        click(self.option(index))

    def option(self, index):
        return self.shown.one("radio button", self.caption(f"Option1({index})"))

    def chart_list(self):
        return self.shown.one("list", self.caption("Frame2"))

    def charts(self):
        return [item.name for item in self.chart_list().children()]

    def choose_chart(self, chart):
        """Clicks it in the list; gives the picture that then shows."""
        click(self.entry(self.chart_list, chart))
        return self.chart(chart)

    def chart(self, chart):
        return self.picture_named(chart)

    def note_box(self, kind):
        return self.shown.one("text", self.language.message(NOTES[kind]))

    def bars(self):
        """The scroll bars across and down of the chart frame."""
        bars = [bar for bar in self.shown.all("scroll bar") if bar.box.x >= self.frame().x]
        across = next(bar for bar in bars if bar.box.width > bar.box.height)
        down = next(bar for bar in bars if bar.box.height > bar.box.width)
        return across, down

    def frame(self):
        return self.place(FRAME_PLACE)

    def paper(self):
        """The part of the frame that the chart is seen in: from the commands, which lie a pixel over it, to the
        scroll bars."""
        frame, commands = self.frame(), self.shown.one("panel", self.caption("frame6")).box
        across, down = self.bars()
        return Box(commands.right, frame.y, down.box.x - commands.right, across.box.y - frame.y)

    def expect_size(self, chart, factor, natural):
        """The chart stands at a zoom factor of its natural size, and where the scroll bars say."""
        self.expect_picture(chart, [side * factor for side in natural])
        self.expect_follows(chart)

    def expect_follows(self, chart):
        def apart():
            box, (across, down), corner = self.chart(chart).box, self.bars(), self.corner()
            return box.x - corner[0] + across.value, box.y - corner[1] + down.value

        expect("distance of the chart from where the scroll bars say", apart, (0, 0))

    def corner(self):
        """The upper left corner of the chart frame, which lies a little above the window."""
        window = self.program.window()
        return window.x + FRAME_PLACE[0] / 15, window.y + FRAME_PLACE[1] / 15


class Companion(Window):
    name = "frmFS9"

    def title(self):
        return self.caption("frmFS9")

    def windows(self):
        """The titles of the program's windows; one of the icon's size is the icon's."""
        return [window.name for window in self.shown.windows() if window.box.height > ICON_HEIGHT]

    def expect_shown(self):
        expect("title bar", title, self.title())
        expect("windows on the screen", lambda: self.windows(), [self.title()])

    def expect_hidden(self):
        expect("windows on the screen", lambda: self.windows(), [])
        expect("states of the window in the task bar", lambda: window_states(self.title()), [])

    def minimised(self):
        return window_states(self.title()) == ["Iconic"]

    def activate_from_task_bar(self):
        activate(self.title())

    def menu_bar(self):
        return self.shown.one("menu bar", "").box

    def inside(self):
        window, bar = self.program.window(), self.menu_bar()
        return Box(window.x, bar.bottom, window.width, window.bottom - bar.bottom)

    def bars(self):
        bars = self.shown.all("scroll bar")
        return [next(bar for bar in bars if (bar.box.width > bar.box.height) == across) for across in (True, False)]

    def open_menu(self):
        press(f"alt+{self.language.key(self.name, 'mApps')}")

    def item(self, control):
        name = self.caption(control)
        return expect(f"menu item {name!r}", lambda: self.shown.menu_items(name), ONE)[0]

    def choose_item(self, control):
        click(self.item(control))


def natural_size(gif):
    size = size_of(gif)
    if min(size) < 400:
        raise Unexpected(f"size of {gif}", "a chart larger than its frame", size)
    return size

