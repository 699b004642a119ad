"""Prints the measurements as a table and draws them as a picture."""

from xml.sax.saxutils import escape

ROW, LEFT, WIDE, TOP = 18, 190, 620, 46
MOST_RATIO = 32
COLOURS = {
    "vipsthumbnail": "#d1495b", "GraphicsMagick": "#edae49", "ImageMagick": "#8d6a9f",
    "gdk-pixbuf-thumbnailer": "#00798c", "Qt": "#30638e", "pdftoppm": "#5f7c3a",
    "ffmpegthumbnailer": "#444444",
}  # fmt: skip


def table(results):
    header = ("file", "peer", "ours ms", "peer ms", "ratio", "ours MiB", "peer MiB")
    rows = [
        (one["file"], one["peer"], f"{one['ours_ms']:.1f}", f"{one['peer_ms']:.1f}",
         f"{one['ratio']:.1f}", f"{one['ours_kib'] / 1024:.1f}", f"{one['peer_kib'] / 1024:.1f}")
        for one in results
    ]  # fmt: skip
    widths = [max(len(row[i]) for row in [header, *rows]) for i in range(len(header))]
    lines = []
    for row in [header, *rows]:
        cells = [cell.ljust(width) if i < 2 else cell.rjust(width)
                 for i, (cell, width) in enumerate(zip(row, widths))]
        lines.append("  ".join(cells).rstrip())
    return "\n".join(lines)


def position(ratio):
    """Returns the x of a ratio, on a logarithmic axis that begins at 1/2."""
    import math
    steps = math.log2(2 * MOST_RATIO)
    return LEFT + WIDE * (math.log2(min(max(ratio, 0.5), MOST_RATIO)) + 1) / steps


def axis(bottom):
    parts = []
    ratio = 0.5
    while ratio <= MOST_RATIO:
        x = position(ratio)
        strong = ratio == 1
        parts.append(f'<line x1="{x:.1f}" y1="{TOP}" x2="{x:.1f}" y2="{bottom}" '
                     f'stroke="{"#333" if strong else "#ddd"}"/>')
        label = f"{ratio:g}×" if ratio >= 1 else "½×"
        parts.append(f'<text x="{x:.1f}" y="{TOP - 8}" text-anchor="middle">{label}</text>')
        ratio *= 2
    return parts


def legend(peers):
    parts, x = [], 12
    for peer in peers:
        parts.append(f'<circle cx="{x}" cy="16" r="5" fill="{COLOURS.get(peer, "#999")}"/>')
        parts.append(f'<text x="{x + 9}" y="20">{escape(peer)}</text>')
        x += 26 + 7 * len(peer)
    return parts


def plot(results):
    """Returns an SVG that shows, for each file, the ratio of each program's time to ours."""
    files = list(dict.fromkeys(one["file"] for one in results))
    peers = list(dict.fromkeys(one["peer"] for one in results))
    bottom = TOP + ROW * len(files)
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {LEFT + WIDE + 30} {bottom + 12}" '
        'font-family="sans-serif" font-size="11">',
        '<rect width="100%" height="100%" fill="white"/>',
        *legend(peers), *axis(bottom),
    ]  # fmt: skip
    for number, file in enumerate(files):
        y = TOP + ROW * number + ROW / 2
        parts.append(f'<text x="{LEFT - 10}" y="{y + 4}" text-anchor="end">{escape(file)}</text>')
        for one in results:
            if one["file"] == file:
                parts.append(f'<circle cx="{position(one["ratio"]):.1f}" cy="{y}" r="5" '
                             f'fill="{COLOURS.get(one["peer"], "#999")}" fill-opacity="0.85"/>')
    return "\n".join([*parts, "</svg>", ""])
