"""The steps with the charts: choosing, reading, zooming, panning."""

from accessible import Box, above, expect
from screen import click, click_at, difference, drag, move_to, prepare, press, turn_wheel
from stage import AIRPORT
from windows import LARGER, SMALLER, natural_size

FAMILIES = (("Star", 1, "0008"), ("Approach", 2, "0010"), ("Sid", 0, "0004"))  # folder, option, text of the count
ARROW = 6  # pixels from a scroll bar's end to the middle of the arrow there
NOTCH = 30  # pixels that a notch of the wheel scrolls
THUMB = 26  # pixels from its beginning to the thumb, which lies just behind the first arrow


def go_to_the_charts(stage):
    with stage.step("&Procedure closes the main window and opens the charts of the airport"):
        stage.main.choose("cmdGrafica")
        stage.viewer.expect_shown(AIRPORT)
        stage.program.shown.no_window(stage.main.caption("frmMain"))
    with stage.step("the viewer's close box is refused"):
        stage.viewer.close_box()
        stage.viewer.family(0)  # a click later, and the window is there to take it
        expect("SID chosen", lambda: stage.viewer.option(0).checked, True)
        stage.viewer.expect_shown(AIRPORT)
    for folder, option, count in FAMILIES:
        with stage.step(f"{folder} lists the charts of its folder and counts them"):
            charts = stage.airport.charts(folder)
            stage.viewer.family(option)
            expect("charts in the list", lambda charts=charts: sorted(stage.viewer.charts()), charts)
            stage.program.shown.one("label", f"{stage.italian.message(count)}{len(charts)}")


def read_a_chart(stage):
    """Gives the chart that was read, a departure with a route note."""
    charts = stage.airport.charts("Sid")
    chart = next(chart for chart in charts if stage.airport.note("Sid", "ROTTA", chart))
    with stage.step(f"chart {chart} shows its notes as its files hold them"):
        stage.viewer.choose_chart(chart)
        for kind in ("ROTTA", "DECOLLO", "ALTITUDINE"):
            wanted = stage.airport.note("Sid", kind, chart)
            expect(f"note {kind}", lambda kind=kind: stage.viewer.note_box(kind).text, wanted)
    with stage.step("it stands at its natural size, dot for dot"):
        gif = stage.airport.chart("Sid", chart)
        stage.viewer.expect_size(chart, 1, natural_size(gif))
        box, paper = stage.viewer.chart(chart).box, stage.viewer.paper()
        crop = f"{paper.width}x{paper.height}+{paper.x - box.x}+{paper.y - box.y}"
        wanted = prepare(gif, stage.scratch / "wanted.png", "-crop", crop)
        expect("screen against the file", lambda: stage.apart(paper, wanted), 0)
        stage.keep("04-cartina")
    return chart


def choose_first(stage):
    """Chooses the first departure, and gives its name."""
    chart = stage.airport.charts("Sid")[0]
    stage.viewer.family(0)
    stage.viewer.choose_chart(chart)
    return chart


def zoom(stage, chart):
    viewer = stage.viewer
    natural = natural_size(stage.airport.chart("Sid", chart))
    paper = viewer.paper()
    x, y = paper.x + 240, paper.y + 300
    with stage.step("a left click zooms in by a quarter, towards the point"):
        box = viewer.chart(chart).box
        # A bar moves on by a quarter of the distance clicked at, in twips: by a sixtieth in pixels.
        wanted = [round(bar.value + way / 60) for bar, way in zip(viewer.bars(), (x - box.x, y - box.y))]
        click_at(x, y)
        viewer.expect_size(chart, LARGER, natural)
        expect("scroll values", lambda: [bar.value for bar in viewer.bars()], wanted)
    with stage.step("Zoom IN zooms in again"):
        click(viewer.button("Command1"))
        viewer.expect_size(chart, LARGER**2, natural)
        stage.keep("05-zoom")
    with stage.step("a right click zooms out by a quarter"):
        click_at(x, y, button=3)
        viewer.expect_size(chart, LARGER**2 * SMALLER, natural)
    with stage.step("Zoom Out zooms out, down to the whole chart"):
        factor = LARGER**2 * SMALLER
        while natural[0] * factor > paper.width or natural[1] * factor > paper.height:
            factor *= SMALLER
            click(viewer.button("Command2"))
            viewer.expect_size(chart, factor, natural)
        for bar in viewer.bars():
            click_at(bar.box.right - ARROW, bar.box.bottom - ARROW)
            press("Home")
        expect("scroll values", lambda: [bar.value for bar in viewer.bars()], [1, 1])
        stage.keep("06-intera")


