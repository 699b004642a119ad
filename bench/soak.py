#!/usr/bin/python3
"""Tells whether the program uses more and more resources while it handles thousands of captures, on
a private desktop. Does with them everything that a user can do, and compares its use of resources
after the first hundred with that at the end.

  bench/soak.py [--binary build/release/bin/vantle] [--captures 20000] [--minutes 600]
                [--json FILE] [--plot FILE.svg]

It ends after so many captures or minutes, whichever comes first, or at once if the program ends.
"""

import argparse
import json
import pathlib
import shutil
import statistics
import sys
import time

REPOSITORY = pathlib.Path(__file__).resolve().parents[1]
sys.path[:0] = [str(REPOSITORY / "scripts"), str(REPOSITORY / "tests/desktop")]
sys.dont_write_bytecode = True

import curves  # noqa: E402
import readings  # noqa: E402
from desktop_figures import size  # noqa: E402
from panel_checks import card_of, encoded  # noqa: E402
from pictures import pattern  # noqa: E402
from privatedesktop import PrivateDesktop, Program, WaitTimeout, wait_until  # noqa: E402
from remote import Remote  # noqa: E402
from using import press_button, select_all, tile_of  # noqa: E402

COUNTDOWN = 5  # seconds
PIN = 138  # from the card's right edge, like the positions in using.BUTTONS
RELEASED = 3.0  # seconds after the card has left
WARM_UP = 100
KINDS = {
    "MiB": "memory (PSS), MiB", "anonymous": "anonymous memory, MiB",
    "descriptors": "descriptors", "threads": "threads", "watches": "inotify watches",
    "names": "names on the bus", "processes": "processes that it started",
}  # fmt: skip
# How much more the last quarter may use than the first; 0 for kinds that are not listed.
ALLOWED = {"MiB": 2.0, "anonymous": 2.0}


class Soak:
    def __init__(self, arguments, desktop):
        self._arguments = arguments
        self._desktop = desktop
        self._folder = desktop.home / "Desktop"
        self._vantle = Program(arguments.binary, desktop, environment={"VANTLE_DEBUG": None})
        self._remote = Remote(desktop)
        self._picture = encoded(pattern(arguments.size))
        self._saved = 0
        self.done = {}
        self.missed = []
        self.samples = []

    def run(self):
        self._vantle.write_settings(dismissAfter=str(COUNTDOWN), removeAfterUse="true",
                                    deleteAfterUse="false")
        self._vantle.start()
        self._remote.wait_until_watching()
        end = time.monotonic() + self._arguments.minutes * 60
        try:
            while self._saved < self._arguments.captures and time.monotonic() < end:
                self._cycle()
        finally:
            self._vantle.stop()

    def _cycle(self):
        for action, count in (
            (self.copy, 1), (self.open, 1), (self.trash, 1), (self.pin, 1), (self.drag, 1),
            (self.trash_selected, 3), (self.clear_all, 6), (self.count_down, 10),
            (self.dismiss, self._arguments.crowd),
        ):  # fmt: skip
            self._show(count)
            action()
            self._wait_until_gone(action.__name__)
            self.done[action.__name__] = self.done.get(action.__name__, 0) + count
        self._clean_up()
        self._sample()

    def _wait_until_gone(self, action):
        def is_gone():
            return self._desktop.screen.panel() is None

        try:
            wait_until(is_gone, "the card leaves", limit=15)
        except WaitTimeout:
            # On a busy machine a blind click sometimes misses its tile.
            self.missed.append(action)
            self._remote.ask("dismiss")
            wait_until(is_gone, f"the card that {action} has left is dismissed", limit=60)

    def _show(self, count):
        for _ in range(count):
            self._saved += 1
            (self._folder / f"shot {self._saved}.png").write_bytes(self._picture)
        newest = min(count, 40)
        wait_until(lambda: self._is_running() and self._remote.captures() == newest,
                   f"{newest} captures stand", limit=120, interval=0.05)

    def _is_running(self):
        if not self._vantle.is_running():
            sys.exit(f"The program ended with status {self._vantle.exit_status()}:\n"
                     + self._vantle.log_text()[-2000:])
        return True

    def _card(self):
        """Returns the card when it has reached its final size."""
        time.sleep(0.8)
        panel = wait_until(self._desktop.screen.panel, "the panel stands")
        return card_of(self._desktop, panel)

    def copy(self):
        press_button(self._desktop, self._card(), "copy")
        self._leave_with_pointer()

    def open(self):
        self._desktop.screen.pointer.click(*tile_of(self._card()))
        self._leave_with_pointer()

    def trash(self):
        press_button(self._desktop, self._card(), "trash")
        self._leave_with_pointer()

    def pin(self):
        card = self._card()
        self._desktop.screen.pointer.click(card.right - PIN, card.y + 227)
        self._leave_with_pointer()
        time.sleep(COUNTDOWN + 1)
        if self._remote.captures() != 1:
            raise WaitTimeout("a pinned capture did not stay")
        self._remote.ask("dismiss")

    def drag(self):
        """Drags a capture onto the desktop, which refuses it, so that it flies back."""
        start = tile_of(self._card())
        self._desktop.screen.pointer.drag(start, (400, 300), steps=30)
        time.sleep(1)
        self._remote.ask("dismiss")

    def trash_selected(self):
        """Selects and deletes captures, few enough that all of them are visible."""
        self._select()
        self._desktop.screen.keyboard.press("Delete")

    def clear_all(self):
        self._select()
        self._desktop.screen.keyboard.press("Escape")
        self._desktop.screen.keyboard.press("Escape")

    def _select(self):
        select_all(self._desktop, self._card())
        self._remote.ask("focus-panel")
        time.sleep(0.2)
        self._leave_with_pointer()

    def count_down(self):
        time.sleep(COUNTDOWN)

    def dismiss(self):
        self._remote.ask("dismiss")

    def _leave_with_pointer(self):
        self._desktop.screen.pointer.move(20, 400)

    def _clean_up(self):
        for file in self._folder.iterdir():
            file.unlink()
        shutil.rmtree(pathlib.Path(self._desktop.environment["XDG_DATA_HOME"], "Trash"),
                      ignore_errors=True)

    def _sample(self):
        time.sleep(RELEASED)
        pid = self._vantle.pid
        memory = readings.memory(pid)
        sample = {
            "captures": self._saved, "MiB": memory["all"], "anonymous": memory["anonymous"],
            "descriptors": readings.descriptors(pid), "threads": readings.threads(pid),
            "watches": readings.watches(pid), "names": self._remote.names_of(pid),
            "processes": len(readings.children(pid)), "sharers": len(readings.sharers(pid)),
        }  # fmt: skip
        self.samples.append(sample)
        print(json.dumps(sample), file=sys.stderr, flush=True)


