#!/usr/bin/python3
"""Measures how soon a preview is sharp after Space, and what memory it takes and gives back, on a
private desktop with the software renderer.

  bench/preview_times.py [--binary build/release/bin/vantle] [--size 7680x4320] [--rounds 10]
                         [--screen 1920x1080]
"""

import argparse
import io
import pathlib
import statistics
import sys
import time

REPOSITORY = pathlib.Path(__file__).resolve().parents[1]
sys.path[:0] = [str(REPOSITORY / "scripts"), str(REPOSITORY / "tests/desktop")]
sys.dont_write_bytecode = True

import readings  # noqa: E402
from desktop_figures import screenshot_like, size  # noqa: E402
from PIL import Image  # noqa: E402
from privatedesktop import PrivateDesktop, Program, Rectangle, wait_until  # noqa: E402

LIMIT_OF_GREY = 40
REST = 3.0


def striped(dimensions):
    """Returns a PNG of the size of a usual file, with stripes that only a sharp picture shows."""
    image = Image.open(io.BytesIO(screenshot_like(dimensions, (30, 40, 230))))
    period = dimensions[0] // 160
    column = Image.new("RGB", (period // 2, dimensions[1] // 4), "white")
    for x in range(0, dimensions[0], period):
        image.paste((0, 0, 0), (x, 0, x + period, dimensions[1] // 4))
        image.paste(column, (x, 0))
    buffer = io.BytesIO()
    image.save(buffer, "PNG", compress_level=6)
    return buffer.getvalue()


class Measurement:
    def __init__(self, arguments, desktop):
        self._desktop = desktop
        self._vantle = Program(arguments.binary, desktop)
        self._picture = striped(arguments.size)
        # Across the stripes, in the preview's upper part.
        self._area = Rectangle(desktop.size[0] // 2 - 100, desktop.size[1] * 3 // 10, 200, 1)

    def run(self, rounds):
        print(f"{len(self._picture) / 1e6:.1f} MB")
        self._vantle.write_settings(dismissAfter="0")
        self._vantle.start_watching()
        try:
            path = self._desktop.home / "complete.png"
            path.write_bytes(self._picture)
            path.rename(self._desktop.home / "Desktop" / "shot.png")
            wait_until(self._desktop.screen.panel, "the panel appears")
            self._vantle.command("--focus-panel")
            time.sleep(REST)
            self._measure(rounds)
        finally:
            self._vantle.stop()

    def _measure(self, rounds):
        self._say("with a tile")
        loaded, seen = zip(*(self._round() for _ in range(rounds)))
        self._print("the sharp picture is there", loaded)
        self._print("it has grown to the middle", seen)
        self._open()
        time.sleep(REST)
        self._say("with the preview")
        self._close()
        for moment in (1, 5, 20):
            time.sleep(moment)
            self._say(f"{moment} s later")

    def _round(self):
        sharp = self._vantle.log_text().count("preview is sharp")
        begun = self._open()
        wait_until(lambda: self._vantle.log_text().count("preview is sharp") > sharp,
                   "the sharp picture", interval=0.001)
        loaded = time.monotonic() - begun
        wait_until(self._is_sharp, "the sharp picture on the screen", interval=0.001)
        seen = time.monotonic() - begun
        time.sleep(1)
        self._close()
        return loaded, seen

    def _is_sharp(self):
        line = self._desktop.screen.screenshot(self._area).convert("L").getextrema()
        return line[1] - line[0] > 255 - 2 * LIMIT_OF_GREY

    def _open(self):
        self._desktop.screen.keyboard.press("space")
        return time.monotonic()

    def _close(self):
        gone = self._vantle.log_text().count("preview is gone")
        self._desktop.screen.keyboard.press("Escape")
        wait_until(lambda: self._vantle.log_text().count("preview is gone") > gone, "it is gone")

    @staticmethod
    def _print(what, seconds):
        print(f"  {what:<26} median {statistics.median(seconds) * 1000:.0f} ms, "
              f"longest {max(seconds) * 1000:.0f} ms", flush=True)

    def _say(self, when):
        memory = readings.memory(self._vantle.pid)
        others = [readings.memory(pid)["all"] for pid in readings.children(self._vantle.pid)]
        print(f"  {when:<26} {memory['all']:6.1f} MiB ({memory['anonymous']:.1f} anonymous), and "
              f"{sum(others):.1f} MiB in {len(others)} programs", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binary", default=str(REPOSITORY / "build/release/bin/vantle"))
    parser.add_argument("--size", type=size, default=(7680, 4320))
    parser.add_argument("--screen", type=size, default=(1920, 1080))
    parser.add_argument("--rounds", type=int, default=10)
    arguments = parser.parse_args()
    with PrivateDesktop(size=arguments.screen) as desktop:
        desktop.screen.pointer.move(20, 400)
        Measurement(arguments, desktop).run(arguments.rounds)


if __name__ == "__main__":
    main()
