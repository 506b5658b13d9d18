"""Turns a cairo picture into an ordinary single-frame GIF without dithering."""

from PIL import Image

FLAT_COLOURS = 96


def picture_of(surface):
    """The opaque RGB picture of a cairo RGB24 surface."""
    return Image.frombuffer("RGB", (surface.get_width(), surface.get_height()), bytes(surface.get_data()),
                            "raw", "BGRX", surface.get_stride(), 1)


def ramp(first, last, steps):
    """`steps` colours (0..255) from one colour to another (components 0..1), both ends included."""
    return [tuple(round(255 * (a + (b - a) * i / (steps - 1))) for a, b in zip(first, last)) for i in range(steps)]


def scene_colours(picture):
    """A palette of 256 for a painted scene: its large flat areas exactly, the rest by median cut."""
    counted = sorted(picture.getcolors(1 << 22), key=lambda entry: (-entry[0], entry[1]))
    flat = [colour for _, colour in counted[:FLAT_COLOURS]]
    rest = [colour for count, colour in counted[FLAT_COLOURS:] for _ in range(min(count, 40))]
    strip = Image.new("RGB", (max(1, len(rest)), 1))
    strip.putdata(rest or flat[:1])
    cut = strip.quantize(256 - len(flat), Image.Quantize.MEDIANCUT).getpalette()
    return flat + [tuple(cut[i:i + 3]) for i in range(0, 3 * (256 - len(flat)), 3)]


def write(picture, colours, path):
    """Writes `picture` with at most 256 `colours`; every pixel takes the nearest one."""
    colours = list(dict.fromkeys(colours))
    if len(colours) > 256:
        raise ValueError(f"{path}: {len(colours)} colours do not fit a GIF")
    padded = colours + [colours[0]] * (256 - len(colours))
    palette = Image.new("P", (1, 1))
    palette.putpalette([part for colour in padded for part in colour])
    indexed = picture.quantize(palette=palette, dither=Image.Dither.NONE)
    indexed.save(path, "GIF", interlace=0, optimize=True)
