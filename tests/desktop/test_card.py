"""The card, used with a real mouse and keyboard, and by a screen reader."""

import os
import subprocess
import time

import pytest

from assistant import ENVIRONMENT, Assistant
from other_windows import OtherWindow
from panel_checks import card_of, show_one, show_several, wait_for_card
from privatedesktop import Program, Rectangle, wait_until, wait_until_still
from using import press_with_control

BLUR = "_KDE_NET_WM_BLUR_BEHIND_REGION"


@pytest.fixture
def vantle(desktop, binary):
    """The program, which offers itself to screen readers."""
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings()
    yield program
    program.stop()


@pytest.fixture
def assistant(desktop):
    return Assistant(desktop)


def selected(assistant):
    return assistant.in_state("selected")


def wait_for_selection(assistant, *names):
    wait_until(lambda: selected(assistant) == list(names), f"{names} are selected")


def look(desktop):
    return desktop.screen.screenshot(desktop.screen.panel().frame).tobytes()


def test_marquee_selects_shrinks_and_ends(desktop, vantle, folder, assistant):
    vantle.start_watching()
    card = show_several(desktop, folder, 3)
    before = look(desktop)
    pointer = desktop.screen.pointer
    # The lower edge of the card is background; three tiles of 160 are 10 apart.
    start = (card.x + 4, card.bottom - 5)
    pointer.move(*start)
    pointer.press()
    pointer.move(start[0] + 4, start[1] - 4)
    pointer.move(card.x + 12 + 160 + 10 + 20, card.y + 60)
    wait_for_selection(assistant, "1.png", "2.png")
    pointer.move(card.x + 12 + 80, card.y + 60)
    wait_for_selection(assistant, "1.png")
    pointer.release()
    pointer.move(20, 400)
    wait_until_still(lambda: look(desktop), "the card")
    assert selected(assistant) == ["1.png"]
    # A click on the background ends the selection, and the marquee is gone.
    pointer.click(*start)
    wait_for_selection(assistant)
    pointer.move(20, 400)
    wait_until(lambda: look(desktop) == before, "the card looks as before")


def test_six_points_are_a_click_on_the_background(desktop, vantle, folder, assistant):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    pointer = desktop.screen.pointer
    assistant.wait_for("1.png")
    assistant.act("1.png", "Toggle")
    wait_for_selection(assistant, "1.png")
    pointer.move(card.x + 40, card.bottom - 5)
    pointer.press()
    pointer.move(card.x + 46, card.bottom - 5)
    pointer.release()
    wait_for_selection(assistant)


def test_tiles_scrolled_out_of_sight_are_never_selected(desktop, vantle, folder, assistant):
    vantle.start_watching()
    card = show_several(desktop, folder, 8)
    pointer = desktop.screen.pointer
    pointer.drag((card.right - 4, card.bottom - 5), (card.x + 4, card.y + 20))
    # Of eight tiles the row shows the last three and a part of another.
    wait_for_selection(assistant, "5.png", "6.png", "7.png", "8.png")


def test_the_wheel_scrolls(desktop, vantle, folder, assistant):
    vantle.start_watching()
    card = show_several(desktop, folder, 8)
    pointer = desktop.screen.pointer
    pointer.move(*card.centre)
    for _ in range(12):
        pointer.press(4)
        pointer.release(4)
    wait_until_still(lambda: look(desktop), "the row")
    pointer.drag((card.right - 4, card.bottom - 5), (card.x + 4, card.y + 20))
    wait_for_selection(assistant, "1.png", "2.png", "3.png", "4.png")


def come_from_outside(desktop, x, y):
    """Moves like a hand: in steps, with small ones at the end."""
    pointer = desktop.screen.pointer
    start = (x + 400, y - 300)
    for part in (0, 0.5, 0.8, 0.93, 0.98, 1):
        pointer.move(*(round(a + (b - a) * part) for a, b in zip(start, (x, y))))


def captures_on(vantle):
    return int(vantle.command("--status")[1].split("captures: ")[1].split()[0])


@pytest.mark.parametrize("gap", [0.05, 0.15, 0.3])
def test_a_double_click_on_a_close_button_closes_one(desktop, vantle, folder, gap):
    vantle.write_settings(corner="bottomLeft")
    vantle.start_watching()
    card = show_several(desktop, folder, 4)
    pointer = desktop.screen.pointer
    # The part of the disc that overhangs the first tile. The next tile moves to its place.
    come_from_outside(desktop, card.x + 8, card.y + 13)
    wait_until_still(lambda: look(desktop), "the card")
    pointer.press()
    pointer.release()
    time.sleep(gap)  # the time between the two clicks of a hand
    pointer.press()
    pointer.release()
    wait_until_still(lambda: look(desktop), "the card")
    assert captures_on(vantle) == 3
    time.sleep(0.5)  # too late for a double click
    pointer.press()
    pointer.release()
    wait_until(lambda: captures_on(vantle) == 2, "the next click closes the next")


def test_a_double_click_on_the_last_capture_spares_the_window_below(desktop, vantle, folder):
    """The second click must not reach the window below the card."""
    vantle.start_watching()
    other = OtherWindow(desktop, Rectangle(0, 100, *desktop.size))
    card = wait_for_card(desktop, show_one(desktop, folder))
    pointer = desktop.screen.pointer
    come_from_outside(desktop, card.x + 8, card.y + 13)
    wait_until_still(lambda: look(desktop), "the card")
    for _ in range(2):
        pointer.press()
        pointer.release()
        time.sleep(0.2)
    wait_until(lambda: desktop.screen.panel() is None, "the card leaves")
    pointer.click(60, 300)
    wait_until(lambda: other.clicks(), "the other window gets a click")
    assert other.clicks() == [(60, 300)]


