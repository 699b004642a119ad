"""The menu of the card as the screen shows it."""

_KEYS = "menu gets the keys: yes"


class CardMenu:
    def __init__(self, desktop, vantle):
        self._desktop = desktop
        self._vantle = vantle

    def open_at(self, x, y):
        before = self._vantle.log_text().count(_KEYS)
        self._desktop.screen.pointer.click(x, y, button=3)
        self._vantle.wait_for_log(_KEYS, times=before + 1)
        return self

    def choose(self, *keys):
        """Presses these keys, and Return."""
        for key in (*keys, "Return"):
            self._desktop.screen.keyboard.press(key)
