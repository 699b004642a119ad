"""Plasma's shell, with its panel, tray and wallpaper, on a desktop of KDE's window manager."""

import re
import shutil

from kwin_wayland_desktop import KWinDesktop
from privatedesktop import Rectangle, wait_until, wait_until_still

# A plain desktop, with nothing that could be mistaken for Vantle.
_PLAIN_DESKTOP = """
for (const desktop of desktops()) {
    desktop.wallpaperPlugin = "org.kde.color";
    desktop.currentConfigGroup = ["Wallpaper", "org.kde.color", "General"];
    desktop.writeConfig("Color", "#708090");
    desktop.currentConfigGroup = ["General"];
    desktop.writeConfig("url", "file://%s");
}
"""
_WATCHER = "org.kde.StatusNotifierWatcher"
_IS_6 = shutil.which("kded6") is not None


class PlasmaShell:
    def __init__(self, desktop, platform):
        """platform: the Qt platform that its programs use."""
        self._desktop = desktop
        self._platform = platform
        desktop.environment.update(
            XDG_CURRENT_DESKTOP="KDE",
            XDG_SESSION_DESKTOP="KDE",
            KDE_FULL_SESSION="true",
            KDE_SESSION_VERSION="6" if _IS_6 else "5",
            XDG_MENU_PREFIX="plasma-",
            QT_QUICK_BACKEND="software",
        )

    def run_program(self, *command):
        return self._desktop.start("env", f"QT_QPA_PLATFORM={self._platform}", *command)

    def start(self):
        self.run_program("kded6" if _IS_6 else "kded5")
        self.run_program("plasmashell", "--no-respawn")
        wait_until(self.panel_height, "Plasma has a panel", limit=60)
        shown = self._desktop.home / "shown"
        shown.mkdir(exist_ok=True)
        self._run_script(_PLAIN_DESKTOP % shown)
        wait_until(self._has_tray, "Plasma has a tray", limit=60)
        screen = self._desktop.screen
        wait_until_still(lambda: screen.screenshot().tobytes(), "the shell", readings=20)

    def _call(self, service, path, method, *arguments):
        """Returns the answer as gdbus prints it."""
        return self._desktop.run(
            "gdbus", "call", "--session", "--dest", service, "--object-path", path,
            "--method", method, *arguments, check=False, text=True,
        ).stdout  # fmt: skip

    def _run_script(self, text):
        return self._call("org.kde.plasmashell", "/PlasmaShell",
                          "org.kde.PlasmaShell.evaluateScript", text)  # fmt: skip

    def _has_tray(self):
        return "true" in self._call(
            _WATCHER, "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties.Get",
            _WATCHER, "IsStatusNotifierHostRegistered",
        )  # fmt: skip

    def panel_height(self):
        """Returns the height of the panel at the lower edge, or None if there is none."""
        found = re.search(r"'(\d+)", self._run_script("print(panels()[0].height)"))
        return int(found[1]) if found else None


class PlasmaDesktop(KWinDesktop):
    """Plasma on Wayland."""

    def __init__(self, host):
        super().__init__(host)
        self.size = self.screen.size
        self._shell.start()

    def _start_compositor(self):
        self._shell = PlasmaShell(self, "wayland")
        super()._start_compositor()

    def run_program(self, *command):
        """Starts a program as the shell starts those of KDE."""
        return self._shell.run_program(*command)

    def panel_height(self):
        return self._shell.panel_height()

    def work_area(self):
        width, height = self.size
        return Rectangle(0, 0, width, height - self.panel_height())
