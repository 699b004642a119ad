"""What a user does with a tile: presses its buttons, drags it away."""

import re

from privatedesktop import wait_until, wait_until_still

# On a card with one capture of the pattern, from its right and its upper edge, in points.
BUTTONS = {"copy": 110, "share": 82, "reveal": 54, "trash": 26}
_BUTTONS_BELOW_EDGE = 227
_TILE = (164, 100)


def press_button(desktop, card, name):
    desktop.screen.pointer.click(card.right - BUTTONS[name], card.y + _BUTTONS_BELOW_EDGE)


def tile_of(card):
    """Returns a point on the first tile."""
    return card.x + min(_TILE[0], card.width // 2), card.y + _TILE[1]


def select_all(desktop, card):
    """Draws a marquee over everything visible on the card, and waits for the bar of the
    selection. Towards the near edge of the screen, so fast a movement would be a flick."""
    desktop.screen.pointer.drag((card.right - 4, card.bottom - 5), (card.x + 4, card.y + 20))
    panel = desktop.screen.panel().frame
    wait_until_still(lambda: desktop.screen.screenshot(panel).tobytes(), "the card")


class Drag:
    """A drag of the tile at `start`. It begins at once; the button is held until drop()."""

    def __init__(self, desktop, vantle, start):
        self._pointer = desktop.screen.pointer
        self._vantle = vantle
        self._start = start
        self._log_before = len(vantle.log_text())
        self._pointer.move(*start)
        self._pointer.press()
        self._pointer.move(start[0] - 6, start[1] - 6)
        wait_until(lambda: "thumb drag begins" in self._log(), "the drag begins")

    def _log(self):
        return self._vantle.log_text()[self._log_before :]

    def move(self, x, y):
        for step in range(1, 11):
            self._pointer.move(*(a + (b - a) * step / 10 for a, b in zip(self._start, (x, y))))
        return self

    def hold_over(self, x, y):
        """Waits there until the program under the pointer promises to take the drag."""
        self.move(x, y)
        turn = 0

        def is_promised():
            # The target is asked only while the pointer moves. LibreOffice answers each movement
            # with no and then with yes, so only its last word counts.
            nonlocal turn
            turn += 1
            self._pointer.move(x + turn % 3, y)
            answers = wait_until_still(self._answers, "the target's answer", interval=0.05)
            return answers[-1:] == ["true"]

        wait_until(is_promised, "the drop target promises to take it")
        return self

    def _answers(self):
        return re.findall(r"drop target promised=(\w+)", self._log())

    def drop(self):
        self._pointer.release()
        return self.was_taken()

    def was_taken(self):
        """Waits for the end of the drag. Returns true if the target took it."""
        ends = wait_until(
            lambda: re.findall(r"thumb drag ended op=(\d)", self._log()), "the drag ends", limit=30
        )
        return ends == ["1"]


def find_window(desktop, text):
    """Returns the number of a window whose title contains that text, or None."""
    for number in desktop.screen.client_list():
        if text in (desktop.screen.title(number) or b"").decode("utf-8", "replace"):
            return number
    return None


def window_titled(desktop, text, limit=20.0):
    """Waits for such a window and returns its number."""
    what = f"a window has {text} in its title"
    return wait_until(lambda: find_window(desktop, text), what, limit)


def press_with_control(desktop, key):
    keyboard = desktop.screen.keyboard
    keyboard.hold("Control_L")
    keyboard.press(key)
    keyboard.let_go("Control_L")
