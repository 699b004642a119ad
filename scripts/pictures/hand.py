"""Moves the mouse calmly, and takes screenshots that show the pointer."""

import time

import numpy
from PIL import Image
from Xlib import display
from Xlib.ext import xfixes  # noqa: F401  (registers its requests on import)

from privatedesktop import wait_until


class Hand:
    """Moves the pointer as a person does: it starts slowly and arrives slowly."""

    def __init__(self, desktop, start):
        self._pointer = desktop.screen.pointer
        self._place = start
        self._pointer.move(*start)

    def glide(self, goal, seconds, bend=0.0):
        """Moves to the goal in an arc; `bend` is the arc's height as a part of the distance."""
        start, begun = self._place, time.monotonic()
        across = (start[1] - goal[1]) * bend, (goal[0] - start[0]) * bend
        part = 0.0
        while part < 1:
            part = min((time.monotonic() - begun) / seconds, 1.0)
            eased = part * part * part * (part * (6 * part - 15) + 10)
            lift = 4 * eased * (1 - eased)
            self._pointer.move(*(
                a + (b - a) * eased + side * lift for a, b, side in zip(start, goal, across)
            ))
            time.sleep(0.008)
        self._place = goal

    def hold_until(self, condition, what):
        """Jiggles the pointer until the condition is true: a program decides whether it takes a
        drag only while the pointer moves."""
        turn = 0

        def holds():
            nonlocal turn
            turn += 1
            self._pointer.move(self._place[0] + turn % 2, self._place[1])
            return condition()

        wait_until(holds, what, interval=0.05)

    def press(self):
        self._pointer.press()

    def release(self):
        self._pointer.release()


def screenshot_with_pointer(desktop):
    """Returns a picture of the screen, with the pointer as a real server draws it."""
    picture = desktop.screen.screenshot()
    connection = display.Display(desktop.environment["DISPLAY"])
    connection.xfixes_query_version()
    cursor = connection.xfixes_get_cursor_image(connection.screen().root)
    pixels = numpy.array(cursor.cursor_image, dtype=numpy.uint32).astype("<u4").tobytes()
    shape = Image.frombytes("RGBa", (cursor.width, cursor.height), pixels, "raw", "BGRa")
    connection.close()
    shape = shape.convert("RGBA")
    picture.paste(shape, (cursor.x - cursor.xhot, cursor.y - cursor.yhot), shape)
    return picture
