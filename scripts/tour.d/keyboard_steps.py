"""The whole main job once more, by the keyboard alone: the mouse rests in a corner of the screen."""

import os
from pathlib import Path

from accessible import Unexpected, above, expect
from disk import chosen_language
from note_steps import files
from screen import move_to, press, write
from stage import AIRPORT
from windows import LARGER, SMALLER, Companion, MainWindow, natural_size

BEGINNING = "li"
NOTE = "virata a destra"
MOST_TABS = 30


def without_a_mouse(stage):
    move_to(2, 2)
    stage.program.start()
    _choose_languages(stage)
    _open_the_airport(stage)
    chart = _read_a_chart(stage)
    _write_a_note(stage, chart)
    _print(stage)
    _link_and_come_back(stage)
    _leave(stage)


def _tab_to(what, thing):
    """Presses Tab until it has the keyboard, as somebody would who sees where the keyboard is."""
    for _ in range(MOST_TABS):
        if thing().focused:
            return
        press("Tab")
    raise Unexpected(f"keyboard reached by {MOST_TABS} tabs", what, "elsewhere")


def _choose_languages(stage):
    with stage.step("without a mouse: Tab reaches the flags, Space chooses a language"):
        english = MainWindow(stage.program, stage.english)
        stage.main.expect_search()
        _tab_to("English flag", lambda: stage.main.flag(0))
        press("space")
        expect("language in LangSetting.ini", lambda: chosen_language(stage.program.folder), "English")
        _tab_to("Italian flag", lambda: english.flag(1))
        press("space")
        expect("language in LangSetting.ini", lambda: chosen_language(stage.program.folder), "Italiano")
        _tab_to("name box", stage.main.name_box)


def _open_the_airport(stage):
    with stage.step("Down goes from the name box to the list, Return opens the airport"):
        stage.main.search(BEGINNING)
        expect("airport in the list", lambda: f"[{AIRPORT}]" in stage.main.entries(), True)
        press("Down")
        expect("list with the keyboard", lambda: stage.main.results().focused, True)
        press(*["Down"] * stage.main.entries().index(f"[{AIRPORT}]"), "Return")
        expect("values on show", stage.main.record, stage.airport.record())


def _read_a_chart(stage):
    viewer = stage.viewer
    with stage.step("the charts come with Alt and a letter, a family with Space, a chart with Return"):
        stage.main.choose("cmdGrafica")
        viewer.expect_shown(AIRPORT)
        expect("family with the keyboard", lambda: viewer.option(0).focused, True)
        press("space")
        charts = stage.airport.charts("Sid")
        expect("charts in the list", viewer.charts, charts)
        _tab_to("list of charts", viewer.chart_list)
        press("Return")
        natural = natural_size(stage.airport.chart("Sid", charts[0]))
        viewer.expect_size(charts[0], 1, natural)
    with stage.step("plus and minus zoom, Page Down, Home and the arrows scroll"):
        press("plus")
        viewer.expect_size(charts[0], LARGER, natural)
        press("minus")
        viewer.expect_size(charts[0], LARGER * SMALLER, natural)
        _tab_to("chart", lambda: viewer.shown.one("panel", charts[0]))
        press("Home")
        expect("scroll value", lambda: viewer.bars()[1].value, 1)
        press("Next", "Down")
        expect("scroll value after a page and a line", lambda: viewer.bars()[1].value, 1 + 100 + 10)
        viewer.expect_follows(charts[0])
    return charts[0]


def _write_a_note(stage, chart):
    with stage.step("a note is typed and saved"):
        _tab_to("route box", lambda: stage.viewer.note_box("ROTTA"))
        press("ctrl+a")
        write(NOTE)
        stage.viewer.choose("cmdSave")
        stage.viewer.message_box("0027", "0028")
        press("Return")
        wanted = f'"{NOTE.upper()}"\r\n'.encode()
        expect("route file", lambda: files(stage, chart)["ROTTA"], wanted)


def _print(stage):
    with stage.step("the page is printed"):
        printed = Path(os.environ["DESKTOP_DIR"]) / "printed"
        before = len(list(printed.glob("*.pdf")))
        stage.viewer.choose("cmdStampa")
        expect("jobs at the printer", lambda: len(list(printed.glob("*.pdf"))), before + 1)


def _link_and_come_back(stage):
    companion = Companion(stage.program, stage.italian)
    with stage.step("the companion window takes the chart's keys, and its menu leads back"):
        stage.viewer.choose("Command4")
        companion.expect_shown()
        before = companion.bars()[1].value
        press("Next")
        expect("scroll value", lambda: companion.bars()[1].value, above(before))
        companion.open_menu()
        companion.item("mnuNuovaproc")
        press(stage.italian.key("frmFS9", "mnuNuovaproc"))
        stage.viewer.expect_shown(AIRPORT)


def _leave(stage):
    with stage.step("the way back and the end"):
        stage.viewer.choose("Command3")
        stage.main.expect_search()
        stage.main.close_box()
        stage.program.expect_end()
