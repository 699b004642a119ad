"""Vantle on the whole Plasma on X11."""

import pytest

from conftest import require_peer
from panel_checks import show_one
from plasma_desktop import PlasmaShell
from privatedesktop import wait_until
from trays import Icon, OwnMenu, choose_by_keys, open_menu_of_tray

pytestmark = pytest.mark.desktop(
    tray=False, compositor=False, window_manager=["kwin_x11"],
    # The list of programs by which it knows Spectacle is not made in a session of minutes.
    environment={"KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1"},
)  # fmt: skip


@pytest.fixture
def shell(desktop):
    require_peer("plasmashell")
    shell = PlasmaShell(desktop, "xcb")
    shell.start()
    return shell


@pytest.fixture
def icon(desktop, shell, vantle):
    vantle.start_watching()
    icon = Icon(desktop, "bottom", shell.panel_height() + 8, left=desktop.size[0] // 2)
    icon.wait()
    return icon


def test_a_click_on_its_icon_opens_our_menu(desktop, vantle, folder, icon):
    show_one(desktop, folder)
    OwnMenu(desktop, icon).choose(1, "quit")
    assert vantle.wait_for_end() == 0


def test_the_tray_draws_the_same_menu(desktop, vantle, folder, icon):
    show_one(desktop, folder)
    vantle.command("--dismiss")
    wait_until(lambda: desktop.screen.panel() is None, "the card goes")
    open_menu_of_tray(desktop, icon)
    choose_by_keys(desktop, 1)
    wait_until(desktop.screen.panel, "the capture is shown again")


def test_spectacle_is_noticed(desktop, vantle, shell):
    require_peer("spectacle")
    vantle.start_watching()
    desktop.run("spectacle", "--background", "--nonotify", "--fullscreen",
                "--output", desktop.home / "Desktop/spectacle.png")  # fmt: skip
    vantle.wait_for_log("captured spectacle.png")
    wait_until(desktop.screen.panel, "the card comes")
