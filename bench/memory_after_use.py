#!/usr/bin/python3
"""Measures how much memory the program keeps after a card has left, and how soon it gives back the
rest, on a private desktop with the software renderer.

  bench/memory_after_use.py [--binary build/release/bin/vantle] [--sizes 2560x1440,3840x2160]
                            [--tiles 1,40] [--rounds 2] [--moments 1,5,20]

No other program that uses Qt should run meanwhile: each figure is printed with the memory that is
shared with others.
"""

import argparse
import pathlib
import statistics
import sys
import time

REPOSITORY = pathlib.Path(__file__).resolve().parents[1]
sys.path[:0] = [str(REPOSITORY / "scripts"), str(REPOSITORY / "tests/desktop")]
sys.dont_write_bytecode = True

import readings  # noqa: E402
from desktop_figures import COLOURS, screenshot_like, size  # noqa: E402
from privatedesktop import PrivateDesktop, Program, Rectangle, wait_until  # noqa: E402

REST = 2.0


def numbers(text):
    return [int(number) for number in text.split(",")]


class Measurement:
    """One run of the program, with pictures of one size."""

    def __init__(self, arguments, desktop, size_of_pictures):
        self._arguments = arguments
        self._desktop = desktop
        self._pictures = [screenshot_like(size_of_pictures, colour) for colour in COLOURS]
        self._vantle = Program(arguments.binary, desktop)
        self._saved = 0
        self._first_frames = []

    def run(self):
        # With this setting the card stays until it is dismissed.
        self._vantle.write_settings(dismissAfter="0")
        self._vantle.start_watching()
        try:
            time.sleep(REST)
            self._say("before the first capture")
            for tiles in self._arguments.tiles:
                for _ in range(self._arguments.rounds):
                    self._round(tiles)
        finally:
            self._vantle.stop()
        times = ", ".join(f"{seconds * 1000:.0f}" for seconds in self._first_frames)
        print(f"  a file is complete to the card's first frame: {times} ms; median of those after "
              f"the first {statistics.median(self._first_frames[1:]) * 1000:.0f} ms", flush=True)

    def _round(self, tiles):
        self._first_frames.append(self._time_first_frame())
        for _ in range(tiles - 1):
            self._save()
        wait_until(lambda: len(self._vantle.shown_counts()) == self._saved, "all are shown", 120)
        time.sleep(REST)
        self._say(f"with {tiles} tiles")
        self._vantle.command("--dismiss")
        wait_until(lambda: self._desktop.screen.panel() is None, "the card leaves")
        left = time.monotonic()
        for moment in self._arguments.moments:
            time.sleep(max(0.0, left + moment - time.monotonic()))
            self._say(f"{moment} s after {tiles} tiles have left")

    def _save(self):
        picture = self._pictures[self._saved % len(self._pictures)]
        self._saved += 1
        # The file is renamed when it is complete, so that the time the program takes to notice this
        # is not measured.
        complete = self._desktop.home / "complete.png"
        complete.write_bytes(picture)
        complete.rename(self._desktop.home / "Desktop" / f"shot {self._saved}.png")

    def _time_first_frame(self):
        screen = self._desktop.screen
        work_area = screen.work_area()
        area = Rectangle(work_area.right - 800, work_area.bottom - 330, 800, 330)
        before = screen.screenshot(area).tobytes()
        self._save()
        complete = time.monotonic()
        wait_until(lambda: screen.screenshot(area).tobytes() != before, "the card", interval=0.001)
        return time.monotonic() - complete

    def _say(self, when):
        pid = self._vantle.pid
        memory = readings.memory(pid)
        parts = ", ".join(f"{memory[kind]:.1f} {kind}" for kind in memory if kind != "all")
        sharers = len(readings.sharers(pid))
        shared = f"; shared with {sharers} other programs" if sharers else ""
        print(f"  {when:<32} {memory['all']:6.1f} MiB ({parts}){shared}", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binary", default=str(REPOSITORY / "build/release/bin/vantle"))
    parser.add_argument("--sizes", default="2560x1440,3840x2160")
    parser.add_argument("--tiles", type=numbers, default=[1, 40])
    parser.add_argument("--rounds", type=int, default=2)
    parser.add_argument("--moments", type=numbers, default=[1, 5, 20])
    arguments = parser.parse_args()
    for text in arguments.sizes.split(","):
        print(f"pictures of {text}")
        with PrivateDesktop() as desktop:
            desktop.screen.pointer.move(20, 400)
            Measurement(arguments, desktop, size(text)).run()


if __name__ == "__main__":
    main()
