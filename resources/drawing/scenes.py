"""The scenes: the hero picture, the airliner over the windsock, the empty airport place."""

from airliners import airliner, airliner_from_behind
from contours import Terrain, smooth
from runway import approach_lights, papi, runway
from symbols import neatline
from sketch import (
    AMBER,
    INDIGO,
    LILAC,
    MIST,
    NAVY,
    NIGHT,
    PAPER,
    SLATE,
    WHITE,
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

DUSK = (
    "#262b6b",
    "#30357f",
    "#3d4296",
    "#4d52ae",
    "#6264c6",
    "#7c7adb",
    "#9c91e6",
    "#c0abea",
    "#e3c4de",
    "#f8d9bf",
)


def glow(x, y, radii, colours):
    """A banded sky: discs of ever warmer colour around the sun."""
    return group(*[circle(x, y, r, fill=colour) for r, colour in zip(radii, colours)])


def hero(width, height):
    """An airliner on short final at dusk; chart line work over the sky, contours on the ground."""
    vx, vy = width / 2, 282.0
    near = 372.0
    parts = [
        rect(0, 0, width, height, fill=NAVY),
        glow(vx, vy - 6, (330, 284, 242, 204, 170, 139, 111, 86, 64, 45), DUSK),
        circle(vx, vy - 6, 27, fill="#fff1d2"),
    ]
    far_hills = (
        f"M0,{vy - 22}L26,{vy - 34}L48,{vy - 24}L78,{vy - 42}L104,{vy - 20}L132,{vy - 10}L160,{vy - 4}"
        f"L196,{vy - 3}L224,{vy - 12}L250,{vy - 28}L276,{vy - 18}L306,{vy - 38}L344,{vy - 20}V{vy + 10}H0Z"
    )
    near_hills = (
        f"M0,{vy - 8}C20,{vy - 18} 44,{vy - 16} 64,{vy - 8}"
        f"S110,{vy - 4} 136,{vy}H212C240,{vy - 6} 262,{vy - 12} 286,{vy - 9}"
        f"S326,{vy - 16} {width},{vy - 10}V{vy + 20}H0Z"
    )
    parts += [
        path(far_hills, fill=SLATE),
        path(near_hills, fill=INDIGO),
        rect(0, vy, width, height - vy, fill=NAVY),
    ]
    parts += [hero_ground(vx, vy), hero_lines(width, vx)]
    parts += [
        runway(vx, vy, near, vy + 7, 41, NIGHT, PAPER),
        approach_lights(vx, vy, near, 41, (379, 386.5, 395, 405)),
    ]
    parts += [papi(vx - 66, near - 22)]
    parts += [airliner_from_behind(vx, 190, 1.02, "#14163f", "#3a3f96", "#fff3d6")]
    return group(*parts, neatline(width, height, LILAC, margin=8, every=13))


def hero_ground(vx, vy):
    """Contour lines of low hills left and right of the runway, laid in perspective."""
    eye = 60.0
    land = Terrain(
        -420,
        120,
        420,
        1500,
        15,
        [
            (-200, 260, 90, 120, 60),
            (-330, 420, 110, 200, 90),
            (-150, 620, 60, 160, 46),
            (230, 300, 90, 130, 66),
            (300, 560, 120, 260, 90),
            (160, 900, 60, 240, 50),
            (-300, 1000, 130, 260, 80),
            (180, 190, 50, 40, 30),
        ],
    )

    def project(x, z):
        return vx + x * 190 / z, vy + eye * 260 / z

    parts = [
        path(smooth(land.loops(level), project), fill=fill, stroke=stroke, width=0.9, fill_rule="evenodd")
        for level, fill, stroke in (
            (18, "#232760", "#3d4296"),
            (34, "#292d6c", "#464bab"),
            (50, "#303579", "#5256b8"),
            (66, "#373c87", "#5e62c6"),
        )
    ]
    return group(*parts)


def hero_lines(width, vx):
    """The plate's line work over the sky: part of a compass rose, a fix and the descent towards it."""
    x, y, r = vx, 190, 138
    parts = [
        arc(x, y, r, -78, 78, stroke=LILAC, width=1),
        arc(x, y, r + 14, -62, 62, stroke=LILAC, width=0.7, stroke_dasharray="2 4"),
        ticks(x, y, r, r - 5, range(-75, 76, 5), LILAC, 0.9),
        ticks(x, y, r, r - 9, range(-60, 61, 30), WHITE, 1.6),
    ]
    for bearing, text in ((-60, "10"), (-30, "13"), (0, "16"), (30, "19"), (60, "22")):
        parts.append(lettering(text, *polar(x, y, r - 17, bearing), 8, WHITE, 1.4, turn=bearing))
    parts.append(polygon([(x - 5.5, y - r - 9), (x + 5.5, y - r - 9), (x, y - r - 1)], fill=AMBER))
    return group(*parts)


def windsock(x, y, ink):
    """A striped windsock on its mast, foot at (x, y), blown to the right."""
    top = y - 47
    stripes = []
    for i in range(5):
        a, b = i * 7, (i + 1) * 7
        ya, yb = a * 0.09, b * 0.09
        ha, hb = 6.2 - a * 0.09, 6.2 - b * 0.09
        stripes.append(
            polygon(
                [(a, ya - ha), (b, yb - hb), (b, yb + hb), (a, ya + ha)], fill=AMBER if i % 2 == 0 else WHITE
            )
        )
    return group(
        line(x, y, x, top - 8, ink, 2.4, stroke_linecap="round"),
        path(f"M{x},{top - 7}L{x + 7},{top - 5}M{x},{top + 7}L{x + 7},{top + 7}", stroke=ink, width=1.2),
        placed(x + 6, top + 1, *stripes, turn=9),
        circle(x, top - 9, 1.9, fill="#ff5f57"),
    )


def departure(width, height):
    """An airliner climbing out past the windsock."""
    parts = [
        rect(0, 0, width, height, fill=DUSK[1]),
        glow(width + 4, height - 10, (178, 146, 118, 92, 69, 48, 30), DUSK[2:9]),
        path(
            f"M0,{height - 22}C22,{height - 31} 40,{height - 28} 58,{height - 21}"
            f"S96,{height - 16} 118,{height - 17}"
            f"S156,{height - 28} {width},{height - 22}V{height}H0Z",
            fill=SLATE,
        ),
        path(
            f"M0,{height - 13}C40,{height - 19} 90,{height - 10} 130,{height - 13}"
            f"S{width},{height - 15} {width},{height - 15}V{height}H0Z",
            fill=NAVY,
        ),
        group(
            rect(70, 17, 30, 4, 2, fill=LILAC, fill_opacity="0.35"),
            rect(86, 23, 26, 4, 2, fill=LILAC, fill_opacity="0.35"),
        ),
        airliner(74, 56, 0.72, -15, WHITE, AMBER, NAVY),
        windsock(15, height - 11, WHITE),
    ]
    return group(*parts)


def airport_place(width, height):
    """What stands where an airport's picture will be: an empty runway, a camera and a plus."""
    vx, vy = width / 2, 330.0
    day = ("#6163c4", "#6b6dd2", "#7677df", "#8384ea", "#9394f2", "#a5a6f7", "#babbfa", "#d0d1fc")
    parts = [
        rect(0, 0, width, height, fill="#575ab6"),
        glow(vx, vy, (350, 302, 256, 212, 170, 130, 93, 60), day),
        path(
            f"M0,{vy - 26}C30,{vy - 44} 62,{vy - 38} 92,{vy - 20}"
            f"S140,{vy - 6} 170,{vy - 10}S236,{vy - 40} 268,{vy - 32}"
            f"S{width - 10},{vy - 22} {width},{vy - 26}V{vy + 8}H0Z",
            fill=SLATE,
        ),
        rect(0, vy, width, height - vy, fill=INDIGO),
    ]
    for i, y in enumerate((8, 24, 50, 92, 160)):
        parts.append(
            rect(0, vy + y, width, height, fill=("#2a2f74", "#282c6e", "#252968", "#232661", "#20245a")[i])
        )
    parts += [
        runway(vx, vy, 500, vy + 6, 92, NIGHT, MIST),
        approach_lights(vx, vy, 500, 92, (512, 526, 543)),
        camera(vx, 160),
    ]
    return group(*parts, neatline(width, height, LILAC, margin=8, every=13))


def camera(x, y):
    """A camera in line work, a plus on an amber disc at its corner."""
    body = (
        "M-44,-22H-22L-14,-34H14L22,-22H44A8,8 0 0 1 52,-14V28"
        "A8,8 0 0 1 44,36H-44A8,8 0 0 1 -52,28V-14A8,8 0 0 1 -44,-22Z"
    )
    return placed(
        x,
        y,
        path(body, fill=NAVY, fill_opacity="0.28", stroke=WHITE, width=4, stroke_linejoin="round"),
        circle(0, 7, 18.5, stroke=WHITE, width=4),
        circle(0, 7, 8.5, stroke=LILAC, width=3),
        circle(52, 36, 19, fill=DUSK[4]),
        circle(52, 36, 15.5, fill=AMBER),
        path("M52,28.5V43.5M44.5,36H59.5", stroke=NAVY, width=4, stroke_linecap="round"),
    )
