"""Vantle on the whole Plasma desktop, as its user sees it."""

import pytest
from PIL import ImageChops

from conftest import require_peer
from pictures import GREEN, area_of
from plasma_desktop import PlasmaDesktop
from privatedesktop import Rectangle, wait_until, wait_until_still
from trays import Icon
from using import Drag, press_with_control
from wayland_checks import (
    beside_card,
    check_clicks_pass,
    check_corner,
    check_dragged_into_a_web_page,
    check_stands_in,
    corner,
    is_gone,
    press,
    program_on,
    show_one,
)

pytestmark = pytest.mark.desktop(tray=False, compositor=False)


@pytest.fixture
def plasma(desktop):
    for peer in ("plasmashell", "kwin_wayland", "Xwayland"):
        require_peer(peer)
    return PlasmaDesktop(desktop)


@pytest.fixture
def vantle(plasma, binary):
    with program_on(plasma, binary) as program:
        yield program


@pytest.fixture
def icon(plasma, vantle):
    vantle.start_watching()
    # The left half of the panel has icons of other programs.
    icon = Icon(plasma, "bottom", plasma.panel_height() + 8, left=plasma.size[0] // 2)
    icon.wait()
    return icon


@pytest.fixture
def dolphin(plasma):
    """The empty folder in the middle of a Dolphin window that is centred on the screen."""
    require_peer("dolphin")
    folder = plasma.home / "target"
    folder.mkdir()
    plasma.give_to_user()
    before = still_picture(plasma)
    plasma.run_program("dolphin", folder)
    wait_until(lambda: still_picture(plasma).tobytes() != before.tobytes(), "its window opens")
    return folder


def still_picture(plasma):
    """Returns a still picture of the screen without the panel, whose clock changes."""
    area = plasma.work_area()
    return wait_until_still(lambda: plasma.screen.screenshot(area), "the screen", readings=8)


def opened_menu(plasma, icon, button):
    """Clicks the icon, and returns the menu's frame and its picture."""
    before = still_picture(plasma)
    plasma.screen.pointer.click(*icon.middle, button=button)

    def change():
        return ImageChops.difference(before, still_picture(plasma)).getbbox()

    left, top, right, bottom = wait_until(change, "the menu opens")
    frame = Rectangle(left, top, right - left, bottom - top)
    return frame, plasma.screen.screenshot(frame)


def test_it_leaves_the_panel_free_in_each_corner(plasma, binary):
    for side in ("bottomRight", "bottomLeft", "topRight", "topLeft"):
        check_stands_in(plasma, binary, plasma.work_area(), side)


def test_the_card_is_above_the_panel(plasma, vantle):
    check_corner(plasma, vantle)


def test_clicks_beside_the_card_reach_the_window_underneath(plasma, vantle):
    check_clicks_pass(plasma, vantle, beside_card)


@pytest.mark.parametrize("button", [1, 3])
def test_the_menu_of_its_icon_opens_above_the_card(plasma, vantle, icon, button):
    show_one(plasma, vantle)
    menu, picture = opened_menu(plasma, icon, button)
    assert menu.height > 200
    # The tile behind the menu is not visible, but the menu's thumbnail is. It is larger in our own
    # menu, which the left button opens.
    assert (150 if button == 1 else 20) < area_of(picture, GREEN) < 2500
    # The last line, which covers the card.
    last = menu.centre[0], menu.bottom - 20
    assert last[1] > corner(plasma).y
    plasma.screen.pointer.click(*last)
    assert vantle.wait_for_end() == 0


def test_a_capture_of_the_menu_is_shown_again(plasma, vantle, icon):
    show_one(plasma, vantle)
    vantle.command("--dismiss")
    wait_until(lambda: is_gone(plasma), "the card goes")
    opened_menu(plasma, icon, 3)
    for key in ("Down", "Return"):
        plasma.screen.keyboard.press(key)
    wait_until(lambda: not is_gone(plasma), "it stands again")


def test_the_settings_open_in_front_with_the_keyboard(plasma, vantle, icon, dolphin):
    """The settings open in front of the window that had the keyboard."""
    middle = Rectangle(plasma.size[0] // 2 - 100, 150, 200, 400)

    def picture():
        return wait_until_still(lambda: plasma.screen.screenshot(middle).tobytes(), "the windows")

    before = picture()
    opened_menu(plasma, icon, 3)
    for key in ("Up", "Up", "Up", "Return"):
        plasma.screen.keyboard.press(key)
    wait_until(lambda: picture() != before, "they open")
    plasma.screen.keyboard.press("Escape")
    wait_until(lambda: picture() == before, "Escape closes them")


def test_dragged_into_a_web_page(plasma, vantle):
    require_peer("firefox-esr")
    check_dragged_into_a_web_page(plasma, vantle)


def in_dolphin(plasma):
    """Returns a point of Dolphin's folder, below the words that it is empty, which accept no
    drops."""
    width, height = plasma.screen.size
    return width // 2 + 150, height * 2 // 3


def drop_on_dolphin(plasma, vantle, tile):
    """Drops the tile, for which Dolphin opens a menu."""
    drag = Drag(plasma, vantle, tile.centre).hold_over(*in_dolphin(plasma))
    before = still_picture(plasma)
    plasma.screen.pointer.release()
    wait_until(lambda: still_picture(plasma).tobytes() != before.tobytes(), "its menu opens")
    return drag


def test_dragged_into_dolphin(plasma, vantle, dolphin):
    vantle.start_watching()
    drag = drop_on_dolphin(plasma, vantle, show_one(plasma, vantle))
    plasma.screen.keyboard.press("c")
    arrived = dolphin / "shot.png"
    wait_until(arrived.exists, "it arrives")
    original = (plasma.home / "Desktop/shot.png").read_bytes()
    wait_until(lambda: arrived.read_bytes() == original, "it is whole")
    assert drag.was_taken()
    wait_until(lambda: is_gone(plasma), "the tile is used up")


def test_a_drop_cancelled_in_dolphins_menu_does_not_count_as_use(plasma, binary, dolphin):
    with program_on(plasma, binary, deleteAfterUse="true") as vantle:
        vantle.start_watching()
        drag = drop_on_dolphin(plasma, vantle, show_one(plasma, vantle))
        plasma.screen.keyboard.press("Escape")
        assert not drag.was_taken()
        assert not is_gone(plasma)
        assert (plasma.home / "Desktop/shot.png").exists()


def test_pasted_into_dolphin(plasma, vantle, dolphin):
    vantle.start_watching()
    press(plasma, show_one(plasma, vantle), "copy")
    wait_until(lambda: is_gone(plasma), "the tile is used up")
    plasma.screen.pointer.click(*in_dolphin(plasma))
    press_with_control(plasma, "v")
    arrived = dolphin / "shot.png"
    wait_until(arrived.exists, "it arrives")
