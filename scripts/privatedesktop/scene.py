"""Something to take a screenshot of: a window with a small landscape in it."""

from PIL import Image, ImageDraw, ImageFilter
from Xlib import Xutil, display

from .waiting import wait_until

_SIZE = (720, 450)
_SKY = ((255, 214, 165), (246, 150, 121), (122, 92, 148))
_HILLS = (
    ((142, 100, 138), (0.62, 0.50, 0.58, 0.46, 0.55)),
    ((92, 72, 120), (0.70, 0.66, 0.56, 0.64, 0.60)),
    ((54, 48, 92), (0.84, 0.74, 0.78, 0.68, 0.76)),
    ((28, 30, 60), (0.90, 0.92, 0.82, 0.88, 0.80)),
)


def _blend(first, second, part):
    return tuple(round(a + (b - a) * part) for a, b in zip(first, second))


def _sky(width, height):
    column = Image.new("RGB", (1, height))
    for y in range(height):
        part = y / height
        colour = (
            _blend(_SKY[2], _SKY[1], part * 2)
            if part < 0.5
            else _blend(_SKY[1], _SKY[0], part * 2 - 1)
        )
        column.putpixel((0, y), colour)
    return column.resize((width, height))


def _ridge(heights, width, height):
    """Returns a smooth line through the given heights, as a polygon down to the bottom."""
    points = []
    for x in range(width + 1):
        place = x / width * (len(heights) - 1)
        index = min(int(place), len(heights) - 2)
        part = place - index
        part = part * part * (3 - 2 * part)
        points.append((x, height * (heights[index] + (heights[index + 1] - heights[index]) * part)))
    return points + [(width, height), (0, height)]


def landscape(size=_SIZE):
    width, height = size[0] * 2, size[1] * 2
    image = _sky(width, height)
    glow = Image.new("L", (width, height))
    sun = (width * 0.60, height * 0.24, width * 0.60 + height * 0.18, height * 0.42)
    ImageDraw.Draw(glow).ellipse(sun, fill=255)
    glow = Image.blend(glow, glow.filter(ImageFilter.GaussianBlur(60)), 0.45)
    image.paste((255, 240, 214), mask=glow)
    draw = ImageDraw.Draw(image)
    for colour, heights in _HILLS:
        draw.polygon(_ridge(heights, width, height), fill=colour)
    return image.resize(size, Image.LANCZOS)


def show_scene(desktop):
    """Opens the window and returns when it is on the screen."""
    connection = display.Display(desktop.environment["DISPLAY"])
    screen = connection.screen()
    x, y = 180, 120
    window = screen.root.create_window(
        x, y, *_SIZE, 0, screen.root_depth, background_pixmap=_pixmap(connection, screen)
    )
    window.set_wm_name("Evening")
    window.set_wm_class("evening", "Evening")
    window.set_wm_normal_hints(flags=Xutil.USPosition, x=x, y=y)
    window.map()
    connection.sync()
    desktop.keep(connection)
    wait_until(
        lambda: window.id in desktop.screen.client_list()
        and desktop.screen.screenshot().getpixel((x + _SIZE[0] // 2, y + _SIZE[1]))
        == _HILLS[-1][0],
        "a window stands on the private desktop",
    )


def _pixmap(connection, screen):
    pixmap = screen.root.create_pixmap(*_SIZE, screen.root_depth)
    context = pixmap.create_gc(foreground=screen.black_pixel)
    pixmap.put_pil_image(context, 0, 0, landscape())
    context.free()
    return pixmap
