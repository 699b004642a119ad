"""TIFF samples with inks, with floating-point numbers, and with more samples than a colour has."""

import itertools
import math
import struct
import zlib

from picture import HEIGHT, HUGE, WIDTH, quarters, swapped_ink_profile, swapped_profile
from tiffs import (BLACK_IS_ZERO, DEFLATE, RGB, SEPARATED, TILE, rows, saved, strips, tags,
                   tiff, tiles)

POINT = 3
TILES = {"t322": TILE, "t323": TILE}
STRIP = {"t278": HEIGHT}
STRAIGHT_ALPHA = 2
# Numbers that must be shown as none and as all of a colour.
NOTHING = itertools.cycle((0.0, -0.0, -1.0, -60000.0, -math.inf, math.nan))
EVERYTHING = itertools.cycle((1.0, 2.0, 60000.0, math.inf))


def packed(letter, order="<"):
    """Packs a colour as floating-point numbers."""
    return lambda color: b"".join(struct.pack(order + letter, part / 255) for part in color)


def wild(letter):
    return lambda color: b"".join(
        struct.pack("<" + letter, next(EVERYTHING if part else NOTHING)) for part in color)


def ink(color):
    return bytes(255 - part for part in color) + b"\0"


def deep_ink(color):
    return b"".join(struct.pack("<H", part * 257) for part in ink(color))


def point_tags(bits=32, samples=3, **others):
    return tags(bits, samples, t339=[POINT] * samples, **others)


def ink_tags(bits=16, samples=4, **others):
    return tags(bits, samples, SEPARATED, **others)


def planes(parts, size, samples=3):
    """Separates samples of `size` bytes that are stored pixel by pixel into planes, one after the
    other."""
    return [b"".join(part[at:at + size] for at in range(i * size, len(part), samples * size))
            for i in range(samples) for part in parts]


def predicted(data, high=HEIGHT):
    """Returns rows of 32-bit numbers as a predictor stores them: the first bytes of all numbers,
    then the second bytes, and so on, stored as differences between pixels."""
    size = len(data) // high
    stored = b""
    for start in range(0, len(data), size):
        one = data[start:start + size]
        turned = b"".join(one[3 - i::4] for i in range(4))
        stored += turned[:3] + bytes((turned[i] - turned[i - 3]) % 256 for i in range(3, size))
    return stored


def of_points():
    plain = rows(packed("f"))
    tile_rows = list(tiles(packed("f")))
    return {
        "half.tif": tiff([rows(packed("e"))], point_tags(16, **STRIP)),
        "float.tif": tiff([plain], point_tags(**STRIP)),
        "float_big_endian.tif": tiff([rows(packed("f", ">"))], point_tags(**STRIP), ">"),
        "float_strips.tif": tiff(strips(packed("f")), point_tags(compression=DEFLATE, t278=7)),
        "float_predicted.tif": tiff([zlib.compress(predicted(plain))],
                                    point_tags(compression=DEFLATE, t317=3, **STRIP)),
        "float_tiled.tif": tiff(tile_rows, point_tags(**TILES)),
        "float_planes.tif": tiff(planes([plain], 4), point_tags(t284=2, **STRIP)),
        "float_planes_packed.tif": tiff([zlib.compress(one) for one in planes([plain], 4)],
                                        point_tags(compression=DEFLATE, t284=2, **STRIP)),
        "float_planes_tiled.tif": tiff(planes(tile_rows, 4), point_tags(t284=2, **TILES)),
        "double.tif": tiff([rows(packed("d"))], point_tags(64, **STRIP)),
        "wild_half.tif": tiff([rows(wild("e"))], point_tags(16, **STRIP)),
        "wild_float.tif": tiff([rows(wild("f"))], point_tags(**STRIP)),
        "wild_double.tif": tiff([rows(wild("d"))], point_tags(64, **STRIP)),
        "deepest.tif": tiff([rows(lambda color: b"".join(struct.pack("<I", part * 0x01010101)
                                                         for part in color))], tags(32, **STRIP)),
    }


