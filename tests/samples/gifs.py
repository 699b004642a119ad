"""GIF samples."""

import io
import struct

from PIL import Image
from picture import BLUE, GREEN, HEIGHT, HUGE, RED, WIDTH, YELLOW, quarters


def gif(**options):
    file = io.BytesIO()
    quarters().save(file, "GIF", **options)
    return file.getvalue()


def of_many_frames(count):
    """Repeats the frame of a small GIF."""
    file = io.BytesIO()
    Image.new("P", (2, 2)).save(file, "GIF")
    small = file.getvalue()
    frame = small[small.index(b"\x2c"):-1]
    return small[:-1] + frame * count + small[-1:]


def one_quarter():
    """Returns one colour in the upper left of a canvas that is transparent elsewhere."""
    file = io.BytesIO()
    Image.new("P", (WIDTH // 2, HEIGHT // 2), 1).save(file, "GIF", palette=bytes([0, 0, 0, *RED]))
    data = bytearray(file.getvalue())
    data[6:10] = struct.pack("<HH", WIDTH, HEIGHT)
    return bytes(data)


def transparent():
    """Makes blue the transparent colour."""
    image = Image.new("P", (WIDTH, HEIGHT))
    order = [RED, GREEN, BLUE, YELLOW]
    image.putpalette(b"".join(map(bytes, order)))
    image.putdata([order.index(color) for color in quarters().getdata()])
    file = io.BytesIO()
    image.save(file, "GIF", transparency=order.index(BLUE), interlace=0)
    return file.getvalue()


def gifs():
    good = gif(save_all=True, append_images=[Image.new("RGB", (WIDTH, HEIGHT))])
    first = gif(interlace=0)
    return {
        "animated.gif": good,
        "interlaced.gif": gif(interlace=1),
        "straight.gif": first,
        "transparent.gif": transparent(),
        "one_quarter.gif": one_quarter(),
        "many_frames.gif": of_many_frames(100_000),
        "cut.gif": first[:-60],
        "huge.gif": good[:6] + struct.pack("<HH", HUGE, HUGE) + good[10:],
    }