def pan(stage, chart):
    stage.viewer.choose_chart(chart)
    stage.viewer.expect_size(chart, 1, natural_size(stage.airport.chart("Sid", chart)))
    ways = {"across": lambda: stage.viewer.bars()[0], "down": lambda: stage.viewer.bars()[1]}
    for way, bar_of in ways.items():
        with stage.step(f"the scroll bar {way} moves the chart: by its arrow and by the keyboard"):
            _pan_in_steps(stage, chart, bar_of)
        with stage.step(f"the scroll bar {way} moves the chart: dragged"):
            _pan_by_dragging(stage, chart, bar_of)


def move_by_mouse(stage, chart):
    viewer = stage.viewer
    paper = viewer.paper()
    at = paper.x + 200, paper.y + 300

    def expect_values(*wanted):
        expect("scroll values", lambda: tuple(bar.value for bar in viewer.bars()), wanted)
        viewer.expect_follows(chart)

    with stage.step("the wheel scrolls the chart, with Shift sideways"):
        move_to(*at)
        turn_wheel(-4)
        expect_values(1, 1 + 4 * NOTCH)
        turn_wheel(-3, key="shift")
        turn_wheel(1)
        expect_values(1 + 3 * NOTCH, 1 + 3 * NOTCH)
    with stage.step("dragged by the middle button, the chart moves by just that way"):
        part = Box(at[0] - 40, at[1] - 40, 80, 80)
        before = stage.eyes.part(part, "grabbed")
        drag(at, (at[0] - 57, at[1] + 33), button=2)
        expect_values(1 + 3 * NOTCH + 57, 1 + 3 * NOTCH - 33)
        part = Box(part.x - 57, part.y + 33, part.width, part.height)
        expect("the grabbed part where it was let go", lambda: difference(before, stage.eyes.part(part)), 0)
    with stage.step("the chart has the keys then: arrows scroll it, plus and minus zoom"):
        press("Down", "Left")
        expect_values(1 + 3 * NOTCH + 47, 1 + 3 * NOTCH - 23)
        natural = natural_size(stage.airport.chart("Sid", chart))
        press("plus")
        viewer.expect_size(chart, LARGER, natural)
        press("minus")
        viewer.expect_size(chart, LARGER * SMALLER, natural)
    with stage.step("the wheel with Control zooms just as a click at that point"):
        stood = [_zoomed(stage, chart, at, by) for by in (click_at, _turn_with_control)]
        expect("scroll values after the wheel and after the click", lambda: stood[1], stood[0])


def _zoomed(stage, chart, at, by):
    """The scroll values after zooming in at a point, from the chart's natural size."""
    natural = natural_size(stage.airport.chart("Sid", chart))
    stage.viewer.choose_chart(chart)
    stage.viewer.expect_size(chart, 1, natural)
    by(*at)
    stage.viewer.expect_size(chart, LARGER, natural)
    return [bar.value for bar in stage.viewer.bars()]


def _turn_with_control(x, y):
    move_to(x, y)
    turn_wheel(1, key="ctrl")


def _pan_in_steps(stage, chart, bar_of):
    box = bar_of().box
    click_at(box.right - ARROW, box.bottom - ARROW)
    arrow = expect("scroll value after the arrow", lambda: bar_of().value, above(1))
    press("Next")
    expect("scroll value after Page Down", lambda: bar_of().value, above(arrow))
    stage.viewer.expect_follows(chart)
    press("Home")
    expect("scroll value after Home", lambda: bar_of().value, bar_of().range[0])


def _pan_by_dragging(stage, chart, bar_of):
    paper = stage.viewer.paper()
    unmoved = stage.eyes.part(paper, "unmoved")
    box = bar_of().box
    way = 200  # pixels
    if box.width > box.height:
        drag((box.x + THUMB, box.y + 8), (box.x + THUMB + way, box.y + 8))
    else:
        drag((box.x + 8, box.y + THUMB), (box.x + 8, box.y + THUMB + way))
    expect("scroll value after dragging", lambda: bar_of().value, above(bar_of().range[1] / 4))
    stage.viewer.expect_follows(chart)
    expect("change on the screen", lambda: difference(unmoved, stage.eyes.part(paper)), above(0.01))
    press("Home")
