"""The card under a Wayland compositor, where it is drawn through XWayland."""

import shutil
import subprocess

import pytest

from conftest import require_peer
from panel_checks import encoded, expected_frame
from pictures import RED, YELLOW, is_one_pattern, mask_of, pattern
from privatedesktop import Program, Rectangle, WaitTimeout, wait_until, wait_until_still
from sway_desktop import NativeWindow, SwayDesktop

pytestmark = pytest.mark.desktop(tray=False, compositor=False)


@pytest.fixture
def sway(desktop):
    require_peer("sway")
    require_peer("Xwayland")
    return SwayDesktop(desktop)


@pytest.fixture
def vantle(sway, binary):
    program = Program(sway.as_user(binary), sway)
    program.write_settings(hasExplainedMissingTray="true", removeAfterUse="true")
    sway.give_to_user()
    yield program
    program.stop()


def corner(sway):
    return expected_frame(Rectangle(0, 0, *sway.screen.size), "bottomRight")


def show_one(sway, vantle):
    """Returns where its tile stands on the screen."""
    file = sway.home / "Desktop/shot.png"
    file.write_bytes(encoded(pattern()))
    vantle.wait_for_log("captured shot.png")
    frame = corner(sway)
    wait_until(lambda: is_one_pattern(sway.screen.screenshot(frame)), "the tile stands")
    picture = wait_until_still(lambda: sway.screen.screenshot(frame), "the card")
    first, last = mask_of(picture, RED).getbbox(), mask_of(picture, YELLOW).getbbox()
    width, height = last[2] - first[0], last[3] - first[1]
    return Rectangle(frame.x + first[0], frame.y + first[1], width, height)


def point_at(sway, point):
    """Moves the pointer there. Sway tells it to the windows with its next picture."""
    sway.screen.pointer.move(*point)
    frame = corner(sway)
    wait_until_still(lambda: sway.screen.screenshot(frame).tobytes(), "the card", readings=3)


def click(sway, point):
    point_at(sway, point)
    sway.screen.pointer.press()
    sway.screen.pointer.release()


def is_gone(sway):
    return mask_of(sway.screen.screenshot(corner(sway)), RED).getbbox() is None


def test_the_card_stands_in_its_corner(sway, vantle):
    vantle.start_watching()
    tile = show_one(sway, vantle)
    width, height = sway.screen.size
    assert 10 < width - tile.right < 40
    assert 50 < height - tile.bottom < 90


def test_above_a_full_screen_window(sway, vantle):
    NativeWindow(sway)
    vantle.start_watching()
    show_one(sway, vantle)


def check_clicks_arrive(sway, vantle, points_for):
    """That they do at these points, and not on the glass."""
    window = NativeWindow(sway)
    vantle.start_watching()
    tile = show_one(sway, vantle)
    beside = points_for(corner(sway), tile)
    for number, point in enumerate(beside, start=1):
        click(sway, point)
        wait_until(lambda: len(window.clicks()) == number, f"the click at {point} arrives")
    # When the last one has arrived, the one on the glass would have, too.
    click(sway, (tile.centre[0], tile.y - 5))
    click(sway, beside[0])
    wait_until(lambda: len(window.clicks()) > len(beside), "the last click arrives")
    assert window.clicks() == [*beside, beside[0]]


def test_clicks_outside_the_panel_reach_the_window_underneath(sway, vantle):
    check_clicks_arrive(sway, vantle, lambda frame, _: [
        (frame.x - 5, frame.centre[1]), (frame.centre[0], frame.y - 5), (300, 300),
    ])  # fmt: skip


def is_sway_1_7():
    if not shutil.which("sway"):
        return False
    told = subprocess.run(["sway", "--version"], stdout=subprocess.PIPE, text=True, check=True)
    return told.stdout.startswith("sway version 1.7")


@pytest.mark.xfail(
    is_sway_1_7(), strict=True, raises=WaitTimeout,
    reason="Sway 1.7 gives a window of X all clicks in its frame, also those that it does not take",
)  # fmt: skip
def test_clicks_beside_the_card_reach_the_window_underneath(sway, vantle):
    check_clicks_arrive(sway, vantle, lambda frame, tile: [
        (frame.x + 60, frame.y + 60), (tile.x - 24, tile.centre[1]), (tile.x, frame.y + 10),
    ])  # fmt: skip


def test_the_focus_stays_where_one_types(sway, vantle):
    window = NativeWindow(sway)
    vantle.start_watching()
    typed = ""

    def type_one():
        nonlocal typed
        typed += "x"
        sway.screen.keyboard.type("x")

    type_one()
    tile = show_one(sway, vantle)
    type_one()
    click(sway, (tile.centre[0], tile.y - 5))
    type_one()
    wait_until(lambda: window.typed() == typed, "all letters arrive")
    assert not window.has_lost_focus()


@pytest.mark.xfail(
    is_sway_1_7(), strict=True, raises=WaitTimeout,
    reason="In a drag, too, Sway 1.7 takes the pointer from a window of X that it leaves",
)  # fmt: skip
def test_dragged_into_a_native_window(sway, vantle):
    window = NativeWindow(sway)
    vantle.start_watching()
    tile = show_one(sway, vantle)
    pointer = sway.screen.pointer
    point_at(sway, tile.centre)
    pointer.press()
    pointer.move(tile.centre[0] - 8, tile.centre[1] - 8)
    vantle.wait_for_log("thumb drag begins")
    turn = 0

    def is_asked():
        nonlocal turn
        turn += 1
        pointer.move(300 + turn % 5, 300)
        return window.is_asked()

    wait_until(is_asked, "the window hears of the drag", interval=0.1)
    pointer.release()
    wait_until(window.dropped, "it is dropped")
    assert window.dropped() == [(sway.home / "Desktop/shot.png").as_uri()]
