"""Writes the text files of the archive: airport records, presentations and notes, in Windows-1252 with CR LF."""

EMPTY = "---"
LIMITS = [None, None, 5] + [3, 5, 3, 6, 3] * 6 + [3, 6, 3, 6, 5, 4]  # most characters of each of the 39 values


def record_of(airport):
    """The 39 values of an airport: place, six runway rows in pairs, navaids, transition altitude, code."""
    values = [airport.longitude, airport.latitude, str(airport.elevation)]
    for strip in airport.runways:
        for end in (strip.low, strip.high):
            ils = airport.ils_of(end)
            aid = [ils.ident[:3], ils.frequency, ils.course] if ils else ["", "", ""]
            values += [end, str(strip.metres())] + aid
    values += [""] * (33 - len(values))
    return values + [*airport.vor, *airport.ndb, str(airport.transition), airport.icao]


def put(path, text):
    """Writes `text` with its line breaks as CR LF."""
    path.write_bytes(text.replace("\n", "\r\n").encode("cp1252"))


def write_record(airport, path):
    put(path, "".join(f'"{value or EMPTY}"\n' for value in record_of(airport)))


def write_presentation(lines, path):
    put(path, "\n".join(lines))


def write_note(text, path):
    put(path, f'"{text}"\n')
