"""The steps with paper and pencil: a chart's notes typed and saved, the window printed."""

import os
import time
from pathlib import Path

from accessible import above, expect, near
from chart_steps import choose_first
from disk import CODE_PAGE
from screen import click, first_page, measure, pages_of, press, write

KINDS = ("ROTTA", "DECOLLO", "ALTITUDINE")
TYPED = "dopo il decollo prua 250\npoi a sinistra, velocità ridotta"
SHOWN = "DOPO IL DECOLLO PRUA 250\nPOI A SINISTRA, VELOCITà RIDOTTA"  # typing raises a to z and nothing else
SAVED = "DOPO IL DECOLLO PRUA 250\nPOI A SINISTRA, VELOCITÀ RIDOTTA"  # saving raises a route whole


def write_a_note(stage, other_chart):
    """Gives the chart that it was written for, which is on show."""
    viewer = stage.viewer
    charts = stage.airport.charts("Sid")
    chart = next(name for name in charts if not stage.airport.note("Sid", "ROTTA", name))
    before = files(stage, chart)
    with stage.step(f"a note typed for {chart} shows in capitals"):
        viewer.choose_chart(chart)
        expect("route box", lambda: viewer.note_box("ROTTA").text, "")
        click(viewer.note_box("ROTTA"))
        expect("route box with the keyboard", lambda: viewer.note_box("ROTTA").focused, True)
        write(TYPED)
        expect("route box", lambda: viewer.note_box("ROTTA").text, SHOWN)
    with stage.step("saving asks first, and Cancel writes nothing"):
        click(viewer.button("cmdSave"))
        viewer.message_box("0027", "0028")
        stage.keep("07-salvataggio")
        viewer.answer("0027", "0028", "0103")
        expect("notes files", lambda: files(stage, chart), before)
    with stage.step("OK writes the three notes files, to the byte"):
        notes = {kind: stage.airport.note("Sid", kind, chart) for kind in KINDS} | {"ROTTA": SAVED}
        wanted = {kind: f'"{text}"\n'.replace("\n", "\r\n").encode(CODE_PAGE) for kind, text in notes.items()}
        click(viewer.button("cmdSave"))
        viewer.answer("0027", "0028", "0102")
        expect("notes files", lambda: files(stage, chart), wanted)
    with stage.step("the note comes back when the chart is chosen again"):
        viewer.choose_chart(other_chart)
        viewer.choose_chart(chart)
        expect("route box", lambda: viewer.note_box("ROTTA").text, SAVED)
        stage.keep("08-note")
    return chart


def outlive_a_kill(stage, open_again):
    with stage.step("a note that was typed a second before the program is killed is offered by the next start"):
        chart = choose_first(stage)
        click(stage.viewer.note_box("DECOLLO"))
        write("mai salvata")
        time.sleep(1)  # what is promised
        stage.program.kill()
        open_again(stage)
        expect("the same chart", lambda: choose_first(stage), chart)
        click(stage.viewer.note_box("DECOLLO"))
        press("ctrl+z")
        expect("take-off box", lambda: stage.viewer.note_box("DECOLLO").text, "MAI SALVATA")


def files(stage, chart):
    """The bytes of a departure's three notes files; None for one that is not there."""
    paths = {kind: stage.airport.note_file("Sid", kind, chart) for kind in KINDS}
    return {kind: path.read_bytes() if path.exists() else None for kind, path in paths.items()}


def print_the_page(stage):
    with stage.step("Stampa sends one page to the default printer: the window in its own proportions"):
        window = stage.program.window()
        printed = Path(os.environ["DESKTOP_DIR"]) / "printed"
        click(stage.viewer.button("cmdStampa"))
        expect("jobs at the printer", lambda: len(list(printed.glob("*.pdf"))), 1)
        pdf = next(printed.glob("*.pdf"))
        expect("pages of the job", lambda: pages_of(pdf), 1)
        page = first_page(pdf, stage.scratch / "page.png")
        width, height, colours = measure(page, "%w %h %k", "-fuzz", "2%", "-trim")
        expect("proportions of the print", lambda: width / height, near(window.width / window.height, 0.02))
        expect("colours of the print", lambda: colours, above(100))
