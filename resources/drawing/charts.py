"""The approach charts: plan view and vertical profile, drawn as a pilot knows them."""

from airliners import side_aircraft
from contours import Terrain, smooth
from symbols import fix, neatline, north, obstacle, rose, safe_altitudes, station
from sketch import (
    AMBER,
    IRIS,
    LILAC,
    MIST,
    NAVY,
    PAPER,
    SLATE,
    WHITE,
    aircraft,
    group,
    lettering,
    line,
    path,
    placed,
    polar,
    polygon,
    rect,
)

TINTS = ("#ececfe", "#e2e2fd", "#d6d7fb", "#c9cafa", "#babcf7", "#aaacf3")


def plan_view(width, height):
    """An instrument approach from above: the beam, the holding pattern, the missed approach."""
    land = Terrain(
        -60,
        -60,
        width + 60,
        height + 60,
        4,
        [
            (50, 2, 62, 40, 92),
            (14, 52, 40, 34, 56),
            (128, -8, 46, 32, 66),
            (306, 178, 66, 46, 90),
            (236, 192, 46, 26, 50),
            (336, 126, 34, 44, 44),
            (96, 190, 40, 24, 46),
            (212, -14, 40, 26, 34),
        ],
    )
    parts = [rect(0, 0, width, height, fill=PAPER)]
    for level, tint in zip((9, 24, 40, 56, 72, 88), TINTS):
        parts.append(path(smooth(land.loops(level)), fill=tint, stroke=LILAC, width=0.7, fill_rule="evenodd"))
    sx, sy = 172, 123
    parts += [
        rose(sx, sy, 31, SLATE),
        station(sx, sy, 6, NAVY, PAPER),
        line(*polar(sx, sy, 8, 49), *polar(sx, sy, 87, 49), SLATE, 1, stroke_dasharray="3 2.4"),
        placed(88, 97, *final_course(), turn=-15),
        obstacle(62, 48, NAVY, "2430"),
        obstacle(150, 37, NAVY, "1875"),
        obstacle(222, 150, NAVY, "3120"),
        safe_altitudes(286, 134),
        north(28, 143, NAVY),
    ]
    return group(*parts, neatline(width, height, NAVY))


def final_course():
    """The final approach on a level line through the runway at the origin, inbound to the left."""
    near, far = 24, 128
    hold = "M154,0H196A12.5,12.5 0 0 1 196,25H154A12.5,12.5 0 0 1 154,0"
    return [
        polygon(
            [(near, 0), (far, -8.5), (far - 9, 0)],
            fill=MIST,
            stroke=SLATE,
            width=0.9,
            stroke_linejoin="round",
        ),
        polygon(
            [(near, 0), (far - 9, 0), (far, 8.5)], fill=IRIS, stroke=SLATE, width=0.9, stroke_linejoin="round"
        ),
        rect(-22, -2.8, 42, 5.6, 0.6, fill=NAVY),
        line(-18, 0, 16, 0, WHITE, 0.9, stroke_dasharray="4 3"),
        path(hold, stroke=NAVY, width=1.7),
        path("M182,-3.4L175.5,0L182,3.4ZM170,21.6L176.5,25L170,28.4Z", fill=NAVY),
        line(26, 0, 154, 0, NAVY, 1.7),
        path("M52,-3.8L44,0L52,3.8Z", fill=NAVY),
        path("M-24,0H-34C-52,0 -56,18 -48,33", stroke=NAVY, width=1.5, stroke_dasharray="5 3"),
        path("M-52.4,32.4L-44.6,40.4L-44.4,29.2Z", fill=NAVY),
        fix(154, 0, 6, AMBER, NAVY),
        fix(74, 0, 4.6, PAPER, NAVY),
        aircraft(109, 0, 11, AMBER, turn=-90, outline=NAVY, width=1),
    ]


def profile(width, height):
    """The vertical side of an approach: step-down, glide path, missed approach, ground below."""
    table = height - 20
    base = table - 9
    ridge = (
        f"M6,{base - 9}C14,{base - 15} 20,{base - 19} 33,{base - 13}"
        f"C43,{base - 8} 52,{base - 4} 66,{base - 5}"
        f"C84,{base - 6} 88,{base} 104,{base}H{width - 6}"
    )
    parts = [
        rect(0, 0, width, height, fill=PAPER),
        path(f"{ridge}V{table}H6Z", fill=MIST),
        path(ridge, stroke=SLATE, width=1),
    ]
    for x, y, text in ((24, 22, "4000"), (62, 37, "2500")):
        parts += [
            line(x, 13, x, table, IRIS, 1, stroke_dasharray="2.5 2.5"),
            lettering(text, x + 6, y - 6.5, 5.2, NAVY, 0.95, anchor=0),
        ]
    touch = (140, base - 1)
    parts += [
        path(
            f"M10,22H24L48,37H62L{touch[0]},{touch[1]}",
            stroke=NAVY,
            width=1.8,
            stroke_linejoin="round",
            stroke_linecap="round",
        ),
        path(
            f"M122,{base - 9.6}C133,{base - 7} 143,{base - 26} 156,{base - 37}",
            stroke=NAVY,
            width=1.5,
            stroke_dasharray="4.5 3",
        ),
        polygon([(151, base - 38.4), (161.4, base - 41.4), (156.6, base - 31.6)], fill=NAVY),
        rect(134, base - 1.4, 32, 3.4, 0.6, fill=NAVY),
        fix(24, 22, 4.4, PAPER, NAVY),
        placed(62, 37, path("M0,0L-2.2,-6H2.2ZM0,0L6,-2.2V2.2ZM0,0L2.2,6H-2.2ZM0,0L-6,2.2V-2.2Z", fill=NAVY)),
        placed(106, 50.4, side_aircraft(AMBER, NAVY), turn=23, scale=0.95),
        rect(0, table, width, 20, fill=PAPER),
        line(6, table, width - 6, table, NAVY, 1),
        path(f"M47.5,{table}v14M88.5,{table}v14M129.5,{table}v14", stroke=NAVY, width=0.9),
    ]
    for x, text in ((27, "12.0"), (68, "6.4"), (109, "3.0°"), (150, "220")):
        parts.append(lettering(text, x, table + 7.2, 5.2, NAVY, 0.95))
    return group(*parts, neatline(width, height, NAVY, foot=False))
