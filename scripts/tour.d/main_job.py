"""The main job, done from outside: find an airport, read its data, work with its charts, print, switch language;
keep a chart above the simulator; then enter a new airport, find it after a restart, hear it presented, and leave from the icon.

Usage: main_job.py EXECUTABLE DATA SCRATCH PICTURES      (in the desktop of scripts/with-desktop)
"""

import sys

import airport_steps
import chart_steps
import companion_steps
import english_pictures
import entry_steps
import keyboard_steps
import note_steps
import presenter_steps
from stage import Stage


def main(stage):
    airport_steps.find_the_airport(stage)
    airport_steps.read_its_data(stage)
    chart_steps.go_to_the_charts(stage)
    chart = chart_steps.read_a_chart(stage)
    chart_steps.zoom(stage, chart)
    chart_steps.pan(stage, chart)
    chart_steps.move_by_mouse(stage, chart)
    note = note_steps.write_a_note(stage, chart)
    note_steps.print_the_page(stage)
    companion_steps.link(stage, note)
    companion_steps.without_notification_area(stage)
    companion_steps.zoom_and_resize(stage, note)
    companion_steps.move_by_mouse(stage, note)
    companion_steps.minimise_to_the_icon(stage, note)
    companion_steps.other_notification_areas(stage)
    companion_steps.back_to_the_viewer(stage, note)
    airport_steps.go_back(stage)
    airport_steps.switch_language(stage)
    airport_steps.close(stage)
    english_pictures.take(stage)
    entry_steps.type_a_new_airport(stage)
    entry_steps.save_it(stage)
    entry_steps.find_it_again(stage)
    presenter_steps.present(stage)
    presenter_steps.end_while_it_speaks(stage)
    keyboard_steps.without_a_mouse(stage)
    airport_steps.open_again(stage)
    note_steps.outlive_a_kill(stage, airport_steps.open_again)
    companion_steps.exit_from_the_icon(stage, chart_steps.choose_first(stage))
    stage.steps.done()


if __name__ == "__main__":
    the_stage = Stage(*sys.argv[1:5])
    try:
        main(the_stage)
    finally:
        the_stage.stop()
