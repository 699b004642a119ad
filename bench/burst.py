#!/usr/bin/python3
"""Measures how long the program takes to answer while hundreds of screenshots are saved at once, on
a private desktop.

  bench/burst.py [--binary build/release/bin/vantle] [--files 500] [--size 2560x1440]
                 [--seconds 20] [--json FILE] [--plot FILE.svg]

While the pointer moves over the card, two things are timed again and again: a question over the
bus, which waits for the same thread as the pointer's moves, and `vantle --dismiss`, as a whole
process. On a machine that is busy with other things, the processor time that the thread has used
until the answer tells more.
"""

import argparse
import json
import pathlib
import statistics
import sys
import threading
import time

REPOSITORY = pathlib.Path(__file__).resolve().parents[1]
sys.path[:0] = [str(REPOSITORY / "scripts"), str(REPOSITORY / "tests/desktop")]
sys.dont_write_bytecode = True

import curves  # noqa: E402
from desktop_figures import COLOURS, screenshot_like, size  # noqa: E402
from privatedesktop import PrivateDesktop, Program  # noqa: E402
from privatedesktop.screen import Screen  # noqa: E402
from remote import Remote  # noqa: E402

WANTED = 0.1  # seconds
KINDS = {
    "bus": "call over the bus, ms",
    "work": "processor time of the main thread during the call, ms",
    "command": "vantle --dismiss as a process, ms",
}


class Burst:
    def __init__(self, arguments, desktop):
        self._arguments = arguments
        self._desktop = desktop
        self._vantle = Program(arguments.binary, desktop, environment={"VANTLE_DEBUG": None})
        self._remote = Remote(desktop)
        self._is_over = threading.Event()
        self._begin = 0.0
        self.points = {kind: [] for kind in KINDS}

    def run(self):
        self._vantle.write_settings(dismissAfter="0")
        self._vantle.start()
        self._remote.wait_until_watching()
        others = [threading.Thread(target=self._dismiss), threading.Thread(target=self._wander)]
        try:
            self._save_all()
            for other in others:
                other.start()
            self._ask()
        finally:
            self._is_over.set()
            for other in others:
                other.join()
            self._vantle.stop()

    def _save_all(self):
        pictures = [screenshot_like(self._arguments.size, colour) for colour in COLOURS]
        staging = self._desktop.home / "staging"
        staging.mkdir()
        files = [staging / f"shot {number}.png" for number in range(self._arguments.files)]
        for number, file in enumerate(files):
            file.write_bytes(pictures[number % len(pictures)])
        self._begin = time.monotonic()
        for file in files:
            file.rename(self._desktop.home / "Desktop" / file.name)

    def _note(self, kind, begin, seconds):
        self.points[kind].append((begin - self._begin, seconds * 1000))

    def _worked(self):
        """Returns the seconds that the program's main thread has run on a processor."""
        pid = str(self._vantle.pid)
        statistics_of_thread = pathlib.Path("/proc", pid, "task", pid, "schedstat").read_text()
        return int(statistics_of_thread.split()[0]) / 1e9

    def _ask(self):
        while time.monotonic() - self._begin < self._arguments.seconds:
            begin, worked = time.monotonic(), self._worked()
            self._remote.ask("status")
            self._note("bus", begin, time.monotonic() - begin)
            self._note("work", begin, self._worked() - worked)
            time.sleep(0.05)

    def _dismiss(self):
        while not self._is_over.wait(0.5):
            begin = time.monotonic()
            self._vantle.command("--dismiss")
            self._note("command", begin, time.monotonic() - begin)

    def _wander(self):
        """Moves the pointer over the card's tiles, like a person who looks for one of them."""
        screen = Screen(self._desktop.environment["DISPLAY"])
        area = screen.work_area()
        step = 0
        while not self._is_over.wait(0.02):
            step = (step + 13) % 700
            screen.pointer.move(area.right - 40 - step, area.bottom - 120)
        screen.close()


def summary(points):
    times = sorted(value for _, value in points)
    if not times:
        return "not measured"
    late = sum(value > WANTED * 1000 for value in times)
    nearly_all = times[int(0.95 * (len(times) - 1))]
    return (f"median {statistics.median(times):.0f} ms, 95 % {nearly_all:.0f} ms, "
            f"worst {times[-1]:.0f} ms; {late} of {len(times)} took over {WANTED * 1000:.0f} ms")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binary", default=str(REPOSITORY / "build/release/bin/vantle"))
    parser.add_argument("--files", type=int, default=500)
    parser.add_argument("--size", type=size, default=(2560, 1440), help="size of the screenshots")
    parser.add_argument("--seconds", type=float, default=20, help="how long to measure")
    parser.add_argument("--json", type=pathlib.Path)
    parser.add_argument("--plot", type=pathlib.Path)
    arguments = parser.parse_args()
    with PrivateDesktop() as desktop:
        burst = Burst(arguments, desktop)
        burst.run()
    for kind, label in KINDS.items():
        print(f"{label}: {summary(burst.points[kind])}")
    if arguments.json:
        arguments.json.write_text(json.dumps(burst.points) + "\n")
    if arguments.plot:
        bands = [(label, burst.points[kind], WANTED * 1000) for kind, label in KINDS.items()]
        arguments.plot.write_text(curves.picture(bands, "seconds after the files were saved"))


if __name__ == "__main__":
    main()