def test_first_click_works_and_the_focus_stays(desktop, vantle, folder, assistant):
    vantle.start_watching()
    other = OtherWindow(desktop, Rectangle(200, 200, 300, 200))
    card = show_several(desktop, folder, 2)
    desktop.screen.keyboard.hold("Control_L")
    desktop.screen.pointer.click(card.x + 60, card.y + 60)
    desktop.screen.keyboard.let_go("Control_L")
    wait_for_selection(assistant, "1.png")
    assert desktop.screen.focused_window() == other.number
    # The last button of the bar on the card's upper edge dismisses the selected captures.
    desktop.screen.pointer.click(card.centre[0] + 48, card.y + 6)
    wait_until(lambda: "1.png" not in assistant.names(), "the selected capture is dismissed")
    assert desktop.screen.focused_window() == other.number


def test_keyboard_on_request(desktop, vantle, folder, assistant, binary):
    vantle.start_watching()
    other = OtherWindow(desktop, Rectangle(200, 200, 300, 200))
    show_several(desktop, folder, 3)
    assert desktop.screen.focused_window() == other.number
    desktop.run(binary, "--focus-panel")
    wait_until(lambda: assistant.in_state("focused") == ["3.png"], "the newest has the keyboard")
    desktop.screen.pointer.click(300, 300)
    wait_until(lambda: desktop.screen.focused_window() == other.number, "a click takes it away")
    desktop.run(binary, "--focus-panel")
    wait_until(lambda: assistant.in_state("focused") == ["3.png"], "it comes again")
    press = desktop.screen.keyboard.press
    press("Left")
    wait_until(lambda: assistant.in_state("focused") == ["2.png"], "its neighbour has it")
    press_with_control(desktop, "space")
    wait_for_selection(assistant, "2.png")
    press("Escape")
    wait_for_selection(assistant)
    press("Escape")
    wait_until(lambda: desktop.screen.panel() is None, "the panel is dismissed")
    assert desktop.screen.focused_window() == other.number
    assert other.typed() == ""


def test_a_screen_reader_does_what_the_mouse_does(desktop, vantle, folder, assistant):
    vantle.write_settings(dismissAfter="60")
    vantle.start_watching()
    for name in ("1.png", "2.png", "3.png"):
        folder.save(name)
        assistant.wait_for(name)
    controls = [item for item in assistant.found() if item["role"] == "button"]
    assert {item["name"] for item in controls} >= {
        "Dismiss", "Pin (ignore the timer)", "Copy to clipboard", "Share", "Show in file manager",
        "Move to Trash", "Clear all", "Copy selected", "Move selected to Trash",
        "Dismiss selected",
    }  # fmt: skip
    assert all("Press" in item["actions"] for item in controls)
    assistant.act("Pin (ignore the timer)")
    assistant.wait_for("Unpin (dismiss on timer again)")
    assistant.act("Dismiss")
    wait_until(lambda: "1.png" not in assistant.names(), "the first capture is dismissed")
    assistant.act("Clear all")
    wait_until(lambda: desktop.screen.panel() is None, "the panel is dismissed")


def test_light_and_dark_follow_the_desktop(desktop, vantle, folder):
    portal = subprocess.Popen(
        [os.environ["VANTLE_SETTINGS_PORTAL"]], env=desktop.environment,
        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
    )  # fmt: skip

    def say(line):
        portal.stdin.write(line + "\n")
        portal.stdin.flush()
        assert portal.stdout.readline() == "ok\n"

    assert portal.stdout.readline() == "ok\n"
    vantle.start_watching()
    panel = show_one(desktop, folder)
    card = wait_for_card(desktop, panel)

    def brightness():
        # Between the tile and the card's edge.
        plate = Rectangle(card.x + 100, card.y + 3, 100, 5)
        return sum(desktop.screen.screenshot(plate).convert("L").tobytes()) / 500

    try:
        say("color-scheme 2")
        wait_until(lambda: brightness() > 180, "the card is light")
        say("color-scheme 1")
        wait_until(lambda: brightness() < 80, "the card is dark")
    finally:
        portal.stdin.close()
        portal.wait()


def test_requests_a_blur_behind_the_glass_if_it_is_offered(desktop, vantle, folder):
    desktop.screen.set_root_property(BLUR)
    vantle.start_watching()
    panel = show_one(desktop, folder)
    card = wait_for_card(desktop, panel).moved(-panel.frame.x, -panel.frame.y)

    def region():
        values = desktop.screen.window_property(panel.number, BLUR)
        return [Rectangle(*values[i : i + 4]) for i in range(0, len(values), 4)] if values else []

    def follows_the_glass():
        found = region()
        return found and (
            min(part.x for part in found),
            min(part.y for part in found),
            max(part.right for part in found),
            max(part.bottom for part in found),
        ) == card.box

    wait_until(follows_the_glass, "the blur stands behind the card")
    # The corners are round.
    assert all(part.x > card.x for part in region() if part.y < card.y + 3)


def test_requests_no_blur_without_an_offer(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    wait_for_card(desktop, panel)
    assert desktop.screen.window_property(panel.number, BLUR) is None


def test_the_input_region_follows_a_card_that_grows(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    wait_for_card(desktop, panel)
    folder.save("next.png")
    seen = set()

    def has_grown():
        card = card_of(desktop, panel)
        seen.add((card.width, card.height))
        return card.width > 420

    wait_until(has_grown, "the card is wide enough for two", interval=0.001)
    assert len(seen) > 4, "it follows frame by frame"
