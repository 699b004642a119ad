"""TIFF samples; those that Pillow cannot write are written byte by byte."""

import io
import struct
import zlib

from PIL import Image
from picture import HEIGHT, HUGE, WIDTH, color_at, quarters

NONE, LZW, DEFLATE = 1, 5, 8
WHITE_IS_ZERO, BLACK_IS_ZERO, RGB, SEPARATED = 0, 1, 2, 5
TILE = 16


def saved(image, **options):
    file = io.BytesIO()
    image.save(file, "TIFF", **options)
    return file.getvalue()


def tiff(parts, tags, order="<"):
    """Returns a file of one page: `tags` by number, and its strips or tiles in `parts`."""
    tiled = 322 in tags
    offsets_tag, counts_tag = (324, 325) if tiled else (273, 279)
    data = b"".join(parts)
    offsets = [8 + sum(len(part) for part in parts[:i]) for i in range(len(parts))]
    tags = dict(tags) | {offsets_tag: offsets, counts_tag: [len(part) for part in parts]}
    directory = 8 + len(data) + len(data) % 2
    entries, extra = b"", b""
    extra_start = directory + 2 + 12 * len(tags) + 4
    for number, value in sorted(tags.items()):
        values = value if isinstance(value, (list, bytes)) else [value]
        kind, packed = 4, b"".join(struct.pack(order + "I", one) for one in values)
        if isinstance(value, bytes):
            kind, packed = 7, value
        field = packed
        if len(packed) > 4:
            field = struct.pack(order + "I", extra_start + len(extra))
            extra += packed
        entries += struct.pack(order + "HHI", number, kind, len(values)) + field
    start = (b"II*\0" if order == "<" else b"MM\0*") + struct.pack(order + "I", directory)
    return start + data + b"\0" * (len(data) % 2) + struct.pack(order + "H", len(tags)) + \
        entries + b"\0\0\0\0" + extra


def tags(bits=8, samples=3, photometric=RGB, compression=NONE, wide=WIDTH, high=HEIGHT, **others):
    extra = {int(name[1:]): value for name, value in others.items()}
    return {256: wide, 257: high, 258: [bits] * samples, 259: compression, 262: photometric,
            277: samples} | extra


def row(y, pixel=bytes, begin=0, end=WIDTH):
    return b"".join(pixel(color_at(x, y, WIDTH, HEIGHT)) for x in range(begin, end))


def rows(pixel=bytes):
    return b"".join(row(y, pixel) for y in range(HEIGHT))


def tiles(pixel=bytes):
    for top in range(0, HEIGHT, TILE):
        for left in range(0, WIDTH, TILE):
            yield b"".join(row(y, pixel, left, left + TILE) for y in range(top, top + TILE))


def sixteen_bits(order):
    return lambda color: b"".join(struct.pack(order + "H", part * 257) for part in color)


def strips(pixel=bytes, high=7):
    data = [row(y, pixel) for y in range(HEIGHT)]
    return [zlib.compress(b"".join(data[y:y + high])) for y in range(0, HEIGHT, high)]


def bilevel():
    """Returns white at the left and black at the right; 1 is black."""
    return tiff([(b"\0" * (WIDTH // 16) + b"\xff" * (WIDTH // 16)) * HEIGHT],
                tags(1, 1, WHITE_IS_ZERO, t278=HEIGHT))


def planar():
    parts = [b"".join(bytes([color_at(x, y, WIDTH, HEIGHT)[plane]]) for y in range(HEIGHT)
                      for x in range(WIDTH)) for plane in range(3)]
    return tiff(parts, tags(t278=HEIGHT, t284=2))


def lying(good):
    """Returns a good file whose directory names itself as the next page, and data far beyond the
    end."""
    return good[:4] + struct.pack("<I", len(good) - 4) + good[8:]


def honest():
    picture = quarters()
    turned = picture.transpose(Image.Transpose.ROTATE_90)
    pages = [Image.new("RGB", (10, 10)), Image.new("RGB", (20, 20))]
    tile = {"t322": TILE, "t323": TILE}
    return {
        "raw.tiff": saved(picture),
        "lzw.tif": saved(picture, compression="tiff_lzw"),
        "deflate.tif": saved(picture, compression="tiff_adobe_deflate"),
        "packbits.tif": saved(picture, compression="packbits"),
        "jpeg.tif": saved(picture, compression="jpeg", quality=95),
        "pages.tif": saved(picture, save_all=True, append_images=pages),
        "palette.tif": saved(picture.quantize(4)),
        "dense.tif": saved(picture, dpi=(144, 144)),
        "centimetres.tif": saved(picture, resolution_unit=3, x_resolution=56.69,
                                 y_resolution=56.69),
        "turned.tif": tiff([turned.tobytes()], tags(wide=HEIGHT, high=WIDTH, t274=6, t278=WIDTH)),
        "tiled.tif": tiff(list(tiles()), tags(**tile)),
        "tiled_deflate.tif": tiff([zlib.compress(part) for part in tiles()],
                                  tags(compression=DEFLATE, **tile)),
        "strips.tif": tiff(strips(), tags(compression=DEFLATE, t278=7)),
        "deep.tif": tiff([rows(sixteen_bits("<"))], tags(16, t278=HEIGHT)),
        "deep_big_endian.tif": tiff([rows(sixteen_bits(">"))], tags(16, t278=HEIGHT), ">"),
        "planar.tif": planar(),
        "cmyk.tif": saved(picture.convert("CMYK")),
    }


def others():
    translucent = rows(lambda color: bytes(color) + b"\x80")
    good = tiff([rows()], tags(t278=HEIGHT))
    return {
        "bilevel.tif": bilevel(),
        "fax.tif": saved(quarters().convert("1", dither=0), compression="group4"),
        "straight_alpha.tif": tiff([translucent], tags(samples=4, t278=HEIGHT, t338=2)),
        "cut.tif": good[:len(good) // 2],
        "too_few_rows.tif": tiff([rows()], tags(high=2 * HEIGHT, t278=2 * HEIGHT)),
        "missing_strip.tif": tiff([rows()], tags(high=2 * HEIGHT, t278=HEIGHT)),
        "huge.tif": tiff([rows()], tags(wide=HUGE, high=HUGE, t278=HUGE)),
        "huge_tile.tif": tiff([rows()], tags(t322=HUGE // 16 * 16, t323=HUGE // 16 * 16)),
        "four_gigabytes.tif": tiff([zlib.compress(b"\0" * 500)],
                                   tags(compression=DEFLATE, wide=30_000, high=8_000, t278=8_000)),
        "directory_in_itself.tif": good[:-4] + struct.pack("<I", 8),
        "far_away.tif": lying(good),
    }


def tiffs():
    return honest() | others()
