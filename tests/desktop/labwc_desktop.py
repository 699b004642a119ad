"""labwc as a Wayland desktop inside a private one."""

from wayland_desktop import WaylandDesktop

_TELL_NAMES = """#!/bin/sh
echo $DISPLAY $WAYLAND_DISPLAY $LABWC_PID > $HOME/told
"""


class LabwcDesktop(WaylandDesktop):
    name = "labwc"

    def _start_compositor(self):
        teller = self.folder / "tell-names"
        teller.write_text(_TELL_NAMES)
        teller.chmod(0o755)
        self.start("env", "WLR_BACKENDS=x11", "WLR_RENDERER=pixman", "labwc", "-s", teller)
        self._wait_for_names("DISPLAY", "WAYLAND_DISPLAY", "LABWC_PID")

    def end(self):
        self.run("labwc", "--exit")
