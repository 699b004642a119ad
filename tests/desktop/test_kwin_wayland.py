"""The card in KDE's Wayland session, whose compositor lets it choose its place."""

import pytest

from conftest import require_peer
from kwin_wayland_desktop import KWinDesktop
from pictures import is_one_pattern
from privatedesktop import wait_until, wait_until_still
from using import Drag
from wayland_checks import (
    beside_card,
    check_above_a_full_screen_window,
    check_clicks_pass,
    check_copied_by_itself,
    check_corner,
    check_dragged_into_a_native_window,
    check_focus_stays,
    check_keyboard_on_request,
    check_pasted,
    click_through,
    corner,
    outside_panel,
    press,
    program_on,
    show_one,
)
from wayland_desktop import NativeWindow

pytestmark = pytest.mark.desktop(tray=False, compositor=False)


@pytest.fixture
def kwin(desktop):
    require_peer("kwin_wayland")
    require_peer("Xwayland")
    return KWinDesktop(desktop)


@pytest.fixture
def vantle(kwin, binary):
    with program_on(kwin, binary) as program:
        yield program


def test_it_speaks_wayland_there_and_says_so(vantle):
    vantle.start_watching()
    status, text = vantle.command("--status")
    assert status == 0 and "display server: Wayland\n" in text


def test_the_card_stands_in_its_corner(kwin, vantle):
    check_corner(kwin, vantle)


def test_above_a_full_screen_window(kwin, vantle):
    check_above_a_full_screen_window(kwin, vantle)


def test_stays_above_a_window_that_becomes_full_screen(kwin, vantle):
    vantle.start_watching()
    show_one(kwin, vantle)
    NativeWindow(kwin)
    frame = corner(kwin)
    wait_until_still(lambda: kwin.screen.screenshot().tobytes(), "the screen")
    assert is_one_pattern(kwin.screen.screenshot(frame))


def test_clicks_outside_the_card_reach_the_window_underneath(kwin, vantle):
    check_clicks_pass(kwin, vantle, outside_panel, beside_card)


def test_the_focus_stays_where_one_types(kwin, vantle):
    check_focus_stays(kwin, vantle)


def test_the_keyboard_comes_when_it_is_asked_for_and_goes_back(kwin, vantle):
    check_keyboard_on_request(kwin, vantle)


def test_dragged_into_a_native_window(kwin, vantle):
    check_dragged_into_a_native_window(kwin, vantle)


def test_dropped_where_nobody_takes_it_it_flies_back_and_the_next_click_counts(kwin, vantle):
    window = NativeWindow(kwin, "--takes-no-files")
    vantle.start_watching()
    tile = show_one(kwin, vantle)
    assert not Drag(kwin, vantle, tile.centre).move(300, 300).drop()
    wait_until(lambda: is_one_pattern(kwin.screen.screenshot()), "the tile is back")
    whole = wait_until_still(lambda: kwin.screen.screenshot(), "the screen")
    assert is_one_pattern(whole)
    click_through(kwin, window, [(320, 320)])
    press(kwin, tile, "copy")
    vantle.wait_for_log("tap icon doc.on.doc")


def test_escape_ends_a_drag(kwin, vantle):
    window = NativeWindow(kwin)
    vantle.start_watching()
    tile = show_one(kwin, vantle)
    Drag(kwin, vantle, tile.centre).hold_over(400, 300)
    kwin.screen.keyboard.press("Escape")
    vantle.wait_for_log("thumb drag ended op=0")
    assert window.dropped() == []


def test_native_programs_paste_what_was_copied(kwin, vantle):
    require_peer("wl-paste")
    vantle.start_watching()
    press(kwin, show_one(kwin, vantle), "copy")
    check_pasted(kwin)


def test_what_is_copied_by_itself_reaches_the_clipboard(kwin, binary):
    require_peer("wl-paste")
    check_copied_by_itself(kwin, binary)
