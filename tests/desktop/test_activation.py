"""The session bus starts the program, as for a click on its icon in a launcher."""

import pathlib

import pytest

from panel_checks import encoded
from pictures import pattern
from privatedesktop import Program, processes, wait_until, wait_until_still

SERVICE = pathlib.Path(__file__).resolve().parents[2] / "packaging/org.vantle.Vantle.service"
INSTALLED = "/usr/bin/vantle"


class Launcher:
    """Makes the calls on the bus that a desktop's launcher makes."""

    def __init__(self, desktop):
        self._desktop = desktop

    def _call(self, method, *arguments):
        self._desktop.run(
            "gdbus", "call", "--session", "--dest", "org.vantle.Vantle",
            "--object-path", "/org/vantle/Vantle",
            "--method", f"org.freedesktop.Application.{method}", *arguments, "{}",
        )  # fmt: skip

    def click(self):
        self._call("Activate")

    def choose(self, action):
        self._call("ActivateAction", action, "[]")

    def open(self, *files):
        self._call("Open", str([file.as_uri() for file in files]))


class ActivatedProgram(Program):
    """A program that the bus starts."""

    def __init__(self, binary, desktop):
        super().__init__(binary, desktop)
        self._find = lambda: processes.running(binary, desktop.home)

    def is_running(self):
        return bool(self._find())

    def count(self):
        return len(self._find())

    def settle(self):
        """Waits until the program has started and has handled the request that started it."""
        wait_until(lambda: "watching " in self.log_text(), "it watches")
        wait_until_still(self.log_text, "the launch", interval=0.3)


@pytest.fixture
def vantle(desktop, binary):
    """The bus knows the program by the file that the package installs; it is not started yet."""
    program = ActivatedProgram(binary, desktop)
    program.write_settings()
    start = desktop.home / "start"
    start.write_text(
        f'#!/bin/sh\nexport VANTLE_DEBUG=1\nexec "{binary}" "$@" 2>>"{program.log_file}"\n'
    )
    start.chmod(0o755)
    installed = SERVICE.read_text()
    assert f"Exec={INSTALLED} " in installed
    services = desktop.home / ".local/share/dbus-1/services"
    services.mkdir(parents=True)
    (services / SERVICE.name).write_text(installed.replace(INSTALLED, str(start)))
    desktop.run(
        "gdbus", "call", "--session", "--dest", "org.freedesktop.DBus",
        "--object-path", "/org/freedesktop/DBus", "--method", "org.freedesktop.DBus.ReloadConfig",
    )  # fmt: skip
    yield program
    program.command("--quit")
    wait_until(lambda: not program.is_running(), "it ends")


@pytest.fixture
def launcher(desktop, vantle):
    return Launcher(desktop)


def windows(desktop):
    return [desktop.screen.title(number).decode() for number in desktop.screen.dialogs()]


def state(vantle):
    return vantle.command("--status")[1].split("state: ")[1].splitlines()[0]


def test_a_click_starts_it_quietly_and_the_next_one_opens_the_settings(desktop, vantle, launcher):
    launcher.click()
    vantle.settle()
    assert windows(desktop) == []
    assert state(vantle) == "watching"
    launcher.click()
    wait_until(lambda: windows(desktop) == ["Vantle Settings"], "the settings open")
    assert vantle.count() == 1


def test_the_very_first_click_opens_the_onboarding(desktop, vantle, launcher):
    vantle.write_settings(hasCompletedOnboarding="false")
    launcher.click()
    wait_until(lambda: windows(desktop) == ["Vantle"], "it introduces itself")


def test_an_action_starts_it_and_is_run(desktop, vantle, launcher):
    launcher.choose("settings")
    wait_until(lambda: windows(desktop) == ["Vantle Settings"], "the settings open")
    launcher.choose("pause")
    assert state(vantle) == "paused"
    assert vantle.count() == 1


def test_files_start_it_and_are_shown(desktop, vantle, launcher):
    picture = desktop.home / "ä b.png"
    picture.write_bytes(encoded(pattern()))
    launcher.open(picture)
    wait_until(desktop.screen.panel, "the file is shown")
    assert vantle.shown_counts() == [1]
    assert windows(desktop) == []


def test_a_click_reaches_the_running_program(desktop, vantle, launcher, binary):
    first = Program(binary, desktop, name="first").start_watching()
    try:
        launcher.click()
        wait_until(lambda: windows(desktop) == ["Vantle Settings"], "the settings open")
        assert vantle.count() == 1
    finally:
        first.stop()


def test_commands_do_not_start_it(vantle):
    for option in ("--pause", "--status", "--quit"):
        assert vantle.command(option) == (1, "vantle: Vantle is not running\n")
    assert not vantle.is_running()
