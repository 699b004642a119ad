"""Vantle on the whole Plasma desktop on X11."""

import contextlib

import pytest

from conftest import require_peer
from first_day import (
    Card,
    go_through_onboarding,
    move_to_trash_and_back,
    paste_into_editor,
    wait_for_copy,
)
from panel_checks import show_one
from plasma_desktop import PlasmaShell
from privatedesktop import wait_until, wait_until_still
from trays import Icon, OwnMenu, choose_by_keys, open_menu_of_tray
from using import Drag
from web_page import WebPage, start_firefox

pytestmark = pytest.mark.desktop(
    tray=False, compositor=False, window_manager=["kwin_x11"],
    # KWin allows Spectacle by a list of programs, which such a short session does not have.
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


def test_dragged_into_a_web_page(desktop, shell, vantle, folder):
    require_peer("firefox-esr")
    with contextlib.closing(WebPage(desktop, start_firefox)) as page:
        vantle.start_watching()
        show_one(desktop, folder)
        assert Drag(desktop, vantle, Card(desktop).tile).hold_over(*page.middle).drop()
        [file] = page.dropped()
        assert file.content == (folder.path / "shot.png").read_bytes()


def test_spectacle_is_noticed(desktop, vantle, shell):
    require_peer("spectacle")
    vantle.start_watching()
    desktop.run("spectacle", "--background", "--nonotify", "--fullscreen",
                "--output", desktop.home / "Desktop/spectacle.png")  # fmt: skip
    vantle.wait_for_log("captured spectacle.png")
    wait_until(desktop.screen.panel, "the card comes")


def take_screenshot(desktop, vantle):
    """Takes a screenshot with Spectacle, and returns the file when it is on the card."""
    captured = len(vantle.captured())
    desktop.run("spectacle", "--background", "--nonotify", "--fullscreen")
    [name] = wait_until(lambda: vantle.captured()[captured:], "it is captured")
    wait_until(lambda: vantle.shown_counts()[-1:] == [1], "it is on the card")
    panel = wait_until(desktop.screen.panel, "the card comes").frame
    wait_until_still(lambda: desktop.screen.screenshot(panel).tobytes(), "the card")
    [file] = desktop.home.rglob(name)
    return file


def test_from_a_fresh_home_to_the_trash_and_back(desktop, shell, vantle):
    for peer in ("spectacle", "dolphin", "kwrite"):
        require_peer(peer)
    fresh = {"screenshotTool": None, "hasCompletedOnboarding": None, "removeAfterUse": None}
    vantle.write_settings(**fresh)
    vantle.start()
    wait_until(desktop.screen.dialogs, "the onboarding opens")
    go_through_onboarding(desktop, vantle)
    card = Card(desktop)
    target = desktop.home / "target"
    target.mkdir()

    dolphin = shell.run_program("dolphin", target)
    file = take_screenshot(desktop, vantle)
    width, height = desktop.screen.size
    drag = Drag(desktop, vantle, card.tile).hold_over(width // 2 + 150, height * 2 // 3)
    before = desktop.screen.screenshot().tobytes()
    desktop.screen.pointer.release()
    wait_until(lambda: desktop.screen.screenshot().tobytes() != before, "Dolphin's menu opens")
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "its menu", readings=8)
    desktop.screen.keyboard.press("c")
    wait_for_copy(file, target / file.name)
    assert drag.was_taken()
    dolphin.terminate()

    file = take_screenshot(desktop, vantle)
    card.press("copy")
    paste_into_editor(
        desktop, lambda notes: shell.run_program("kwrite", notes), target / "notes.txt", file.name
    )

    move_to_trash_and_back(desktop, card, take_screenshot(desktop, vantle))
