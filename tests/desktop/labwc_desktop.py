"""labwc as a Wayland desktop inside a private one."""

from privatedesktop import wait_until
from using import window_titled
from wayland_desktop import WaylandDesktop

_TELL_NAMES = """#!/bin/sh
echo $DISPLAY $WAYLAND_DISPLAY $LABWC_PID > $HOME/told
"""

_CONFIGURATION = """
<labwc_config>
  <desktops number="2"/>
  <keyboard>
    <keybind key="W-Page_Down"><action name="GoToDesktop" to="right"/></keybind>
  </keyboard>
</labwc_config>
"""


class LabwcDesktop(WaylandDesktop):
    """Each output is a window of the private desktop. A single one fills the screen."""

    name = "labwc"

    def __init__(self, host, outputs=1):
        self._outputs = outputs
        super().__init__(host)

    def _start_compositor(self):
        configuration = self.home / ".config/labwc/rc.xml"
        configuration.parent.mkdir(parents=True)
        configuration.write_text(_CONFIGURATION)
        self.give_to_user()
        teller = self.folder / "tell-names"
        teller.write_text(_TELL_NAMES)
        teller.chmod(0o755)
        self.start("env", "WLR_BACKENDS=x11", f"WLR_X11_OUTPUTS={self._outputs}",
                   "WLR_RENDERER=pixman", "labwc", "-s", teller)
        self._wait_for_names("DISPLAY", "WAYLAND_DISPLAY", "LABWC_PID")

    def _fill_screen(self):
        if self._outputs == 1:
            super()._fill_screen()
        else:
            self._stand_side_by_side()

    def _stand_side_by_side(self):
        windows = wait_until(
            lambda: len(found := self.screen.client_list()) == self._outputs and found,
            "the compositor's windows open",
        )
        places = [place * self.screen.size[0] // self._outputs for place in range(self._outputs)]
        for window, x in zip(windows, places, strict=True):
            self.screen.ask_to_move(window, x, 0)
        wait_until(
            lambda: all(0 <= self.screen.area(window).x - x < 10
                        for window, x in zip(windows, places, strict=True)),
            "they stand side by side",
        )  # fmt: skip

    def area_of(self, output):
        """Returns the area of the output with that name on the private desktop."""
        return self.screen.area(window_titled(self, output))

    def close_output(self, name):
        self.screen.ask_to_close(window_titled(self, name))

    def change_output(self, name, *options):
        self.run("wlr-randr", "--output", name, *options)

    def end(self):
        self.run("labwc", "--exit")
