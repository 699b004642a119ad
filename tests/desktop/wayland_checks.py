"""Shared by tests of the card on Wayland desktops."""

import contextlib
import time

from PIL import ImageChops

from panel_checks import encoded, expected_frame
from pictures import RED, YELLOW, area_of, is_one_pattern, mask_of, pattern
from privatedesktop import Program, Rectangle, WaitTimeout, wait_until, wait_until_still
from test_idle import MEASURED_SECONDS
from using import BUTTONS, Drag
from wayland_desktop import NativeWindow
from web_page import WebPage, start_firefox

# From the right edge of a tile to that of its card, and from its lower edge to the buttons.
_MARGIN = 13
_BUTTONS_BELOW_TILE = 26


@contextlib.contextmanager
def program_on(desktop, binary, environment=None, name="vantle", **settings):
    """Yields Vantle, not started yet, to be started as the desktop's user."""
    command = desktop.as_user(desktop.lend_build(binary))
    program = Program(command, desktop, environment, name)
    program.write_settings(
        **{"hasExplainedMissingTray": "true", "removeAfterUse": "true", **settings}
    )
    desktop.give_to_user()
    try:
        yield program
    finally:
        program.stop()


def corner(desktop):
    return expected_frame(desktop.work_area(), "bottomRight")


def save(desktop, name):
    (desktop.home / "Desktop" / name).write_bytes(encoded(pattern()))


def down_to_tile(picture):
    """Cuts off what is below the tile, because the remaining time changes there."""
    end = mask_of(picture, YELLOW).getbbox()
    return picture.crop((0, 0, picture.width, end[3] if end else picture.height))


def show_one(desktop, vantle, name="shot.png"):
    """Saves a screenshot, and returns the area of its tile on the screen."""
    save(desktop, name)
    vantle.wait_for_log(f"captured {name}")
    frame = corner(desktop)
    wait_until(lambda: is_one_pattern(desktop.screen.screenshot(frame)), "the tile stands")
    picture = wait_until_still(lambda: down_to_tile(desktop.screen.screenshot(frame)), "the card")
    first, last = mask_of(picture, RED).getbbox(), mask_of(picture, YELLOW).getbbox()
    width, height = last[2] - first[0], last[3] - first[1]
    return Rectangle(frame.x + first[0], frame.y + first[1], width, height)


def is_gone(desktop):
    return mask_of(desktop.screen.screenshot(corner(desktop)), RED).getbbox() is None


def press(desktop, tile, button):
    place = tile.right + _MARGIN - BUTTONS[button], tile.bottom + _BUTTONS_BELOW_TILE
    desktop.screen.pointer.click(*place)


def on_glass(tile):
    """Returns a point of the card beside its tile."""
    return tile.centre[0], tile.y - 5


def click_on_glass(desktop, vantle, tile):
    before = vantle.log_text().count("host mouseDown")
    desktop.screen.pointer.click(*on_glass(tile))
    vantle.wait_for_log("host mouseDown", times=before + 1)


def type_letter_into(desktop, window):
    """Types "x", and checks that the window, into which nothing was typed before, gets it."""
    desktop.screen.keyboard.type("x")
    wait_until(lambda: window.typed() == "x", "the letter arrives")


def click_through(desktop, window, points, tries=1):
    """Clicks at the points, and checks that the window underneath gets these clicks and no others.
    Each click is tried up to `tries` times."""
    for number, point in enumerate(points, start=1):
        for left in reversed(range(tries)):
            desktop.screen.pointer.click(*point)
            try:
                wait_until(lambda: len(window.clicks()) == number, f"the click at {point} arrives",
                           limit=20 / tries)
                break
            except WaitTimeout:
                if not left:
                    raise
    assert window.clicks() == points


def pasted(desktop, *arguments):
    """Returns what wl-paste prints; the output is meaningless while the clipboard is empty."""
    return desktop.run("wl-paste", *arguments, check=False, text=True).stdout


def check_pasted(desktop):
    wait_until(lambda: "image/png" in pasted(desktop, "--list-types"), "it is offered")
    types = pasted(desktop, "--list-types").split()
    assert types[0] == "image/png"
    assert {"image/jpeg", "text/uri-list", "x-special/gnome-copied-files"} <= set(types)
    file = desktop.home / "Desktop/shot.png"
    assert pasted(desktop, "--type", "text/uri-list").split() == [file.as_uri()]
    desktop.run("sh", "-c", 'wl-paste --type image/png > "$TMPDIR/pasted"')
    assert (desktop.folder / "pasted").read_bytes() == file.read_bytes()


