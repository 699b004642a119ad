"""GNOME's compositor as a Wayland desktop inside a private one, with XWayland.

Its shell is drawn by Mutter, too, but needs services of a whole system, which windows do not.
"""

from privatedesktop import wait_until
from sway_desktop import SwayDesktop

# Mutter ends when this ends.
_TELL_DISPLAYS = """
echo $DISPLAY $WAYLAND_DISPLAY $XAUTHORITY > $HOME/displays
exec sleep infinity
"""


class MutterDesktop(SwayDesktop):
    """Has what Program and WatchedFolder need of a desktop. It ends with the private desktop."""

    def _start_sway(self):
        self._host.run("xhost", "+local:")
        width, height = self.screen.size
        self.environment["XDG_CURRENT_DESKTOP"] = "GNOME"
        self.start("env", f"MUTTER_DEBUG_DUMMY_MODE_SPECS={width}x{height}",
                   "mutter", "--wayland", "--nested", "--", "sh", "-c", _TELL_DISPLAYS)
        told = self.home / "displays"
        displays = wait_until(lambda: told.exists() and told.read_text().split(), "Mutter starts")
        names = ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY")
        self.environment.update(zip(names, displays, strict=True))
        self._fill_screen()
        self._wake_pointer()

    def _wake_pointer(self):
        """What opens under a pointer that has not moved yet stays hidden from it."""
        width, height = self.screen.size
        for x in (width // 2, width // 2 + 20):
            self.screen.pointer.move(x, height // 3)
