"""The card on a Wayland desktop whose compositor lets it choose its place."""

import io
import pathlib
import signal
import tempfile

import pytest
from PIL import Image

from conftest import require_peer
from pictures import RED, is_one_pattern, mask_of
from privatedesktop import Rectangle, WaitTimeout, wait_until, wait_until_still
from sway_desktop import SwayDesktop
from using import Drag
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
    corner,
    is_gone,
    outside_panel,
    pasted,
    press,
    program_on,
    save,
    show_one,
    type_letter_into,
    wait_for_bar,
)
from wayland_desktop import NativeWindow

pytestmark = pytest.mark.desktop(tray=False, compositor=False)

_BAR = """
bar {
    position %s
    status_command while echo bar; do sleep 60; done
}
"""


@pytest.fixture
def sway(request, desktop):
    require_peer("sway")
    require_peer("Xwayland")
    marker = request.node.get_closest_marker("sway")
    return SwayDesktop(desktop, *(marker.args if marker else ()))


@pytest.fixture
def vantle(sway, binary):
    with program_on(sway, binary) as program:
        yield program


def picture_around(sway, tile):
    """Returns a picture without the line below the tile, which shows how old the capture is."""
    around = Rectangle(tile.x - 30, tile.y - 60, tile.width + 50, tile.height + 60)
    return wait_until_still(lambda: sway.screen.screenshot(around).tobytes(), "the card")


def test_it_uses_wayland_and_reports_that(vantle):
    check_speaks_wayland(vantle)


def test_the_user_may_choose_x11(sway, binary):
    with program_on(sway, binary, {"QT_QPA_PLATFORM": "xcb"}) as vantle:
        vantle.start_watching()
        show_one(sway, vantle)
        assert "display server: X11 through XWayland\n" in vantle.command("--status")[1]


def test_the_card_is_in_its_corner(sway, vantle):
    check_corner(sway, vantle)


@pytest.mark.sway(_BAR % "top")
@pytest.mark.parametrize("side", ["bottomRight", "bottomLeft", "topRight", "topLeft"])
def test_it_leaves_the_bar_free_in_each_corner(sway, binary, side):
    check_stands_in(sway, binary, wait_for_bar(sway, "top"), side)


def test_above_a_full_screen_window(sway, vantle):
    check_above_a_full_screen_window(sway, vantle)


def test_on_every_workspace(sway, vantle):
    check_on_every_workspace(sway, vantle, lambda: sway.message("workspace", "2"))


def test_clicks_outside_the_card_reach_the_window_underneath(sway, vantle):
    check_clicks_pass(sway, vantle, outside_panel, beside_card)


def test_clicks_count_when_the_card_appears_under_a_resting_pointer(sway, vantle):
    check_clicks_count_under_a_pointer_at_rest(sway, vantle)


def test_the_focus_stays_where_the_user_types(sway, vantle):
    check_focus_stays(sway, vantle)


def test_the_card_gets_the_keyboard_on_request_and_gives_it_back(sway, vantle):
    check_keyboard_on_request(sway, vantle)


def test_the_menu_of_a_tile_renames_its_file(sway, vantle):
    check_card_menu(sway, vantle)


def test_the_preview_has_the_keyboard_while_it_is_open(sway, vantle):
    check_preview(sway, vantle)


def test_it_appears_again_after_it_was_dismissed(sway, vantle):
    vantle.start_watching()
    for name in ("one.png", "two.png"):
        tile = show_one(sway, vantle, name)
        press(sway, tile, "copy")
        wait_until(lambda: is_gone(sway), "the card goes")


def test_the_pointer_shows_what_can_be_done(sway, vantle):
    vantle.start_watching()
    tile = show_one(sway, vantle)
    before = picture_around(sway, tile)
    sway.screen.pointer.move(*tile.centre)
    wait_until(lambda: picture_around(sway, tile) != before, "the button to close it comes")
    sway.screen.pointer.move(300, 300)
    wait_until(lambda: picture_around(sway, tile) == before, "it goes")


def test_a_marquee_selects_and_a_drag_takes_all_of_it(sway, vantle):
    window = NativeWindow(sway)
    vantle.start_watching()
    names = ["one.png", "two.png"]
    for name in names:
        save(sway, name)
        vantle.wait_for_log(f"captured {name}")
    frame = corner(sway)
    picture = wait_until_still(lambda: sway.screen.screenshot(frame), "the card")
    left, top, _, _ = mask_of(picture, RED).getbbox()
    first = frame.x + left, frame.y + top
    sway.screen.pointer.drag((frame.right - 40, first[1] + 150), (first[0] - 6, first[1] + 40))
    wait_until_still(lambda: sway.screen.screenshot(frame).tobytes(), "the selection")
    Drag(sway, vantle, (first[0] + 30, first[1] + 30)).hold_over(400, 300).drop()
    wait_until(window.dropped, "it is dropped")
    assert window.dropped() == [(sway.home / "Desktop" / name).as_uri() for name in names]


