"""The card under labwc, which stacks windows as Openbox does."""

import pytest

from conftest import require_peer
from labwc_desktop import LabwcDesktop
from pictures import RED, mask_of
from privatedesktop import WaitTimeout, wait_until
from trays import start_xfce_panel
from wayland_checks import (
    beside_card,
    check_above_a_full_screen_window,
    check_card_menu,
    check_clicks_count_under_a_pointer_at_rest,
    check_clicks_pass,
    check_copied_by_itself,
    check_corner,
    check_dragged_into_a_native_file_manager,
    check_dragged_into_a_native_window,
    check_dragged_into_a_web_page,
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
    check_stands_in,
    click_through,
    outside_panel,
    press,
    program_on,
    save,
    show_one,
    wait_for_bar,
)
from wayland_desktop import NativeWindow

pytestmark = pytest.mark.desktop(tray=False, compositor=False)


def two_outputs(test):
    """Uses two outputs, whose windows fit side by side."""
    room = pytest.mark.desktop(size=(2880, 900), tray=False, compositor=False)
    return room(pytest.mark.labwc(outputs=2)(test))


@pytest.fixture
def labwc(request, desktop):
    require_peer("labwc", package="labwc")
    require_peer("Xwayland")
    marker = request.node.get_closest_marker("labwc")
    return LabwcDesktop(desktop, **(marker.kwargs if marker else {}))


@pytest.fixture
def vantle(labwc, binary):
    with program_on(labwc, binary) as program:
        yield program


def test_it_uses_wayland_and_reports_that(vantle):
    check_speaks_wayland(vantle)


def test_the_card_is_in_its_corner(labwc, vantle):
    check_corner(labwc, vantle)


@pytest.mark.parametrize("edge", ["top", "bottom"])
@pytest.mark.parametrize("side", ["bottomRight", "bottomLeft", "topRight", "topLeft"])
def test_it_leaves_the_bar_free_in_each_corner(labwc, binary, side, edge):
    require_peer("xfce4-panel")
    start_xfce_panel(labwc, edge)
    check_stands_in(labwc, binary, wait_for_bar(labwc, edge), side)


def test_above_a_full_screen_window(labwc, vantle):
    check_above_a_full_screen_window(labwc, vantle)


def test_on_every_workspace(labwc, vantle):
    check_on_every_workspace(labwc, vantle, labwc.go_to_next_workspace)


def test_clicks_outside_the_card_reach_the_window_underneath(labwc, vantle):
    check_clicks_pass(labwc, vantle, outside_panel, beside_card)


def test_clicks_count_when_the_card_appears_under_a_resting_pointer(labwc, vantle):
    check_clicks_count_under_a_pointer_at_rest(labwc, vantle)


def test_the_focus_stays_where_the_user_types(labwc, vantle):
    check_focus_stays(labwc, vantle)


def test_the_card_gets_the_keyboard_on_request_and_gives_it_back(labwc, vantle):
    check_keyboard_on_request(labwc, vantle)


def test_the_menu_of_a_tile_renames_its_file(labwc, vantle):
    check_card_menu(labwc, vantle)


def test_the_preview_has_the_keyboard_while_it_is_open(labwc, vantle):
    check_preview(labwc, vantle)


def test_dragged_into_a_native_window(labwc, vantle):
    check_dragged_into_a_native_window(labwc, vantle)


def test_dragged_into_a_native_file_manager(labwc, vantle):
    require_peer("thunar")
    check_dragged_into_a_native_file_manager(labwc, vantle)


def test_dragged_into_a_web_page(labwc, vantle):
    require_peer("firefox-esr")
    check_dragged_into_a_web_page(labwc, vantle)


def test_a_refused_drop_flies_back_and_the_next_click_counts(labwc, vantle):
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


def test_an_automatic_copy_reaches_the_clipboard(labwc, binary):
    require_peer("wl-paste")
    check_copied_by_itself(labwc, binary)


def test_grim_is_noticed(labwc, vantle):
    require_peer("grim")
    vantle.start_watching()
    labwc.run("grim", labwc.home / "Desktop/grim.png")
    vantle.wait_for_log("captured grim.png")


def test_on_an_output_that_is_scaled(labwc, vantle):
    require_peer("wlr-randr")
    labwc.change_output("X11-1", "--scale", "1.5")
    check_scaled_by_a_half(labwc, vantle)


def shows_card(labwc, output):
    picture = labwc.screen.screenshot(labwc.area_of(output))
    return mask_of(picture, RED).getbbox() is not None


def show_on(labwc, output, name):
    """Saves a screenshot while the pointer is on that output."""
    labwc.screen.pointer.move(*labwc.area_of(output).centre)
    save(labwc, name)
    wait_until(lambda: shows_card(labwc, output), f"the card comes to {output}")


@two_outputs
def test_it_follows_the_pointer_from_output_to_output(labwc, vantle):
    vantle.start_watching()
    names = ["X11-1", "X11-2"]
    for number, place in enumerate((1, 0, 1)):
        show_on(labwc, names[place], f"{number}.png")
        wait_until(lambda: not shows_card(labwc, names[1 - place]), "it has left the other one")


@two_outputs
def test_it_survives_the_loss_of_its_outputs(labwc, vantle):
    require_peer("wlr-randr")
    vantle.start_watching()
    show_on(labwc, "X11-2", "shot.png")
    labwc.close_output("X11-2")
    wait_until(lambda: shows_card(labwc, "X11-1"), "it moves to the one that is left")
    labwc.change_output("X11-1", "--off")
    wait_until(lambda: not labwc.screen.client_list(), "there is none")
    labwc.change_output("X11-1", "--on")
    wait_until(labwc.screen.client_list, "there is one again")
    wait_until(lambda: shows_card(labwc, "X11-1"), "it stands there")


def test_it_ends_with_the_compositor(labwc, vantle):
    check_ends_with_compositor(labwc, vantle, labwc.end)


def test_it_does_nothing_when_idle(labwc, vantle):
    check_idle(labwc, vantle)
