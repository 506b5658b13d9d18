"""The program folder on the disk, read with few lines of its own: what the windows show is held against it."""

import re
import struct
from pathlib import Path

CODE_PAGE = "cp1252"
ENTRIES = 39
ICAO_CODE = 38


class Language:
    """A language file: captions by window and control, messages by number."""

    def __init__(self, path):
        self._values = {}
        section = ""
        for line in Path(path).read_bytes().decode(CODE_PAGE).split("\r\n"):
            if line.startswith("["):
                section = line.strip("[]")
            elif "=" in line:
                key, _, value = line.partition("=")
                self._values[section, key] = value[1:-1] if value[:1] == '"' == value[-1:] else value

    def message(self, number):
        return self._values["Strings", number]

    def raw(self, window, control, what="Caption"):
        return self._values[window, f"{control}.{what}"]

    def caption(self, window, control):
        """As it is read: without the mark of the key that chooses it."""
        return self.raw(window, control).replace("&", "")

    def key(self, window, control):
        """The key that, with Alt, chooses the control."""
        return re.search("&(.)", self.raw(window, control)).group(1).lower()

    def tool_tip(self, window, control):
        return self.raw(window, control, "ToolTipText")


class Airport:
    def __init__(self, program_folder, name):
        self.name = name
        self._folder = Path(program_folder) / "aeroporti" / name

    def record(self):
        lines = self.data_file().read_bytes().decode(CODE_PAGE).split("\r\n")
        return [line[1:-1] for line in lines[:ENTRIES]]

    def data_file(self):
        return self._folder / "Aeroporto" / f"{self.name}.txt"

    def presenter_text(self, code):
        return self._folder / f"{code}_Agent.txt"

    def picture(self):
        return self._folder / "Aeroporto" / f"{self.record()[ICAO_CODE]}.gif"

    def charts(self, family):
        files = (self._folder / family).iterdir()
        return sorted(path.stem.upper() for path in files if path.suffix.lower() == ".gif")

    def chart(self, family, chart):
        return next(path for path in (self._folder / family).iterdir() if path.name.upper() == f"{chart}.GIF")

    def note_file(self, family, kind, chart):
        return self._folder / family / f"{kind}_{chart}.txt"

    def note(self, family, kind, chart):
        """The text between the first two double quotes; empty without a file."""
        path = self.note_file(family, kind, chart)
        if not path.exists():
            return ""
        return path.read_bytes().decode(CODE_PAGE).split('"')[1].replace("\r\n", "\n")


def size_of(gif):
    """Width and height in pixels, from the file's header."""
    return struct.unpack("<HH", Path(gif).read_bytes()[6:10])


def chosen_language(program_folder):
    settings = (Path(program_folder) / "LangSetting.ini").read_bytes().decode(CODE_PAGE)
    return re.search(r"^CurrentLanguage=(.*)\r$", settings, re.MULTILINE).group(1)
