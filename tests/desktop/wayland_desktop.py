"""A Wayland desktop inside a private one: a compositor in a window that fills it, with XWayland.

For the compositor the pointer and the keyboard of the private desktop are real, and the private
desktop's screen shows what the compositor draws.
"""

import contextlib
import os
import pathlib
import shutil
import signal

from build_tree import copy_program
from privatedesktop import DesktopFailure, Rectangle, WaitTimeout, wait_until

_NOBODY = 65534
_CHECKOUT = pathlib.Path(__file__).resolve().parents[2]


class WaylandDesktop:
    """Provides what Program and WatchedFolder need of a desktop. It ends with the private desktop.

    A subclass sets its name as in XDG_CURRENT_DESKTOP, and starts its compositor.
    """

    name = None
    # GTK's name of the display server that native windows use.
    toolkit_backend = "wayland"

    def __init__(self, host):
        self._host = host
        self.screen = host.screen
        self.log_folder = host.log_folder
        self.folder = host.home.parent / self.name
        self.home = self.folder / "home"
        self._make_folders()
        self.environment = self._environment()
        self._start_bus()
        self._host.run("xhost", "+local:")
        self._start_compositor()
        self._fill_screen()

    def _make_folders(self):
        (self.home / "Desktop").mkdir(parents=True)
        (self.folder / "runtime").mkdir(mode=0o700)
        (self.folder / "lent").mkdir()
        # The desktop's user must be able to enter this folder.
        self._host.home.parent.chmod(0o755)
        self.give_to_user()

    def _environment(self):
        folders = {
            "HOME": self.home,
            "TMPDIR": self.folder,
            "XDG_RUNTIME_DIR": self.folder / "runtime",
            "XDG_CONFIG_HOME": self.home / ".config",
            "XDG_DATA_HOME": self.home / ".local/share",
            "XDG_STATE_HOME": self.home / ".local/state",
            "XDG_CACHE_HOME": self.home / ".cache",
        }
        return {
            **self._host.environment,
            **{name: str(path) for name, path in folders.items()},
            "XDG_CURRENT_DESKTOP": self.name,
            "XDG_SESSION_TYPE": "wayland",
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.folder}/runtime/bus",
        }

    def work_area(self):
        """Returns the part of the screen that windows can use."""
        return Rectangle(0, 0, *self.screen.size)

    def as_user(self, *command):
        """Returns the command for an ordinary user: compositors refuse root, and only the user who
        started XWayland may use it."""
        if os.geteuid() != 0:
            return list(command)
        self._require_reachable(command)
        return ["setpriv", f"--reuid={_NOBODY}", f"--regid={_NOBODY}", "--clear-groups", *command]

    def _require_reachable(self, command):
        """Fails early: a program that only root can read would fail in a confusing way, and not on
        every machine."""
        for word in command:
            if _CHECKOUT in pathlib.Path(word).parents:
                raise DesktopFailure(f"{word} has to be lent to the desktop's user")

    def lend(self, path):
        """Copies a file of the checkout to where the desktop's user can read it, because the
        checkout may be in a folder that only root can enter."""
        if os.geteuid() != 0:
            return path
        return shutil.copy(path, self.folder / "lent")

    def lend_build(self, binary):
        """Does the same for Vantle, with everything that it starts and loads."""
        if os.geteuid() != 0:
            return binary
        return copy_program(binary, self.folder / "lent")

    def give_to_user(self):
        """Gives the files written so far to the desktop's user. Leaves out the runtime folder: its
        files belong to that user already, and a file system in it may be closed to others."""
        if os.geteuid() != 0:
            return
        for path in (self.folder, *self.folder.iterdir(), *self.home.rglob("*")):
            # Temporary files of the user's programs may vanish meanwhile.
            with contextlib.suppress(FileNotFoundError):
                shutil.chown(path, _NOBODY, _NOBODY)

    def _command(self, command):
        variables = [f"{name}={text}" for name, text in self.environment.items()]
        return self.as_user("env", *variables, *map(str, command))

    def start(self, *command):
        """Starts a program as the desktop's user."""
        return self._host.start(*self._command(command))

    def run(self, *command, **options):
        """Runs a program as the desktop's user to its end, and returns what subprocess.run
        returns."""
        return self._host.run(*self._command(command), **options)

    def _start_bus(self):
        self.start("dbus-daemon", "--session", "--nofork", "--nopidfile",
                   "--address", self.environment["DBUS_SESSION_BUS_ADDRESS"])
        wait_until((self.folder / "runtime/bus").exists, "the session bus listens")

    def _start_compositor(self):
        """Starts the compositor, and sets the environment variables by which programs find it."""
        raise NotImplementedError

    def _wait_for_names(self, *names):
        """Waits until a program that the compositor started has written these variables, and sets
        them."""
        told = self.home / "told"
        texts = wait_until(lambda: told.exists() and told.read_text().split(),
                           f"the compositor of {self.name} starts")
        self.environment.update(zip(names, texts, strict=True))

    def go_to_next_workspace(self):
        """Presses GNOME's keys for this, which the other compositors are configured to use as
        well."""
        self.screen.keyboard.hold("Super_L")
        self.screen.keyboard.press("Page_Down")
        self.screen.keyboard.let_go("Super_L")

    def _wake_pointer(self):
        """Moves the pointer, because Mutter does not see what opens under a pointer that has not
        moved yet."""
        width, height = self.screen.size
        for x in (width // 2, width // 2 + 20):
            self.screen.pointer.move(x, height // 3)

    def _fill_screen(self):
        [window] = wait_until(self.screen.client_list, "the compositor's window opens")
        self.screen.change_state(window, 1, "_NET_WM_STATE_FULLSCREEN")
        wait_until(
            lambda: self.screen.area(window).box == (0, 0, *self.screen.size), "it fills the screen"
        )


class NativeWindow:
    """A native window of this desktop that records what reaches it. It fills the screen."""

    def __init__(self, desktop, *options):
        program = desktop.lend(pathlib.Path(__file__).with_name("native_window.py"))
        self._process = desktop.start(
            "env", f"GDK_BACKEND={desktop.toolkit_backend}",
            "sh", "-c", 'exec "$@" >> "$TMPDIR/native.log"', "sh", program, *options,
        )  # fmt: skip
        self._log = desktop.folder / "native.log"
        self._wait_for_keyboard()

    def _wait_for_keyboard(self):
        try:
            wait_until(self.has_focus, "the native window has the keyboard")
        except WaitTimeout as error:
            # A WaitTimeout could be mistaken for one that a test expects.
            raise DesktopFailure(str(error)) from error

    def _told(self):
        return self._log.read_text() if self._log.exists() else ""

    def _all(self, kind):
        lines = [line.split(" ", 1) for line in self._told().splitlines() if " " in line]
        return [text for name, text in lines if name == kind]

    def clicks(self):
        return [tuple(map(int, text.split())) for text in self._all("click")]

    def typed(self):
        return "".join(self._all("key"))

    def is_asked(self):
        """Returns true if something has been dragged over it."""
        return bool(self._all("drag"))

    def hang(self):
        """Stops answering from now on."""
        self._process.send_signal(signal.SIGSTOP)

    def dropped(self):
        return self._all("drop")

    def has_lost_focus(self):
        return "blur" in self._told()

    def has_focus(self):
        """Returns true if it has the focus now; has_lost_focus() also counts a loss for a
        moment."""
        changes = [line for line in self._told().splitlines() if line in ("focus", "blur")]
        return changes[-1:] == ["focus"]
