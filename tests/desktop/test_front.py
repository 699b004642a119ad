"""Which of the program's windows is in front with the keyboard when one is requested."""

import pathlib

import pytest

from other_windows import OtherWindow
from privatedesktop import Rectangle, wait_until
from using import window_titled

NOWHERE = "/proc/nothing/Shots"
MANAGERS = [
    pytest.param("openbox", marks=pytest.mark.desktop()),
    pytest.param("xfwm4", marks=pytest.mark.desktop(window_manager=["xfwm4"])),
    pytest.param(
        "kwin", marks=pytest.mark.desktop(window_manager=["kwin_x11"], compositor=False)
    ),
    pytest.param(
        "mutter", marks=pytest.mark.desktop(window_manager=["mutter", "--x11"], compositor=False)
    ),
]
every_manager = pytest.mark.parametrize("manager", MANAGERS)


def wait_for_front(desktop, window):
    def is_in_front():
        own = desktop.screen.dialogs()
        highest = [w for w in desktop.screen.stacked() if w in own][-1:]
        return desktop.screen.active_window() == window and highest == [window]

    wait_until(is_in_front, "the window that was asked for is in front and has the keyboard")


def titled(desktop, title):
    """Returns the window with exactly that title."""

    def found():
        return [w for w in desktop.screen.dialogs() if desktop.screen.title(w) == title.encode()]

    return wait_until(found, f"the window {title} opens")[0]


@every_manager
def test_settings_come_before_the_onboarding(desktop, vantle, manager):
    vantle.write_settings(hasCompletedOnboarding="false")
    vantle.start()
    onboarding = titled(desktop, "Vantle")
    wait_for_front(desktop, onboarding)
    assert vantle.command("--settings") == (0, "")
    wait_for_front(desktop, titled(desktop, "Vantle Settings"))
    # Until the onboarding is finished, a second start shows it.
    assert vantle.command() == (0, "")
    wait_for_front(desktop, onboarding)
    assert vantle.command("--settings") == (0, "")
    wait_for_front(desktop, titled(desktop, "Vantle Settings"))


@every_manager
def test_settings_come_before_an_alert(desktop, vantle, manager):
    configuration = pathlib.Path(desktop.environment["XDG_CONFIG_HOME"], "user-dirs.dirs")
    configuration.write_text(f'XDG_DESKTOP_DIR="{NOWHERE}"\n')
    vantle.start()
    alert = wait_until(desktop.screen.dialogs, "the alert opens")[0]
    wait_for_front(desktop, alert)
    assert vantle.command("--settings") == (0, "")
    settings = titled(desktop, "Vantle Settings")
    wait_for_front(desktop, settings)
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: settings not in desktop.screen.dialogs(), "the settings close")
    assert alert in desktop.screen.dialogs()


@every_manager
def test_a_window_comes_to_the_workspace_where_the_user_is(desktop, vantle, manager):
    screen = desktop.screen
    screen.make_workspaces(2)
    vantle.start_watching()
    assert vantle.command("--settings") == (0, "")
    settings = window_titled(desktop, "Vantle Settings")
    wait_for_front(desktop, settings)
    screen.switch_workspace(1)
    other = OtherWindow(desktop, Rectangle(400, 250, 700, 400), colour=0x101010)
    assert vantle.command("--settings") == (0, "")
    wait_for_front(desktop, settings)
    assert screen.current_workspace() == 1
    assert list(screen.window_property(settings, "_NET_WM_DESKTOP")) == [1]
    assert other.number in screen.client_list()


def test_a_second_start_uses_the_launchers_startup_id(desktop, vantle):
    vantle.start_watching()
    given = {"DESKTOP_STARTUP_ID": "launcher-1_TIME12345", "XDG_ACTIVATION_TOKEN": None}

    def startup_id(window):
        return desktop.screen.window_property(window, "_NET_STARTUP_ID")

    assert vantle.command("--settings", environment=given) == (0, "")
    settings = window_titled(desktop, "Vantle Settings")
    wait_until(lambda: startup_id(settings) == b"launcher-1_TIME12345", "it is passed on")
    given["DESKTOP_STARTUP_ID"] = "launcher-2_TIME12345"
    assert vantle.command(environment=given) == (0, "")
    wait_until(lambda: startup_id(settings) == b"launcher-2_TIME12345", "it is passed on")
    given["XDG_ACTIVATION_TOKEN"] = "launcher-3_TIME12345"
    assert vantle.command(environment=given) == (0, "")
    wait_until(lambda: startup_id(settings) == b"launcher-3_TIME12345", "the newer one counts")
