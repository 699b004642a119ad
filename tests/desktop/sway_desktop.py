"""Sway as a Wayland desktop inside a private one."""

import json

from wayland_desktop import WaylandDesktop

_NAMES = ("DISPLAY", "WAYLAND_DISPLAY", "SWAYSOCK")
_CONFIGURATION = """
output * bg #405070 solid_color
xwayland force
default_border none
focus_follows_mouse no
exec sh -c 'echo $DISPLAY $WAYLAND_DISPLAY $SWAYSOCK > $HOME/told'
"""


class SwayDesktop(WaylandDesktop):
    name = "sway"

    def __init__(self, host, more_configuration=""):
        self._configuration = _CONFIGURATION + more_configuration
        super().__init__(host)

    def _start_compositor(self):
        configuration = self.folder / "config"
        configuration.write_text(self._configuration)
        self.start("env", "WLR_BACKENDS=x11", "WLR_RENDERER=pixman",
                   "sway", "--config", configuration)
        self._wait_for_names(*_NAMES)

    def message(self, *words):
        """Sends Sway a request or a command, and returns the answer."""
        return json.loads(self.run("swaymsg", "--raw", *words).stdout)
