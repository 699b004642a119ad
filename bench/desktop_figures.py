#!/usr/bin/python3
"""Measures the real program on a private desktop and prints a table.

  bench/desktop_figures.py [--binary build/release/bin/vantle] [--size 2560x1600] [--rounds 10]
"""

import argparse
import io
import pathlib
import random
import statistics
import sys
import time

REPOSITORY = pathlib.Path(__file__).resolve().parents[1]
sys.path[:0] = [str(REPOSITORY / "scripts"), str(REPOSITORY / "tests/desktop")]

from PIL import Image  # noqa: E402
from pictures import area_of, plain  # noqa: E402
from privatedesktop import (  # noqa: E402
    PrivateDesktop,
    Program,
    Rectangle,
    wait_until,
    wait_until_still,
)

COLOURS = [(230, 20, 20), (20, 200, 40), (30, 40, 230), (240, 220, 20), (220, 30, 220)]
VISIBLE_PIXELS = 3000
IDLE_SECONDS = 10


def screenshot_like(size, colour):
    """Returns a PNG of one strong colour with noisy bands, so that its size is that of a usual
    file."""
    image = Image.new("RGB", size, colour)
    noise = Image.frombytes("RGB", (size[0], 16), random.Random(1).randbytes(size[0] * 16 * 3))
    for y in range(0, size[1] - 16, 160):
        image.paste(noise, (0, y))
    buffer = io.BytesIO()
    image.save(buffer, "PNG", compress_level=6)
    return buffer.getvalue()


class Figures:
    def __init__(self, arguments, desktop):
        self._arguments = arguments
        self._desktop = desktop
        self._folder = desktop.home / "Desktop"
        self._vantle = Program(arguments.binary, desktop)
        self._saved = 0
        self.rows = []

    def _add(self, what, value):
        self.rows.append((what, value))

    def measure(self):
        self._desktop.paint(plain(self._desktop.size))
        self._desktop.screen.pointer.move(20, 400)
        self._vantle.write_settings()
        try:
            self._measure_start()
            self._measure_rest("before the first capture")
            self._measure_first_tile()
            self._measure_rest("with 1 tile")
            self._measure_next_tiles()
            self._fill()
            self._measure_rest("with 40 tiles")
        finally:
            self._vantle.stop()

    def _measure_start(self):
        begin = time.monotonic()
        self._vantle.start()
        wait_until(lambda: "]: watching " in self._vantle.log_text(), "it watches", interval=0.001)
        self._add("start to watching the folder", milliseconds(time.monotonic() - begin))
        self._vantle.stop()
        self._measure_icon()
        self._vantle.start_watching()

    def _measure_icon(self):
        screen = self._desktop.screen
        corner = Rectangle(self._desktop.size[0] - 40, 0, 40, 20)

        def bar():
            return screen.screenshot(corner).tobytes()

        empty = wait_until_still(bar, "the tray")
        times = []
        for _ in range(self._arguments.rounds):
            begin = time.monotonic()
            self._vantle.start()
            wait_until(lambda: bar() != empty, "the icon is in the tray", interval=0.001)
            times.append(time.monotonic() - begin)
            self._vantle.stop()
            wait_until(lambda: bar() == empty, "the icon is gone")
        text = f"{milliseconds(statistics.median(times))} (worst {milliseconds(max(times))})"
        self._add(f"start to the icon in the tray, median of {len(times)}", text)

    def _measure_rest(self, when):
        vantle = self._vantle
        # Qt's pooled threads end once, half a minute after the last picture.
        wait_until(lambda: not vantle.has_thread("Thread (pooled)"), "Qt's threads end", limit=60)
        wait_until_still(vantle.voluntary_switches, "the program", readings=20)
        before = vantle.voluntary_switches()
        time.sleep(IDLE_SECONDS)
        woken = vantle.voluntary_switches() - before
        self._add(f"wake-ups in {IDLE_SECONDS} s, {when}", str(woken))
        self._add(f"memory (PSS), {when}", f"{vantle.proportional_memory() / 1024:.1f} MiB")

    def _save(self, colour):
        """Saves a picture and returns the time at which the file was complete."""
        content = screenshot_like(self._arguments.size, colour)
        self._saved += 1
        with open(self._folder / f"shot {self._saved}.png", "wb") as file:
            file.write(content)
        return time.monotonic()

    def _time_tile(self, colour):
        screen = self._desktop.screen
        work_area = screen.work_area()
        area = Rectangle(work_area.right - 800, work_area.bottom - 330, 800, 330)
        before = screen.screenshot(area).tobytes()
        shown = len(self._vantle.shown_counts())
        complete = self._save(colour)
        steps = {
            "the panel's decision": lambda: len(self._vantle.shown_counts()) > shown,
            "its first frame": lambda: screen.screenshot(area).tobytes() != before,
            "it in full colour": lambda: area_of(screen.screenshot(area), colour) > VISIBLE_PIXELS,
        }
        times = {}
        for step, condition in steps.items():
            wait_until(condition, step, interval=0.001)
            times[step] = time.monotonic() - complete
        wait_until_still(lambda: screen.screenshot(area).tobytes(), "the card")
        return times

    def _measure_first_tile(self):
        for step, seconds in self._time_tile(COLOURS[0]).items():
            self._add(f"first tile: file complete to {step}", milliseconds(seconds))

    def _measure_next_tiles(self):
        rounds = [
            self._time_tile(COLOURS[(number + 1) % len(COLOURS)])
            for number in range(self._arguments.rounds)
        ]
        for step in rounds[0]:
            times = [one[step] for one in rounds]
            text = f"{milliseconds(statistics.median(times))} (worst {milliseconds(max(times))})"
            self._add(f"next tile, median of {len(rounds)}: file complete to {step}", text)

    def _fill(self):
        while self._saved < 40:
            self._save(COLOURS[self._saved % len(COLOURS)])
        wait_until(lambda: self._vantle.shown_counts()[-1:] == [40], "40 tiles are shown",
                   limit=120)


def milliseconds(seconds):
    return f"{seconds * 1000:.0f} ms"


def size(text):
    width, height = text.split("x")
    return int(width), int(height)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binary", default=str(REPOSITORY / "build/release/bin/vantle"))
    parser.add_argument("--size", type=size, default=(2560, 1600), help="size of the screenshots")
    parser.add_argument("--rounds", type=int, default=10)
    arguments = parser.parse_args()
    with PrivateDesktop() as desktop:
        figures = Figures(arguments, desktop)
        figures.measure()
    width = max(len(what) for what, _ in figures.rows)
    for what, value in figures.rows:
        print(f"{what:<{width}}  {value}")


if __name__ == "__main__":
    main()
