"""What tests of the card on Wayland desktops share."""

import contextlib

from panel_checks import encoded, expected_frame
from pictures import RED, YELLOW, is_one_pattern, mask_of, pattern
from privatedesktop import Program, Rectangle, wait_until, wait_until_still


@contextlib.contextmanager
def program_on(desktop, binary, environment=None, **settings):
    """Vantle, not started yet, as the desktop's user starts it."""
    program = Program(desktop.as_user(binary), desktop, environment)
    program.write_settings(
        **{"hasExplainedMissingTray": "true", "removeAfterUse": "true", **settings}
    )
    desktop.give_to_user()
    try:
        yield program
    finally:
        program.stop()


def corner(desktop):
    return expected_frame(Rectangle(0, 0, *desktop.screen.size), "bottomRight")


def show_one(desktop, vantle, name="shot.png"):
    """Returns where its tile stands on the screen."""
    (desktop.home / "Desktop" / name).write_bytes(encoded(pattern()))
    vantle.wait_for_log(f"captured {name}")
    frame = corner(desktop)
    wait_until(lambda: is_one_pattern(desktop.screen.screenshot(frame)), "the tile stands")
    picture = wait_until_still(lambda: desktop.screen.screenshot(frame), "the card")
    first, last = mask_of(picture, RED).getbbox(), mask_of(picture, YELLOW).getbbox()
    width, height = last[2] - first[0], last[3] - first[1]
    return Rectangle(frame.x + first[0], frame.y + first[1], width, height)


def on_glass(tile):
    """A point of the card, and not of its tile."""
    return tile.centre[0], tile.y - 5


def click_on_glass(desktop, vantle, tile):
    before = vantle.log_text().count("host mouseDown")
    desktop.screen.pointer.click(*on_glass(tile))
    vantle.wait_for_log("host mouseDown", times=before + 1)


def click_through(desktop, window, points):
    """Clicks there, and waits until the window underneath has got all of them, and no others."""
    for number, point in enumerate(points, start=1):
        desktop.screen.pointer.click(*point)
        wait_until(lambda: len(window.clicks()) == number, f"the click at {point} arrives")
    assert window.clicks() == points
