#!/usr/bin/python3
"""Writes docs/pictures/tray-menu.png: the open menu of the tray icon, with the program as it is
built."""

import pathlib
import sys

REPOSITORY = pathlib.Path(__file__).resolve().parents[1]
sys.path.append(str(REPOSITORY / "tests/desktop"))

from panel_checks import is_dismissed  # noqa: E402
from privatedesktop import PrivateDesktop, Program, Rectangle  # noqa: E402
from privatedesktop import wait_until, wait_until_still  # noqa: E402
from privatedesktop.scene import landscape, show_scene  # noqa: E402
from trays import Icon, OwnMenu  # noqa: E402

CORNER = Rectangle(740, 0, 700, 470)
CAPTURES = {
    "Screenshot from 2026-11-20 17-58-03.png": (720, 450),
    "Portrait.png": (450, 720),
    "Evening.png": (960, 540),
}


def main():
    binary = REPOSITORY / "build/dev/bin/vantle"
    with PrivateDesktop() as desktop:
        vantle = Program(binary, desktop)
        vantle.write_settings()
        vantle.start_watching()
        show_scene(desktop)
        for name, size in CAPTURES.items():
            landscape(size).save(desktop.home / "Desktop" / name)
            vantle.wait_for_log(f"captured {name}")
        vantle.command("--dismiss")
        wait_until(lambda: is_dismissed(desktop), "the card goes")
        icon = Icon(desktop, "top")
        icon.wait()
        OwnMenu(desktop, icon)
        desktop.screen.keyboard.press("Down")
        wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the menu")
        desktop.screen.screenshot(CORNER).save(REPOSITORY / "docs/pictures/tray-menu.png")
        vantle.stop()


if __name__ == "__main__":
    main()
