"""The card in GNOME's Wayland session, where it is drawn through XWayland."""

import pathlib
import shutil
import subprocess

import pytest

from conftest import require_peer
from mutter_desktop import MutterDesktop
from pictures import is_one_pattern
from privatedesktop import Rectangle, WaitTimeout, wait_until
from using import Drag
from wayland_checks import (
    beside_card,
    check_above_a_full_screen_window,
    check_card_menu,
    check_clicks_count_under_a_pointer_at_rest,
    check_clicks_pass,
    check_clicks_pass_while_time_runs,
    check_corner,
    check_dragged_into_a_native_window,
    check_escape_ends_a_drag,
    check_flies_back,
    check_focus_stays,
    check_idle,
    check_keyboard_on_request,
    check_preview,
    check_on_every_workspace,
    outside_panel,
    press,
    program_on,
    save,
    show_one,
)
from wayland_desktop import NativeWindow

pytestmark = pytest.mark.desktop(tray=False, compositor=False)


def is_mutter(number):
    if not shutil.which("mutter"):
        return False
    told = subprocess.run(["mutter", "--version"], stdout=subprocess.PIPE, text=True, check=True)
    return told.stdout.startswith(f"mutter {number}.")


def fails_under_mutter(number, reason):
    return pytest.mark.xfail(is_mutter(number), strict=True, raises=WaitTimeout, reason=reason)


@pytest.fixture
def mutter(request, desktop):
    require_peer("mutter")
    require_peer("Xwayland")
    marker = request.node.get_closest_marker("mutter")
    return MutterDesktop(desktop, **(marker.kwargs if marker else {}))


@pytest.fixture
def vantle(mutter, binary):
    with program_on(mutter, binary) as program:
        yield program


def test_the_card_is_in_its_corner(mutter, vantle):
    check_corner(mutter, vantle)


def test_above_a_full_screen_window(mutter, vantle):
    check_above_a_full_screen_window(mutter, vantle)


def test_clicks_outside_the_panel_reach_the_window_underneath(mutter, vantle):
    check_clicks_pass(mutter, vantle, outside_panel)


def test_clicks_beside_the_card_reach_the_window_underneath(mutter, vantle):
    check_clicks_pass(mutter, vantle, beside_card)


def test_clicks_beside_the_card_pass_while_its_time_runs(mutter, binary):
    # Mutter 43 learns by timing which clicks pass, and may miss it while it is busy.
    check_clicks_pass_while_time_runs(mutter, binary, tries=2 if is_mutter(43) else 1)


def test_clicks_count_when_the_card_appears_under_a_resting_pointer(mutter, vantle):
    check_clicks_count_under_a_pointer_at_rest(mutter, vantle)


def test_the_focus_stays_where_the_user_types(mutter, vantle):
    check_focus_stays(mutter, vantle)


def test_the_card_gets_the_keyboard_on_request_and_gives_it_back(mutter, vantle):
    check_keyboard_on_request(mutter, vantle)


def test_the_menu_of_a_tile_renames_its_file(mutter, vantle):
    check_card_menu(mutter, vantle)


def test_the_preview_has_the_keyboard_while_it_is_open(mutter, vantle):
    check_preview(mutter, vantle)


def test_on_every_workspace(mutter, vantle):
    check_on_every_workspace(mutter, vantle, mutter.go_to_next_workspace)


@pytest.mark.desktop(size=(2880, 900), tray=False, compositor=False)
@pytest.mark.mutter(outputs=2)
def test_it_survives_the_loss_of_its_output(mutter, vantle):
    vantle.start_watching()
    mutter.screen.pointer.move(2000, 300)
    show_one(mutter, vantle)
    mutter.keep_first_output()
    first = Rectangle(0, 0, 1440, 900)
    wait_until(lambda: is_one_pattern(mutter.screen.screenshot(first)), "it stands on the other")


def wait_for_preview(mutter, x, y):
    around = Rectangle(x - 200, y - 150, 400, 300)
    wait_until(lambda: is_one_pattern(mutter.screen.screenshot(around)), "the preview follows")


def test_a_drag_is_promised_by_a_native_window_and_its_preview_follows(mutter, vantle):
    window = NativeWindow(mutter)
    vantle.start_watching()
    tile = show_one(mutter, vantle)
    drag = Drag(mutter, vantle, tile.centre)
    for place in ((400, 300), (700, 400)):
        drag.hold_over(*place)
        wait_for_preview(mutter, *place)
    assert window.is_asked()


def test_dragged_into_a_native_window(mutter, vantle):
    check_dragged_into_a_native_window(mutter, vantle)


def test_a_refused_drop_flies_back_and_the_next_click_counts(mutter, vantle):
    check_flies_back(mutter, vantle, (300, 300), (300, 300))


def test_a_drop_on_a_window_that_takes_no_files_flies_back(mutter, vantle):
    NativeWindow(mutter, "--takes-no-files")
    check_flies_back(mutter, vantle, (300, 300))


@fails_under_mutter(43, "It gives the keys to the window with the focus, which the card never has")
def test_escape_ends_a_drag(mutter, vantle):
    check_escape_ends_a_drag(mutter, vantle)


def pasted(mutter, *arguments):
    """Returns what a native program pastes; it takes the focus for a moment."""
    file = pathlib.Path(mutter.environment["TMPDIR"], "pasted")
    process = mutter.start("sh", "-c", f'wl-paste "$@" > "{file}"', "sh", *arguments)
    process.wait(20)
    return file.read_text().split()


def test_native_programs_paste_what_was_copied(mutter, vantle):
    require_peer("wl-paste")
    vantle.start_watching()
    tile = show_one(mutter, vantle)
    press(mutter, tile, "copy")
    vantle.wait_for_log("tap icon doc.on.doc")
    wait_until(lambda: "text/uri-list" in pasted(mutter, "--list-types"), "it is offered")
    types = pasted(mutter, "--list-types")
    assert {"image/png", "image/jpeg", "image/bmp", "x-special/gnome-copied-files"} <= set(types)
    file = mutter.home / "Desktop/shot.png"
    assert pasted(mutter, "--type", "text/uri-list") == [file.as_uri()]


def test_an_automatic_copy_reaches_the_clipboard(mutter, binary):
    require_peer("wl-paste")
    with program_on(mutter, binary, copyOnCapture="true") as vantle:
        vantle.start_watching()
        save(mutter, "shot.png")
        wait_until(lambda: "image/png" in pasted(mutter, "--list-types"), "it is offered")


def test_it_ends_with_the_compositor(mutter, vantle):
    vantle.start_watching()
    show_one(mutter, vantle)
    mutter.end()
    assert vantle.wait_for_end() == 1


def test_it_does_nothing_when_idle(mutter, vantle):
    check_idle(mutter, vantle)
