"""The program's alerts on the screen."""

import pathlib

import pytest

from other_windows import OtherWindow
from privatedesktop import Program, Rectangle, wait_until
from unprivileged import unprivileged
from using import window_titled

NOWHERE = "/proc/nothing/Shots"


@pytest.fixture
def alert(desktop, vantle):
    """The alert about a folder that cannot be made. There is also a window of another program."""
    OtherWindow(desktop, Rectangle(400, 250, 700, 400), colour=0x101010)
    configuration = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"], "user-dirs.dirs")
    configuration.write_text(f'XDG_DESKTOP_DIR="{NOWHERE}"\n')
    vantle.start()
    return wait_until(desktop.screen.dialogs, "the alert opens")[0]


def is_closed(desktop, alert):
    return alert not in desktop.screen.dialogs()


def test_it_comes_to_the_front_with_the_keyboard(desktop, vantle, alert):
    wait_until(lambda: desktop.screen.active_window() == alert, "it has the keyboard")
    assert "_NET_WM_STATE_ABOVE" in desktop.screen.states(alert)
    # The three failed starts have the same cause, so there is only one alert.
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: is_closed(desktop, alert), "it closes")
    assert desktop.screen.dialogs() == []
    assert vantle.is_running()


def test_it_stays_out_of_the_taskbar_of_a_program_without_windows(desktop, vantle, alert):
    wait_until(
        lambda: {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"}
        <= desktop.screen.states(alert),
        "it stays out of the taskbar",
    )


def test_it_stands_in_the_taskbar_of_a_program_in_the_dock(desktop, vantle):
    vantle.write_settings(showInDock="true")
    configuration = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"], "user-dirs.dirs")
    configuration.write_text(f'XDG_DESKTOP_DIR="{NOWHERE}"\n')
    vantle.start()
    window = wait_until(desktop.screen.dialogs, "the alert opens")[0]
    wait_until(lambda: desktop.screen.active_window() == window, "it has the keyboard")
    assert "_NET_WM_STATE_SKIP_TASKBAR" not in desktop.screen.states(window)


def test_the_program_ends_with_an_open_alert(desktop, vantle, alert):
    vantle.signal(15)
    assert vantle.wait_for_end(limit=5.0) == 0


def test_commands_are_answered_while_it_is_open(desktop, vantle, alert):
    assert "state: not watching" in vantle.command("--status")[1]
    assert vantle.command("--quit") == (0, "")
    assert vantle.wait_for_end() == 0


@pytest.fixture
def denied(desktop, binary, folder):
    """A program that may not read the folder, with its alert open."""
    program = Program(unprivileged(binary), desktop, name="denied")
    program.write_settings()
    folder.path.chmod(0)
    program.start()
    alert = wait_until(desktop.screen.dialogs, "the alert opens")[0]
    wait_until(lambda: desktop.screen.active_window() == alert, "it has the keyboard")
    yield program
    folder.path.chmod(0o700)
    program.stop()


def test_return_shows_the_permissions_of_an_unreadable_folder(desktop, denied):
    desktop.screen.keyboard.press("Return")
    window_titled(desktop, "Properties")
    wait_until(lambda: desktop.screen.dialogs() == [], "the alert is gone")


def test_a_retry_watches_a_folder_that_can_be_read_again(desktop, folder, denied):
    folder.path.chmod(0o700)
    desktop.screen.keyboard.press("Tab")
    desktop.screen.keyboard.press("space")
    denied.wait_for_log("watching ")
    wait_until(lambda: desktop.screen.dialogs() == [], "the alert is gone")
    assert "state: watching" in denied.command("--status")[1]


def test_a_failed_retry_asks_again(desktop, denied):
    first = desktop.screen.dialogs()
    desktop.screen.keyboard.press("Tab")
    desktop.screen.keyboard.press("space")
    wait_until(lambda: desktop.screen.dialogs() not in ([], first), "another alert opens")
    [again] = desktop.screen.dialogs()
    wait_until(lambda: desktop.screen.active_window() == again, "it has the keyboard")
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: desktop.screen.dialogs() == [], "it closes")
