"""The palette and the few SVG shapes that every picture of the program is drawn with.

All lengths are px of the 1x picture; angles are degrees clockwise from up, as on a compass.
Lettering is drawn with strokes of our own, so that the pictures do not depend on installed fonts.
"""

from math import cos, radians, sin

PERIWINKLE = "#8080ff"  # the main window's background, RGB(128,128,255)
NIGHT = "#12143a"
NAVY = "#1d2150"
INDIGO = "#2c3178"
SLATE = "#464bab"
IRIS = "#6a6ce0"
LILAC = "#a9abf7"
MIST = "#d4d5fb"
PAPER = "#f3f3ff"
WHITE = "#ffffff"
AMBER = "#ffb43c"

# Strokes of each sign on a grid 4 wide and 6 high, origin at the top left.
STROKES = {
    "0": ["1,0 3,0 4,1 4,5 3,6 1,6 0,5 0,1 1,0"],
    "1": ["0.8,1.2 2.2,0 2.2,6"],
    "2": ["0,1.2 1,0 3,0 4,1 4,2.2 0,6 4,6"],
    "3": ["0,0 4,0 1.9,2.4 3,2.4 4,3.4 4,5 3,6 1,6 0,5"],
    "4": ["3,6 3,0 0,4.3 4,4.3"],
    "5": ["3.8,0 0.4,0 0.2,2.6 3,2.6 4,3.6 4,5 3,6 1,6 0,5"],
    "6": ["3.6,0.4 2.8,0 1.2,0 0,1.4 0,5 1,6 3,6 4,5 4,3.6 3,2.6 1,2.6 0,3.4"],
    "7": ["0,0 4,0 1.5,6"],
    "8": ["1,2.8 0.2,2 0.2,0.8 1,0 3,0 3.8,0.8 3.8,2 3,2.8 1,2.8 0,3.8 0,5 1,6 3,6 4,5 4,3.8 3,2.8"],
    "9": ["0.4,5.6 1.2,6 2.8,6 4,4.6 4,1 3,0 1,0 0,1 0,2.4 1,3.4 3,3.4 4,2.6"],
    "N": ["0,6 0,0 4,6 4,0"],
    "E": ["4,0 0,0 0,6 4,6", "0,3 3,3"],
    "S": ["4,1 3,0 1,0 0,0.9 0,2 1,2.8 3,3.2 4,4 4,5.1 3,6 1,6 0,5"],
    "W": ["0,0 1,6 2,2 3,6 4,0"],
    "D": ["0,0 2.6,0 4,1.4 4,4.6 2.6,6 0,6 0,0"],
    "L": ["0,0 0,6 4,6"],
    "R": ["0,6 0,0 3,0 4,0.9 4,2.1 3,3 0,3", "1.9,3 4,6"],
    "-": ["0.6,3 3.4,3"],
    ".": ["0.6,5.9 0.6,6"],
    "'": ["1,0 0.6,1.6"],
    "°": ["1,0 1.8,0 2.2,0.5 2.2,1.2 1.8,1.7 1,1.7 0.6,1.2 0.6,0.5 1,0"],
}
NARROW = {".": 1.2, "'": 1.6, "°": 2.8}


