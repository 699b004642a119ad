"""Two fingers on a touchpad, and a flick of the pointer, on a Wayland desktop."""

import time

import pytest

from conftest import require_peer
from pictures import RED, mask_of
from privatedesktop import wait_until, wait_until_still
from sway_desktop import SwayDesktop
from touchpad import HORIZONTAL, VERTICAL, Touchpad
from wayland_checks import corner, down_to_tile, is_gone, program_on, save, show_one

pytestmark = pytest.mark.desktop(tray=False, compositor=False)


@pytest.fixture
def sway(desktop):
    require_peer("sway")
    require_peer("Xwayland")
    return SwayDesktop(desktop)


@pytest.fixture
def vantle(sway, binary):
    with program_on(sway, binary) as program:
        program.start_watching()
        yield program


@pytest.fixture
def touchpad(sway):
    touchpad = Touchpad(sway)
    yield touchpad
    touchpad.close()


def captures_on(vantle):
    return int(vantle.command("--status")[1].split("captures: ")[1].split()[0])


def look(sway):
    """Returns a picture without what is below a tile, because the age of a capture changes."""
    frame = corner(sway)
    return wait_until_still(lambda: down_to_tile(sway.screen.screenshot(frame)).tobytes(),
                            "the card")  # fmt: skip


def point_at_background(sway, tile):
    sway.screen.pointer.move(tile.x + 10, tile.y - 6)


def left_end(sway):
    """Returns where the first tile begins; None if there is none in sight."""
    box = mask_of(sway.screen.screenshot(corner(sway)), RED).getbbox()
    return box and box[0]


def show_two(sway, vantle):
    for name in ("one.png", "two.png"):
        save(sway, name)
        vantle.wait_for_log(f"captured {name}")
    look(sway)
    frame = corner(sway)
    left, top, _, _ = mask_of(sway.screen.screenshot(frame), RED).getbbox()
    return frame.x + left, frame.y + top


def test_a_swipe_to_the_near_edge_takes_the_card_away(sway, vantle, touchpad):
    tile = show_one(sway, vantle)
    point_at_background(sway, tile)
    touchpad.move(x=120)
    touchpad.rest()
    touchpad.lift()
    wait_until(lambda: is_gone(sway), "the card goes")
    vantle.wait_for_log("swipe dismisses the card")
    wait_until(lambda: captures_on(vantle) == 0, "its captures are dropped")
    # The next card is in its place again.
    assert show_one(sway, vantle, "next.png") == tile


def test_the_card_follows_the_fingers_and_springs_back(sway, vantle, touchpad):
    tile = show_one(sway, vantle)
    point_at_background(sway, tile)
    place = left_end(sway)
    touchpad.move(x=70)
    wait_until(lambda: left_end(sway) > place + 50, "it follows")
    touchpad.rest()
    touchpad.lift()
    wait_until(lambda: left_end(sway) == place, "it springs back")
    assert "swipe dismisses" not in vantle.log_text()


def test_a_swipe_goes_on_when_the_card_has_left_the_pointer(sway, vantle, touchpad):
    tile = show_one(sway, vantle)
    sway.screen.pointer.move(tile.x - 8, tile.centre[1])
    place = left_end(sway)
    touchpad.move(x=90)
    wait_until(lambda: left_end(sway) > place + 50, "it follows")
    # Sway 1.7 looks for what is under the pointer only when the pointer moves.
    sway.screen.pointer.move(tile.x - 7, tile.centre[1])
    touchpad.move(x=40)
    touchpad.rest()
    touchpad.lift()
    wait_until(lambda: is_gone(sway), "the card goes")


def test_a_short_fast_swipe_takes_the_card_away(sway, vantle, touchpad):
    tile = show_one(sway, vantle)
    point_at_background(sway, tile)
    touchpad.move(x=60, steps=4)
    touchpad.lift()
    wait_until(lambda: is_gone(sway), "the card goes")


def test_away_from_the_edge_the_card_stays(sway, vantle, touchpad):
    tile = show_one(sway, vantle)
    point_at_background(sway, tile)
    place = left_end(sway)
    touchpad.move(x=-400)
    touchpad.lift()
    wait_until_still(lambda: left_end(sway), "the card")
    assert left_end(sway) == place and captures_on(vantle) == 1


@pytest.mark.parametrize("way", [-90, 90])
def test_a_swipe_up_or_down_takes_one_tile_away(sway, vantle, touchpad, way):
    x, y = show_two(sway, vantle)
    sway.screen.pointer.move(x + 40, y + 40)
    touchpad.move(y=way)
    touchpad.rest()
    touchpad.lift()
    vantle.wait_for_log("swipe dismisses a tile")
    wait_until(lambda: captures_on(vantle) == 1, "one is left")
    look(sway)
    assert not is_gone(sway)


def test_up_and_down_on_the_background_do_nothing(sway, vantle, touchpad):
    tile = show_one(sway, vantle)
    point_at_background(sway, tile)
    before = look(sway)
    for way in (-200, 200):
        touchpad.move(y=way)
        touchpad.lift()
    assert look(sway) == before and captures_on(vantle) == 1


def test_a_wheel_with_notches_dismisses_nothing(sway, vantle, touchpad):
    tile = show_one(sway, vantle)
    sway.screen.pointer.move(*tile.centre)
    before = look(sway)
    for axis in (HORIZONTAL, VERTICAL):
        touchpad.turn_wheel(axis, 20)
        touchpad.turn_wheel(axis, -20)
    assert look(sway) == before and captures_on(vantle) == 1


def test_a_row_scrolls_before_the_card_goes(sway, vantle, touchpad):
    for number in range(8):
        save(sway, f"{number}.png")
        vantle.wait_for_log(f"captured {number}.png")
    before = look(sway)
    frame = corner(sway)
    sway.screen.pointer.move(frame.right - 200, frame.bottom - 90)
    touchpad.move(x=3000, steps=30)
    touchpad.rest()
    touchpad.lift()
    scrolled = look(sway)
    assert scrolled != before and captures_on(vantle) == 8
    touchpad.move(x=150)
    touchpad.rest()
    touchpad.lift()
    vantle.wait_for_log("swipe dismisses the card")
    wait_until(lambda: is_gone(sway), "the card goes")


def test_a_flick_of_the_pointer_takes_the_card_away(sway, vantle):
    tile = show_one(sway, vantle)
    pointer = sway.screen.pointer
    start = tile.x + 10, tile.y - 6
    pointer.move(*start)
    pointer.press()
    for step in range(1, 9):
        time.sleep(0.01)  # as fast as a hand
        pointer.move(start[0] + 15 * step, start[1])
    pointer.release()
    wait_until(lambda: is_gone(sway), "the card goes")
    vantle.wait_for_log("swipe dismisses the card")


def test_through_xwayland_neither_fingers_nor_a_wheel_dismiss(sway, binary, touchpad):
    """XWayland does not tell fingers from a wheel."""
    with program_on(sway, binary, {"QT_QPA_PLATFORM": "xcb"}) as vantle:
        vantle.start_watching()
        tile = show_one(sway, vantle)
        for place in (tile.centre, (tile.x + 10, tile.y - 6)):
            sway.screen.pointer.move(*place)
            touchpad.move(x=200)
            touchpad.move(y=200)
            touchpad.lift()
            touchpad.turn_wheel(HORIZONTAL, -20)
            touchpad.turn_wheel(VERTICAL, -20)
        look(sway)
        assert captures_on(vantle) == 1
