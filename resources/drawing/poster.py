"""The main window's nine decorations and the airport place, as parts of one poster.

The poster is the window's client area. Its panels leave 8 px of the window's background between
them; where two pictures of the window overlap by a few px, both show only that background, so the
order in which the window stacks them cannot be seen.
"""

from charts import plan_view, profile
from diagram import airport_diagram
from instruments import altimeter, attitude_indicator, heading_indicator, radio
from scenes import airport_place, departure, hero
from sketch import INDIGO, NAVY, PERIWINKLE, group, rect, sheet

# Per picture: its place on the window (left, top, width, height), its panel's place, what the panel shows.
TILES = (
    ((0, 152, 358, 441), (8, 160, 344, 427), hero),
    ((360, 0, 326, 185), (360, 8, 319, 172), plan_view),
    ((360, 280, 142, 105), (360, 284, 134, 96), heading_indicator),
    ((496, 184, 190, 97), (502, 188, 177, 88), radio),
    ((496, 496, 190, 97), (502, 500, 177, 87), departure),
    ((496, 280, 190, 105), (502, 284, 177, 96), airport_diagram),
    ((360, 384, 139, 113), (360, 388, 134, 104), attitude_indicator),
    ((496, 384, 190, 113), (502, 388, 177, 104), profile),
    ((360, 496, 134, 97), (360, 500, 134, 87), altimeter),
)
AIRPORT_PLACE = ((360, 0, 329, 593), (360, 8, 321, 577))
CORNER = 10


def panel(place, draw):
    """One rounded panel on the window's background, clipped, with a hairline around it."""
    left, top, width, height = place
    clip = f'<clipPath id="panel"><rect width="{width}" height="{height}" rx="{CORNER}"/></clipPath>'
    ground = rect(0, 0, width, height, fill=NAVY)
    rim = rect(0.5, 0.5, width - 1, height - 1, CORNER - 0.5, stroke=INDIGO, width=1)
    return group(
        clip,
        group(ground, draw(width, height), clip_path="url(#panel)"),
        rim,
        transform=f"translate({left} {top})",
    )


def tile(place, panel_place, draw):
    """One picture of the window as an SVG file: the background and the panel that lies on it."""
    return sheet(place[2], place[3], rect(*place, fill=PERIWINKLE) + panel(panel_place, draw), view=place)


def pictures():
    """File name without ending -> SVG text."""
    result = {f"Image1_{index}": tile(*row) for index, row in enumerate(TILES)}
    result["airport_placeholder"] = tile(*AIRPORT_PLACE, airport_place)
    return result
