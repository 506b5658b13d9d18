"""The signs of a chart: frame line, stations, fixes, obstacles, north arrow."""

from sketch import NAVY, PAPER, circle, group, lettering, path, polar, polygon, rect, ticks


def neatline(width, height, colour, margin=6.0, every=12.0, foot=True):
    """The frame line of a chart, with its graduation along all sides, or all but the foot."""
    left, top, right, bottom = margin, margin, width - margin, height - margin
    d = ""
    columns, rows = int((right - left) / every), int((bottom - top) / every)
    for i in range(1, columns + 1):
        x, long = left + i * (right - left) / (columns + 1), 4 if i % 4 == 0 else 2.2
        d += f"M{x:.2f},{top}v{long}" + (f"M{x:.2f},{bottom}v{-long}" if foot else "")
    for i in range(1, rows + 1):
        y, long = top + i * (bottom - top) / (rows + 1), 4 if i % 4 == 0 else 2.2
        d += f"M{left},{y:.2f}h{long}M{right},{y:.2f}h{-long}"
    return group(
        rect(left, top, right - left, bottom - top, 3, stroke=colour, width=1),
        path(d, stroke=colour, width=0.8),
    )


def station(x, y, size, ink, ground):
    """The hexagon of a VOR."""
    points = [polar(x, y, size, bearing) for bearing in range(30, 360, 60)]
    return group(
        polygon(points, fill=ground, stroke=ink, width=1.4, stroke_linejoin="round"),
        circle(x, y, 1.5, fill=ink),
    )


def fix(x, y, size, fill, ink):
    """The triangle of a reporting point."""
    points = [polar(x, y + size * 0.12, size, bearing) for bearing in (0, 120, 240)]
    return polygon(points, fill=fill, stroke=ink, width=1.1, stroke_linejoin="round")


def obstacle(x, y, ink, text):
    return group(
        path(
            f"M{x - 3},{y + 4}L{x},{y - 4}L{x + 3},{y + 4}",
            stroke=ink,
            width=1.1,
            stroke_linejoin="round",
            stroke_linecap="round",
        ),
        circle(x, y + 3.2, 0.9, fill=ink),
        lettering(text, x + 6, y + 0.6, 4.4, ink, 0.8, anchor=0),
    )


def rose(x, y, r, ink):
    """A compass rose around a station, north up."""
    return group(
        circle(x, y, r, stroke=ink, width=0.9),
        ticks(x, y, r, r - 2.4, range(0, 360, 10), ink, 0.8),
        ticks(x, y, r, r - 4.6, range(0, 360, 30), ink, 1.1),
        *[
            lettering(sign, *polar(x, y, r - 9.5, bearing), 4.6, ink, 0.9)
            for bearing, sign in ((0, "36"), (90, "9"), (180, "18"), (270, "27"))
        ],
    )


def safe_altitudes(x, y):
    """The circle of sector altitudes, in hundreds of feet."""
    return group(
        circle(x, y, 19, fill=PAPER, stroke=NAVY, width=1.1),
        path(f"M{x},{y - 19}V{y + 19}M{x},{y}H{x + 19}", stroke=NAVY, width=1),
        lettering("43", x - 9.2, y, 6.4, NAVY, 1.1),
        lettering("36", x + 8.4, y - 7.8, 5, NAVY, 0.95),
        lettering("29", x + 8.4, y + 7.8, 5, NAVY, 0.95),
    )


def north(x, y, ink):
    """A north arrow with its letter above, 30 px high, around its arrow's middle."""
    return group(
        path(
            f"M{x},{y + 9}V{y - 8}M{x - 3.4},{y - 3.4}L{x},{y - 9}L{x + 3.4},{y - 3.4}",
            stroke=ink,
            width=1.4,
            stroke_linejoin="round",
            stroke_linecap="round",
        ),
        lettering("N", x, y - 15.5, 6, ink, 1.2),
    )
