"""Makes rendered PNG files small without visible harm: `pack.py FILE...` rewrites each in place, decorations as GIF.

Opaque pictures get a palette of at most 256 colours. Every palette entry is then set to the colour
that most of its pixels had before, so that flat areas keep their exact colour, above all the
window's background around the panels. A picture that would stray further than LIMIT in any
channel of any pixel stays in true colour. Pictures with see-through parts are only recompressed.
"""

import sys
from collections import Counter
from pathlib import Path

from PIL import Image, ImageChops

DECORATION = "Image1_"
LIMIT = 24  # of 255; only edge pixels between flat areas ever come near it


def with_palette(picture):
    """The picture with a palette of its own most used colours, not dithered."""
    reduced = picture.quantize(256, method=Image.Quantize.MAXCOVERAGE, kmeans=3, dither=Image.Dither.NONE)
    used = [Counter() for _ in range(256)]
    for (index, colour), count in Counter(zip(reduced.getdata(), picture.getdata())).items():
        used[index][colour] += count
    # Unused entries at the end are dropped by the writer.
    palette = [channel for votes in used for channel in (votes.most_common(1)[0][0] if votes else (0, 0, 0))]
    reduced.putpalette(palette)
    return reduced


def pack(name):
    """Rewrites one PNG file; gives what became of it, in a word."""
    picture = Image.open(name)
    picture.load()
    if picture.mode == "RGBA" and picture.getextrema()[3][0] < 255:
        picture.save(name, optimize=True)
        return "see-through"
    picture = picture.convert("RGB")
    reduced = with_palette(picture)
    difference = ImageChops.difference(picture, reduced.convert("RGB")).getextrema()
    stray = max(highest for _, highest in difference)
    chosen = reduced if stray <= LIMIT else picture
    if stray <= LIMIT and Path(name).name.startswith(DECORATION):
        # The decorations are all on the window at its start: the program's own reader has them faster than any PNG.
        reduced.save(Path(name).with_suffix(".gif"), optimize=True)
        Path(name).unlink()
        return f"strays by {stray}, GIF"
    chosen.save(name, optimize=True)
    return f"strays by {stray}, {chosen.mode}"


for each in sys.argv[1:]:
    print(f"{each}: {pack(each)}")
