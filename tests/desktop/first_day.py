"""A user's first day: from the onboarding to a capture that comes back from the Trash."""

import colorsys

from PIL import ImageChops

from privatedesktop import Rectangle, wait_until, wait_until_still
from using import BUTTONS, press_with_control

_STEPS = 3
_MARGIN = 14  # between the card and the edges of the screen
_BUTTON_FROM_MIDDLE = 240  # from the middle of the window, which is the middle of the screen


def _is_strong(colour):
    _, saturation, _ = colorsys.rgb_to_hsv(*(part / 255 for part in colour))
    return saturation > 0.4


def _forward_button(desktop):
    """Returns the button's place: the lowest strong colour on the onboarding's grey, or None."""
    width, height = desktop.screen.size
    x = width // 2 + _BUTTON_FROM_MIDDLE
    column = desktop.screen.screenshot(Rectangle(x, height // 2, 1, height // 2))
    greys = 0
    for y in range(column.height - 1, -1, -1):
        if _is_strong(column.getpixel((0, y))):
            if greys > 10:
                return x, height // 2 + y - 8
            greys = 0
        else:
            greys += 1
    return None


def go_through_onboarding(desktop, vantle):
    """Clicks through the onboarding with the mouse, with the recommended settings."""
    for _ in range(_STEPS):
        wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the step")
        place = wait_until(lambda: _forward_button(desktop), "there is a button to go on")
        desktop.screen.pointer.move(place[0] - 3, place[1])
        desktop.screen.pointer.click(*place)
    vantle.wait_for_log(r"^Vantle\[dbg\]: watching ")
    assert "hasCompletedOnboarding=true" in vantle.settings_file.read_text()


class Card:
    """The card with a single capture, in the corner that the onboarding recommends."""

    def __init__(self, desktop):
        area = getattr(desktop, "work_area", desktop.screen.work_area)()
        self._desktop = desktop
        self._right, self._bottom = area.right - _MARGIN, area.bottom - _MARGIN
        self.tile = self._right - 164, self._bottom - 148

    def press(self, button):
        place = self._right - BUTTONS[button], self._bottom - 28
        self._desktop.screen.pointer.move(place[0] - 3, place[1])
        self._desktop.screen.pointer.click(*place)


def wait_for_copy(original, copy):
    wait_until(copy.exists, "it arrives")
    wait_until(lambda: copy.read_bytes() == original.read_bytes(), "it is whole")


def paste_into_editor(desktop, editor, file, text):
    """Pastes and saves until the file that the editor opens contains that text."""
    file.touch()
    if hasattr(desktop, "give_to_user"):
        desktop.give_to_user()

    before = desktop.screen.screenshot()
    process = editor(file)
    # Before the window has the keyboard, the paste would go to the desktop itself.
    wait_until(lambda: is_large_part(desktop.screen.screenshot(), before), "the editor opens")

    def is_saved():
        # A shell may miss a short key press.
        press_with_control(desktop, "v")
        press_with_control(desktop, "s")
        return text in file.read_text()

    wait_until(is_saved, "it is pasted", interval=0.5)
    process.terminate()


def is_large_part(picture, before):
    """Returns true if the pictures differ over a large part, as when a window opens."""
    change = ImageChops.difference(picture.convert("L"), before.convert("L"))
    return change.histogram()[0] < 0.9 * picture.width * picture.height


def move_to_trash_and_back(desktop, card, file):
    """Moves the file to the Trash, and restores it as a file manager does."""
    content = file.read_bytes()
    card.press("trash")
    wait_until(lambda: not file.exists(), "it is in the Trash")
    desktop.run("gio", "trash", "--restore", f"trash:///{file.name}")
    assert file.read_bytes() == content
