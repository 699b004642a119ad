"""The card in KDE's Wayland session, whose compositor lets it choose its place."""

import pytest

from conftest import require_peer
from kwin_wayland_desktop import KWinDesktop
from pictures import is_one_pattern
from privatedesktop import Rectangle, wait_until, wait_until_still
from using import Drag
from wayland_checks import (
    check_pasted,
    click_on_glass,
    click_through,
    corner,
    is_gone,
    press,
    program_on,
    save,
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
    vantle.start_watching()
    tile = show_one(kwin, vantle)
    width, height = kwin.screen.size
    assert 10 < width - tile.right < 40
    assert 50 < height - tile.bottom < 90


def test_above_a_full_screen_window(kwin, vantle):
    NativeWindow(kwin)
    vantle.start_watching()
    show_one(kwin, vantle)


def test_stays_above_a_window_that_becomes_full_screen(kwin, vantle):
    vantle.start_watching()
    show_one(kwin, vantle)
    NativeWindow(kwin)
    frame = corner(kwin)
    wait_until_still(lambda: kwin.screen.screenshot().tobytes(), "the screen")
    assert is_one_pattern(kwin.screen.screenshot(frame))


def test_clicks_outside_the_card_reach_the_window_underneath(kwin, vantle):
    window = NativeWindow(kwin)
    vantle.start_watching()
    tile = show_one(kwin, vantle)
    click_on_glass(kwin, vantle, tile)
    frame = corner(kwin)
    click_through(kwin, window, [
        (frame.x - 5, frame.centre[1]), (frame.centre[0], frame.y - 5), (300, 300),
        (frame.x + 60, frame.y + 60), (tile.x - 24, tile.centre[1]), (tile.x, frame.y + 10),
    ])  # fmt: skip


def test_the_focus_stays_where_one_types(kwin, vantle):
    window = NativeWindow(kwin)
    vantle.start_watching()
    kwin.screen.keyboard.type("x")
    tile = show_one(kwin, vantle)
    kwin.screen.keyboard.type("y")
    click_on_glass(kwin, vantle, tile)
    kwin.screen.keyboard.type("z")
    wait_until(lambda: window.typed() == "xyz", "all letters arrive")
    assert not window.has_lost_focus()


def test_the_keyboard_comes_when_it_is_asked_for_and_goes_back(kwin, vantle):
    window = NativeWindow(kwin)
    vantle.start_watching()
    show_one(kwin, vantle)
    assert vantle.command("--focus-panel") == (0, "")
    wait_until(window.has_lost_focus, "the card has the keyboard")
    kwin.screen.keyboard.press("Escape")
    wait_until(lambda: is_gone(kwin), "the card goes")
    wait_until(window.has_focus, "the window has the keyboard again")
    kwin.screen.keyboard.type("x")
    wait_until(lambda: window.typed() == "x", "the letter arrives")


def test_dragged_into_a_native_window(kwin, vantle):
    window = NativeWindow(kwin)
    vantle.start_watching()
    tile = show_one(kwin, vantle)
    drag = Drag(kwin, vantle, tile.centre).hold_over(400, 300)
    around = Rectangle(200, 150, 700, 400)
    wait_until(lambda: is_one_pattern(kwin.screen.screenshot(around)), "the preview is there")
    assert drag.drop()
    wait_until(window.dropped, "it is dropped")
    assert window.dropped() == [(kwin.home / "Desktop/shot.png").as_uri()]
    wait_until(lambda: is_gone(kwin), "the tile is used up")


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
    NativeWindow(kwin)
    with program_on(kwin, binary, copyOnCapture="true") as vantle:
        vantle.start_watching()
        save(kwin, "shot.png")
        check_pasted(kwin)