def check_speaks_wayland(vantle):
    vantle.start_watching()
    status, text = vantle.command("--status")
    assert status == 0 and "display server: Wayland\n" in text


def check_corner(desktop, vantle):
    vantle.start_watching()
    tile = show_one(desktop, vantle)
    area = desktop.work_area()
    assert 10 < area.right - tile.right < 40
    assert 50 < area.bottom - tile.bottom < 90


def check_stands_in(desktop, binary, area, side):
    """Checks that the card is in that corner of that area and inside it."""
    with program_on(desktop, binary, name=side, corner=side) as vantle:
        vantle.start_watching()
        save(desktop, f"{side}.png")
        frame = expected_frame(area, side)
        wait_until(lambda: is_one_pattern(desktop.screen.screenshot(frame)), "the tile stands")
        picture = wait_until_still(lambda: desktop.screen.screenshot(frame), "the card")
        left, top, _, _ = mask_of(picture, RED).getbbox()
        _, _, right, bottom = mask_of(picture, YELLOW).getbbox()
        across = frame.width - right if side.endswith("Right") else left
        down = frame.height - bottom if side.startswith("bottom") else top
        # There is a line of buttons below the tile.
        least, most = (50, 90) if side.startswith("bottom") else (10, 40)
        assert 10 < across < 40 and least < down < most


def wait_for_bar(desktop, edge):
    """Waits for a bar at that edge, and returns the part of the screen that it leaves free."""
    width, total = desktop.screen.size
    strip = Rectangle(700, 0 if edge == "top" else total - 100, 1, 100)

    def height():
        picture = desktop.screen.screenshot(strip)
        ground = picture.getpixel((0, 99 if edge == "top" else 0))
        rows = [row for row in range(100) if picture.getpixel((0, row)) != ground]
        return len(rows) if 10 < len(rows) < 60 else None

    wait_until(height, "the bar comes")
    bar = wait_until_still(height, "the bar")
    return Rectangle(0, bar if edge == "top" else 0, width, total - bar)


def check_on_every_workspace(desktop, vantle, switch):
    NativeWindow(desktop)
    vantle.start_watching()
    show_one(desktop, vantle)
    beside = Rectangle(200, 200, 200, 200)
    window = desktop.screen.screenshot(beside)
    switch()
    wait_until(lambda: desktop.screen.screenshot(beside) != window, "another workspace comes")
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the workspace")
    assert is_one_pattern(desktop.screen.screenshot(corner(desktop)))


def check_scaled_by_a_half(desktop, vantle):
    """Checks the card on an output with one and a half pixels per point."""
    vantle.start_watching()
    save(desktop, "shot.png")
    width, height = desktop.screen.size
    frame = Rectangle(width - 1200, height - 495, 1200, 495)
    wait_until(lambda: is_one_pattern(desktop.screen.screenshot(frame)), "the tile stands")
    left, top, right, bottom = wait_until_still(
        lambda: mask_of(desktop.screen.screenshot(frame), RED).getbbox(), "the card"
    )
    # The red quarter of a thumbnail of 304 × 190 points.
    assert abs(right - left - 228) <= 3 and abs(bottom - top - 142) <= 3


def check_idle(desktop, vantle):
    vantle.start_watching()
    desktop.screen.pointer.move(300, 300)
    show_one(desktop, vantle)
    wait_until_still(vantle.voluntary_switches, "the program", readings=20)
    before = vantle.voluntary_switches()
    time.sleep(MEASURED_SECONDS)
    assert vantle.voluntary_switches() == before


def check_ends_with_compositor(desktop, vantle, end):
    vantle.start_watching()
    show_one(desktop, vantle)
    end()
    assert vantle.wait_for_end() == 1
    assert "The Wayland connection broke" in vantle.log_text()


def check_above_a_full_screen_window(desktop, vantle):
    NativeWindow(desktop)
    vantle.start_watching()
    show_one(desktop, vantle)


def outside_panel(frame, _):
    return [(frame.x - 5, frame.centre[1]), (frame.centre[0], frame.y - 5), (300, 300)]


def beside_card(frame, tile):
    """Returns points beside the card, inside the panel's frame."""
    return [(frame.x + 60, frame.y + 60), (tile.x - 24, tile.centre[1]), (tile.x, frame.y + 10)]


