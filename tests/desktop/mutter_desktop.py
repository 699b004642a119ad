"""GNOME's compositor as a Wayland desktop inside a private one, with XWayland.

Mutter also draws GNOME's shell, but that needs services of a whole system, and windows do not.
"""

import re

from wayland_desktop import WaylandDesktop

# Mutter ends when this script ends.
_TELL_NAMES = """
echo $DISPLAY $WAYLAND_DISPLAY $XAUTHORITY > $HOME/told
echo $$ > $HOME/pid
exec sleep infinity
"""


_DISPLAYS = "org.gnome.Mutter.DisplayConfig"
_FIRST_OUTPUT = "[(0, 0, 1.0, 0, true, [('LVDS1', '%dx%d@60.000', {})])]"


class MutterDesktop(WaylandDesktop):
    """Its outputs share one window equally, side by side."""

    name = "GNOME"

    def __init__(self, host, outputs=1):
        self._outputs = outputs
        super().__init__(host)

    def _start_compositor(self):
        # Without a shell nothing creates workspaces dynamically.
        self.run("gsettings", "set", "org.gnome.mutter", "dynamic-workspaces", "false")
        width, height = self._size_of_output()
        self.start("env", f"MUTTER_DEBUG_DUMMY_MODE_SPECS={width}x{height}",
                   f"MUTTER_DEBUG_NUM_DUMMY_MONITORS={self._outputs}",
                   "mutter", "--wayland", "--nested", "--", "sh", "-c", _TELL_NAMES)
        self._wait_for_names("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY")

    def _size_of_output(self):
        width, height = self.screen.size
        return width // self._outputs, height

    def keep_first_output(self):
        """Turns the other outputs off."""
        told = self._ask_displays("GetCurrentState")
        serial = re.match(r"\(uint32 (\d+),", told).group(1)
        only = _FIRST_OUTPUT % self._size_of_output()
        self._ask_displays("ApplyMonitorsConfig", serial, "1", only, "{}")

    def _ask_displays(self, method, *arguments):
        return self.run("gdbus", "call", "--session", "--dest", _DISPLAYS,
                        "--object-path", "/" + _DISPLAYS.replace(".", "/"),
                        "--method", f"{_DISPLAYS}.{method}", *arguments, text=True).stdout

    def _fill_screen(self):
        super()._fill_screen()
        self._wake_pointer()

    def end(self):
        self.run("kill", (self.home / "pid").read_text().strip())
