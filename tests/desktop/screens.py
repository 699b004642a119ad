"""The windows of the settings and the onboarding, found by their accessible names."""

import re

from assistant import Assistant
from privatedesktop import Rectangle, wait_until, wait_until_still

_CONTROLS = {"button", "check box", "radio button", "slider", "menu item"}
_WHEEL_DOWN = 5
_BAR = 80  # the height of the bar below the steps of the onboarding


class Screens:
    """Vantle's windows, read by accessibility and used with a real mouse."""

    def __init__(self, desktop, vantle):
        self._desktop = desktop
        self._vantle = vantle
        self.assistant = Assistant(desktop)

    def found(self, name):
        """Returns the control of that name, or None."""
        for item in self.assistant.find(name):
            if item["role"] in _CONTROLS and "showing" in item["states"]:
                return item
        return None

    def control(self, name):
        return wait_until(lambda: self.found(name), f"there is {name}")

    def wait_for_text(self, text):
        self.assistant.wait_for(text)

    def is_on(self, name):
        return "checked" in self.control(name)["states"]

    def frame(self, name):
        return Rectangle(*self.control(name)["frame"])

    def click(self, name):
        self._scroll_to(name)
        self._desktop.screen.pointer.click(*self.frame(name).centre)

    def _picture(self):
        return self._desktop.screen.screenshot().tobytes()

    def _scroll_to(self, name):
        """Turns the wheel until the control is above the lower bar, or the window scrolls no
        further."""
        windows = self._desktop.screen.dialogs()
        if not windows or self._desktop.screen.menu():
            return
        area = self._desktop.screen.area(windows[0])
        frame, before = self.frame(name), None
        while frame != before and frame.bottom > area.bottom - _BAR:
            self._desktop.screen.pointer.click(*area.centre, button=_WHEEL_DOWN)
            wait_until_still(self._picture, "the window", readings=3)
            before, frame = frame, self.frame(name)

    def choose(self, button, line):
        """Opens the menu of a button and clicks a line of it."""
        self.click(button)
        self.click(line)
        wait_until(lambda: self._desktop.screen.menu() is None, "the menu closes")

    def setting(self, key, default=None):
        """Returns a value of the settings file."""
        text = self._vantle.settings_file.read_text()
        found = re.search(rf"^{key}=(.*)$", text, re.MULTILINE)
        return found.group(1) if found else default

    def wait_for_setting(self, key, value):
        wait_until(lambda: self.setting(key) == value, f"{key} is {value}")

    def thumbnail_is_shown(self):
        """Returns true unless the screenshot tool is set to hide its own thumbnail."""
        path = self._vantle.config_folder / "com.apple.screencapture.conf"
        return "show-thumbnail=false" not in path.read_text() if path.exists() else True

    def starts_at_login(self):
        entry = self._vantle.config_folder.parent / "autostart/org.vantle.Vantle.desktop"
        return entry.exists() and "Hidden=true" not in entry.read_text()

    def open_settings(self):
        self._vantle.command("--settings")
        window = wait_until(self._desktop.screen.dialogs, "the settings open")[0]
        wait_until(lambda: self._desktop.screen.active_window() == window, "they have the keyboard")
        self.wait_for_text("SCREENSHOTS ARE SAVED TO")
        return window

    def wait_until_closed(self):
        wait_until(lambda: not self._desktop.screen.dialogs(), "the window closes")