def of_ink():
    deep = rows(deep_ink)
    return {
        "deep_cmyk.tif": tiff([deep], ink_tags(**STRIP)),
        "deep_cmyk_strips.tif": tiff(strips(deep_ink), ink_tags(compression=DEFLATE, t278=7)),
        "deep_cmyk_tiled.tif": tiff(list(tiles(deep_ink)), ink_tags(**TILES)),
        "deep_cmyk_planes.tif": tiff(planes([deep], 2, 4), ink_tags(t284=2, **STRIP)),
        "float_cmyk.tif": tiff([rows(lambda color: packed("f")(ink(color)))],
                               tags(32, 4, SEPARATED, t339=[POINT] * 4, **STRIP)),
        # A fifth ink whose colour is unknown.
        "five_inks.tif": tiff([rows(lambda color: ink(color) + b"\xff")],
                              ink_tags(8, 5, t338=0, **STRIP)),
    }


def of_more():
    half = struct.pack("<f", 128 / 255)
    return {
        "float_alpha.tif": tiff([rows(lambda color: packed("f")(color) + half)],
                                point_tags(samples=4, t338=STRAIGHT_ALPHA, **STRIP)),
        "cmyk_alpha.tif": tiff([rows(lambda color: ink(color) + b"\x80")],
                               ink_tags(8, 5, t338=STRAIGHT_ALPHA, **STRIP)),
        "multiplied_cmyk_alpha.tif":
            tiff([rows(lambda color: bytes(part // 2 for part in ink(color)) + b"\x80")],
                 ink_tags(8, 5, t338=1, **STRIP)),
        "five_samples.tif": tiff([rows(lambda color: bytes(color) + b"\x80\x12")],
                                 tags(samples=5, t338=[STRAIGHT_ALPHA, 0], **STRIP)),
        "gray_float.tif": gray([0, 1, 0, 1]),
        "gray_steps.tif": gray([0, 0.25, 0.5, 1]),
        "deep_gray_alpha.tif":
            tiff([rows(lambda color: struct.pack("<HH", color[0] * 257, 128 * 257))],
                 tags(16, 2, BLACK_IS_ZERO, t338=STRAIGHT_ALPHA, **STRIP)),
    }


def gray(values):
    """Returns four quarters of grays between 0 and 1."""
    def pixel(x, y):
        return struct.pack("<f", values[(x >= WIDTH // 2) + 2 * (y >= HEIGHT // 2)])
    data = b"".join(pixel(x, y) for y in range(HEIGHT) for x in range(WIDTH))
    return tiff([data], point_tags(samples=1, photometric=BLACK_IS_ZERO, **STRIP))


def hostile():
    plain = rows(packed("f"))
    huge = {"wide": HUGE, "high": HUGE, "t278": HUGE}
    return {
        "cut_float.tif": tiff([plain[:len(plain) // 2]], point_tags(**STRIP)),
        "missing_plane.tif": tiff(planes([plain], 4)[:2], point_tags(t284=2, **STRIP)),
        "three_inks.tif": tiff([rows()], tags(8, 3, SEPARATED, t332=2, **STRIP)),
        "huge_float.tif": tiff([plain], point_tags(**huge)),
        "huge_planes.tif": tiff(planes([plain], 4), point_tags(t284=2, wide=16_000, high=8_000,
                                                               t278=8_000)),
        "many_samples.tif": tiff([plain], {256: 60_000, 257: 30, 258: 64, 259: 1, 262: RGB,
                                           277: 65_535, 278: 30, 339: POINT}),
        "sixteen_planes.tif": tiff([plain] * 16, point_tags(64, 16, t284=2, wide=8_000, high=8_000,
                                                            t278=8_000)),
    }


def profiled():
    profile = swapped_profile()
    return {
        "profile_cmyk.tif": saved(quarters().convert("CMYK"), icc_profile=swapped_ink_profile()),
        "profile_float.tif": tiff([rows(packed("f"))],
                                  point_tags(t34675=profile + b"\0" * (-len(profile) % 4),
                                             **STRIP)),
    }


def deep_tiffs():
    return of_points() | of_ink() | of_more() | hostile() | profiled()
