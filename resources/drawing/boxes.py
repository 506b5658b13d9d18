"""The pictures beside a message: 32 x 32 px, drawn like the button pictures with a line of 2 px."""

from math import sqrt

from sketch import AMBER, LILAC, NAVY, WHITE, circle, path, sheet

SIZE = 32
RED = "#c8202e"


def disc(fill):
    return circle(16, 16, 14, fill=fill, stroke=NAVY, width=2)


def sign(d, colour=NAVY):
    return path(d, stroke=colour, width=3, stroke_linecap="round", stroke_linejoin="round")


def dot(y, colour=NAVY):
    return circle(16, y, 2, fill=colour)


def warning_sign():
    """A triangle of equal sides with round corners."""
    half, foot = 13.0, 27.0
    d = f"M16,{foot - sqrt(3) * half:.2f}L{16 + half},{foot}H{16 - half}Z"
    edge = {"stroke_linejoin": "round"}
    return path(d, fill=NAVY, stroke=NAVY, width=6, **edge) + path(d, fill=AMBER, stroke=AMBER, width=2, **edge)


BOXES = {
    "box_question": disc(LILAC) + sign("M11.5,12.5C11.5,6.6 20.5,6.6 20.5,12.5C20.5,15.8 16,15.8 16,18.8") + dot(23.5),
    "box_information": disc(LILAC) + dot(9) + sign("M13.5,14.5H16V22.5M13,23H19"),
    "box_warning": warning_sign() + sign("M16,13V18.5") + dot(23),
    "box_error": disc(RED) + sign("M11,11L21,21M21,11L11,21", WHITE),
}


def pictures():
    return {name: sheet(SIZE, SIZE, body) for name, body in BOXES.items()}
