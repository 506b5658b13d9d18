"""The button pictures: 24 x 24 px, one line of 2 px on whole pixels, one fill, one accent."""

from sketch import AMBER, LILAC, NAVY, PAPER, circle, path, sheet

SIZE = 24


def ink(d, fill="none"):
    return path(d, fill=fill, stroke=NAVY, width=2, stroke_linejoin="round", stroke_linecap="round")


def disc(x, y, r, fill):
    return circle(x, y, r, fill=fill, stroke=NAVY, width=2)


def page(fill):
    """A sheet with a turned corner."""
    return ink("M4,2H14L20,8V22H4Z", fill) + ink("M14,2V8H20")


def lens(sign, fill):
    return ink("M15,15L22,22") + disc(10, 10, 7, fill) + ink(sign)


BUTTONS = {
    # A runway, and a plus: a new airport.
    "elabora": ink("M7,2H13L18,22H2Z", LILAC)
    + ink("M10,6V8M10,12V14M10,18V19")
    + disc(17, 8, 6, AMBER)
    + ink("M17,5.5V10.5M14.5,8H19.5"),
    "save": ink("M3,3H17L21,7V21H3Z", LILAC) + ink("M8,3V8H15V3", PAPER) + ink("M7,21V13H17V21", AMBER),
    # An eraser over a line of writing.
    "reset": ink("M8,20L3,15L13,4L21,11L13,20Z", LILAC)
    + ink("M3,15L8,20H13L15.6,17L8.3,9.4Z", AMBER)
    + ink("M8,20H21"),
    # A chart: a navaid's rose on a sheet.
    "grafica": page(PAPER) + disc(12, 14, 3, AMBER) + ink("M12,8.5V11M12,17V19M6.8,14H9M15,14H17.2"),
    "stampa": ink("M6,9V2H18V9", PAPER)
    + ink("M6,18H2V9H22V18H18", LILAC)
    + ink("M6,14H18V22H6Z", AMBER)
    + ink("M9,18H15"),
    # Back to the search.
    "azzera": lens("M13,10H7.5M9.5,7.5L7,10L9.5,12.5", AMBER),
    "info": disc(12, 12, 10, LILAC) + circle(12, 7, 1.7, fill=NAVY) + ink("M10,11H12V17M9.5,17H14.5"),
    # A door and the way out.
    "esci": ink("M13,2H3V20H13", PAPER)
    + ink("M3,2L9,5V23L3,20Z", LILAC)
    + ink("M12,10H16V6L22,12L16,18V14H12Z", AMBER),
    # An envelope to be put away.
    "esci_mail": ink("M2,4H22V19H2Z", LILAC)
    + ink("M2,4L12,12L22,4")
    + disc(17, 17, 6, AMBER)
    + ink("M15,15L19,19M19,15L15,19"),
    "zoom_in": lens("M10,7V13M7,10H13", AMBER),
    "zoom_out": lens("M7,10H13", AMBER),
    # A chart lying over the simulator's window.
    "link_fs": ink("M2,3H20V17H2Z", LILAC)
    + ink("M2,7H20")
    + ink("M11,10H22V22H11Z", AMBER)
    + ink("M14,14H19M14,18H17"),
    # A window and the way back.
    "uscita": ink("M2,3H22V21H2Z", PAPER)
    + ink("M2,3H22V8H2Z", AMBER)
    + ink("M18,15H6M9.5,11.5L6,15L9.5,18.5"),
}


def pictures():
    """File name without ending -> SVG text."""
    return {name: sheet(SIZE, SIZE, body) for name, body in BUTTONS.items()}
