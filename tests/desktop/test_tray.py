"""The icon in real trays and its menu, with real clicks and keys."""

import pytest

from panel_checks import is_dismissed, show_one
from privatedesktop import processes, wait_until, wait_until_still
from trays import (
    Icon,
    OwnMenu,
    choose_by_keys,
    open_menu_of_tray,
    start_lxqt_panel,
    start_xfce_panel,
)

without_tray = pytest.mark.desktop(tray=False)


def state(vantle):
    return vantle.command("--status")[1].splitlines()[1]


def dismiss(desktop, vantle):
    vantle.command("--dismiss")
    wait_until(lambda: is_dismissed(desktop), "the card goes")


def start_with_one_capture(desktop, vantle, folder, edge):
    """Starts, shows and dismisses one capture, and returns the icon."""
    vantle.start_watching()
    icon = Icon(desktop, edge)
    icon.wait()
    wait_until(lambda: icon.places() == 1, "there is one icon")
    show_one(desktop, folder)
    dismiss(desktop, vantle)
    return icon


def test_menu_in_a_tray_on_x(desktop, vantle, folder):
    icon = start_with_one_capture(desktop, vantle, folder, "top")
    OwnMenu(desktop, icon).choose(1, "newest capture")
    wait_until(desktop.screen.panel, "the capture is shown again")
    OwnMenu(desktop, icon).choose(1, "pause")
    wait_until(icon.is_dim, "the icon is dimmed")
    assert state(vantle) == "state: paused"
    OwnMenu(desktop, icon).choose(1, "pause")
    wait_until(icon.is_bright, "the icon is bright again")
    assert state(vantle) == "state: watching"


def test_keys_in_our_own_menu(desktop, vantle):
    vantle.start_watching()
    icon = Icon(desktop, "top")
    icon.wait()
    OwnMenu(desktop, icon)
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: desktop.screen.menu() is None, "the menu closes")
    OwnMenu(desktop, icon)
    choose_by_keys(desktop, 1)
    wait_until(lambda: state(vantle) == "state: paused", "it is paused")
    OwnMenu(desktop, icon)
    desktop.screen.keyboard.hold("Control_L")
    desktop.screen.keyboard.press("q")
    desktop.screen.keyboard.let_go("Control_L")
    assert vantle.wait_for_end() == 0


def test_clicks_beside_our_menu_close_it(desktop, vantle):
    vantle.start_watching()
    icon = Icon(desktop, "top")
    icon.wait()
    for button in (1, 3):
        OwnMenu(desktop, icon)
        desktop.screen.pointer.click(300, 600, button=button)
        wait_until(lambda: desktop.screen.menu() is None, "the menu closes")


def test_a_click_beside_our_menu_closes_it_after_a_long_press(desktop, vantle):
    vantle.start_watching()
    icon = Icon(desktop, "top")
    icon.wait()
    pointer = desktop.screen.pointer
    pointer.move(*icon.middle)
    pointer.press()
    wait_until(desktop.screen.menu, "the menu opens")
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the menu", readings=3)
    pointer.release()
    pointer.click(300, 600)
    wait_until(lambda: desktop.screen.menu() is None, "the menu closes")


@without_tray
def test_menu_in_the_panel_of_lxqt(desktop, vantle, folder):
    start_lxqt_panel(desktop)
    icon = start_with_one_capture(desktop, vantle, folder, "bottom")
    # The heading cannot be chosen, so the lines are: the capture, "Bring back", its folder, pause.
    open_menu_of_tray(desktop, icon)
    choose_by_keys(desktop, 4)
    wait_until(lambda: state(vantle) == "state: paused", "it is paused")
    wait_until(icon.is_dim, "the icon is dimmed")
    open_menu_of_tray(desktop, icon)
    choose_by_keys(desktop, 1)
    wait_until(desktop.screen.panel, "the capture is shown again")
    OwnMenu(desktop, icon).choose(1, "quit")
    assert vantle.wait_for_end() == 0


@without_tray
def test_menu_in_the_panel_of_xfce(desktop, vantle, folder):
    start_xfce_panel(desktop)
    icon = start_with_one_capture(desktop, vantle, folder, "bottom")
    OwnMenu(desktop, icon).choose(1, "newest capture")
    wait_until(desktop.screen.panel, "the capture is shown again")
    open_menu_of_tray(desktop, icon)
    choose_by_keys(desktop, 3)
    wait_until(lambda: state(vantle) == "state: paused", "it is paused")
    wait_until(icon.is_dim, "the icon is dimmed")
    # Up goes to the last line, which quits the program.
    open_menu_of_tray(desktop, icon)
    desktop.screen.keyboard.press("Up")
    desktop.screen.keyboard.press("Return")
    assert vantle.wait_for_end() == 0


@without_tray
def test_menu_of_the_tray_follows_new_captures(desktop, vantle, folder):
    start_lxqt_panel(desktop)
    vantle.start_watching()
    icon = Icon(desktop, "bottom")
    icon.wait()
    heights = []
    for number in range(3):
        before = desktop.screen.screenshot()
        shown = open_menu_of_tray(desktop, icon)
        rows = [
            y
            for y in range(0, 860)
            if before.getpixel((1400, y)) != shown.getpixel((1400, y))
        ]
        heights.append(len(rows))
        desktop.screen.keyboard.press("Escape")
        wait_until(
            lambda: desktop.screen.screenshot().getpixel((1400, rows[0]))
            == before.getpixel((1400, rows[0])),
            "the menu closes",
        )
        show_one(desktop, folder, f"{number}.png")
        dismiss(desktop, vantle)
    assert heights[0] < heights[1] < heights[2]


@without_tray
def test_a_tray_that_appears_later_and_restarts(desktop, vantle):
    vantle.start_watching()
    icon = Icon(desktop, "bottom")
    for _ in range(2):
        panel = start_lxqt_panel(desktop)
        icon.wait()
        processes.end(panel)
        wait_until(lambda: not icon.is_bright(), "the panel is gone")
    assert vantle.is_running()


def test_a_tray_on_x_that_restarts(desktop, vantle):
    vantle.start_watching()
    icon = Icon(desktop, "top")
    icon.wait()
    desktop.restart_tray()
    icon.wait()
    wait_until(lambda: icon.places() == 1, "there is one icon")
    OwnMenu(desktop, icon).choose(0, "pause")
    wait_until(icon.is_dim, "the icon is dimmed")


@without_tray
def test_the_user_is_told_once_that_there_is_no_tray(desktop, vantle):
    vantle.start_watching()
    alert = wait_until(desktop.screen.dialogs, "it is explained", limit=60.0)[0]
    wait_until(lambda: desktop.screen.active_window() == alert, "it has the keyboard")
    desktop.screen.keyboard.press("Return")
    wait_until(lambda: not desktop.screen.dialogs(), "the explanation is gone")
    assert "hasExplainedMissingTray=true" in vantle.settings_file.read_text()
