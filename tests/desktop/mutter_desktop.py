"""GNOME's compositor as a Wayland desktop inside a private one, with XWayland.

Its shell is drawn by Mutter, too, but needs services of a whole system, which windows do not.
"""

from wayland_desktop import WaylandDesktop

# Mutter ends when this ends.
_TELL_NAMES = """
echo $DISPLAY $WAYLAND_DISPLAY $XAUTHORITY > $HOME/told
echo $$ > $HOME/pid
exec sleep infinity
"""


class MutterDesktop(WaylandDesktop):
    name = "GNOME"

    def _start_compositor(self):
        # Without a shell nobody makes workspaces when they are needed.
        self.run("gsettings", "set", "org.gnome.mutter", "dynamic-workspaces", "false")
        width, height = self.screen.size
        self.start("env", f"MUTTER_DEBUG_DUMMY_MODE_SPECS={width}x{height}",
                   "mutter", "--wayland", "--nested", "--", "sh", "-c", _TELL_NAMES)
        self._wait_for_names("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY")

    def _fill_screen(self):
        super()._fill_screen()
        self._wake_pointer()

    def _wake_pointer(self):
        """What opens under a pointer that has not moved yet stays hidden from it."""
        width, height = self.screen.size
        for x in (width // 2, width // 2 + 20):
            self.screen.pointer.move(x, height // 3)

    def end(self):
        self.run("kill", (self.home / "pid").read_text().strip())
