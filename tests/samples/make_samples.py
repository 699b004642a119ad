#!/usr/bin/python3
"""Writes the sample images of the tests into the folder that is its argument.

The honest ones show four quarters: red, green (above), blue, yellow (below).
"""

import io
import struct
import sys
import zlib
from pathlib import Path

from PIL import Image

WIDTH, HEIGHT = 64, 48
RED, GREEN, BLUE, YELLOW = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0)
SIGNATURE = b"\x89PNG\r\n\x1a\n"
HUGE = 60_000
# Where each of the seven passes of an interlaced PNG begins, and its steps: x, y, dx, dy.
PASSES = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2),
          (0, 1, 1, 2)]


def color_at(x, y, width, height):
    above, below = (RED, GREEN), (BLUE, YELLOW)
    return (above if y < height / 2 else below)[0 if x < width / 2 else 1]


def quarters(width=WIDTH, height=HEIGHT):
    image = Image.new("RGB", (width, height))
    image.putdata([color_at(x, y, width, height) for y in range(height) for x in range(width)])
    return image


# PNG


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def header(width, height, depth=8, color=2, interlaced=0):
    return chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, depth, color, 0, 0, interlaced))


def png(ihdr, rows, *before):
    data = zlib.compress(b"".join(b"\0" + row for row in rows))
    return SIGNATURE + ihdr + b"".join(before) + chunk(b"IDAT", data) + chunk(b"IEND", b"")


def rows(pixel, width=WIDTH, height=HEIGHT):
    """The rows of a picture whose pixels `pixel` encodes from their colour."""
    return [b"".join(pixel(color_at(x, y, width, height)) for x in range(width))
            for y in range(height)]


def resolution(across, down):
    return chunk(b"pHYs", struct.pack(">IIB", across, down, 1))


def interlaced_rows():
    for left, top, across, down in PASSES:
        for y in range(top, HEIGHT, down):
            yield b"".join(bytes(color_at(x, y, WIDTH, HEIGHT))
                           for x in range(left, WIDTH, across))


def honest_pngs():
    colors = [RED, GREEN, BLUE, YELLOW]
    palette = chunk(b"PLTE", b"".join(map(bytes, colors)))
    plain = rows(bytes)
    return {
        "rgb.png": png(header(WIDTH, HEIGHT), plain),
        "translucent.png": png(header(WIDTH, HEIGHT, color=6),
                               rows(lambda color: bytes(color) + b"\x80")),
        "palette.png": png(header(WIDTH, HEIGHT, color=3),
                           rows(lambda color: bytes([colors.index(color)])), palette),
        "deep.png": png(header(WIDTH, HEIGHT, depth=16),
                        rows(lambda color: b"".join(bytes([part, part]) for part in color))),
        "interlaced.png": png(header(WIDTH, HEIGHT, interlaced=1), interlaced_rows()),
        "dense.png": png(header(2940, 1912), rows(bytes, 2940, 1912), resolution(5669, 5669)),
        "tall_dots.png": png(header(WIDTH, HEIGHT), plain, resolution(5669, 2835)),
        "no_dots.png": png(header(WIDTH, HEIGHT), plain, resolution(0, 0)),
    }


def damaged_pngs():
    good = png(header(WIDTH, HEIGHT), rows(bytes))
    flipped = bytearray(good)
    flipped[len(good) - 24] ^= 0x55
    noise = [zlib.compress(bytes(range(256)), 0)[7:199] for _ in range(HEIGHT)]
    ragged = png(header(WIDTH, HEIGHT), noise)
    return {
        "cut.png": ragged[:len(ragged) // 2],
        "cut_before_end.png": good[:-12],
        "cut_in_header.png": good[:20],
        "flipped.png": bytes(flipped),
        "too_few_rows.png": png(header(WIDTH, 2 * HEIGHT), rows(bytes)),
    }


def hostile_pngs():
    # Each text unfolds to just what the decoder would still take.
    text = chunk(b"zTXt", b"Comment\0\0" + zlib.compress(b"a" * 7_900_000, 9))
    return {
        "huge.png": png(header(HUGE, HUGE), [b"\0" * 100]),
        "texts.png": png(header(WIDTH, HEIGHT), rows(bytes), text * 100),
    }


# JPEG


def jpeg(image, **options):
    file = io.BytesIO()
    image.save(file, "JPEG", quality=95, subsampling=0, **options)
    return file.getvalue()


def lying_on_its_side():
    """The picture turned to the left, with the order to turn it to the right."""
    exif = Image.Exif()
    exif[0x0112] = 6
    return jpeg(quarters().transpose(Image.Transpose.ROTATE_90), exif=exif, dpi=(144, 72))


def per_centimetre(data):
    """72 dots an inch, 28.3 a centimetre: the nearest whole number is 28."""
    start = data.index(b"JFIF\0") + 7
    return data[:start] + struct.pack(">BHH", 2, 28, 28) + data[start + 5:]


def of_size(data, side):
    """The same bytes claiming another size in their frame header."""
    for marker in (b"\xff\xc0", b"\xff\xc2"):
        if marker in data:
            start = data.index(marker) + 5
            return data[:start] + struct.pack(">HH", side, side) + data[start + 4:]
    raise ValueError("no frame header")


def of_many_scans(data, count):
    """Repeats the last scan."""
    start = data.rindex(b"\xff\xda")
    return data[:start] + data[start:-2] * count + data[-2:]


def jpegs():
    good, progressive = jpeg(quarters()), jpeg(quarters(), progressive=True)
    large = jpeg(quarters(2000, 1501))
    return {
        "baseline.jpg": good,
        "progressive.jpg": progressive,
        "rotated.jpg": lying_on_its_side(),
        "cmyk.jpg": jpeg(quarters().convert("CMYK")),
        "gray.jpg": jpeg(quarters().convert("L")),
        "dense.jpg": jpeg(quarters(), dpi=(144, 144)),
        "centimetres.jpg": per_centimetre(good),
        "large.jpg": large,
        "cut.jpg": large[:len(large) // 2],
        "cut_before_end.jpg": good[:-2],
        "cut_in_header.jpg": good[:30],
        "zeros_at_end.jpg": large[:len(large) // 2] + b"\0" * (len(large) // 2),
        "huge.jpg": of_size(good, HUGE),
        "huge_progressive.jpg": of_size(progressive, HUGE),
        "large_progressive.jpg": of_size(progressive, 8100),
        "many_scans.jpg": of_many_scans(of_size(progressive, 4000), 5000),
    }


# GIF


def gifs():
    file = io.BytesIO()
    quarters().save(file, "GIF", save_all=True, append_images=[Image.new("RGB", (WIDTH, HEIGHT))])
    good = file.getvalue()
    return {
        "animated.gif": good,
        "cut.gif": good[:len(good) // 2],
        "huge.gif": good[:6] + struct.pack("<HH", HUGE, HUGE) + good[10:],
    }


def others():
    return {
        "empty.png": b"",
        "text.png": b"No picture.\n",
        "really_jpeg.png": jpeg(quarters()),
    }


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    groups = (honest_pngs(), damaged_pngs(), hostile_pngs(), jpegs(), gifs(), others())
    for group in groups:
        for name, data in group.items():
            (folder / name).write_bytes(data)


main()
