"""A wheel and a flick of the pointer, on X11. XTEST has no touchpad; see test_swipe_wayland.py."""

import time

import pytest

from assistant import ENVIRONMENT, Assistant
from panel_checks import is_dismissed, show_several
from privatedesktop import Program, wait_until, wait_until_still


@pytest.fixture
def vantle(desktop, binary):
    """The program, which offers itself to screen readers."""
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings()
    yield program
    program.stop()


def move_slowly(pointer, start, way, steps, seconds):
    """Drags from there, with the button still held at the end. The speed of a hand needs real
    time."""
    pointer.move(*start)
    pointer.press()
    for step in range(1, steps + 1):
        time.sleep(seconds / steps)
        pointer.move(start[0] + way * step / steps, start[1])


def selected(desktop):
    return Assistant(desktop).in_state("selected")


def look(desktop):
    picture = desktop.screen.panel().frame
    return wait_until_still(lambda: desktop.screen.screenshot(picture).tobytes(), "the card")


def test_a_wheel_with_notches_dismisses_nothing(desktop, vantle, folder):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    pointer = desktop.screen.pointer
    for place in ((card.x + 60, card.y + 60), (card.centre[0], card.bottom - 5)):
        pointer.move(*place)
        before = look(desktop)
        for button in (4, 5, 6, 7):
            for _ in range(20):
                pointer.press(button)
                pointer.release(button)
        assert look(desktop) == before
    assert "captures: 2" in vantle.command("--status")[1]


def test_a_flick_to_the_near_edge_takes_the_card_away(desktop, vantle, folder):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    pointer = desktop.screen.pointer
    move_slowly(pointer, (card.x + 40, card.bottom - 5), 120, 8, 0.08)
    pointer.release()
    wait_until(lambda: is_dismissed(desktop), "the card goes")
    vantle.wait_for_log("swipe dismisses the card")


def test_in_a_left_corner_a_flick_goes_to_the_left(desktop, vantle, folder):
    vantle.write_settings(corner="bottomLeft")
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    pointer = desktop.screen.pointer
    move_slowly(pointer, (card.right - 60, card.bottom - 5), -120, 8, 0.08)
    pointer.release()
    wait_until(lambda: is_dismissed(desktop), "the card goes")


def test_a_flick_away_from_the_edge_draws_a_rubber_band(desktop, vantle, folder):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    pointer = desktop.screen.pointer
    move_slowly(pointer, (card.right - 60, card.bottom - 5), -120, 8, 0.08)
    pointer.release()
    look(desktop)
    assert "swipe dismisses" not in vantle.log_text() and not is_dismissed(desktop)


def test_a_slow_drag_selects(desktop, vantle, folder):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    pointer = desktop.screen.pointer
    # Between the two tiles' names and pictures lies nothing; the band must touch the pictures.
    start = card.x + 4, card.y + 40
    move_slowly(pointer, start, 120, 8, 0.6)
    pointer.release()
    wait_until(lambda: selected(desktop) == ["1.png"], "the first is selected")
    assert not is_dismissed(desktop)


def test_a_drag_that_stops_selects(desktop, vantle, folder):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    pointer = desktop.screen.pointer
    move_slowly(pointer, (card.x + 4, card.y + 40), 120, 8, 0.08)
    time.sleep(0.12)  # the hand stops before it lets go
    pointer.release()
    wait_until(lambda: selected(desktop) == ["1.png"], "the first is selected")
    assert not is_dismissed(desktop)
