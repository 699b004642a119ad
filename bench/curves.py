"""Draws curves over one axis as SVG, each in a band of its own."""

from xml.sax.saxutils import escape

WIDE, HIGH, LEFT, TOP, GAP = 700, 84, 64, 34, 26
MOST_POINTS = 400


def thinned(points):
    step = max(1, len(points) // MOST_POINTS)
    return points[::step]


def tidy(value):
    return f"{value:.1f}".rstrip("0").rstrip(".")


def band(label, points, widest, top, limit=None):
    highest = max([value for _, value in points] + ([limit * 1.1] if limit else [])) * 1.08 or 1

    def place(x, y):
        return f"{LEFT + WIDE * x / widest:.1f},{top + HIGH * (1 - y / highest):.1f}"

    line = " ".join(place(x, y) for x, y in thinned(points))
    parts = [
        f'<rect x="{LEFT}" y="{top}" width="{WIDE}" height="{HIGH}" fill="#f6f6f8"/>',
        f'<polyline points="{line}" fill="none" stroke="#00798c" stroke-width="1.5"/>',
        f'<text x="{LEFT}" y="{top - 5}">{escape(label)}</text>',
        f'<text x="{LEFT - 6}" y="{top + HIGH}" text-anchor="end">0</text>',
        f'<text x="{LEFT - 6}" y="{top + 12}" text-anchor="end">{tidy(highest / 1.08)}</text>',
    ]
    if limit:
        begin, end = place(0, limit), place(widest, limit)
        parts.append(f'<polyline points="{begin} {end}" fill="none" stroke="#d1495b" '
                     'stroke-dasharray="5 4"/>')
    return parts


def picture(bands, axis):
    """Returns the SVG. A band is (label, points, limit or None); its points (x, y) are sorted by
    x."""
    widest = max(points[-1][0] for _, points, _ in bands) or 1
    bottom = TOP + len(bands) * (HIGH + GAP)
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {LEFT + WIDE + 24} {bottom + 8}" '
        'font-family="sans-serif" font-size="12" fill="#222">',
        '<rect width="100%" height="100%" fill="white"/>',
    ]
    for number, (label, points, limit) in enumerate(bands):
        parts += band(label, points, widest, TOP + number * (HIGH + GAP), limit)
    parts.append(f'<text x="{LEFT + WIDE}" y="{bottom}" text-anchor="end">'
                 f'{escape(axis)}: {tidy(widest)}</text>')
    return "\n".join([*parts, "</svg>", ""])
