"""The steps in the main window: finding an airport, its data and picture, the languages, the end."""

from accessible import expect, under
from disk import chosen_language
from screen import click, prepare, title
from stage import AIRPORT
from windows import PICTURE_PLACE, SMALLER, MainWindow, Viewer, natural_size

BEGINNING = "li"


def find_the_airport(stage):
    with stage.step("the main window is there: the name box has the keyboard, nothing can be created yet"):
        stage.main.expect_search()
        stage.keep("01-ricerca")
    with stage.step(f"typing {BEGINNING} shows {BEGINNING.upper()} and lists the airports that begin so"):
        folders = [path.name for path in (stage.program.folder / "aeroporti").iterdir()]
        matching = sorted(f"[{name}]" for name in folders if name.startswith(BEGINNING.upper()))
        stage.main.search(BEGINNING)
        expect("entries of the list", lambda: sorted(stage.main.entries()), matching)
        expect("usable", lambda: stage.main.button("cmdElabora").enabled, True)
        stage.keep("02-elenco")


def read_its_data(stage):
    with stage.step(f"a click on [{AIRPORT}] shows the 39 values of its file"):
        stage.main.open_from_list(AIRPORT)
        expect("name box", lambda: stage.main.name_box().text, AIRPORT)
        expect("values on show", stage.main.record, stage.airport.record())
        expect("name box usable", lambda: stage.main.name_box().enabled, False)
    with stage.step("its picture is on the screen"):
        box = stage.main.picture()
        whole = "x".join(str(round(side / 15)) for side in PICTURE_PLACE[2:])  # a little of it lies outside
        crop = f"{box.width}x{box.height}+0+0"
        shrunk = ("-resize", f"{whole}!", "-crop", crop)
        wanted = prepare(stage.airport.picture(), stage.scratch / "wanted.png", *shrunk)
        # Two ways to shrink a picture differ along its edges; another picture is further apart by far.
        expect("screen against the file", lambda: stage.apart(box, wanted), under(0.1))
        stage.keep("03-aeroporto")


def go_back(stage):
    with stage.step("&Uscita closes the viewer and opens the main window afresh"):
        viewer = title()
        stage.viewer.choose("Command3")
        stage.main.expect_search()
        stage.program.shown.no_window(viewer)


def switch_language(stage):
    main, viewer = MainWindow(stage.program, stage.english), Viewer(stage.program, stage.english)
    with stage.step("the English flag turns the window English and is remembered"):
        click(stage.main.flag(0))
        main.expect_search()
        for frame in ("Frame1", "Frame2"):
            stage.program.shown.one("panel", main.caption(frame))
        expect("language in LangSetting.ini", lambda: chosen_language(stage.program.folder), "English")
        stage.keep("09-english")
    with stage.step("the viewer is English too"):
        main.search(AIRPORT.lower())
        click(main.button("cmdElabora"))
        main.choose("cmdGrafica")
        viewer.expect_shown(AIRPORT)
        viewer.family(2)
        chart = stage.airport.charts("Approach")[0]
        viewer.choose_chart(chart)
        wanted = stage.airport.note("Approach", "MISSED", chart)
        expect("missed approach", lambda: viewer.note_box("MISSED").text, wanted)
        factor = 1
        while factor > 0.35:
            factor *= SMALLER
            click(viewer.button("Command2"))
            viewer.expect_size(chart, factor, natural_size(stage.airport.chart("Approach", chart)))
        stage.keep("10-english-chart")
        viewer.choose("Command3")
    with stage.step("the Italian flag turns it back"):
        main.expect_search()
        click(main.flag(1))
        stage.main.expect_search()
        expect("language in LangSetting.ini", lambda: chosen_language(stage.program.folder), "Italiano")


def open_again(stage):
    with stage.step("started once more, the airport's charts are two clicks away"):
        stage.program.start()
        stage.main.search(AIRPORT.lower())
        stage.main.open_from_list(AIRPORT)
        stage.main.choose("cmdGrafica")
        stage.viewer.expect_shown(AIRPORT)


def close(stage):
    with stage.step("the main window's close box ends the program"):
        stage.main.close_box()
        stage.program.expect_end()
