"""KDE's compositor as a Wayland desktop inside a private one, with XWayland."""

import shutil

from wayland_desktop import WaylandDesktop

# KWin takes a program to start, but no arguments for it.
_TELL_NAMES = """#!/bin/sh
echo $DISPLAY $WAYLAND_DISPLAY > $HOME/told
"""


class KWinDesktop(WaylandDesktop):
    name = "KDE"

    def _start_compositor(self):
        # The installed one has a right of its own, and does not start where nobody may have it. A
        # copy has none.
        kwin = shutil.copy(shutil.which("kwin_wayland"), self.folder)
        teller = self.folder / "tell-names"
        teller.write_text(_TELL_NAMES)
        teller.chmod(0o755)
        width, height = self.screen.size
        # Painted by Qt: the X server has not all that KWin needs of OpenGL.
        self.start("env", "KWIN_COMPOSE=Q",
                   kwin, "--x11-display", self.environment["DISPLAY"], "--xwayland",
                   "--width", width, "--height", height, "--no-lockscreen", teller)
        self._wait_for_names("DISPLAY", "WAYLAND_DISPLAY")
