"""JPEG samples."""

import io
import struct

from PIL import Image
from picture import HUGE, quarters


def jpeg(image, **options):
    file = io.BytesIO()
    image.save(file, "JPEG", quality=95, subsampling=0, **options)
    return file.getvalue()


def lying_on_its_side():
    """Returns the picture turned to the left, with an orientation that turns it back."""
    exif = Image.Exif()
    exif[0x0112] = 6
    return jpeg(quarters().transpose(Image.Transpose.ROTATE_90), exif=exif, dpi=(144, 72))


def per_centimetre(data):
    """Changes 72 dots per inch to dots per centimetre: 28.3, rounded to 28."""
    start = data.index(b"JFIF\0") + 7
    return data[:start] + struct.pack(">BHH", 2, 28, 28) + data[start + 5:]


def of_size(data, side):
    """Returns the same bytes with another size in the frame header."""
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
