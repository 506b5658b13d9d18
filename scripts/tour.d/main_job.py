"""The main job, done from outside: find an airport, read its data, work with its charts, print, switch language;
then enter a new airport, and find it after a restart.

Usage: main_job.py EXECUTABLE DATA SCRATCH PICTURES      (in the desktop of scripts/with-desktop)
"""

import sys

import airport_steps
import chart_steps
import entry_steps
import note_steps
from stage import Stage


def main(stage):
    airport_steps.find_the_airport(stage)
    airport_steps.read_its_data(stage)
    chart_steps.go_to_the_charts(stage)
    chart = chart_steps.read_a_chart(stage)
    chart_steps.zoom(stage, chart)
    chart_steps.pan(stage, chart)
    note_steps.write_a_note(stage, chart)
    note_steps.print_the_page(stage)
    airport_steps.go_back(stage)
    airport_steps.switch_language(stage)
    airport_steps.close(stage)
    entry_steps.type_a_new_airport(stage)
    entry_steps.save_it(stage)
    entry_steps.find_it_again(stage)
    stage.steps.done()


if __name__ == "__main__":
    the_stage = Stage(*sys.argv[1:5])
    try:
        main(the_stage)
    finally:
        the_stage.program.stop()
