"""A page to draw on: cairo with the few shapes, letters and colours of the charts."""

import math

import cairo

from . import gif

WHITE = (1.0, 1.0, 1.0)
INK = (0.07, 0.08, 0.10)
GREY = (0.47, 0.48, 0.50)
PANEL = (0.92, 0.93, 0.945)
BLUE = (0.02, 0.30, 0.56)
RED = (0.72, 0.09, 0.12)
WATER = (0.83, 0.915, 0.96)
SHORE = (0.45, 0.62, 0.74)
HILL = (0.955, 0.935, 0.88)
HILL_HIGH = (0.905, 0.87, 0.785)
CONTOUR = (0.72, 0.66, 0.54)
FONT = "Liberation Sans"


def chart_colours():
    """The clean palette of a chart: every ink in blends with the grounds on which it lies, 64 at most."""
    blends = ((WHITE, INK, 17), (WHITE, BLUE, 8), (WHITE, RED, 6), (WATER, INK, 7), (WATER, BLUE, 5),
              (WATER, SHORE, 3), (HILL, INK, 6), (HILL, CONTOUR, 3), (HILL_HIGH, INK, 5), (PANEL, INK, 5))
    return list(dict.fromkeys(colour for blend in blends for colour in gif.ramp(*blend)))


class Page:
    """A white page of `width` x `height` pixels, drawn in units of which `units` make its width."""

    def __init__(self, width, height, units):
        self.surface = cairo.ImageSurface(cairo.FORMAT_RGB24, width, height)
        self.pen = cairo.Context(self.surface)
        self.pen.scale(width / units, width / units)
        self.width, self.height = units, height * units / width
        options = cairo.FontOptions()
        options.set_antialias(cairo.ANTIALIAS_GRAY)
        options.set_hint_style(cairo.HINT_STYLE_NONE)
        options.set_hint_metrics(cairo.HINT_METRICS_OFF)
        self.pen.set_font_options(options)
        self.pen.set_line_join(cairo.LINE_JOIN_ROUND)
        self.pen.set_source_rgb(*WHITE)
        self.pen.paint()

    def trace(self, points, closed=False):
        self.pen.new_path()
        for point in points:
            self.pen.line_to(*point)
        if closed:
            self.pen.close_path()

    def stroke(self, colour=INK, width=2, dash=()):
        self.pen.set_source_rgb(*colour)
        self.pen.set_line_width(width)
        self.pen.set_dash(dash)
        self.pen.stroke()
        self.pen.set_dash(())

    def line(self, points, colour=INK, width=2, dash=()):
        self.trace(points)
        self.stroke(colour, width, dash)

    def shape(self, points, fill=None, edge=None, width=2):
        self.trace(points, closed=True)
        self.finish(fill, edge, width)

    def finish(self, fill, edge, width):
        if fill:
            self.pen.set_source_rgb(*fill)
            self.pen.fill_preserve()
        if edge:
            self.stroke(edge, width)
        self.pen.new_path()

    def box(self, x, y, width, height, fill=None, edge=INK, line=2):
        self.pen.new_path()
        self.pen.rectangle(x, y, width, height)
        self.finish(fill, edge, line)

    def circle(self, x, y, radius, fill=None, edge=INK, width=2):
        self.pen.new_path()
        self.pen.arc(x, y, radius, 0, 2 * math.pi)
        self.finish(fill, edge, width)

    def letters(self, size, bold=False, italic=False):
        self.pen.select_font_face(FONT, cairo.FONT_SLANT_ITALIC if italic else cairo.FONT_SLANT_NORMAL,
                                  cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL)
        self.pen.set_font_size(size)

    def measure(self, text, size, bold=False, italic=False):
        self.letters(size, bold, italic)
        return self.pen.text_extents(text).x_advance

    def text(self, x, y, text, size=18, bold=False, colour=INK, align=0.0, halo=None, italic=False, turn=0.0):
        """Writes on the baseline `y`; `align` 0 starts at `x`, 0.5 centres, 1 ends there; `turn` in radians."""
        width = self.measure(text, size, bold, italic)
        self.pen.save()
        self.pen.translate(x, y)
        self.pen.rotate(turn)
        self.pen.move_to(-width * align, 0)
        if halo:
            self.pen.text_path(text)
            self.stroke(halo, size * 0.3)
            self.pen.move_to(-width * align, 0)
        self.pen.set_source_rgb(*colour)
        self.pen.show_text(text)
        self.pen.restore()
        return width

    def fitted(self, x, y, text, size, room, **how):
        """As `text`, in letters small enough for `room`."""
        wide = self.measure(text, size, how.get("bold", False), how.get("italic", False))
        return self.text(x, y, text, size * min(1.0, room / wide), **how)

    def wrap(self, text, size, room, bold=False):
        """The lines of `text` that fit `room`."""
        lines = []
        for paragraph in text.split("\n"):
            line = ""
            for word in paragraph.split():
                longer = f"{line} {word}".strip()
                if line and self.measure(longer, size, bold) > room:
                    lines.append(line)
                    longer = word
                line = longer
            lines.append(line)
        return lines
