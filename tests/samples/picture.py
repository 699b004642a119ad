"""What the honest samples show: four quarters, red and green above blue and yellow."""

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
    """Describes colours whose red and green have changed places: sRGB, with two tags renamed."""
    data = bytearray(ImageCms.ImageCmsProfile(ImageCms.createProfile("sRGB")).tobytes())
    red, green = data.index(b"rXYZ"), data.index(b"gXYZ")
    data[red:red + 4], data[green:green + 4] = b"gXYZ", b"rXYZ"
    return bytes(data)
