"""Reads a finished sample archive back and lists what is wrong with it."""

import re
import struct
import wave

from PIL import Image

from .records import LIMITS

FAMILIES = ("Sid", "Star", "Approach")
NOTE_KINDS = {"Sid": ("ROTTA", "ALTITUDINE", "DECOLLO"), "Approach": ("MISSED",), "Star": ()}
MOST_BYTES = 6_000_000


def faults(target):
    """All faults of the archive and the sound under `target`, as sentences."""
    found = []
    folders = sorted((target / "aeroporti").iterdir())
    for folder in folders:
        if not re.fullmatch("[A-Z]{4}", folder.name) or not folder.is_dir():
            found.append(f"{folder}: not an airport folder")
            continue
        found += record_faults(folder / "Aeroporto" / f"{folder.name}.txt")
        found += presentation_faults(folder / f"{folder.name}_Agent.txt")
        found += picture_faults(folder / "Aeroporto" / f"{folder.name}.gif", 256, (658, 1186))
        for family in FAMILIES:
            found += family_faults(folder / family)
    found += sound_faults(target / "dallas9.wav")
    size = sum(path.stat().st_size for path in target.joinpath("aeroporti").rglob("*") if path.is_file())
    if size > MOST_BYTES:
        found.append(f"the archive takes {size} bytes, more than {MOST_BYTES}")
    return found


def record_faults(path):
    data = path.read_bytes()
    lines = data.decode("cp1252").split("\r\n")
    if len(lines) != 40 or lines[-1] or b"\n" in data.replace(b"\r\n", b""):
        return [f"{path}: not 39 lines ending in CR LF"]
    found = []
    for number, (line, limit) in enumerate(zip(lines, LIMITS)):
        if not re.fullmatch('"[^"]+"', line):
            found.append(f"{path}: line {number} is not one quoted value")
        elif line != '"---"' and limit and len(line) - 2 > limit:
            found.append(f"{path}: line {number} is longer than {limit}")
    if lines[38] != f'"{path.stem}"':
        found.append(f"{path}: the record's code is not that of its file")
    return found


def presentation_faults(path):
    data = path.read_bytes()
    lines = data.decode("cp1252").split("\r\n")
    if not 4 <= len(lines) <= 6 or not all(lines) or b"\n" in data.replace(b"\r\n", b""):
        return [f"{path}: not four to six full lines between CR LF"]
    return []


def family_faults(folder):
    found, charts = [], sorted(folder.glob("*.gif"))
    for chart in charts:
        if not re.fullmatch("[A-Z0-9]{4,10}", chart.stem):
            found.append(f"{chart}: the name is not 4 to 10 capitals and digits")
        found += picture_faults(chart, 64)
    if not charts:
        found.append(f"{folder}: no charts")
    for note in sorted(folder.glob("*.txt")):
        kind, _, name = note.stem.partition("_")
        if kind not in NOTE_KINDS[folder.name] or not (folder / f"{name}.gif").is_file():
            found.append(f"{note}: belongs to no chart")
        text = note.read_bytes().decode("cp1252")
        if not re.fullmatch('"[^"]+"\r\n', text) or "\n" in text.replace("\r\n", ""):
            found.append(f"{note}: not one quoted field and CR LF")
        if kind == "ROTTA" and text != text.upper():
            found.append(f"{note}: a route not in capitals")
    return found


def picture_faults(path, colours, size=None):
    data = path.read_bytes()
    found = [] if data[:4] == b"GIF8" and data[-1:] == b"\x3b" else [f"{path}: not a whole GIF"]
    with Image.open(path) as picture:
        if picture.n_frames != 1:
            found.append(f"{path}: more than one frame")
        used = len(picture.convert("RGB").getcolors(1 << 24))
        if used > colours:
            found.append(f"{path}: {used} colours, more than {colours}")
        if size and picture.size != size:
            found.append(f"{path}: {picture.size} instead of {size}")
        elif not size:
            found += margin_faults(path, picture.convert("L"))
    return found


def margin_faults(path, grey):
    """A viewer may cut a chart's rim, so nothing may be drawn in its outer 24 pixels."""
    inside = grey.point(lambda value: 255 if value < 255 else 0).getbbox()
    kept = (inside[0], inside[1], grey.width - inside[2], grey.height - inside[3])
    return [] if min(kept) >= 24 else [f"{path}: drawn into the margin {kept}"]


def sound_faults(path):
    with wave.open(str(path)) as sound:
        form = (sound.getnchannels(), sound.getsampwidth(), sound.getframerate(), sound.getcomptype())
        loudest = max(abs(value) for (value,) in struct.iter_unpack("<h", sound.readframes(1 << 20)))
    return [] if form == (1, 2, 44100, "NONE") and 8000 < loudest < 32000 else [f"{path}: {form}, peak {loudest}"]