def check_clicks_pass(desktop, vantle, *places, tries=1):
    """Checks that clicks pass through the panel, also after the card has been drawn again."""
    window = NativeWindow(desktop)
    vantle.start_watching()
    tile = show_one(desktop, vantle)
    click_on_glass(desktop, vantle, tile)
    frame = corner(desktop)
    # A compositor that forgets with each frame which parts take clicks is told again after the last
    # one.
    wait_until_still(lambda: down_to_tile(desktop.screen.screenshot(frame)), "it", readings=20)
    points = [point for where in places for point in where(frame, tile)]
    click_through(desktop, window, points, tries)


def check_clicks_pass_while_time_runs(desktop, binary, tries=1):
    """Checks it while the countdown's bar gets shorter by a pixel every tenth of a second."""
    with program_on(desktop, binary, dismissAfter="30") as vantle:
        check_clicks_pass(desktop, vantle, *[beside_card] * 4, tries=tries)


def check_clicks_count_under_a_pointer_at_rest(desktop, vantle):
    """Checks that clicks count on each of several cards that appear under a resting pointer."""
    vantle.start_watching()
    for number in range(3):
        tile = show_one(desktop, vantle, f"{number}.png")
        press(desktop, tile, "copy")
        wait_until(lambda: vantle.log_text().count("tap icon doc.on.doc") > number, "it counts")
        wait_until(lambda: is_gone(desktop), "the card goes")


def check_focus_stays(desktop, vantle):
    window = NativeWindow(desktop)
    vantle.start_watching()
    desktop.screen.keyboard.type("x")
    tile = show_one(desktop, vantle)
    desktop.screen.keyboard.type("y")
    click_on_glass(desktop, vantle, tile)
    desktop.screen.keyboard.type("z")
    wait_until(lambda: window.typed() == "xyz", "all letters arrive")
    assert not window.has_lost_focus()


def check_keyboard_on_request(desktop, vantle):
    window = NativeWindow(desktop)
    vantle.start_watching()
    show_one(desktop, vantle)
    assert vantle.command("--focus-panel") == (0, "")
    wait_until(window.has_lost_focus, "the card has the keyboard")
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: is_gone(desktop), "the card goes")
    wait_until(window.has_focus, "the window has the keyboard again")
    type_letter_into(desktop, window)


def check_preview(desktop, vantle):
    window = NativeWindow(desktop)
    vantle.start_watching()
    show_one(desktop, vantle)
    assert vantle.command("--focus-panel") == (0, "")
    wait_until(window.has_lost_focus, "the card has the keyboard")
    press_key = desktop.screen.keyboard.press
    press_key("space")
    vantle.wait_for_log("preview gets the keys")
    vantle.wait_for_log("preview is sharp")
    wait_until(lambda: area_of(desktop.screen.screenshot(), RED) > 60_000, "it is large")
    press_key("Escape")
    vantle.wait_for_log("preview is gone")
    press_key("Escape")
    wait_until(lambda: is_gone(desktop), "the card, which has the keyboard again, goes")
    wait_until(window.has_focus, "the window has the keyboard again")
    type_letter_into(desktop, window)


def check_card_menu(desktop, vantle, menu_takes_focus=True):
    """Opens the menu of the background, and renames a file by that of its tile and by keys. Without
    `menu_takes_focus`, the compositor moves the keyboard to the menu or back only with a key."""
    window = NativeWindow(desktop)
    vantle.start_watching()
    tile = show_one(desktop, vantle)
    keyboard = desktop.screen.keyboard

    def open_menu(place):
        # Mutter may report a press at the place before, if the pointer has only just moved.
        desktop.screen.pointer.move(*place)
        before = wait_until_still(screen, "the card below the pointer")
        desktop.screen.pointer.click(*place, button=3)
        wait_until(lambda: screen() != before, "the menu appears")
        if menu_takes_focus:
            wait_until(lambda: not window.has_focus(), "the menu has the keyboard")
        return wait_until_still(screen, "the menu")

    def screen():
        return desktop.screen.screenshot(corner(desktop)).tobytes()

    menu = open_menu(on_glass(tile))
    keyboard.press("Escape")
    wait_until(lambda: screen() != menu, "the menu fades")
    wait_until_still(screen, "the card without its menu")
    if menu_takes_focus:
        wait_until(window.has_focus, "the window has the keyboard again")
    type_letter_into(desktop, window)
    open_menu(tile.centre)
    # "Rename…" is the third line from the end.
    for key in ("Up", "Up", "Up", "Return"):
        keyboard.press(key)
    # The field for the name is dark, over the bright lower edge of the tile.
    edge = Rectangle(tile.centre[0] - 40, tile.bottom - 12, 80, 1)
    wait_until(lambda: desktop.screen.screenshot(edge).convert("L").getextrema()[1] < 100,
               "the field")
    wait_until(lambda: not window.has_focus(), "the card has the keyboard")
    keyboard.type("invoices")
    keyboard.press("Return")
    wait_until((desktop.home / "Desktop/invoices.png").exists, "the file has its new name")
    assert window.typed() == "x"


