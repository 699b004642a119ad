"""The screenshot tools of the desktops, used as people do: each takes a screenshot and saves it."""

import pathlib
import shutil
import subprocess

from privatedesktop import wait_until
from using import find_window, press_with_control, window_titled

# The file that desktops write for a German user.
USER_FOLDERS = 'XDG_DESKTOP_DIR="$HOME/Desktop"\nXDG_PICTURES_DIR="$HOME/Bilder"\n'


class ScreenshotTool:
    """A tool that saves by itself; take() waits for its end. `setting` is the schema and the key of
    its folder, if GSettings has it."""

    def __init__(self, *command, setting=None):
        self._command = command
        self._setting = setting

    def take(self, desktop):
        desktop.run(*self._command)

    def stored_folder(self, desktop):
        """Returns its folder as GSettings has it; None for other tools."""
        return self._setting and desktop.run("gsettings", "get", *self._setting).stdout.decode()


class AskingTool(ScreenshotTool):
    """A tool that opens windows with these titles, one after the other. Return accepts each of
    them."""

    def __init__(self, *command, titles, setting=None):
        super().__init__(*command, setting=setting)
        self._titles = titles

    def take(self, desktop):
        process = desktop.start(*self._command)
        for title in self._titles:
            answer(desktop, title)
        wait_until(lambda: process.poll() is not None, f"{self._command[0]} ends")


class Editor(ScreenshotTool):
    """A tool that shows the screenshot in a window and saves it on Ctrl+S.

    It then either opens a dialog, which Return accepts, or shows the file's name in its title.
    """

    def __init__(self, *command, window, dialog=None):
        super().__init__(*command)
        self._window = window
        self._dialog = dialog

    def take(self, desktop):
        process = desktop.start(*self._command)
        window_titled(desktop, self._window)
        press_until(
            desktop, self._window, lambda: press_with_control(desktop, "s"),
            lambda: find_window(desktop, self._dialog or ".png"),
        )  # fmt: skip
        if self._dialog:
            answer(desktop, self._dialog)
        process.terminate()
        process.wait()


def answer(desktop, title):
    window_titled(desktop, title)
    press_until(
        desktop, title, lambda: desktop.screen.keyboard.press("Return"),
        lambda: find_window(desktop, title) is None,
    )  # fmt: skip


def press_until(desktop, title, press, is_done):
    """Presses repeatedly while that window has the keyboard, because it may not listen yet."""

    def attempt():
        if is_done():
            return True
        if desktop.screen.active_window() == find_window(desktop, title):
            press()
        return False

    wait_until(attempt, f"{title} answers", interval=0.7)


SPECTACLE = ScreenshotTool("spectacle", "-b", "-n")
GNOME_SCREENSHOT = ScreenshotTool(
    "gnome-screenshot", setting=["org.gnome.gnome-screenshot", "auto-save-directory"])
KSNIP = ScreenshotTool("ksnip", "-f", "-s")
FLAMESHOT = AskingTool("flameshot", "full", titles=["Save screenshot"])
XFCE = AskingTool("xfce4-screenshooter", "-f", titles=["Screenshot", "Save screenshot as..."])
MATE = AskingTool(
    "mate-screenshot", titles=["Save Screenshot"],
    setting=["org.mate.screenshot", "last-save-directory"])
SCREENGRAB = Editor("screengrab", "-f", window="ScreenGrab", dialog="Save As...")
KSNIP_EDITOR = Editor("ksnip", "-f", window="ksnip")


class Notifications:
    """The desktop's notifications; counts those of a tool.

    If there is no such service, but the system has a program for it that does not start on this
    desktop, a tool that notifies waits for that before it ends.
    """

    def __init__(self, desktop):
        program = pathlib.Path(__file__).with_name("notifications.py")
        desktop.start("/usr/bin/python3", str(program))
        self._log = desktop.log_folder / "python3.log"
        wait_until(lambda: "ready" in self._text(), "notifications are taken")

    def _text(self):
        return self._log.read_text() if self._log.exists() else ""

    def count(self, tool):
        return self._text().count(f"notified by {tool}\n")


def spectacle_is_for_qt5():
    """Returns true if the installed Spectacle is older than KDE Gear 24.02."""
    program = shutil.which("spectacle")
    libraries = subprocess.run(["ldd", program], capture_output=True, text=True, check=True).stdout
    return "libQt5Core" in libraries


def pictures_in(folder):
    """Returns the names of the screenshots in a folder."""
    kinds = {".png", ".jpg"}
    return sorted(file.name for file in pathlib.Path(folder).glob("*") if file.suffix in kinds)
