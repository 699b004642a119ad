"""Space over a tile while a window of another program has the keyboard."""

import time

import pytest
from other_windows import OtherWindow
from panel_checks import is_dismissed, show_one, wait_for_card
from privatedesktop import Rectangle, wait_until, wait_until_still
from using import tile_of
from Xlib import X, XK, display
from Xlib.ext import xtest

# How long the pointer may rest on a tile before the key is given back.
REST = 3
# A place on the screen that is never under the card.
BESIDE = (300, 500)


class Typist:
    """Types in a window of another program and points at a tile of the card."""

    def __init__(self, desktop, vantle, binary, tile):
        self.binary = binary
        self.other = OtherWindow(desktop, Rectangle(100, 100, 300, 200))
        self._screen = desktop.screen
        self._vantle = vantle
        self._places = [tile, (tile[0] + 16, tile[1])]

    def log(self):
        return self._vantle.log_text()

    def count(self, line):
        return self.log().count(line)

    def move_to_tile(self):
        """Moves the pointer there, or to another place on the tile if it is there already. As a
        hand does, by more than one step."""
        self._places.reverse()
        x, y = self._places[0]
        for step in (9, 6, 3, 0):
            self._screen.pointer.move(x - step, y - step)

    def point_at_tile(self):
        self.move_to_tile()
        self.settle()

    def settle(self):
        panel = self._screen.panel().frame
        wait_until_still(lambda: self._screen.screenshot(panel).tobytes(), "the card")

    def press_space(self):
        self._screen.keyboard.press("space")

    def types(self, text):
        """Returns true when the other window has this text, and no more."""
        return wait_until(lambda: self.other.typed() == text, f"{text!r} is typed")

    def wait_for_preview(self, times=1):
        wait_until(lambda: self.count("preview gets the keys") == times, "the preview has the keys")

    def wait_until_preview_is_gone(self):
        wait_until(lambda: self.count("preview is gone") >= 1, "the preview has gone")
        wait_until(
            lambda: self._screen.focused_window() == self.other.number, "the window has the keys")


@pytest.fixture
def typist(desktop, vantle, folder, binary):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    return Typist(desktop, vantle, binary, tile_of(wait_for_card(desktop, panel)))


def test_space_opens_the_preview_and_is_not_typed(typist):
    typist.point_at_tile()
    typist.press_space()
    typist.wait_for_preview()
    typist.press_space()
    typist.wait_until_preview_is_gone()
    typist.press_space()
    typist.types(" ")
    assert typist.count("preview shows") == 1


def test_a_pointer_that_rests_gives_the_key_back(typist):
    typist.point_at_tile()
    time.sleep(REST)
    typist.press_space()
    typist.types(" ")
    assert typist.count("preview shows") == 0
    typist.point_at_tile()
    typist.press_space()
    typist.wait_for_preview()
    assert typist.other.typed() == " "


def test_a_pointer_that_leaves_gives_the_key_back_at_once(desktop, typist):
    typist.point_at_tile()
    desktop.screen.pointer.move(*BESIDE)
    typist.settle()
    typist.press_space()
    typist.types(" ")
    assert typist.count("preview shows") == 0


def test_a_card_under_a_resting_pointer_takes_nothing(desktop, folder, typist):
    desktop.run(typist.binary, "--focus-panel")
    wait_until(lambda: desktop.screen.focused_window() == desktop.screen.panel().number, "the keys")
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: is_dismissed(desktop), "the card has gone")
    typist.move_to_tile()
    show_one(desktop, folder, "later.png")
    typist.press_space()
    typist.types(" ")
    assert typist.count("preview shows") == 0


def test_a_held_key_opens_the_preview_once(desktop, typist):
    desktop.screen.keyboard.hold("x")
    wait_until(lambda: typist.other.typed().startswith("xxx"), "held keys repeat themselves")
    desktop.screen.keyboard.let_go("x")
    typed = typist.other.typed()
    typist.point_at_tile()
    desktop.screen.keyboard.hold("space")
    typist.wait_for_preview()
    time.sleep(1)
    desktop.screen.keyboard.let_go("space")
    assert typist.count("preview closes") == 0
    typist.press_space()
    typist.wait_until_preview_is_gone()
    assert typist.count("preview shows") == 1
    assert typist.other.typed().strip("x") == ""
    assert len(typist.other.typed()) <= len(typed) + 1


@pytest.mark.parametrize("lock", ["Num_Lock", "Caps_Lock"])
def test_locks_do_not_matter(desktop, typist, lock):
    desktop.screen.keyboard.press(lock)
    typist.point_at_tile()
    typist.press_space()
    typist.wait_for_preview()
    assert " " not in typist.other.typed()


def test_other_keys_and_modifiers_stay_with_the_other_window(desktop, typist):
    typist.point_at_tile()
    desktop.screen.keyboard.hold("Control_L")
    typist.press_space()
    desktop.screen.keyboard.let_go("Control_L")
    desktop.screen.keyboard.type("x")
    wait_until(lambda: typist.other.typed().endswith("x"), "the letter arrives")
    assert " " in typist.other.typed()
    assert typist.count("preview shows") == 0


def test_a_changed_mapping_counts(desktop, typist):
    connection = display.Display(desktop.environment["DISPLAY"])
    code = connection.keysym_to_keycode(XK.XK_F9)
    connection.change_keyboard_mapping(code, [[XK.XK_space]])
    connection.sync()
    typist.point_at_tile()
    for kind in (X.KeyPress, X.KeyRelease):
        xtest.fake_input(connection, kind, code)
    connection.sync()
    typist.wait_for_preview()


def test_a_key_that_another_program_has_taken_stays_there(desktop, typist):
    connection = display.Display(desktop.environment["DISPLAY"])
    code = connection.keysym_to_keycode(XK.XK_space)
    root = connection.screen().root
    root.grab_key(code, 0, False, X.GrabModeAsync, X.GrabModeAsync)
    connection.sync()
    typist.point_at_tile()
    typist.press_space()
    wait_until(lambda: connection.next_event().type == X.KeyPress, "the other program's key")
    connection.close()
    assert typist.count("preview shows") == 0
    desktop.screen.pointer.move(*BESIDE)
    typist.point_at_tile()
    typist.press_space()
    typist.wait_for_preview()


def test_an_open_menu_keeps_its_keys(desktop, typist):
    typist.point_at_tile()
    desktop.screen.pointer.press(3)
    desktop.screen.pointer.release(3)
    wait_until(lambda: typist.count("menu gets the keys: yes") > 0, "the menu has the keys")
    typist.move_to_tile()
    typist.press_space()
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: not desktop.screen.menu(), "the menu has closed")
    assert typist.count("preview shows") == 0
