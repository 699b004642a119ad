"""A complete small desktop: X server, session bus, window manager, compositor, wallpaper, tray."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import uuid

from . import processes
from .screen import Screen
from .waiting import WaitTimeout, wait_until

_MARK = "VANTLE_PRIVATE_DESKTOP"
# The language is not kept, because the tests compare what the program says.
_KEPT_VARIABLES = ("PATH", "USER", "LOGNAME", "TZ")
_KEPT_PREFIXES = ("VANTLE_", "ASAN_", "UBSAN_", "LSAN_", "TSAN_")
BAR_HEIGHT = 26
FONT_SETTINGS = """<?xml version="1.0"?>
<fontconfig>
  <alias binding="same">
    <family>sans-serif</family>
    <prefer><family>Inter</family></prefer>
  </alias>
</fontconfig>
"""
GRADIENT = ("#1d2b4a", "#4a5f8f", "#b78fa0", "#f0c9a4")


class DesktopFailure(RuntimeError):
    """The desktop could not be started; the text says what to do."""


class PrivateDesktop:
    """A desktop that starts on entering a with statement, and ends with all its processes after
    it."""

    def __init__(self, size=(1440, 900), compositor=True, tray=True, window_manager=("openbox",),
                 environment=None, configuration=None):
        """configuration maps file names in XDG_CONFIG_HOME to contents."""
        self.size = size
        self.screen = None
        self.environment = {}
        self._compositor = compositor
        self._tray = tray
        self._window_manager = window_manager
        self._own_environment = environment or {}
        self._configuration = configuration or {}
        self._mark = uuid.uuid4().hex
        self._processes = []
        self._connections = []
        self._folder = None
        self._tray_process = None
        self._server = None
        self._bus = None

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    @property
    def home(self):
        return pathlib.Path(self.environment["HOME"])

    @property
    def log_folder(self):
        return self._folder / "logs"

    def _start(self):
        self._make_folders()
        self._choose_font()
        self._write_configuration()
        self._start_server()
        self._start_bus()
        self._start_window_manager()
        if self._compositor:
            self._start_compositor()
        self.paint_gradient()
        if self._tray:
            self._start_tray()

    def _make_folders(self):
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="vantle-desktop-"))
        home, runtime = self._folder / "home", self._folder / "runtime"
        for folder in (home / "Desktop", self.log_folder, runtime):
            folder.mkdir(parents=True)
        runtime.chmod(0o700)
        kept = {
            name: value
            for name, value in os.environ.items()
            if name in _KEPT_VARIABLES or name.startswith(_KEPT_PREFIXES)
        }
        self.environment = {
            "LANG": "C.UTF-8",
            **kept,
            _MARK: self._mark,
            "HOME": str(home),
            "TMPDIR": str(self._folder),
            "XDG_RUNTIME_DIR": str(runtime),
            "XDG_CONFIG_HOME": str(home / ".config"),
            "XDG_DATA_HOME": str(home / ".local/share"),
            "XDG_STATE_HOME": str(home / ".local/state"),
            "XDG_CACHE_HOME": str(home / ".cache"),
            "XDG_SESSION_TYPE": "x11",
            **self._own_environment,
        }

    def _choose_font(self):
        """Sets the font of a real desktop, which is used if it is installed."""
        settings = pathlib.Path(self.environment["XDG_CONFIG_HOME"], "fontconfig/fonts.conf")
        settings.parent.mkdir(parents=True)
        settings.write_text(FONT_SETTINGS)

    def _write_configuration(self):
        folder = pathlib.Path(self.environment["XDG_CONFIG_HOME"])
        for name, text in self._configuration.items():
            (folder / name).write_text(text)

    def start(self, *arguments, **options):
        """Starts a program on this desktop; it ends with the desktop at the latest."""
        log = self.log_folder / (pathlib.Path(arguments[0]).name + ".log")
        try:
            process = processes.start(arguments, self.environment, log, **options)
        except FileNotFoundError as error:
            raise DesktopFailure(
                f"{arguments[0]} is not installed (see scripts/packages)") from error
        self._processes.append(process)
        return process

    def keep(self, connection):
        """Keeps a connection to the X server, and so its windows, until the desktop closes."""
        self._connections.append(connection)

    def run(self, *arguments, limit=60.0, **options):
        """Runs a program on this desktop to its end and returns what subprocess.run returns."""
        return subprocess.run(
            arguments,
            env=self.environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=limit,
            check=options.pop("check", True),
            **options,
        )

    def _require(self, condition, what, process):
        """Waits for a condition that a process of the desktop must bring about."""
        try:
            return wait_until(lambda: condition() or self._fail_if_ended(process, what), what)
        except WaitTimeout as error:
            raise self._failure(process, str(error)) from error

    def _fail_if_ended(self, process, what):
        if process.poll() is not None:
            raise self._failure(process, f"{process.args[0]} ended before {what}")

    def _failure(self, process, what):
        log = self.log_folder / (pathlib.Path(process.args[0]).name + ".log")
        text = log.read_text(errors="replace")[-2000:] if log.exists() else ""
        return DesktopFailure(f"{what}\n--- {process.args[0]} said ---\n{text}")

    def _start_server(self):
        width, height = self.size
        read_end, write_end = os.pipe()
        # The server picks a free display number itself, so that several desktops can run at once.
        server = self._server = self.start(
            "Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{width}x{height}x24",
            "-nolisten", "tcp", "-noreset", "-dpi", "96",
            pass_fds=[write_end],
        )  # fmt: skip
        os.close(write_end)
        with open(read_end, "rb") as pipe:
            number = pipe.readline().decode().strip()
        if not number:
            server.wait(10)
            raise self._failure(server, "the X server did not start")
        self.environment["DISPLAY"] = f":{number}"
        self.screen = Screen(self.environment["DISPLAY"])

    def _start_bus(self):
        address = "unix:path=" + self.environment["XDG_RUNTIME_DIR"] + "/bus"
        bus = self._bus = self.start("dbus-daemon", "--session", "--nofork", "--nopidfile",
                                     "--address", address)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        socket = pathlib.Path(self.environment["XDG_RUNTIME_DIR"], "bus")
        self._require(socket.exists, "the session bus listens", bus)

    def _start_window_manager(self):
        manager = self.start(*self._window_manager)
        self._require(
            lambda: self.screen.root_property("_NET_SUPPORTING_WM_CHECK"),
            "the window manager manages windows",
            manager,
        )

    def _start_compositor(self):
        compositor = self.start("picom", "--backend", "xrender", "--no-use-damage",
                                "--config", "/dev/null")
        self._require(self.screen.is_composited, "the compositor composes", compositor)

    def _start_tray(self):
        # On a busy machine the tray sometimes asks for its edge before anybody listens, and never
        # again.
        tray = self._launch_tray()
        try:
            wait_until(self._has_bar, "the tray takes its edge of the screen", limit=8.0)
        except WaitTimeout:
            processes.end(tray)
            self._require(self._has_bar, "the tray takes its edge of the screen",
                          self._launch_tray())

    def _launch_tray(self):
        self._tray_process = self.start(
            "trayer", "--edge", "top", "--align", "right", "--widthtype", "percent",
            "--width", "100", "--heighttype", "pixel", "--height", str(BAR_HEIGHT),
            "--SetDockType", "true", "--SetPartialStrut", "true", "--expand", "true",
            "--transparent", "true", "--alpha", "110", "--tint", "0x10182a",
        )  # fmt: skip
        return self._tray_process

    def kill_server(self):
        """Kills the display server, as a crash would."""
        self._server.kill()
        self._server.wait()
        self.screen = None

    def kill_bus(self):
        self._bus.kill()
        self._bus.wait()

    def restart_tray(self):
        """Ends the tray and starts it again, like a panel that crashed."""
        processes.end(self._tray_process)
        self._start_tray()

    def _has_bar(self):
        return self.screen.has_tray() and self.screen.work_area().height < self.size[1]

    def paint_gradient(self):
        colours = [argument for colour in GRADIENT for argument in ("-add", colour)]
        self.run("hsetroot", *colours, "-gradient", "150")

    def paint(self, image):
        """Makes a PIL image the wallpaper."""
        path = self._folder / "wallpaper.png"
        image.save(path)
        self.run("hsetroot", "-fill", str(path))
        size = self.size
        probe = image.convert("RGB").resize(size) if image.size != size else image.convert("RGB")
        corner = (size[0] // 2, size[1] - 2)
        wait_until(
            lambda: self.screen.screenshot().getpixel(corner) == probe.getpixel(corner),
            "the wallpaper is on the screen",
        )

    def close(self):
        for connection in self._connections:
            connection.close()
        if self.screen:
            self.screen.close()
            self.screen = None
        for process in reversed(self._processes):
            processes.end(process)
        processes.end_marked(_MARK, self._mark)
        if self._folder:
            shutil.rmtree(self._folder, ignore_errors=True)
