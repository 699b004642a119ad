"""The whole GNOME Shell as a Wayland desktop inside a private one, with XWayland.

It has its own system bus with a mock of logind, because no session starts without that.
"""

import re

from privatedesktop import Rectangle, wait_until, wait_until_still
from wayland_desktop import WaylandDesktop

_SYSTEM_BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
  "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={path}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""

EXTENSION = "ubuntu-appindicators@ubuntu.com"
_BLACK = (0, 0, 0)
_SOCKET = "wayland-of-gnome"
_SETTINGS = {
    # The window manager of the private desktop uses Print itself.
    "org.gnome.shell.keybindings show-screenshot-ui": "['F12']",
    "org.gnome.shell welcome-dialog-last-shown-version": "'99'",
    "org.gnome.desktop.session idle-delay": "0",
    "org.gnome.desktop.interface enable-animations": "false",
}


class GnomeShellDesktop(WaylandDesktop):
    """Has the extension that shows tray icons, unless `extensions` says otherwise."""

    name = "GNOME"

    def __init__(self, host, extensions=(EXTENSION,)):
        self._extensions = list(extensions)
        super().__init__(host)

    def _start_bus(self):
        self.size = self.screen.size
        address = self.folder / "runtime/system-bus"
        configuration = self.folder / "system-bus.conf"
        configuration.write_text(_SYSTEM_BUS.format(path=address))
        self.environment["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={address}"
        self.give_to_user()
        self.start("dbus-daemon", f"--config-file={configuration}", "--nofork", "--nopidfile")
        wait_until(address.exists, "the system bus listens")
        self.start("/usr/bin/python3", "-m", "dbusmock", "--system", "--template", "logind")
        super()._start_bus()
        self.run("gdbus", "wait", "--system", "--timeout", "20", "org.freedesktop.login1")

    def _start_compositor(self):
        self.environment.update(
            XDG_SESSION_ID="c1", XDG_SESSION_DESKTOP="gnome", LIBGL_ALWAYS_SOFTWARE="1"
        )
        self._write_settings()
        self._start_shell()

    def _start_shell(self):
        width, height = self.screen.size
        self.start("env", f"MUTTER_DEBUG_DUMMY_MODE_SPECS={width}x{height}", "sh", "-c",
                   'exec "$@" > "$TMPDIR/shell.log" 2>&1', "sh",
                   "gnome-shell", "--nested", "--wayland", f"--wayland-display={_SOCKET}")
        display = wait_until(self._x_display, "GNOME Shell starts", limit=60)
        [authority] = (self.folder / "runtime").glob(".mutter-Xwaylandauth.*")
        self.environment.update(
            DISPLAY=display, WAYLAND_DISPLAY=_SOCKET, XAUTHORITY=str(authority)
        )

    def _write_settings(self):
        # Marks the warning that the screen cannot be locked as shown.
        warned = self.home / ".local/share/gnome-shell/lock-warning-shown"
        warned.parent.mkdir(parents=True)
        warned.touch()
        self.give_to_user()
        settings = {**_SETTINGS, "org.gnome.shell enabled-extensions": str(self._extensions)}
        for name, value in settings.items():
            self.run("gsettings", "set", *name.split(), value)

    def _x_display(self):
        log = self.folder / "shell.log"
        found = log.exists() and re.search(r"public X11 display (:\d+)", log.read_text())
        return found and found.group(1)

    def _fill_screen(self):
        super()._fill_screen()
        self._wait_for_shell()

    def _wait_for_shell(self):
        wait_until(self._shows_overview, "the shell shows its overview", limit=60)
        # Until its start is complete the shell ignores input; version 48 ignores it for ever if it
        # got any.
        wait_until_still(self._picture, "the shell", limit=60)
        self.leave_overview()
        self._wake_pointer()

    def leave_overview(self):
        """Leaves the overview, which the shell shows first and may show again during its start."""

        def is_left():
            self.screen.keyboard.press("Escape")
            return wait_until_still(self._bar, "the bar", readings=30) == _BLACK

        wait_until(is_left, "the overview is left", limit=60)
        wait_until_still(self._picture, "the shell", limit=60)

    def _shows_overview(self):
        return self._bar() not in (_BLACK, None)

    def _picture(self):
        return self.screen.screenshot().tobytes()

    def _bar(self):
        """Returns the colour of the bar along the top, or None if it is not drawn yet."""
        bar = self.screen.screenshot(Rectangle(0, 0, self.screen.size[0], 30))
        has_clock = bar.convert("L").getextrema()[1] > 180
        return bar.getpixel((200, 3)) if has_clock else None


class GnomeShellOnX11(GnomeShellDesktop):
    """GNOME Shell as the window manager of the private desktop."""

    toolkit_backend = "x11"

    def _start_shell(self):
        self.environment["XDG_SESSION_TYPE"] = "x11"
        self.start("sh", "-c", 'exec "$@" > "$TMPDIR/shell.log" 2>&1', "sh",
                   "gnome-shell", "--x11", "--replace")

    def _fill_screen(self):
        self._wait_for_shell()
