"""Flags, mouse pointers and the program's icon."""

from sketch import (
    AMBER,
    IRIS,
    LILAC,
    NAVY,
    PAPER,
    WHITE,
    aircraft,
    group,
    path,
    polygon,
    rect,
    sheet,
)

FLAG = (2, 1, 51, 33)  # where the cloth lies in a flag picture of 55 x 37


def union_cloth(w, h):
    """The Union flag on w x h: measures in thirtieths of the height, as the flag is defined.

    The red saltire is half hidden: in each quarter only the part on one side of the diagonal
    shows, anticlockwise of it, so that the white of the saltire is broad uppermost at the hoist.
    """
    u, x, y = h / 30, w / 2, h / 2
    saltire = f"M0,0L{w},{h}M{w},0L0,{h}"
    shown = f"M{x},{y}H{w}V{h}ZM{x},{y}V{h}H0ZM{x},{y}H0V0ZM{x},{y}V0H{w}Z"
    cross = f"M{x},0V{h}M0,{y}H{w}"
    return group(
        f'<clipPath id="shown"><path d="{shown}"/></clipPath>',
        rect(0, 0, w, h, fill="#012169"),
        path(saltire, stroke=WHITE, width=6 * u),
        group(path(saltire, stroke="#c8102e", width=4 * u), clip_path="url(#shown)"),
        path(cross, stroke=WHITE, width=10 * u),
        path(cross, stroke="#c8102e", width=6 * u),
    )


def italian_cloth(w, h):
    third = w / 3
    return group(
        rect(0, 0, third, h, fill="#008c45"),
        rect(third, 0, third, h, fill="#f4f9ff"),
        rect(2 * third, 0, third, h, fill="#cd212a"),
    )


def flag(cloth):
    """A cloth with round corners, a hairline and a short shadow below it."""
    x, y, w, h = FLAG
    shadow = "".join(
        rect(x - g, y + 1.5 - g / 2, w + 2 * g, h + g, 4 + g, fill=NAVY, fill_opacity=o)
        for g, o in ((1.2, "0.10"), (0.5, "0.16"), (0, "0.22"))
    )
    return sheet(
        55,
        37,
        f'<clipPath id="cloth"><rect width="{w}" height="{h}" rx="4"/></clipPath>'
        + shadow
        + group(
            group(cloth(w, h), clip_path="url(#cloth)"),
            rect(0.5, 0.5, w - 1, h - 1, 3.5, stroke=NAVY, width=1, stroke_opacity="0.45"),
            transform=f"translate({x} {y})",
        ),
    )


def text_cursor():
    """An I-beam with an aircraft at its shoulder; the hot spot is the middle of the beam, (9, 16)."""
    beam = "M5,5H7.5L9,6.5L10.5,5H13M9,6.5V25.5M5,27H7.5L9,25.5L10.5,27H13"
    return sheet(
        32,
        32,
        path(beam, stroke=WHITE, width=5, stroke_linecap="round", stroke_linejoin="round")
        + aircraft(22, 10.5, 7.4, WHITE, turn=45, outline=WHITE, width=2.8)
        + path(beam, stroke=NAVY, width=2, stroke_linecap="round", stroke_linejoin="round")
        + aircraft(22, 10.5, 7.4, AMBER, turn=45, outline=NAVY, width=1.2, swell=0.2),
    )


def mail_pointer():
    """An arrow carrying an envelope; the hot spot is the arrow's tip, (3, 2)."""
    arrow = "M3,2V20L7.6,15.8L10.6,22.4L14,20.9L11,14.4H17Z"
    cover = "M12.5,19H29.5V30.5H12.5Z"
    return sheet(
        32,
        32,
        path(arrow + cover, fill=WHITE, stroke=WHITE, width=3.6, stroke_linejoin="round")
        + path(arrow, fill=WHITE, stroke=NAVY, width=1.6, stroke_linejoin="round")
        + path(cover, fill=AMBER, stroke=NAVY, width=1.6, stroke_linejoin="round")
        + path("M12.5,19.4L21,26L29.5,19.4", stroke=NAVY, width=1.6, stroke_linejoin="round"),
    )


def icon(detail):
    """The mark on 256 x 256: a chart sheet with a runway, an amber aircraft climbing off it.

    detail "full" carries contour lines and centre line; "bold" leaves out what small sizes blur.
    """
    bold = detail == "bold"
    sheet_edge = "M46,26H166L212,72V230H46Z" if not bold else "M40,20H164L216,72V236H40Z"
    near, far, foot, head = (52, 22, 230, 118) if not bold else (62, 34, 236, 110)
    surface = polygon(
        [(128 - near, foot), (128 + near, foot), (128 + far, head), (128 - far, head)], fill=NAVY
    )
    parts = [
        rect(4, 4, 248, 248, 56, fill=NAVY),
        rect(9, 9, 238, 238, 51, fill=IRIS),
        f'<clipPath id="sheet"><path d="{sheet_edge}"/></clipPath>',
        path(sheet_edge, fill=PAPER),
    ]
    if not bold:
        hills = (
            "M46,60C72,62 92,84 84,112S66,160 46,164M46,88C60,90 68,102 63,116S54,136 46,138"
            "M212,128C190,132 168,152 174,182S196,226 200,240M212,158C200,164 192,176 197,192S208,212 212,216"
        )
        parts.append(group(path(hills, stroke=LILAC, width=6), clip_path="url(#sheet)"))
    parts += [group(surface, clip_path="url(#sheet)")]
    if not bold:
        parts += [
            polygon([(128 - a, y), (128 + a, y), (128 + b, y - d), (128 - b, y - d)], fill=PAPER)
            for y, d, a, b in ((224, 24, 5, 4.4),)
        ]
        parts.append(path("M166,26L212,72H166Z", fill=LILAC))
    half, y, rim = (76, 100, 9) if not bold else (86, 112, 13)
    parts.append(aircraft(128, y, half, AMBER, outline=NAVY, width=rim, swell=5 if bold else 1))
    return "".join(parts)


def pictures():
    result = {
        "flag_0": flag(union_cloth),
        "flag_1": flag(italian_cloth),
        "cursor": text_cursor(),
        "pointer": mail_pointer(),
    }
    result["quarvel"] = sheet(256, 256, icon("full"))
    result["quarvel-bold"] = sheet(256, 256, icon("bold"))
    return result
