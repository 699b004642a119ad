"""What the valid samples show: four quarters, red and green above blue and yellow."""

import struct

from PIL import Image, ImageCms

WIDTH, HEIGHT = 64, 48
RED, GREEN, BLUE, YELLOW = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0)
BLACK = (0, 0, 0)
HUGE = 60_000


def color_at(x, y, width, height):
    above, below = (RED, GREEN), (BLUE, YELLOW)
    return (above if y < height / 2 else below)[0 if x < width / 2 else 1]


def quarters(width=WIDTH, height=HEIGHT):
    image = Image.new("RGB", (width, height))
    image.putdata([color_at(x, y, width, height) for y in range(height) for x in range(width)])
    return image


def swapped_profile():
    """Returns a profile of colours with red and green exchanged: sRGB with two tags renamed."""
    data = bytearray(ImageCms.ImageCmsProfile(ImageCms.createProfile("sRGB")).tobytes())
    red, green = data.index(b"rXYZ"), data.index(b"gXYZ")
    data[red:red + 4], data[green:green + 4] = b"gXYZ", b"rXYZ"
    return bytes(data)


def encoded_lab(color):
    """Returns a screen colour as an ICC profile stores it, under the standard light for paper."""
    red, green, blue = ((part / 255) for part in color)
    # For parts of 0 and 255 the transfer curve does not matter.
    x = (0.4361 * red + 0.3851 * green + 0.1431 * blue) / 0.9642
    y = 0.2225 * red + 0.7169 * green + 0.0606 * blue
    z = (0.0139 * red + 0.0971 * green + 0.7141 * blue) / 0.8249
    x, y, z = (t**(1 / 3) if t > 0.008856 else 7.787 * t + 16 / 116 for t in (x, y, z))
    lab = ((116 * y - 16) * 2.55, 500 * (x - y) + 128, 200 * (y - z) + 128)
    return bytes(min(max(round(part), 0), 255) for part in lab)


def swapped_ink_profile():
    """Returns a profile of inks with cyan and magenta exchanged, as a table of its corners."""
    corners = b""
    for number in range(16):
        magenta, cyan, yellow, black = ((number >> bit) & 1 for bit in (3, 2, 1, 0))
        corners += encoded_lab(tuple(0 if part or black else 255
                                     for part in (cyan, magenta, yellow)))
    straight = bytes(range(256))
    table = (b"mft1" + bytes(4) + bytes((4, 3, 2, 0)) +
             struct.pack(">9i", *(65536 * (i % 4 == 0) for i in range(9))) + 4 * straight +
             corners + 3 * straight)
    size = 128 + 16 + len(table)
    header = (struct.pack(">I4sI", size, b"test", 0x02400000) + b"prtrCMYKLab " + bytes(12) +
              b"acsp" + bytes(28) + struct.pack(">3i", 63190, 65536, 54061))
    return header.ljust(128, b"\0") + struct.pack(">I4sII", 1, b"A2B0", 144, len(table)) + table
