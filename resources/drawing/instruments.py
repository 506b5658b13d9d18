"""The instrument tiles: heading indicator, attitude indicator, altimeter and navigation radio."""

from sketch import (
    AMBER,
    INDIGO,
    IRIS,
    LILAC,
    MIST,
    NAVY,
    NIGHT,
    PAPER,
    SLATE,
    WHITE,
    aircraft,
    arc,
    circle,
    group,
    lettering,
    line,
    path,
    placed,
    polar,
    polygon,
    rect,
    ticks,
)

# Which of the segments a (top), b, c, d, e, f (clockwise), g (middle) a digit lights.
SEGMENTS = {
    "0": "abcdef",
    "1": "bc",
    "2": "abged",
    "3": "abgcd",
    "4": "fgbc",
    "5": "afgcd",
    "6": "afgedc",
    "7": "abc",
    "8": "abcdefg",
    "9": "abcdfg",
}


def screws(width, height):
    """The four screw heads of an instrument plate."""
    parts = []
    for x, y, turn in (
        (10, 10, 40),
        (width - 10, 10, -25),
        (10, height - 10, 70),
        (width - 10, height - 10, 15),
    ):
        parts.append(circle(x, y, 3.2, fill=SLATE))
        (x1, y1), (x2, y2) = polar(x, y, 2.1, turn), polar(x, y, 2.1, turn + 180)
        parts.append(line(x1, y1, x2, y2, NAVY, 1.0))
    return group(*parts)


def bezel(x, y, r):
    """The ring and the dark face of a round instrument of radius r."""
    return group(
        circle(x, y, r, fill=SLATE), circle(x, y, r - 1.2, fill=INDIGO), circle(x, y, r - 4, fill=NIGHT)
    )