def test_dragged_into_a_native_window(sway, vantle):
    check_dragged_into_a_native_window(sway, vantle)


def test_dragged_into_a_native_file_manager(sway, vantle):
    require_peer("thunar")
    check_dragged_into_a_native_file_manager(sway, vantle)


def test_dragged_into_a_web_page(sway, vantle):
    require_peer("firefox-esr")
    check_dragged_into_a_web_page(sway, vantle)


def test_a_broken_promise_of_a_window_does_not_count_as_use(sway, binary):
    with program_on(sway, binary, deleteAfterUse="true") as vantle:
        NativeWindow(sway, "--breaks-promises")
        vantle.start_watching()
        tile = show_one(sway, vantle)
        assert not Drag(sway, vantle, tile.centre).hold_over(400, 300).drop()
        wait_until(lambda: is_one_pattern(sway.screen.screenshot(corner(sway))), "it is back")


def test_a_refused_drop_flies_back_and_the_next_click_counts(sway, vantle):
    check_flies_back(sway, vantle, (300, 300), (300, 300))


@pytest.mark.xfail(strict=True, raises=WaitTimeout, reason="Sway gives nobody the keys of a drag")
def test_escape_ends_a_drag(sway, vantle):
    check_escape_ends_a_drag(sway, vantle)


def test_it_ends_cleanly_in_the_middle_of_a_drag(sway, vantle):
    NativeWindow(sway)
    vantle.start_watching()
    tile = show_one(sway, vantle)
    drag = Drag(sway, vantle, tile.centre).hold_over(400, 300)
    assert vantle.command("--quit")[0] == 0
    drag.move(500, 400)
    assert vantle.wait_for_end() == 0


def test_the_share_menu_opens_over_the_card_and_closes(sway, vantle):
    window = NativeWindow(sway)
    vantle.start_watching()
    tile = show_one(sway, vantle)
    closed = picture_around(sway, tile)

    def opened(press_share):
        press_share()
        wait_until(window.has_lost_focus, "the menu has the keyboard")
        return wait_until_still(lambda: sway.screen.screenshot(corner(sway)).tobytes(), "the menu")

    def is_closed():
        sway.screen.pointer.move(300, 300)
        return picture_around(sway, tile) == closed

    before = sway.screen.screenshot(corner(sway)).tobytes()
    assert opened(lambda: press(sway, tile, "share")) != before
    sway.screen.keyboard.press("Escape")
    wait_until(is_closed, "Escape closes it")
    press(sway, tile, "share")
    wait_until(lambda: picture_around(sway, tile) != closed, "it opens again")
    sway.screen.pointer.click(300, 300)
    wait_until(is_closed, "a click beside it closes it")
    type_letter_into(sway, window)
    assert window.clicks() == []


def test_a_line_of_the_share_menu_is_chosen_by_keys(sway, vantle):
    NativeWindow(sway)
    vantle.start_watching()
    tile = show_one(sway, vantle)
    press(sway, tile, "share")
    wait_until_still(lambda: sway.screen.screenshot(corner(sway)).tobytes(), "the menu")
    for key in ("Down", "Return"):
        sway.screen.keyboard.press(key)
    wait_until(lambda: "text/uri-list" in pasted(sway, "--list-types"), "it is copied")


def test_native_programs_paste_what_was_copied(sway, vantle):
    require_peer("wl-paste")
    vantle.start_watching()
    press(sway, show_one(sway, vantle), "copy")
    check_pasted(sway)


def test_an_automatic_copy_reaches_the_clipboard(sway, binary):
    require_peer("wl-paste")
    check_copied_by_itself(sway, binary)


def test_a_program_that_does_not_read_the_clipboard_blocks_nothing(sway, binary):
    require_peer("wl-paste")
    with program_on(sway, binary, copyOnCapture="true") as vantle:
        vantle.start_watching()
        noise = io.BytesIO()
        Image.effect_noise((1500, 1000), 90).save(noise, "PNG")
        (sway.home / "Desktop/noise.png").write_bytes(noise.getvalue())
        wait_until(lambda: "image/png" in pasted(sway, "--list-types"), "it is offered")
        sway.start("sh", "-c", "wl-paste --type image/png | sleep 1000")
        sway.start("sh", "-c", "wl-paste --type image/png | head -c 1")
        for _ in range(3):
            assert "watching" in vantle.command("--status", limit=10)[1]
        sway.run("sh", "-c", 'wl-paste --type image/png > "$TMPDIR/pasted"')
        assert (sway.folder / "pasted").read_bytes() == noise.getvalue()