def check_dragged_into_a_native_window(desktop, vantle):
    window = NativeWindow(desktop)
    vantle.start_watching()
    tile = show_one(desktop, vantle)
    drag = Drag(desktop, vantle, tile.centre).hold_over(400, 300)
    around = Rectangle(200, 150, 800, 500)
    wait_until(lambda: is_one_pattern(desktop.screen.screenshot(around)), "the preview is there")
    assert drag.drop()
    wait_until(window.dropped, "it is dropped")
    assert window.dropped() == [(desktop.home / "Desktop/shot.png").as_uri()]
    wait_until(lambda: is_gone(desktop), "the tile is used up")


def check_dragged_into_a_web_page(desktop, vantle):
    """Drags a tile into Firefox, which fills the screen and uses Wayland."""
    with contextlib.closing(WebPage(desktop, start_firefox)) as page:
        vantle.start_watching()
        tile = show_one(desktop, vantle)
        assert Drag(desktop, vantle, tile.centre).hold_over(*page.middle).drop()
        [file] = page.dropped()
        assert (file.name, file.type) == ("shot.png", "image/png")
        assert file.content == (desktop.home / "Desktop/shot.png").read_bytes()


def check_dragged_into_a_native_file_manager(desktop, vantle):
    target = desktop.home / "target"
    target.mkdir()
    desktop.give_to_user()
    window = opened_file_manager(desktop, target)
    vantle.start_watching()
    tile = show_one(desktop, vantle)
    assert Drag(desktop, vantle, tile.centre).hold_over(*window.centre).drop()
    wait_until((target / "shot.png").exists, "it arrives")
    original = (desktop.home / "Desktop/shot.png").read_bytes()
    wait_until(lambda: (target / "shot.png").read_bytes() == original, "it is whole")


def opened_file_manager(desktop, folder):
    """Opens that folder in a file manager, and returns the area of its window."""

    def picture():
        return wait_until_still(lambda: desktop.screen.screenshot(), "the screen")

    before = picture()
    desktop.start("env", "GDK_BACKEND=wayland", "thunar", folder)
    box = wait_until(lambda: ImageChops.difference(before, picture()).getbbox(), "it opens")
    return Rectangle(box[0], box[1], box[2] - box[0], box[3] - box[1])


def check_flies_back(desktop, vantle, *places, comes_back=False):
    """Drops a tile at places where nothing takes it, and checks that the next click counts. With
    `comes_back` the pointer returns first, for compositors that may not report the end of a
    drag."""
    vantle.start_watching()
    tile = show_one(desktop, vantle)
    card = corner(desktop)
    for place in places:
        drag = Drag(desktop, vantle, tile.centre).move(*place)
        desktop.screen.pointer.release()
        if comes_back:
            desktop.screen.pointer.move(*tile.centre)
        assert not drag.was_taken()
        wait_until(lambda: is_one_pattern(desktop.screen.screenshot(card)), "the tile is back")
        whole = wait_until_still(lambda: desktop.screen.screenshot(), "the screen")
        assert is_one_pattern(whole)
    press(desktop, tile, "copy")
    vantle.wait_for_log("tap icon doc.on.doc")


def check_escape_ends_a_drag(desktop, vantle):
    window = NativeWindow(desktop)
    vantle.start_watching()
    tile = show_one(desktop, vantle)
    Drag(desktop, vantle, tile.centre).hold_over(400, 300)
    desktop.screen.keyboard.press("Escape")
    vantle.wait_for_log("thumb drag ended op=0")
    assert window.dropped() == []


def check_copied_by_itself(desktop, binary):
    NativeWindow(desktop)
    with program_on(desktop, binary, copyOnCapture="true") as vantle:
        vantle.start_watching()
        save(desktop, "shot.png")
        check_pasted(desktop)