def verdict(samples, kind):
    """Tells whether the last quarter uses no more than the first one, counted after WARM_UP
    captures."""
    values = [one[kind] for one in samples if one["captures"] > WARM_UP]
    quarter = max(1, len(values) // 4)
    first, last = statistics.median(values[:quarter]), statistics.median(values[-quarter:])
    word = "flat" if last - first <= ALLOWED.get(kind, 0) else "GROWS"
    return f"{word:<6} {KINDS[kind]}: {first:.1f}, at the end {last:.1f}"


def bands(samples):
    return [(label, [(one["captures"], one[kind]) for one in samples], None)
            for kind, label in KINDS.items()]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binary", default=str(REPOSITORY / "build/release/bin/vantle"))
    parser.add_argument("--captures", type=int, default=20000)
    parser.add_argument("--minutes", type=float, default=600)
    parser.add_argument("--crowd", type=int, default=200, help="captures at once in each round")
    parser.add_argument("--size", type=size, default=(1280, 800), help="size of the screenshots")
    parser.add_argument("--json", type=pathlib.Path)
    parser.add_argument("--plot", type=pathlib.Path)
    arguments = parser.parse_args()
    with PrivateDesktop() as desktop:
        opener = desktop.home / "bin"
        opener.mkdir()
        (opener / "xdg-open").write_text("#!/bin/sh\nexit 0\n")
        (opener / "xdg-open").chmod(0o755)
        desktop.environment["PATH"] = f"{opener}:{desktop.environment['PATH']}"
        soak = Soak(arguments, desktop)
        try:
            soak.run()
        finally:
            if arguments.json:
                arguments.json.write_text(json.dumps(soak.samples, indent=0) + "\n")
            if arguments.plot and soak.samples:
                arguments.plot.write_text(curves.picture(bands(soak.samples), "captures"))
    print(", ".join(f"{name} {count}" for name, count in soak.done.items()))
    print(f"the card had to be dismissed after {', '.join(soak.missed) or 'nothing'}")
    for kind in KINDS:
        print(verdict(soak.samples, kind))


if __name__ == "__main__":
    main()