def heading_indicator(width, height):
    x, y, r = width / 2, height / 2, height / 2 - 5
    heading = 24
    face = [
        bezel(x, y, r),
        ticks(x, y, r - 5.5, r - 8.5, range(-heading, 360 - heading, 10), LILAC, 0.9),
        ticks(x, y, r - 5.5, r - 11, range(-heading, 360 - heading, 30), WHITE, 1.3),
    ]
    for bearing, sign in ((0, "N"), (90, "E"), (180, "S"), (270, "W")):
        sx, sy = polar(x, y, r - 16, bearing - heading)
        face.append(
            lettering(sign, sx, sy, 6.4, AMBER if sign == "N" else WHITE, 1.2, turn=bearing - heading)
        )
    for bearing in (30, 60, 120, 150, 210, 240, 300, 330):
        sx, sy = polar(x, y, r - 15.5, bearing - heading)
        face.append(lettering(str(bearing // 10), sx, sy, 4.4, MIST, 0.8, turn=bearing - heading))
    face += [
        aircraft(x, y + 1, 15, AMBER),
        polygon([(x - 4, y - r + 1), (x + 4, y - r + 1), (x, y - r + 8)], fill=AMBER),
    ]
    return group(screws(width, height), *face)


def attitude_indicator(width, height):
    x, y, r = width / 2, height / 2, height / 2 - 5
    inner = r - 4
    ball = [
        rect(-60, -120, 120, 124, fill=IRIS),
        rect(-60, 4, 120, 120, fill=INDIGO),
        line(-60, 4, 60, 4, WHITE, 1.6),
    ]
    for rung, half in ((-9, 6), (-18, 11), (13, 6), (22, 11)):
        ball.append(line(-half, 4 + rung - 2, half, 4 + rung - 2, WHITE, 1.1, stroke_linecap="round"))
    scale = [
        ticks(x, y, inner - 1, inner - 5, (-30, -20, -10, 10, 20, 30), WHITE, 1.1),
        ticks(x, y, inner - 1, inner - 7.5, (-60, -45, 45, 60), WHITE, 1.1),
    ]
    px, py = polar(x, y, inner - 1, 0)
    bank = 14
    pointer = placed(
        x, y, polygon([(0, -inner + 2), (-3.6, -inner + 8.6), (3.6, -inner + 8.6)], fill=AMBER), turn=-bank
    )
    wings = f"M{x - 25},{y}H{x - 9}V{y + 5}M{x + 25},{y}H{x + 9}V{y + 5}"
    return group(
        screws(width, height),
        bezel(x, y, r),
        f'<clipPath id="ball"><circle cx="{x}" cy="{y}" r="{inner}"/></clipPath>',
        group(placed(x, y, *ball, turn=-bank), clip_path="url(#ball)"),
        circle(x, y, inner, stroke=NIGHT, width=1.4),
        *scale,
        pointer,
        polygon([(px, py + 1), (px - 3.2, py - 4.6), (px + 3.2, py - 4.6)], fill=WHITE),
        path(wings, stroke=NIGHT, width=5.4, stroke_linejoin="round", stroke_linecap="round"),
        path(wings, stroke=AMBER, width=3, stroke_linejoin="round", stroke_linecap="round"),
        circle(x, y, 3.2, fill=NIGHT),
        circle(x, y, 2, fill=AMBER),
    )


def altimeter(width, height):
    x, y, r = width / 2, height / 2, height / 2 - 5
    face = [
        bezel(x, y, r),
        ticks(x, y, r - 5.5, r - 8, [tick * 7.2 for tick in range(50)], LILAC, 0.8),
        ticks(x, y, r - 5.5, r - 10, range(0, 360, 36), WHITE, 1.4),
    ]
    for digit in range(10):
        if digit != 3:
            sx, sy = polar(x, y, r - 14.6, digit * 36)
            face.append(lettering(str(digit), sx, sy, 5.6, WHITE, 1.1))
    face += [
        rect(x + 11.4, y + 1.2, 15.6, 7, 1.2, fill=PAPER),
        lettering("1013", x + 19.2, y + 4.7, 3.8, NAVY, 0.7),
        placed(
            x,
            y,
            polygon(
                [(-1.6, 6), (-1.6, -8), (-3.6, -14), (0, -19), (3.6, -14), (1.6, -8), (1.6, 6)], fill=LILAC
            ),
            turn=251,
        ),
        placed(x, y, polygon([(-1.5, 7), (-1.5, -20), (0, -26), (1.5, -20), (1.5, 7)], fill=AMBER), turn=342),
        circle(x, y, 3.4, fill=NIGHT),
        circle(x, y, 2.2, fill=AMBER),
    ]
    return group(screws(width, height), *face)


def seven_segments(text, left, top, height, lit, unlit):
    """Digits and dots as a slanted seven-segment display; gives its drawing."""
    w, half, t = height * 0.5, height / 2, height * 0.13
    ends = {
        "a": (0, 0, w, 0),
        "b": (w, 0, w, half),
        "c": (w, half, w, height),
        "d": (0, height, w, height),
        "e": (0, half, 0, height),
        "f": (0, 0, 0, half),
        "g": (0, half, w, half),
    }
    parts, x = [], 0.0
    for sign in text:
        if sign == ".":
            parts.append(circle(x - height * 0.06, height, t * 0.72, fill=lit))
            x += height * 0.16
            continue
        for name, (x1, y1, x2, y2) in ends.items():
            gap = t * 0.62
            dx, dy = (gap if x1 != x2 else 0), (gap if y1 != y2 else 0)
            colour = lit if name in SEGMENTS[sign] else unlit
            parts.append(line(x + x1 + dx, y1 + dy, x + x2 - dx, y2 - dy, colour, t, stroke_linecap="round"))
        x += w + height * 0.3
    return group(*parts, transform=f"translate({left} {top}) skewX(-6)")


def knob(x, y, r):
    """A double knob with a grip of notches."""
    grips = [
        polygon(
            [
                polar(x, y, r, a - 7),
                polar(x, y, r, a + 7),
                polar(x, y, r - 3, a + 5),
                polar(x, y, r - 3, a - 5),
            ],
            fill=INDIGO,
        )
        for a in range(0, 360, 30)
    ]
    return group(
        circle(x, y, r, fill=SLATE),
        *grips,
        circle(x, y, r - 4, fill=INDIGO),
        circle(x, y, r - 7, fill=IRIS),
        circle(x, y, r - 9, fill=SLATE),
        line(*polar(x, y, r - 10, 40), *polar(x, y, r - 16, 40), AMBER, 2.2, stroke_linecap="round"),
    )


def radio(width, height):
    """A navigation radio: a frequency in use, one waiting, the exchange key and the tuning knob."""
    kx, ky, kr = width - 35, height / 2, 21
    shown = [
        rect(16, 11, 92, 38, 4, fill=NIGHT),
        rect(16, 55, 60, 22, 3, fill=NIGHT),
        seven_segments("113.00", 27.5, 20.5, 19, AMBER, "#26223f"),
        seven_segments("110.30", 24, 60, 12, LILAC, "#1c1f4e"),
    ]
    swap = [
        rect(82, 55, 26, 22, 4, fill=SLATE),
        path(
            "M88.5,63H101M97.8,59.8L101.2,63L97.8,66.2M101.5,69.4H89M92.2,66.4L88.8,69.6L92.2,72.8",
            stroke=WHITE,
            width=1.4,
            stroke_linejoin="round",
            stroke_linecap="round",
        ),
    ]
    marks = [
        arc(kx, ky, kr + 4.5, -130, 130, stroke=SLATE, width=1),
        ticks(kx, ky, kr + 6.5, kr + 3, range(-120, 121, 30), LILAC, 1),
    ]
    return group(*shown, *swap, *marks, knob(kx, ky, kr))
