"""PNG samples, written byte by byte."""

import random
import struct
import zlib

from picture import BLUE, GREEN, HEIGHT, HUGE, RED, WIDTH, YELLOW, color_at

SIGNATURE = b"\x89PNG\r\n\x1a\n"
# The start and the steps of each of the seven passes of an interlaced PNG: x, y, dx, dy.
PASSES = [(0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2),
          (0, 1, 1, 2)]


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def header(width, height, depth=8, color=2, interlaced=0):
    return chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, depth, color, 0, 0, interlaced))


def png(ihdr, rows, *before):
    data = zlib.compress(b"".join(b"\0" + row for row in rows))
    return SIGNATURE + ihdr + b"".join(before) + chunk(b"IDAT", data) + chunk(b"IEND", b"")


def rows(pixel, width=WIDTH, height=HEIGHT):
    """Returns the rows of a picture; `pixel` encodes each pixel from its colour."""
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
    # Each text unpacks to almost as much as the decoder accepts.
    text = chunk(b"zTXt", b"Comment\0\0" + zlib.compress(b"a" * 7_900_000, 9))
    return {
        "huge.png": png(header(HUGE, HUGE), [b"\0" * 100]),
        "texts.png": png(header(WIDTH, HEIGHT), rows(bytes), text * 100),
    }


# All other kinds.


def packed(indexes, bits):
    """Packs a row of numbers of less than eight bits."""
    number = 0
    for index in indexes:
        number = number << bits | index
    padding = -len(indexes) * bits % 8
    return (number << padding).to_bytes((len(indexes) * bits + padding) // 8, "big")


def index_rows(bits):
    order = [RED, GREEN, BLUE, YELLOW]
    return [packed([order.index(color_at(x, y, WIDTH, HEIGHT)) for x in range(WIDTH)], bits)
            for y in range(HEIGHT)]


def gray_rows(bits):
    """Returns rows that are black at the left and white at the right."""
    most = (1 << bits) - 1
    row = [0 if x < WIDTH / 2 else most for x in range(WIDTH)]
    if bits == 16:
        return [b"".join(struct.pack(">H", gray) for gray in row)] * HEIGHT
    return [packed(row, bits)] * HEIGHT


def paeth(left, up, up_left):
    estimate = left + up - up_left
    return min((left, up, up_left), key=lambda value: abs(estimate - value))


def filtered(row, above, kind, pixel):
    """Returns a row as a PNG stores it."""
    def neighbours(i):
        left = row[i - pixel] if i >= pixel else 0
        up_left = above[i - pixel] if i >= pixel else 0
        return left, above[i], up_left

    predictors = [lambda *_: 0, lambda left, up, up_left: left, lambda left, up, up_left: up,
                  lambda left, up, up_left: (left + up) // 2, paeth]
    predict = predictors[kind]
    return bytes([kind]) + bytes((row[i] - predict(*neighbours(i))) & 0xff
                                 for i in range(len(row)))


def filtered_png(color, pixel, noise, kinds):
    """Returns a PNG whose rows have these kinds of filters in turn."""
    plain = rows(pixel)
    size = len(plain[0]) // WIDTH
    plain = [bytes(min(255, part + noise.randrange(3)) if part < 255 else part for part in row)
             for row in plain]
    stored, above = b"", bytes(len(plain[0]))
    for y, row in enumerate(plain):
        stored += filtered(row, above, kinds[y % len(kinds)], size)
        above = row
    return SIGNATURE + header(WIDTH, HEIGHT, color=color) + \
        chunk(b"IDAT", zlib.compress(stored)) + chunk(b"IEND", b"")


def animated():
    """Returns an APNG whose second frame is black."""
    control = chunk(b"acTL", struct.pack(">II", 2, 0))
    frame = struct.pack(">IIIIHHBB", WIDTH, HEIGHT, 0, 0, 1, 10, 0, 0)
    black = zlib.compress(b"".join(b"\0" + bytes(3 * WIDTH) for _ in range(HEIGHT)))
    first = png(header(WIDTH, HEIGHT), rows(bytes), control,
                chunk(b"fcTL", struct.pack(">I", 0) + frame))
    second = chunk(b"fcTL", struct.pack(">I", 1) + frame) + \
        chunk(b"fdAT", struct.pack(">I", 2) + black)
    return first[:-12] + second + first[-12:]


def many_data_chunks():
    whole = zlib.compress(b"".join(b"\0" + row for row in rows(bytes)))
    parts = b"".join(chunk(b"IDAT", whole[i:i + 7]) for i in range(0, len(whole), 7))
    return SIGNATURE + header(WIDTH, HEIGHT) + chunk(b"IDAT", b"") + parts + chunk(b"IEND", b"")


def more_pngs():
    colors = chunk(b"PLTE", b"".join(map(bytes, [RED, GREEN, BLUE, YELLOW])))
    kinds = [4, 4, 0, 1, 4, 4, 4, 2, 3, 3, 4, 1, 4, 4, 4, 4]
    samples = {
        f"gray{bits}.png": png(header(WIDTH, HEIGHT, bits, 0), gray_rows(bits))
        for bits in (1, 2, 4, 8, 16)
    }
    samples |= {
        f"palette{bits}.png": png(header(WIDTH, HEIGHT, bits, 3), index_rows(bits), colors)
        for bits in (2, 4)
    }
    samples |= {
        "palette_transparent.png": png(header(WIDTH, HEIGHT, 8, 3), index_rows(8), colors,
                                       chunk(b"tRNS", b"\xff\x80\x00")),
        "gray_alpha.png": png(header(WIDTH, HEIGHT, 8, 4),
                              rows(lambda color: bytes([color[0], 128]))),
        "deep_translucent.png": png(
            header(WIDTH, HEIGHT, 16, 6),
            rows(lambda color: b"".join(bytes([part, part]) for part in color) + b"\x80\x80")),
        "transparent_color.png": png(header(WIDTH, HEIGHT), rows(bytes),
                                     chunk(b"tRNS", struct.pack(">HHH", *BLUE))),
        "interlaced_translucent.png": png(
            header(WIDTH, HEIGHT, color=6, interlaced=1),
            [b"".join(row[i:i + 3] + b"\x80" for i in range(0, len(row), 3))
             for row in interlaced_rows()]),
        "filters_rgb.png": filtered_png(2, bytes, random.Random(1), kinds),
        "filters_rgba.png": filtered_png(6, lambda color: bytes(color) + b"\xff",
                                         random.Random(2), kinds),
        "animated.png": animated(),
        "many_chunks.png": many_data_chunks(),
    }
    return samples


def pngs():
    return honest_pngs() | damaged_pngs() | hostile_pngs() | more_pngs()
