"""A picture that can be recognised when it is small, and functions that recognise it."""

from PIL import Image, ImageChops

RED, GREEN, BLUE, YELLOW = (230, 20, 20), (20, 200, 40), (30, 40, 230), (240, 220, 20)
NEUTRAL = (128, 128, 128)


def pattern(size=(1440, 900)):
    """Returns a picture of four quarters: red, green, blue, yellow."""
    width, height = size
    image = Image.new("RGB", size, RED)
    image.paste(GREEN, (width // 2, 0, width, height // 2))
    image.paste(BLUE, (0, height // 2, width // 2, height))
    image.paste(YELLOW, (width // 2, height // 2, width, height))
    return image


def plain(size=(1440, 900), colour=NEUTRAL):
    return Image.new("RGB", size, colour)


def mask_of(image, colour, tolerance=45):
    """Returns a mask that is white where the picture has that colour."""
    mask = None
    for channel, wanted in zip(image.split(), colour):
        near = channel.point(
            [255 if abs(value - wanted) <= tolerance else 0 for value in range(256)])
        mask = near if mask is None else ImageChops.multiply(mask, near)
    return mask


def area_of(image, colour):
    """Returns how many pixels have that colour."""
    return mask_of(image, colour).histogram()[255]


def _runs(mask):
    """Returns the number of separate stretches of columns with much white."""
    width, height = mask.size
    columns = mask.resize((width, 1), Image.BOX).tobytes()
    needed = 255 * 25 / height
    return sum(
        1
        for x in range(width)
        if columns[x] > needed and (x == 0 or columns[x - 1] <= needed)
    )


def count_patterns(image):
    """Returns how many small copies of pattern() stand side by side in the picture."""
    return _runs(mask_of(image, RED))


def is_one_pattern(image):
    """Returns true if the picture shows pattern() once: upright, not mirrored, in proportion."""
    boxes = [mask_of(image, colour).getbbox() for colour in (RED, GREEN, BLUE, YELLOW)]
    if None in boxes or count_patterns(image) != 1:
        return False
    centres = [((box[0] + box[2]) / 2, (box[1] + box[3]) / 2) for box in boxes]
    (red_x, red_y), (green_x, green_y), (blue_x, blue_y), (yellow_x, yellow_y) = centres
    in_place = (
        red_x < green_x and blue_x < yellow_x and red_y < blue_y and green_y < yellow_y
    )
    left, top = min(box[0] for box in boxes), min(box[1] for box in boxes)
    right, bottom = max(box[2] for box in boxes), max(box[3] for box in boxes)
    width, height = right - left, bottom - top
    return in_place and width > 140 and abs(width / height - 1.6) < 0.1
