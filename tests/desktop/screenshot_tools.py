"""The screenshot tools of the desktops, as people use them: each takes one and saves it."""

import pathlib

from privatedesktop import wait_until
from using import find_window, press_with_control, window_titled

# As the desktops write it for a German.
USER_FOLDERS = 'XDG_DESKTOP_DIR="$HOME/Desktop"\nXDG_PICTURES_DIR="$HOME/Bilder"\n'


class ScreenshotTool:
    """One that saves by itself. Waits for its end."""

    def __init__(self, *command):
        self._command = command

    def take(self, desktop):
        desktop.run(*self._command)


class AskingTool:
    """One that opens windows with these titles, one after the other, to each of which Return is
    the answer."""

    def __init__(self, *command, titles):
        self._command = command
        self._titles = titles

    def take(self, desktop):
        process = desktop.start(*self._command)
        for title in self._titles:
            answer(desktop, title)
        wait_until(lambda: process.poll() is not None, f"{self._command[0]} ends")


class Editor:
    """One that shows the screenshot in a window and saves it by Ctrl+S.

    Then it asks in a dialog, to which Return is the answer, or has the file's name in its title.
    """

    def __init__(self, *command, window, dialog=None):
        self._command = command
        self._window = window
        self._dialog = dialog

    def take(self, desktop):
        process = desktop.start(*self._command)
        window = window_titled(desktop, self._window)
        wait_until(lambda: desktop.screen.active_window() == window, "it has the keyboard")
        press_with_control(desktop, "s")
        if self._dialog:
            answer(desktop, self._dialog)
        else:
            window_titled(desktop, ".png")
        process.terminate()
        process.wait()


def answer(desktop, title):
    """Presses Return in that window until it is gone: it may not listen yet."""
    window_titled(desktop, title)

    def is_gone():
        window = find_window(desktop, title)
        if window is not None and desktop.screen.active_window() == window:
            desktop.screen.keyboard.press("Return")
        return window is None

    wait_until(is_gone, f"{title} closes", interval=0.5)


SPECTACLE = ScreenshotTool("spectacle", "-b", "-n")
GNOME_SCREENSHOT = ScreenshotTool("gnome-screenshot")
KSNIP = ScreenshotTool("ksnip", "-f", "-s")
FLAMESHOT = AskingTool("flameshot", "full", titles=["Save screenshot"])
XFCE = AskingTool("xfce4-screenshooter", "-f", titles=["Screenshot", "Save screenshot as..."])
MATE = AskingTool("mate-screenshot", titles=["Save Screenshot"])
SCREENGRAB = Editor("screengrab", "-f", window="ScreenGrab", dialog="Save As...")
KSNIP_EDITOR = Editor("ksnip", "-f", window="ksnip")


def pictures_in(folder):
    """The names of the screenshots in a folder."""
    kinds = {".png", ".jpg"}
    return sorted(file.name for file in pathlib.Path(folder).glob("*") if file.suffix in kinds)
