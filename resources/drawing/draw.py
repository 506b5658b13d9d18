"""Writes every picture of the program as SVG into the folder given on the command line."""

import sys
from pathlib import Path

import boxes
import buttons
import emblems
import poster


def main():
    folder = Path(sys.argv[1])
    for source in (poster, buttons, boxes, emblems):
        for name, text in source.pictures().items():
            (folder / f"{name}.svg").write_text(text, encoding="ascii")


main()
