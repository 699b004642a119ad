"""WebP samples: pictures by Pillow, in containers written byte by byte."""

import io
import struct

from PIL import Image
from picture import BLACK, HEIGHT, WIDTH, YELLOW, quarters, swapped_profile

ANIMATED, EXIF, ALPHA = 0x02, 0x08, 0x10
LONGEST = 16_384


def webp(image, **options):
    file = io.BytesIO()
    image.save(file, "WEBP", **({"quality": 95, "method": 0} | options))
    return file.getvalue()


def chunk(name, data):
    return name + struct.pack("<I", len(data)) + data + b"\0" * (len(data) % 2)


def container(*chunks):
    data = b"WEBP" + b"".join(chunks)
    return b"RIFF" + struct.pack("<I", len(data)) + data


def three_bytes(number):
    return struct.pack("<I", number)[:3]


def header(flags, wide=WIDTH, high=HEIGHT):
    return chunk(b"VP8X", bytes([flags, 0, 0, 0]) + three_bytes(wide - 1) + three_bytes(high - 1))


def picture_chunk(image, **options):
    """Returns the chunks of a file that holds only this picture."""
    return webp(image, **options)[12:]


def frame(image, left=0, top=0):
    place = b"".join(map(three_bytes, (left // 2, top // 2, image.width - 1, image.height - 1, 50)))
    return chunk(b"ANMF", place + b"\0" + picture_chunk(image, lossless=True))


def animation(*frames, flags=ANIMATED | ALPHA, wide=WIDTH, high=HEIGHT):
    return container(header(flags, wide, high), chunk(b"ANIM", bytes(6)), *frames)


def one_quarter():
    """Returns an animation whose first frame fills only the lower right of an empty canvas."""
    return animation(frame(Image.new("RGB", (WIDTH // 2, HEIGHT // 2), YELLOW), WIDTH // 2,
                           HEIGHT // 2), frame(quarters()))


def lying_on_its_side(start=b""):
    """Returns the picture turned to the left, with an orientation that turns it back."""
    exif = Image.Exif()
    exif[0x0112], exif[0x011a], exif[0x011b] = 6, 144.0, 72.0
    notes = exif.tobytes().removeprefix(b"Exif\0\0")
    side = quarters().transpose(Image.Transpose.ROTATE_90)
    return container(header(EXIF, HEIGHT, WIDTH), picture_chunk(side, lossless=True),
                     chunk(b"EXIF", start + notes))


def of_size(data, side):
    """Returns the same bytes with another size, for lossless and lossy pictures."""
    if b"VP8L" in data:
        start = data.index(b"VP8L") + 9
        return data[:start] + struct.pack("<I", side - 1 | side - 1 << 14) + data[start + 4:]
    start = data.index(b"\x9d\x01\x2a") + 3
    return data[:start] + struct.pack("<HH", side, side) + data[start + 4:]


def translucent(**options):
    image = quarters().convert("RGBA")
    image.putalpha(128)
    return webp(image, **options)


def webps():
    lossy, lossless = webp(quarters()), webp(quarters(), lossless=True)
    black = frame(Image.new("RGB", (WIDTH, HEIGHT), BLACK))
    small = frame(Image.new("RGB", (2, 2), YELLOW))
    moving = animation(frame(quarters()), black)
    return {
        "lossy.webp": lossy,
        "lossless.webp": lossless,
        "large.webp": webp(quarters(2000, 1501)),
        "translucent.webp": translucent(lossless=True),
        "translucent_lossy.webp": translucent(),
        "animated.webp": moving,
        "one_quarter.webp": one_quarter(),
        "rotated.webp": lying_on_its_side(),
        "rotated_as_in_jpeg.webp": lying_on_its_side(b"Exif\0\0"),
        "profile.webp": webp(quarters(), lossless=True, icc_profile=swapped_profile()),
        "really_webp.png": lossless,
        "cut.webp": lossy[:len(lossy) // 2],
        "cut_before_end.webp": lossless[:-2],
        "cut_in_header.webp": lossless[:24],
        "no_frame.webp": animation(),
        "frame_outside.webp": animation(frame(quarters(), WIDTH // 2)),
        "huge.webp": of_size(lossless, LONGEST),
        "huge_lossy.webp": of_size(lossy, LONGEST - 1),
        "huge_canvas.webp": animation(frame(quarters()), wide=1 << 24, high=128),
        "large_canvas.webp": animation(frame(quarters()), wide=8000, high=8000),
        "many_frames.webp": animation(*[small] * 100_000, wide=2, high=2),
    }
