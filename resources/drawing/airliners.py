"""Generic airliners from behind and from the side, and a small aircraft for a profile."""

from sketch import LILAC, MIST, WHITE, circle, group, line, path, placed


def airliner_from_behind(x, y, scale, body, shade, light):
    """An airliner on final, seen from straight behind, gear down; half its span is 100 units."""
    half_wing = "M6,7L98,-12C101,-12.6 101,-10.4 98.4,-9.8L40,9.5L6,17Z"
    half_tail = "M3,-11L37,-17.4C38.6,-17.6 38.6,-16 37,-15.4L3,-4Z"
    gear = "M15,14V29M10.4,29V36M19.6,29V36M10.4,31H19.6"
    half = [
        path(half_wing, fill=body),
        path("M42,9.6V14", stroke=body, width=3),
        circle(34, 17.5, 9, fill=body),
        circle(34, 17.5, 6.2, fill=shade),
        circle(34, 17.5, 2.6, fill=body),
        path(gear, stroke=body, width=3.4),
        path("M10.4,29.4V36.6M19.6,29.4V36.6", stroke=body, width=5.4, stroke_linecap="round"),
        path("M9,11.5L96,-9.6", stroke=shade, width=1.4, stroke_linecap="round"),
        path("M20,14.4L58,4.4L57,8.2L20,18.6Z", fill=shade),
    ]
    parts = [
        *half,
        group(*half, transform="scale(-1 1)"),
        path("M0,17V28", stroke=body, width=2.4),
        path("M-2.2,26V30M2.2,26V30", stroke=body, width=3, stroke_linecap="round"),
        circle(0, 3, 16.5, fill=body),
        path("M-16,6A16.5,16.5 0 0 0 16,6C10,12 -10,12 -16,6Z", fill=shade),
        path(half_tail, fill=body),
        group(path(half_tail, fill=body), transform="scale(-1 1)"),
        path("M-2.6,-8L-1.3,-52C-1,-54.4 1,-54.4 1.3,-52L2.6,-8Z", fill=body),
        circle(0, -4, 4.4, fill=shade),
        circle(0, -4, 2.4, fill=light),
        circle(-98, -11.4, 2.6, fill="#ff5f57"),
        circle(98, -11.4, 2.6, fill="#4fd18b"),
        circle(0, -53.4, 1.9, fill=WHITE),
    ]
    return placed(x, y, *parts, scale=scale)


def airliner(x, y, scale, turn, body, trim, ink):
    """An airliner from its side, nose to the right, about 128 units long."""
    fuselage = (
        "M2,-6H100C110,-6 118,-2.6 120.5,1.2C119,4.6 112,6.6 103,6.6H36C20,6.2 8,1.2 0,-2.6"
        "C-1.4,-4.4 0,-6 2,-6Z"
    )
    parts = [
        path("M50,-5.4L38,-13H42.6L64,-5.4Z", fill=LILAC),
        path(
            "M1,-5.6L-8,-27.4C-8.2,-28.4 -7.4,-28.8 -6.6,-28.8H1.4C2.6,-28.8 3.2,-28.4 4,-27.4L23,-5.6Z",
            fill=trim,
        ),
        path(fuselage, fill=body),
        path(
            "M10,3C20,5.8 28,6.6 36,6.6H103C110,6.6 116,5.4 119,3.2C112,4 104,4 96,4H40C28,4 18,3.8 10,3Z",
            fill=LILAC,
        ),
        path("M16,-2.4L-7,2.2C-8.6,2.6 -10.6,2 -9.8,0.8L-3,-3Z", fill=LILAC),
        line(27, -1.6, 99, -1.6, ink, 2, stroke_dasharray="2 2.2"),
        path("M108.5,-3.6H113L116.4,-1.2H108.5Z", fill=ink),
        path("M58,7.6H72C74.6,7.6 75.6,10 75.4,11.6C75.2,13.4 74,14.8 72,14.8L58,13.8Z", fill=ink),
        path("M73,4.2L47,4.2L20,22.4C18.8,23.4 19.4,24.4 21,24.4H25.6L73,6.6Z", fill=MIST),
        path("M73,6.6L25.6,24.4H21C19.4,24.4 19,23.8 20,23L26,22.6Z", fill=LILAC),
    ]
    return placed(x, y, *parts, turn=turn, scale=scale)


def side_aircraft(fill, ink):
    """A small aircraft seen from its side, nose to the right, 30 px long."""
    body = (
        "M-13.4,-2L-16,-8.6H-13.6L-8.6,-2.1H9.4C12.6,-2.1 15,-0.8 15.2,0.3C14.6,1.6 12.6,2.1 9.4,2.1H-6"
        "C-9.4,1.9 -12.6,0.2 -13.4,-2Z"
    )
    return group(
        path(body, fill=fill, stroke=ink, width=1, stroke_linejoin="round"),
        path("M4.4,0.3H0.4L-6.6,4.9H-4.2Z", fill=ink, stroke=ink, width=0.8, stroke_linejoin="round"),
        path("M-10.4,-1H-13L-16,0.6H-14.4Z", fill=ink, stroke=ink, width=0.6, stroke_linejoin="round"),
    )
