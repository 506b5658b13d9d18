"""The pictures of the English manual: the windows that the Italian steps show, once more in English.

What the windows do is checked in Italian; here a step only waits until what the picture is of is on the screen.
"""

from accessible import expect
from airport_steps import BEGINNING
from disk import ICAO_CODE
from screen import click, minimise, press, write
from stage import AIRPORT
from windows import Companion, MainWindow, Viewer

NEW = "TRAINING"
TYPED = ("lixx", "6000", "e009 16.6", "n45,26", "353", "tra", "115.30", "", "", "09l", "2500", "abc", "109.50", "090")


def take(stage):
    main, viewer, companion = (kind(stage.program, stage.english) for kind in (MainWindow, Viewer, Companion))
    stage.program.start()
    click(stage.main.flag(0))
    main.expect_search()
    with stage.step("the English manual gets its pictures: an airport found and read"):
        find_and_read(stage, main)
    with stage.step("its charts and notes"):
        look_at_a_chart(stage, main, viewer)
    with stage.step("the chart above the simulator, and the icon's menu"):
        link(stage, viewer, companion)
    with stage.step("a new airport"):
        begin_a_new_airport(stage, main, viewer)
    with stage.step("and the program is left in Italian"):
        stage.program.start()
        main.expect_search()
        click(main.flag(1))
        stage.main.expect_search()
        stage.main.close_box()
        stage.program.expect_end()


def find_and_read(stage, main):
    main.search(BEGINNING)
    expect("list", lambda: f"[{AIRPORT}]" in main.entries(), True)
    stage.keep("17-english-list")
    main.open_from_list(AIRPORT)
    stage.keep("18-english-airport")


def look_at_a_chart(stage, main, viewer):
    main.choose("cmdGrafica")
    viewer.expect_shown(AIRPORT)
    viewer.family(0)
    charts = stage.airport.charts("Sid")
    chart = next(name for name in charts if stage.airport.note("Sid", "DECOLLO", name))
    viewer.choose_chart(chart)
    stage.keep("19-english-notes")
    click(viewer.button("cmdSave"))
    viewer.message_box("0027", "0028")
    stage.keep("20-english-saving")
    viewer.answer("0027", "0028", "0103")


def link(stage, viewer, companion):
    viewer.choose("Command4")
    companion.expect_shown()
    stage.keep("21-english-companion")
    minimise()
    companion.expect_hidden()
    stage.tray.click(3)
    companion.item("mnuRipris")
    stage.eyes.corner(stage.pictures / "22-english-icon-menu.png")
    companion.choose_item("mnuNuovaproc")
    viewer.expect_shown(AIRPORT)


def begin_a_new_airport(stage, main, viewer):
    viewer.choose("Command3")
    main.expect_search()
    main.search(NEW.lower())
    main.choose("cmdElabora")
    main.message_box("0013", "0014")
    stage.keep("23-english-not-found")
    main.answer("0013", "0014", "0102")
    expect("ICAO code with the keyboard", lambda: main.entry_field(ICAO_CODE).focused, True)
    for text in TYPED:
        write(text)
        press("Tab")
    stage.keep("24-english-new-airport")
    main.close_box()  # nothing was saved
    stage.program.expect_end()
