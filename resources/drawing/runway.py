"""A runway in perspective and its lights."""

from sketch import WHITE, circle, group, polygon


def runway(vx, vy, near, far, half, surface, mark):
    """A runway in perspective towards the vanishing point (vx, vy).

    near and far are the heights on the picture of its two ends, half is the half width at near.
    """
    reach = (near - vy) / (far - vy)

    def depth(distance):
        """The picture height of a point, its distance counted in distances of the near end."""
        return vy + (near - vy) / distance

    def band(from_, to, left, right, colour):
        points = []
        for distance, part in ((from_, left), (from_, right), (to, right), (to, left)):
            points.append((vx + part * half / distance, depth(distance)))
        return polygon(points, fill=colour)

    parts = [
        band(1, reach, -1, 1, surface),
        band(1, reach, -0.95, -0.9, mark),
        band(1, reach, 0.9, 0.95, mark),
    ]
    for side in (-1, 1):
        for i in range(5):
            inner = side * (0.16 + i * 0.14)
            parts.append(band(1.08, 1.4, inner, inner + side * 0.085, mark))
        parts.append(band(2.5, 3, side * 0.32, side * 0.54, mark))
    start = 1.75
    while start + 0.6 < reach:
        parts.append(band(start, start + 0.6, -0.03, 0.03, mark))
        start += 1.15
    distance = 1.0
    while distance < reach:
        for side in (-1.1, 1.1):
            parts.append(
                circle(
                    vx + side * half / distance,
                    depth(distance),
                    max(0.5, half / 21 / distance),
                    fill="#ffe3b0",
                )
            )
        distance += 0.6
    return group(*parts)


def approach_lights(vx, vy, near, half, bars):
    """Green threshold lights, and light bars at the given heights before them, growing towards the viewer.

    The third bar is the long crossbar.
    """
    parts = [circle(vx + k * half * 0.115, near + 0.6, half / 32, fill="#7fe0a8") for k in range(-9, 10)]
    for i, y in enumerate(bars):
        unit = half * (y - vy) / (near - vy)
        parts += [circle(vx + k * unit * 0.085, y, unit * 0.037, fill="#ffd58a") for k in range(-2, 3)]
        if i == 2:
            parts += [
                circle(vx + k * unit * 0.1, y, unit * 0.033, fill=WHITE) for k in range(-10, 11) if abs(k) > 2
            ]
    return group(*parts)


def papi(x, y):
    """Four slope lights left of the touchdown zone, two white and two red: on the glide path."""
    return group(
        *[
            circle(x + i * 7, y, 2.2, fill=colour)
            for i, colour in enumerate((WHITE, WHITE, "#ff5f57", "#ff5f57"))
        ]
    )