def test_grim_is_noticed(sway, vantle):
    require_peer("grim")
    vantle.start_watching()
    sway.run("grim", sway.home / "Desktop/grim.png")
    vantle.wait_for_log("captured grim.png")
    vantle.wait_for_log(r"panel shows 1 capture\(s\)")


def test_wf_recorder_is_noticed_when_it_has_ended(sway, vantle):
    require_peer("wf-recorder")
    vantle.start_watching()
    file = sway.home / "Desktop/recording.mp4"
    recorder = sway.start("wf-recorder", "--no-damage", "--file", file)
    wait_until(lambda: file.exists() and file.stat().st_size > 0, "it records")
    assert "captured" not in vantle.log_text()
    recorder.send_signal(signal.SIGINT)
    vantle.wait_for_log("captured recording.mp4")


@pytest.mark.sway("output * scale 1.5")
def test_on_an_output_that_is_scaled(sway, vantle):
    check_scaled_by_a_half(sway, vantle)


def outputs(sway):
    return [output["name"] for output in sway.message("-t", "get_outputs")]


def shows_card(sway, output):
    with tempfile.TemporaryDirectory(dir=sway.home) as folder:
        pathlib.Path(folder).chmod(0o777)
        sway.run("grim", "-o", output, f"{folder}/output.png")
        with Image.open(f"{folder}/output.png") as picture:
            return mask_of(picture.convert("RGB"), RED).getbbox() is not None


def close_output(sway, window):
    """Closes an output of the nested Sway, which is a window."""
    before = outputs(sway)
    sway.screen.ask_to_close(window)
    wait_until(lambda: outputs(sway) != before, "the output goes")


def test_it_follows_the_focus_from_output_to_output(sway, vantle):
    require_peer("grim")
    vantle.start_watching()
    sway.message("create_output")
    first, second = wait_until(lambda: len(outputs(sway)) == 2 and outputs(sway), "both are there")
    for number, output in enumerate((second, first, second)):
        sway.message("focus", "output", output)
        save(sway, f"{number}.png")
        wait_until(lambda: shows_card(sway, output), f"the card comes to {output}")
        wait_until(lambda: not shows_card(sway, first if output == second else second),
                   "it has left the other one")  # fmt: skip


def test_it_survives_the_loss_of_its_outputs(sway, vantle):
    require_peer("grim")
    vantle.start_watching()
    sway.message("create_output")
    first, second = wait_until(lambda: len(outputs(sway)) == 2 and outputs(sway), "both are there")
    sway.message("focus", "output", second)
    save(sway, "shot.png")
    wait_until(lambda: shows_card(sway, second), "the card comes")
    windows = sway.screen.client_list()
    close_output(sway, windows[1])
    wait_until(lambda: shows_card(sway, first), "it moves to the one that is left")
    close_output(sway, windows[0])
    sway.message("create_output")
    [third] = wait_until(lambda: outputs(sway), "there is one again")
    wait_until(lambda: shows_card(sway, third), "it stands there")


@pytest.mark.sway(_BAR % "bottom")
def test_the_menu_of_its_icon_in_the_bar(sway, vantle):
    vantle.start_watching()
    width, height = sway.screen.size
    # The bar draws no menus itself; the program does.
    beside = Rectangle(width - 220, height - 250, 200, 200)
    empty = sway.screen.screenshot(beside).tobytes()

    def is_open():
        return sway.screen.screenshot(beside).tobytes() != empty

    def open_menu():
        sway.screen.pointer.click(width - 11, height - 11)
        return is_open()

    wait_until(open_menu, "a click on the icon opens it", interval=1)
    sway.screen.keyboard.press("Escape")
    wait_until(lambda: not is_open(), "Escape closes it")
    wait_until(open_menu, "it opens again", interval=1)
    sway.screen.pointer.click(300, 300)
    wait_until(lambda: not is_open(), "a click beside it closes it")
    wait_until(open_menu, "it opens once more", interval=1)
    sway.screen.keyboard.type("p")
    sway.screen.keyboard.press("Return")
    wait_until(lambda: "state: paused" in vantle.command("--status")[1], "a line is chosen")


def test_it_ends_with_the_compositor(sway, vantle):
    check_ends_with_compositor(sway, vantle, lambda: sway.run("swaymsg", "exit", check=False))


def test_it_does_nothing_when_idle(sway, vantle):
    check_idle(sway, vantle)
