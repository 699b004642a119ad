"""KDE's compositor as a Wayland desktop inside a private one, with XWayland."""

import json
import shutil

from wayland_desktop import WaylandDesktop

# KWin accepts a program to start, but no arguments for it.
_TELL_NAMES = """#!/bin/sh
echo $DISPLAY $WAYLAND_DISPLAY > $HOME/told
"""


class KWinDesktop(WaylandDesktop):
    name = "KDE"

    def __init__(self, host, scale=1):
        self._scale = scale
        super().__init__(host)

    def _start_compositor(self):
        # The installed program has a capability, and does not start if that cannot be granted. A
        # copy does not have it.
        kwin = shutil.copy(shutil.which("kwin_wayland"), self.folder)
        teller = self.folder / "tell-names"
        teller.write_text(_TELL_NAMES)
        teller.chmod(0o755)
        self._write_scale()
        width, height = self.screen.size
        # Qt paints it, because the X server lacks some of the OpenGL that KWin needs.
        self._compositor = self.start(
            "env", "KWIN_COMPOSE=Q",
            kwin, "--x11-display", self.environment["DISPLAY"], "--xwayland",
            "--width", width, "--height", height, "--no-lockscreen", "--scale", self._scale, teller,
        )  # fmt: skip
        self._wait_for_names("DISPLAY", "WAYLAND_DISPLAY")

    def _write_scale(self):
        """Writes the scale where KWin 6 reads it; KWin 5 has an option for it."""
        output = {"connectorName": "X11-0", "scale": self._scale}
        place = {"outputIndex": 0, "enabled": True, "position": {"x": 0, "y": 0}, "priority": 0}
        setup = {"lidClosed": False, "outputs": [place]}
        configuration = self.home / ".config"
        configuration.mkdir(exist_ok=True)
        (configuration / "kwinoutputconfig.json").write_text(json.dumps(
            [{"name": "outputs", "data": [output]}, {"name": "setups", "data": [setup]}]))
        self.give_to_user()

    def end(self):
        self._compositor.terminate()
