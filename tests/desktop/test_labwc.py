"""The card under labwc, which stacks windows as Openbox does."""

import pytest

from conftest import require_peer
from labwc_desktop import LabwcDesktop
from privatedesktop import WaitTimeout
from wayland_checks import (
    beside_card,
    check_above_a_full_screen_window,
    check_clicks_count_under_a_pointer_at_rest,
    check_clicks_pass,
    check_copied_by_itself,
    check_corner,
    check_dragged_into_a_native_window,
    check_ends_with_compositor,
    check_escape_ends_a_drag,
    check_flies_back,
    check_focus_stays,
    check_idle,
    check_keyboard_on_request,
    check_on_every_workspace,
    check_pasted,
    check_speaks_wayland,
    click_through,
    outside_panel,
    press,
    program_on,
    show_one,
)
from wayland_desktop import NativeWindow

pytestmark = pytest.mark.desktop(tray=False, compositor=False)


@pytest.fixture
def labwc(desktop):
    require_peer("labwc", package="labwc")
    require_peer("Xwayland")
    return LabwcDesktop(desktop)


@pytest.fixture
def vantle(labwc, binary):
    with program_on(labwc, binary) as program:
        yield program


def test_it_speaks_wayland_there_and_says_so(vantle):
    check_speaks_wayland(vantle)


def test_the_card_stands_in_its_corner(labwc, vantle):
    check_corner(labwc, vantle)


def test_above_a_full_screen_window(labwc, vantle):
    check_above_a_full_screen_window(labwc, vantle)


def test_on_every_workspace(labwc, vantle):
    def switch():
        labwc.screen.keyboard.hold("Super_L")
        labwc.screen.keyboard.press("Right")
        labwc.screen.keyboard.let_go("Super_L")

    check_on_every_workspace(labwc, vantle, switch)


def test_clicks_outside_the_card_reach_the_window_underneath(labwc, vantle):
    check_clicks_pass(labwc, vantle, outside_panel, beside_card)


def test_clicks_count_when_the_card_comes_under_a_pointer_at_rest(labwc, vantle):
    check_clicks_count_under_a_pointer_at_rest(labwc, vantle)


def test_the_focus_stays_where_one_types(labwc, vantle):
    check_focus_stays(labwc, vantle)


def test_the_keyboard_comes_when_it_is_asked_for_and_goes_back(labwc, vantle):
    check_keyboard_on_request(labwc, vantle)


def test_dragged_into_a_native_window(labwc, vantle):
    check_dragged_into_a_native_window(labwc, vantle)


def test_dropped_where_nobody_takes_it_it_flies_back_and_the_next_click_counts(labwc, vantle):
    window = NativeWindow(labwc, "--takes-no-files")
    check_flies_back(labwc, vantle, (300, 300), (300, 300))
    click_through(labwc, window, [(320, 320)])


@pytest.mark.xfail(strict=True, raises=WaitTimeout, reason="labwc gives nobody the keys of a drag")
def test_escape_ends_a_drag(labwc, vantle):
    check_escape_ends_a_drag(labwc, vantle)


def test_native_programs_paste_what_was_copied(labwc, vantle):
    require_peer("wl-paste")
    vantle.start_watching()
    press(labwc, show_one(labwc, vantle), "copy")
    check_pasted(labwc)


def test_what_is_copied_by_itself_reaches_the_clipboard(labwc, binary):
    require_peer("wl-paste")
    check_copied_by_itself(labwc, binary)


def test_grim_is_noticed(labwc, vantle):
    require_peer("grim")
    vantle.start_watching()
    labwc.run("grim", labwc.home / "Desktop/grim.png")
    vantle.wait_for_log("captured grim.png")


def test_the_end_of_the_compositor_ends_it(labwc, vantle):
    check_ends_with_compositor(labwc, vantle, labwc.end)


def test_idle_it_does_nothing(labwc, vantle):
    check_idle(labwc, vantle)
