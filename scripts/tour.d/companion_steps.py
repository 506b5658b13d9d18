"""The steps with the companion window: above every other, resized, minimised to its icon and called back."""

from accessible import above, expect
from screen import active_states, click_at, drag, minimise, move_to, press, resize_to, title, turn_wheel
from stage import AIRPORT
from tray import silent_bus
from windows import LARGER, SMALLER, natural_size

ABOVE = "_NET_WM_STATE_ABOVE"


def link(stage, chart):
    companion, viewer = stage.companion, title()
    with stage.step("&Link FS hides the viewer and shows the chart above every other window, "
                    "be the session bus silent"), silent_bus():
        stage.viewer.choose("Command4")
        companion.expect_shown()
        stage.program.shown.no_window(viewer)
        expect("states of the window", lambda: ABOVE in active_states(), True)
        companion.expect_picture(chart, natural_size(stage.airport.chart("Sid", chart)))
        stage.keep("12-accanto-al-simulatore")


def without_notification_area(stage):
    companion = stage.companion
    with stage.step("without a notification area, minimising leaves the window in the task bar"):
        minimise()
        expect("minimised", companion.minimised, True)
        companion.activate_from_task_bar()
        companion.expect_shown()
    with stage.step("a notification area that starts late gets the icon"):
        stage.tray.start()
        stage.tray.expect_icons(1)


def zoom_and_resize(stage, chart):
    companion = stage.companion
    natural = natural_size(stage.airport.chart("Sid", chart))
    with stage.step("a left click zooms in, a right click out"):
        box = companion.inside()
        click_at(box.x + 100, box.y + 100)
        companion.expect_picture(chart, [side * LARGER for side in natural])
        click_at(box.x + 100, box.y + 100, button=3)
        companion.expect_picture(chart, [side * LARGER * SMALLER for side in natural])
    with stage.step("the window is resized: the chart and the scroll bars keep their proportions to it"):
        first = companion.inside()
        resize_to(first.width + 200, first.height + companion.menu_bar().height + 150)
        expect("width of the inside", lambda: companion.inside().width, first.width + 200)
        ratios = [(first.width + 200) / first.width, (first.height + 150) / first.height]
        companion.expect_picture(chart, [side * ratio for side, ratio in zip(natural, ratios)])
        bar = companion.bars()[1].box
        expect("right edge of the bar down", lambda: bar.right, above(companion.inside().right - 3))
        stage.keep("13-ingrandita")
        resize_to(first.width, first.height + companion.menu_bar().height)
        companion.expect_picture(chart, natural)


def move_by_mouse(stage, chart):
    companion = stage.companion
    natural = natural_size(stage.airport.chart("Sid", chart))
    inside = companion.inside()
    at = inside.x + 200, inside.y + 250

    def place():
        box = companion.picture_named(chart).box
        return box.x - inside.x, box.y - inside.y

    with stage.step("wheel, middle button and keys move the chart as in the viewer"):
        x, y = place()
        move_to(*at)
        turn_wheel(-4)
        expect("place of the chart after the wheel", place, (x, y - 120))
        drag(at, (at[0] - 40, at[1] + 25), button=2)
        expect("place of the chart after dragging", place, (x - 40, y - 95))
        press("Right")
        expect("place of the chart after an arrow key", place, (x - 50, y - 95))
        turn_wheel(1, key="ctrl")
        companion.expect_picture(chart, [side * LARGER for side in natural])


def minimise_to_the_icon(stage, chart):
    companion, tray = stage.companion, stage.tray
    with stage.step("minimised, only the icon remains"):
        minimise()
        companion.expect_hidden()
        tray.expect_icons(1)
    with stage.step("pointing at the icon and a left click on it do not show the window"):
        tray.point_at()
        tray.click(1)
        companion.expect_hidden()
    with stage.step("a right click opens the menu; the airport's picture is shown above every other window"):
        tray.click(3)
        companion.item("mnuProcScelta")
        stage.eyes.corner(stage.pictures / "14-menu-dell-icona.png")
        companion.choose_item("mnuAeroporto")
        companion.expect_shown()
        expect("states of the window", lambda: ABOVE in active_states(), True)
        companion.expect_picture(AIRPORT, natural_size(stage.airport.picture()))
        stage.keep("15-foto")
    with stage.step("minimised again, Restore brings it back"):
        minimise()
        companion.expect_hidden()
        tray.click(3)
        companion.choose_item("mnuRipris")
        companion.expect_shown()
        expect("states of the window", lambda: ABOVE in active_states(), True)
    with stage.step("its own menu brings the chart back"):
        companion.open_menu()
        companion.choose_item("mnuProcScelta")
        companion.expect_picture(chart, natural_size(stage.airport.chart("Sid", chart)))


def other_notification_areas(stage):
    with stage.step("a notification area that starts again gets the icon again"):
        stage.tray.stop()
        stage.tray.start()
        stage.tray.expect_icons(1)
    with stage.step("one on the session bus takes the icon over, and opens the menu"):
        host = stage.bus_tray()
        host.expect_icon(stage.italian.message("0023"))
        stage.tray.expect_icons(0)
        minimise()
        stage.companion.expect_hidden()
        host.click(3)
        stage.companion.item("mnuRipris")
        press("Escape")
    with stage.step("when it goes the icon goes back, and the window is not lost"):
        host.stop()
        stage.tray.expect_icons(1)
        stage.tray.click(3)
        stage.companion.choose_item("mnuRipris")
        stage.companion.expect_shown()


def back_to_the_viewer(stage, chart):
    companion = stage.companion
    with stage.step("the close box is refused, and &Exit answered No changes nothing"):
        companion.close_box()
        companion.open_menu()
        companion.choose_item("mPopExit")
        companion.answer("0025", "0026", "0105")
        companion.expect_shown()
        stage.tray.expect_icons(1)
    with stage.step("&Nuova Procedura takes the icon away and brings the viewer back as it was"):
        companion.open_menu()
        companion.choose_item("mnuNuovaproc")
        stage.viewer.expect_shown(AIRPORT)
        stage.tray.expect_icons(0)
        expect("charts in the list", lambda: sorted(stage.viewer.charts()), stage.airport.charts("Sid"))
        stage.viewer.chart(chart)


def exit_from_the_icon(stage, chart):
    with stage.step("linked again and minimised, &Exit in the icon's menu ends the program, and its icon goes"):
        stage.viewer.choose("Command4")
        stage.companion.expect_shown()
        stage.companion.expect_picture(chart, natural_size(stage.airport.chart("Sid", chart)))
        minimise()
        stage.companion.expect_hidden()
        stage.tray.click(3)
        stage.companion.choose_item("mPopExit")
        stage.companion.answer("0025", "0026", "0104")
        stage.program.expect_end()
        stage.tray.expect_icons(0)
        stage.tray.stop()