def num(value):
    """A coordinate as short text, to a hundredth of a px."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def paint(fill="none", stroke=None, width=1.0, **more):
    """Paint attributes; underscores in further names stand for dashes."""
    text = f' fill="{fill}"'
    if stroke:
        text += f' stroke="{stroke}" stroke-width="{num(width)}"'
    return text + "".join(f' {name.replace("_", "-")}="{value}"' for name, value in more.items())


def rect(x, y, w, h, r=0.0, **style):
    corner = f' rx="{num(r)}"' if r else ""
    return f'<rect x="{num(x)}" y="{num(y)}" width="{num(w)}" height="{num(h)}"{corner}{paint(**style)}/>'


def circle(x, y, r, **style):
    return f'<circle cx="{num(x)}" cy="{num(y)}" r="{num(r)}"{paint(**style)}/>'


def ellipse(x, y, rx, ry, **style):
    return f'<ellipse cx="{num(x)}" cy="{num(y)}" rx="{num(rx)}" ry="{num(ry)}"{paint(**style)}/>'


def line(x1, y1, x2, y2, stroke, width=1.0, **more):
    return path(f"M{num(x1)},{num(y1)}L{num(x2)},{num(y2)}", stroke=stroke, width=width, **more)


def path(d, **style):
    return f'<path d="{d}"{paint(**style)}/>'


def polygon(points, **style):
    """A closed shape through points (x, y)."""
    return path("M" + "L".join(f"{num(x)},{num(y)}" for x, y in points) + "Z", **style)


def group(*parts, **attributes):
    text = "".join(f' {name.replace("_", "-")}="{value}"' for name, value in attributes.items())
    return f"<g{text}>" + "\n".join(parts) + "</g>"


def placed(x, y, *parts, turn=0.0, scale=1.0):
    """Parts drawn around the origin, put at (x, y), turned clockwise by degrees, then scaled."""
    return group(*parts, transform=f"translate({num(x)} {num(y)}) rotate({num(turn)}) scale({scale:.4g})")


def polar(x, y, r, bearing):
    """The point at distance r from (x, y) on a compass bearing."""
    return x + r * sin(radians(bearing)), y - r * cos(radians(bearing))


def arc(x, y, r, start, end, **style):
    """The clockwise arc of a circle between two bearings."""
    (x1, y1), (x2, y2) = polar(x, y, r, start), polar(x, y, r, end)
    large = int(end - start > 180)
    return path(f"M{num(x1)},{num(y1)}A{num(r)},{num(r)} 0 {large} 1 {num(x2)},{num(y2)}", **style)


def ticks(x, y, outer, inner, bearings, stroke, width=1.0, **more):
    """Radial marks between two radii, all in one path."""
    d = ""
    for bearing in bearings:
        (x1, y1), (x2, y2) = polar(x, y, outer, bearing), polar(x, y, inner, bearing)
        d += f"M{num(x1)},{num(y1)}L{num(x2)},{num(y2)}"
    return path(d, stroke=stroke, width=width, **more)


def lettering(text, x, y, height, stroke, width=1.0, anchor=0.5, turn=0.0):
    """Text with its middle height at y; anchor 0, 0.5 or 1 puts its left, middle or right at x."""
    unit = height / 6
    advances = [NARROW.get(sign, 4.0) for sign in text]
    total = sum(advances) + 1.8 * (len(text) - 1)
    d, left = "", -total * anchor
    for sign, advance in zip(text, advances):
        for stroke_points in STROKES.get(sign, []):
            pairs = [pair.split(",") for pair in stroke_points.split()]
            d += "M" + "L".join(
                f"{num((left + float(a)) * unit)},{num((float(b) - 3) * unit)}" for a, b in pairs
            )
        left += advance + 1.8
    return placed(
        x, y, path(d, stroke=stroke, width=width, stroke_linecap="round", stroke_linejoin="round"), turn=turn
    )


def aircraft(x, y, half_span, fill, turn=0.0, outline=None, width=1.0, swell=0.0):
    """A generic airliner from above, nose up before it is turned.

    An outline adds width px around it; swell first thickens the aircraft itself by as much, for
    pictures so small that its body would vanish.
    """
    half = [
        (0.05, -0.98),
        (0.1, -0.88),
        (0.12, -0.72),
        (0.12, -0.3),
        (1, 0.32),
        (1, 0.48),
        (0.12, 0.2),
        (0.09, 0.66),
        (0.37, 0.88),
        (0.37, 1.0),
        (0.05, 0.9),
    ]
    points = [(0, -1.02), *half, *[(-a, b) for a, b in reversed(half)]]
    d = "M" + "L".join(f"{a:g},{b:g}" for a, b in points) + "Z"

    def layer(colour, extra):
        edge = (
            f' stroke="{colour}" stroke-width="{2 * extra / half_span:.4f}" stroke-linejoin="round"'
            if extra
            else ""
        )
        return f'<path d="{d}" fill="{colour}"{edge}/>'

    rim = [layer(outline, width + swell)] if outline else []
    return placed(x, y, *rim, layer(fill, swell), turn=turn, scale=half_span)


def sheet(width, height, body, view=None):
    """A whole SVG file of width x height px; view is (left, top, width, height), by default its own."""
    left, top, w, h = view or (0, 0, width, height)
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{num(width)}" height="{num(height)}" '
        f'viewBox="{num(left)} {num(top)} {num(w)} {num(h)}">\n{body}\n</svg>\n'
    )
