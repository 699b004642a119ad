"""The large preview of a capture, with real keys and a real pointer."""

import pytest
from drop_target import DropTarget, served
from other_windows import OtherWindow
from panel_checks import encoded, is_dismissed, show_several
from pictures import BLUE, GREEN, RED, YELLOW, area_of, pattern
from privatedesktop import Rectangle, wait_until, wait_until_still
from using import Drag

SIZE = (2400, 1500)
# The middle of the screen is never under the card.
MIDDLE = (720, 460)


class Preview:
    """The preview as its log and the screen show it."""

    def __init__(self, desktop, vantle, binary):
        self._desktop = desktop
        self._vantle = vantle
        self._binary = binary

    def count(self, line):
        return self._vantle.log_text().count(line)

    def wait_for(self, line, times=1):
        wait_until(lambda: self.count(line) >= times, f"{line} ({times} times)")

    def press(self, key):
        self._desktop.screen.keyboard.press(key)

    def picture(self):
        return self._desktop.screen.screenshot(Rectangle(0, 0, *self._desktop.size))

    def settle(self):
        wait_until_still(lambda: self.picture().tobytes(), "the preview")

    def open(self):
        """Opens the preview of the newest capture and waits until it stands, sharp."""
        screen = self._desktop.screen
        wait_until(screen.panel, "the panel appears")
        self._desktop.run(self._binary, "--focus-panel")
        wait_until(
            lambda: screen.focused_window() == screen.panel().number, "the card has the keys")
        self.press("space")
        self.wait_for("preview gets the keys")
        self.wait_for("preview is sharp")
        self.settle()


@pytest.fixture
def preview(desktop, vantle, folder, binary):
    vantle.start_watching()
    return Preview(desktop, vantle, binary)


def save_pattern(folder, name, size=SIZE):
    folder.save(name, encoded(pattern(size)))
    folder.wait_for(name)


def test_space_opens_and_closes_it(desktop, vantle, folder, preview):
    other = OtherWindow(desktop, Rectangle(100, 100, 300, 200))
    save_pattern(folder, "shot.png")
    preview.open()
    shown = preview.picture()
    # 85 % of the screen, less the edges and the bar.
    assert min(area_of(shown, colour) for colour in (RED, GREEN, BLUE, YELLOW)) > 150_000
    preview.press("space")
    preview.wait_for("preview is gone")
    preview.settle()
    assert area_of(preview.picture(), RED) < 50_000
    preview.press("space")
    preview.wait_for("preview shows shot.png", times=2)
    preview.wait_for("preview gets the keys", times=2)
    preview.press("Escape")
    preview.wait_for("preview is gone", times=2)
    preview.press("Escape")
    wait_until(lambda: is_dismissed(desktop), "the card, which has the keys again, closes")
    wait_until(lambda: desktop.screen.focused_window() == other.number, "the window has the keys")


def test_arrows_go_through_the_card(desktop, vantle, folder, preview):
    show_several(desktop, folder, 3)
    preview.open()
    preview.press("Left")
    preview.wait_for("preview shows 2.png")
    preview.press("Left")
    preview.wait_for("preview shows 1.png")
    preview.press("Left")
    preview.press("Right")
    preview.wait_for("preview shows 2.png", times=2)
    assert preview.count("preview shows 1.png") == 1


def test_real_pixels_by_key_and_by_double_click(desktop, vantle, folder, preview):
    save_pattern(folder, "shot.png", (6000, 4000))
    preview.open()
    preview.press("1")
    preview.wait_for("preview is sharp, 6000 pixels wide")
    preview.settle()
    pointer = desktop.screen.pointer
    # The quarters meet in the middle; dragging the picture shows only one of them.
    pointer.drag(MIDDLE, (MIDDLE[0] + 600, MIDDLE[1] + 350))
    pointer.drag(MIDDLE, (MIDDLE[0] + 600, MIDDLE[1] + 350))
    preview.settle()
    shown = preview.picture()
    assert area_of(shown, RED) > 600_000
    assert area_of(shown, YELLOW) < 20_000  # on the card
    pointer.move(*MIDDLE)
    pointer.click(*MIDDLE)
    pointer.click(*MIDDLE)
    preview.settle()
    assert area_of(preview.picture(), YELLOW) > 150_000


def test_the_wheel_zooms_at_the_pointer_with_control(desktop, vantle, folder, preview):
    save_pattern(folder, "shot.png", (6000, 4000))
    preview.open()
    before = area_of(preview.picture(), YELLOW)
    desktop.screen.pointer.move(1100, 650)
    desktop.screen.keyboard.hold("Control_L")
    for _ in range(3):
        desktop.screen.pointer.press(4)
        desktop.screen.pointer.release(4)
    desktop.screen.keyboard.let_go("Control_L")
    preview.settle()
    assert area_of(preview.picture(), YELLOW) > 1.2 * before


def test_delete_moves_to_the_trash_and_shows_the_next(desktop, vantle, folder, preview):
    show_several(desktop, folder, 2)
    preview.open()
    preview.press("Delete")
    preview.wait_for("preview shows 1.png")
    wait_until(lambda: not (folder.path / "2.png").exists(), "the file is in the Trash")
    preview.press("Delete")
    preview.wait_for("preview is gone")


def test_the_picture_is_dragged_out(desktop, vantle, folder, preview):
    save_pattern(folder, "shot.png", (600, 400))
    target = DropTarget(desktop, Rectangle(20, 120, 300, 300))
    preview.open()
    with served(target):
        assert Drag(desktop, vantle, MIDDLE).hold_over(170, 270).drop()
    assert bytes(target.received).decode().split() == [(folder.path / "shot.png").as_uri()]


def test_it_takes_the_place_of_nothing_that_is_typed(desktop, vantle, folder, preview):
    """Checks that letters reach the window that has the keyboard while no preview is open."""
    other = OtherWindow(desktop, Rectangle(100, 100, 300, 200))
    save_pattern(folder, "shot.png")
    preview.open()
    preview.press("Escape")
    preview.wait_for("preview is gone")
    preview.press("Escape")
    wait_until(lambda: is_dismissed(desktop), "the card closes")
    wait_until(lambda: desktop.screen.focused_window() == other.number, "the window has the keys")
    desktop.screen.keyboard.type("x")
    wait_until(lambda: other.typed() == "x", "the letter arrives")
