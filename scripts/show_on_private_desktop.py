#!/usr/bin/python3
"""Starts Vantle on a private desktop, takes a screenshot there, and saves a picture of the
screen."""

import argparse
import pathlib
import shutil
import signal
import sys
import time

from privatedesktop import (
    DesktopFailure,
    PrivateDesktop,
    Program,
    WaitTimeout,
    wait_until,
    wait_until_still,
)
from privatedesktop.scene import show_scene


INTERRUPTED_EXIT_STATUS = 130


class Interrupted(BaseException):
    """Raised when the user or the system asks us to end."""


def interrupt(*_):
    raise Interrupted


def say(text):
    bold, plain = ("\033[1m", "\033[0m") if sys.stdout.isatty() else ("", "")
    print(f"{bold}==>{plain} {text}", flush=True)


def take_screenshot(desktop):
    folder = desktop.home / "Desktop"
    say("Taking a screenshot with scrot into the watched folder")
    desktop.run("scrot", time.strftime("Screenshot %Y-%m-%d %H.%M.%S.png"), cwd=folder)


def wait_for_tile(desktop, vantle):
    """Waits until the panel is there, shows something, and no longer moves."""

    def panel():
        if not vantle.is_running():
            status = vantle.exit_status()
            raise DesktopFailure(f"Vantle ended with status {status} before its panel appeared")
        return desktop.screen.panel()

    before = desktop.screen.screenshot()
    area = wait_until(panel, "the panel appears").frame
    empty = before.crop(area.box).tobytes()

    def picture():
        return desktop.screen.screenshot(area).tobytes()

    wait_until(lambda: picture() != empty, "the card appears on the panel")
    wait_until_still(picture, "the card")


def write_picture(desktop, path):
    path.parent.mkdir(parents=True, exist_ok=True)
    desktop.screen.screenshot().save(path)
    say(f"The picture of the screen is in {path}")


def keep_running(desktop, vantle):
    say("Vantle keeps running on the private desktop. Ctrl-C ends it.")
    say(f"  its display: DISPLAY={desktop.environment['DISPLAY']}")
    say(f"  the folder it watches: {desktop.home / 'Desktop'}")
    while vantle.is_running():
        time.sleep(1)
    raise DesktopFailure("Vantle ended unexpectedly")


def show(desktop, vantle, arguments):
    show_scene(desktop)
    say("Starting Vantle")
    vantle.write_settings()
    vantle.start_watching()
    take_screenshot(desktop)
    wait_for_tile(desktop, vantle)
    write_picture(desktop, arguments.picture)
    if not arguments.once:
        keep_running(desktop, vantle)


def report(problem, logs):
    print(f"Error: {problem}", file=sys.stderr)
    log = logs / "vantle.log"
    if log.exists():
        print(f"--- the end of {log} ---", file=sys.stderr)
        print("".join(log.read_text(errors="replace").splitlines(True)[-40:]), file=sys.stderr)
    print(f"  The logs of all programs of the private desktop are in {logs}.", file=sys.stderr)


def keep_logs(desktop, logs):
    logs.mkdir(parents=True, exist_ok=True)
    for log in desktop.log_folder.iterdir():
        shutil.copy(log, logs)


def run(arguments):
    say("Starting a private desktop: Xvfb, openbox, picom, trayer")
    with PrivateDesktop() as desktop:
        vantle = Program(arguments.binary, desktop)
        try:
            show(desktop, vantle, arguments)
        finally:
            vantle.stop()
            keep_logs(desktop, arguments.logs)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--binary", required=True)
    parser.add_argument("--picture", required=True, type=pathlib.Path)
    parser.add_argument("--logs", required=True, type=pathlib.Path)
    parser.add_argument("--once", action="store_true")
    arguments = parser.parse_args()
    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, interrupt)
    (arguments.logs / "vantle.log").unlink(missing_ok=True)
    try:
        run(arguments)
    except (DesktopFailure, WaitTimeout, AssertionError, OSError) as problem:
        report(problem, arguments.logs)
        return 1
    except Interrupted:
        say("Ended.")
        return INTERRUPTED_EXIT_STATUS if arguments.once else 0
    return 0


sys.exit(main())
