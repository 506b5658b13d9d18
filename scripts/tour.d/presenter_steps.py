"""The steps with the presenter: it appears, reads an airport's text aloud, and leaves; what is heard is recorded."""

import subprocess
import time

from accessible import SOMETHING, Box, expect, near
from disk import CODE_PAGE
from screen import title
from stage import AIRPORT

LINES = ("Benvenuti, e buon volo.", "Perché no? È già sera.")
# The sound server hands over what nobody hears in blocks of two seconds; a recording begins that much earlier.
WARM_UP = 3
# For sox: pauses of 0.15 s and more, under half a percent of full loudness, are cut out.
WITHOUT_PAUSES = ("silence", "-l", "1", "0.05", "0.5%", "-1", "0.15", "0.5%")


class Recording:
    """All that the desktop's sound server plays, until it is stopped."""

    def __init__(self, path):
        self._path = path
        self._process = subprocess.Popen(["parec", "-d", "nothing.monitor", "--file-format=wav", path])
        time.sleep(WARM_UP)

    def stop(self):
        self._process.terminate()
        self._process.wait()

    def heard(self):
        """How long something is heard, in seconds, without the pauses before, between and after."""
        return _heard(self._path)


def _heard(sound):
    shortened = sound.with_suffix(".heard.wav")
    subprocess.run(["sox", sound, shortened, *WITHOUT_PAUSES], check=True)
    return float(subprocess.run(["soxi", "-D", shortened], check=True, capture_output=True, text=True).stdout)


def _spoken(stage, line, number):
    """How long the synthesiser speaks a line, in seconds, measured as the recording is."""
    path = stage.scratch / f"line{number}.wav"
    subprocess.run(["espeak-ng", "-v", "it", "--stdin", "-w", path], input=line.encode(), check=True)
    return _heard(path)


def _open(stage):
    stage.program.start()
    stage.main.expect_search()
    stage.main.search(AIRPORT.lower())
    stage.main.open_from_list(AIRPORT)


def present(stage):
    text = "\r\n".join(LINES).encode(CODE_PAGE)
    stage.airport.presenter_text(AIRPORT).write_bytes(text)
    recording = Recording(stage.scratch / "presentation.wav")
    with stage.step("an airport opened in Italian: a character comes into view, and the window keeps the keyboard"):
        _open(stage)
        shown = stage.program.shown
        expect("character", shown.character, SOMETHING)
        expect("title bar", title, stage.main.caption("frmMain"))
        beside = stage.program.window().right
        expect("beside the window", lambda: shown.character().box.x >= beside, True)
    with stage.step("it reads the text line by line, for assistive tools too"):
        for line in LINES:
            expect("line that is spoken", lambda: shown.character().name, line)
        window, character = stage.program.window(), shown.character().box
        both = Box(window.x, window.y, character.right - window.x, window.height)
        stage.eyes.snapshot(both, stage.pictures / "16-presentatore.png")
    with stage.step("it leaves, and what was heard is as long as the lines"):
        expect("character", shown.character, None)
        recording.stop()
        wanted = sum(_spoken(stage, line, number) for number, line in enumerate(LINES))
        expect("seconds of speech", recording.heard, near(wanted, 0.15 * wanted))
        stage.main.close_box()
        stage.program.expect_end()


def end_while_it_speaks(stage):
    with stage.step("closed while it speaks, the program is silent at once and leaves nothing behind"):
        _open(stage)
        expect("line that is spoken", lambda: stage.program.shown.character().name, LINES[0])
        expect("sounds at the server", lambda: _sounds() > 0, True)
        stage.main.close_box()
        stage.program.expect_end()
        expect("sounds at the server", _sounds, 0)
        expect("synthesisers", lambda: subprocess.run(["pgrep", "-x", "espeak-ng"], check=False).returncode, 1)


def _sounds():
    found = subprocess.run(["pactl", "list", "short", "sink-inputs"], check=True, capture_output=True, text=True)
    return len(found.stdout.splitlines())
