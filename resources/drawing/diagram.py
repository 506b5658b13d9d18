"""The airport diagram tile: runways, taxiways and the apron from above."""

from symbols import neatline, north
from sketch import AMBER, INDIGO, NAVY, SLATE, WHITE, aircraft, group, lettering, line, path, placed, rect


def strip(length, name_near, name_far):
    """A runway from above along the x axis around the origin, with its numbers off both ends."""
    half = length / 2
    keys = "".join(f"M{x},{y}h4.4" for x in (-half + 1.8, half - 6.2) for y in (-2.2, -0.75, 0.75, 2.2))
    return group(
        rect(-half - 1.6, -5, length + 3.2, 10, 1.4, fill=NAVY),
        rect(-half, -3.5, length, 7, 0.6, fill=WHITE),
        path(keys, stroke=NAVY, width=0.7),
        line(-half + 10, 0, half - 9, 0, NAVY, 0.9, stroke_dasharray="5 4"),
        lettering(name_near, -half - 6, 0, 5.6, WHITE, 1.1, turn=90),
        lettering(name_far, half + 6, 0, 5.6, WHITE, 1.1, turn=-90),
    )


def airport_diagram(width, height):
    """An airport from above: two runways, their taxiways, the apron and the terminal piers."""
    parts = [rect(0, 0, width, height, fill=NAVY)]
    grid = "".join(f"M{x},0L{x - 16},{height}" for x in range(8, width + 20, 24))
    grid += "".join(f"M0,{y}L{width},{y + 9}" for y in (3, 25, 47, 69, 91))
    parts.append(path(grid, stroke=INDIGO, width=0.8))
    # Along the main runway's axis: a parallel taxiway, its exits, the apron behind it.
    taxi = "M-56,0V13H56V0M-32,0L-40,13M30,0L22,13M8,13V22M40,13V22"
    apron = "M-3,20H51V36H-3Z"
    aprons = [
        path(taxi, stroke=SLATE, width=4.6, stroke_linejoin="round", stroke_linecap="round"),
        path(apron, fill=SLATE, stroke=SLATE, width=3, stroke_linejoin="round"),
        path(taxi, stroke=AMBER, width=0.7, stroke_linejoin="round", stroke_linecap="round"),
    ]
    terminal = [
        rect(-1, 32, 50, 4.6, 1, fill=AMBER),
        *[rect(x, 25.5, 3.4, 8, 1, fill=AMBER) for x in (5, 22.3, 39.6)],
        *[aircraft(x, 26.4, 4.8, WHITE, turn=180) for x in (15.3, 32.7)],
    ]
    parts += [
        placed(86, 45, *aprons, turn=-9),
        placed(66, 46, strip(60, "05", "23"), turn=-52),
        placed(86, 45, strip(116, "08", "26"), *terminal, turn=-9),
        north(26, 27, AMBER),
    ]
    return group(*parts, neatline(width, height, SLATE))
