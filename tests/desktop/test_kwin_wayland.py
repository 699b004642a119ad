"""The card in KDE's Wayland session, whose compositor lets it choose its place."""

import json

import pytest

from conftest import require_peer
from kwin_wayland_desktop import KWinDesktop
from pictures import is_one_pattern
from privatedesktop import wait_until_still
from wayland_checks import (
    beside_card,
    check_above_a_full_screen_window,
    check_card_menu,
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
    check_preview,
    check_scaled_by_a_half,
    check_speaks_wayland,
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
def kwin(request, desktop):
    require_peer("kwin_wayland")
    require_peer("Xwayland")
    marker = request.node.get_closest_marker("kwin")
    return KWinDesktop(desktop, **(marker.kwargs if marker else {}))


@pytest.fixture
def vantle(kwin, binary):
    with program_on(kwin, binary) as program:
        yield program


def test_it_uses_wayland_and_reports_that(vantle):
    check_speaks_wayland(vantle)


def test_the_card_is_in_its_corner(kwin, vantle):
    check_corner(kwin, vantle)


def test_above_a_full_screen_window(kwin, vantle):
    check_above_a_full_screen_window(kwin, vantle)


def test_stays_above_a_window_that_becomes_full_screen(kwin, vantle):
    vantle.start_watching()
    show_one(kwin, vantle)
    NativeWindow(kwin)
    wait_until_still(lambda: kwin.screen.screenshot().tobytes(), "the screen")
    assert is_one_pattern(kwin.screen.screenshot(corner(kwin)))


def test_clicks_outside_the_card_reach_the_window_underneath(kwin, vantle):
    check_clicks_pass(kwin, vantle, outside_panel, beside_card)


def test_clicks_count_when_the_card_appears_under_a_resting_pointer(kwin, vantle):
    check_clicks_count_under_a_pointer_at_rest(kwin, vantle)


def test_the_focus_stays_where_the_user_types(kwin, vantle):
    check_focus_stays(kwin, vantle)


def test_the_card_gets_the_keyboard_on_request_and_gives_it_back(kwin, vantle):
    check_keyboard_on_request(kwin, vantle)


def test_the_menu_of_a_tile_renames_its_file(kwin, vantle):
    check_card_menu(kwin, vantle, menu_takes_focus=False)


def test_the_preview_has_the_keyboard_while_it_is_open(kwin, vantle):
    check_preview(kwin, vantle)


def test_dragged_into_a_native_window(kwin, vantle):
    check_dragged_into_a_native_window(kwin, vantle)


def test_a_refused_drop_flies_back_and_the_next_click_counts(kwin, vantle):
    window = NativeWindow(kwin, "--takes-no-files")
    check_flies_back(kwin, vantle, (300, 300), (300, 300), comes_back=True)
    click_through(kwin, window, [(320, 320)])


def test_a_drag_onto_a_window_that_hangs_ends_when_the_pointer_comes_back(kwin, vantle):
    NativeWindow(kwin).hang()
    check_flies_back(kwin, vantle, (300, 300), comes_back=True)


def test_escape_ends_a_drag(kwin, vantle):
    check_escape_ends_a_drag(kwin, vantle)


def test_native_programs_paste_what_was_copied(kwin, vantle):
    require_peer("wl-paste")
    vantle.start_watching()
    press(kwin, show_one(kwin, vantle), "copy")
    check_pasted(kwin)


def test_an_automatic_copy_reaches_the_clipboard(kwin, binary):
    require_peer("wl-paste")
    check_copied_by_itself(kwin, binary)


def test_on_every_workspace(kwin, vantle):
    check_on_every_workspace(kwin, vantle, lambda: switch_to_new_workspace(kwin))


def switch_to_new_workspace(kwin):
    manager = "org.kde.KWin", "/VirtualDesktopManager", "org.kde.KWin.VirtualDesktopManager"
    kwin.run("busctl", "--user", "call", *manager, "createDesktop", "us", "1", "second")
    kwin.run("busctl", "--user", "set-property", *manager, "current", "s", second_workspace(kwin))


def second_workspace(kwin):
    """Returns KWin's name of the second workspace."""
    told = kwin.run("busctl", "--user", "--json=short", "get-property", "org.kde.KWin",
                    "/VirtualDesktopManager", "org.kde.KWin.VirtualDesktopManager", "desktops",
                    text=True).stdout  # fmt: skip
    [(_, identifier, _)] = [row for row in json.loads(told)["data"] if row[2] == "second"]
    return identifier


@pytest.mark.kwin(scale=1.5)
def test_on_an_output_that_is_scaled(kwin, vantle):
    check_scaled_by_a_half(kwin, vantle)


def test_it_ends_with_the_compositor(kwin, vantle):
    check_ends_with_compositor(kwin, vantle, kwin.end)


def test_it_does_nothing_when_idle(kwin, vantle):
    check_idle(kwin, vantle)
