"""The settings' window and the onboarding's, found by the names that assistive programs know."""

import re

from assistant import Assistant
from privatedesktop import Rectangle, wait_until, wait_until_still

_CONTROLS = {"button", "check box", "radio button", "slider", "menu item"}
_WHEEL_DOWN = 5
_BAR = 80  # what stands below the steps of the onboarding


class Screens:
    """What is on the windows of Vantle, with real hands for it."""

    def __init__(self, desktop, vantle):
        self._desktop = desktop
        self._vantle = vantle
        self.assistant = Assistant(desktop)

    def found(self, name):
        """The control of that name; None while there is none."""
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
        """Turns the wheel until the control is in its window's middle, or as near as can be."""
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
        """Opens the menu of a button and takes a line of it, with the mouse."""
        self.click(button)
        self.click(line)
        wait_until(lambda: self._desktop.screen.menu() is None, "the menu closes")

    def setting(self, key, default=None):
        """What stands in the settings file."""
        text = self._vantle.settings_file.read_text()
        found = re.search(rf"^{key}=(.*)$", text, re.MULTILINE)
        return found.group(1) if found else default

    def wait_for_setting(self, key, value):
        wait_until(lambda: self.setting(key) == value, f"{key} is {value}")

    def thumbnail_is_shown(self):
        """Whether the screenshot tool is to show its own."""
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
