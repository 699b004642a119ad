"""The panel on the screen: where it stands, above what, and whose clicks and keys it takes."""

import pytest

from assistant import ENVIRONMENT
from panel_checks import (
    check_above_a_full_screen_window,
    check_clicks_beside_the_card_pass_through,
    check_focus_stays_where_one_types,
    check_not_in_taskbar_or_pager,
    check_on_every_workspace,
    check_stays_above_a_window_that_becomes_full_screen,
    check_stays_above_a_window_that_is_raised,
    encoded,
    expected_frame,
    show_one,
    wait_for_card,
)
from pictures import NEUTRAL, count_patterns, mask_of, pattern, plain
from privatedesktop import Program, Rectangle, wait_until
from screens import Screens
from trays import start_xfce_panel
from watched_folder import WatchedFolder, png

MARGIN = 14


@pytest.mark.parametrize("corner", ["bottomRight", "bottomLeft", "topRight", "topLeft"])
def test_corner(desktop, vantle, folder, corner):
    vantle.write_settings(corner=corner)
    vantle.start_watching()
    panel = show_one(desktop, folder)
    frame = expected_frame(desktop.screen.work_area(), corner)
    assert panel.frame == frame
    card = wait_for_card(desktop, panel)
    side = frame.right - card.right if corner.endswith("Right") else card.x - frame.x
    edge = frame.bottom - card.bottom if corner.startswith("bottom") else card.y - frame.y
    assert abs(side - MARGIN) <= 1 and abs(edge - MARGIN) <= 1, (side, edge)


def test_above_a_full_screen_window(desktop, vantle, folder):
    check_above_a_full_screen_window(desktop, vantle, folder)


def test_stays_above_a_window_that_becomes_full_screen(desktop, vantle, folder):
    check_stays_above_a_window_that_becomes_full_screen(desktop, vantle, folder)


def test_stays_above_a_window_that_is_raised(desktop, vantle, folder):
    check_stays_above_a_window_that_is_raised(desktop, vantle, folder)


def test_not_in_taskbar_or_pager(desktop, vantle, folder):
    check_not_in_taskbar_or_pager(desktop, vantle, folder)


def test_on_every_workspace(desktop, vantle, folder):
    check_on_every_workspace(desktop, vantle, folder)


def test_one_panel_for_many_captures(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    folder.save("second.png")
    folder.save("third.png")
    folder.wait_for("second.png", "third.png")
    assert desktop.screen.panels() == [panel]


def test_focus_stays_where_the_user_types(desktop, vantle, folder):
    check_focus_stays_where_one_types(desktop, vantle, folder)


def test_clicks_beside_the_card_reach_the_window_underneath(desktop, vantle, folder):
    check_clicks_beside_the_card_pass_through(desktop, vantle, folder)


def test_transparent_beside_the_card(desktop, vantle, folder):
    """Only the card and its shadow are visible in the window."""
    desktop.paint(plain())
    vantle.start_watching()
    panel = show_one(desktop, folder)
    card = wait_for_card(desktop, panel)
    frame = panel.frame
    beside = Rectangle(frame.x, frame.y, card.x - 60 - frame.x, frame.height)
    picture = desktop.screen.screenshot(beside)
    assert mask_of(picture, NEUTRAL, tolerance=2).getextrema() == (255, 255)


@pytest.mark.desktop(compositor=False)
def test_no_black_rectangle_without_a_compositor(desktop, vantle, folder):
    desktop.paint(plain())
    vantle.start_watching()
    panel = show_one(desktop, folder)
    card = wait_for_card(desktop, panel)
    screen = desktop.screen.screenshot()
    frame = panel.frame
    beside = Rectangle(frame.x, frame.y, card.x - 20 - frame.x, frame.height)
    above = Rectangle(card.x, panel.frame.y, card.width, card.y - 20 - panel.frame.y)
    for area in (beside, above):
        picture = screen.crop(area.box)
        assert mask_of(picture, NEUTRAL, tolerance=2).getextrema() == (255, 255)


@pytest.mark.desktop(size=(2880, 1200))
def test_screens_of_different_scales(desktop, binary):
    """The panel appears on the screen with the pointer, in the size that this screen's scale
    requires."""
    desktop.run("xrandr", "--setmonitor", "left", "1280/300x1200/300+0+0", "screen")
    desktop.run("xrandr", "--setmonitor", "right", "1600/300x1200/300+1280+0", "none")
    vantle = Program(binary, desktop, environment={"QT_SCREEN_SCALE_FACTORS": "left=1;right=2"})
    vantle.write_settings()
    vantle.start_watching()
    folder = WatchedFolder(desktop.home / "Desktop", vantle)
    pointer = desktop.screen.pointer
    expected = {200: Rectangle(480, 870, 800, 330), 2000: Rectangle(1280, 540, 1600, 660)}
    try:
        for number, x in enumerate((200, 2000, 200)):
            pointer.move(x, 300)
            folder.save(f"{number}.png", encoded(pattern()))
            panel = wait_until(desktop.screen.panel, "the panel appears")
            wait_until(lambda: desktop.screen.panel().frame == expected[x], "it stands there")
            wait_until(
                lambda: count_patterns(desktop.screen.screenshot(expected[x])) == number + 1,
                "it shows all tiles",
            )
            assert desktop.screen.panel().number == panel.number
    finally:
        vantle.stop()


@pytest.mark.parametrize("edge, corner", [("bottom", "bottomRight"), ("top", "topRight")])
@pytest.mark.desktop(size=(2400, 900), tray=False)
def test_a_panel_on_one_of_two_screens(desktop, vantle, folder, edge, corner):
    """The desktop's panel takes room on its own screen only."""
    desktop.run("xrandr", "--setmonitor", "left", "1200/300x900/300+0+0", "screen")
    desktop.run("xrandr", "--setmonitor", "right", "1200/300x700/300+1200+0", "none")
    left, right = Rectangle(0, 0, 1200, 900), Rectangle(1200, 0, 1200, 700)
    start_xfce_panel(desktop, edge)
    bar = wait_until(lambda: xfce_bar(desktop), "the bar comes")
    assert left.x <= bar.x and bar.right <= left.right, bar
    vantle.write_settings(corner=corner)
    vantle.start_watching()
    free = Rectangle(0, 0 if edge == "bottom" else bar.height, 1200, 900 - bar.height)
    for number, (area, pointer) in enumerate([(free, 300), (right, 1800), (free, 300)]):
        desktop.screen.pointer.move(pointer, 300)
        folder.save(f"{number}.png", png())
        frame = expected_frame(area, corner)
        wait_until(lambda: panel_frame(desktop) == frame, f"the card stands in {frame}")


def xfce_bar(desktop):
    """Returns the frame of Xfce's panel, or None if it is not there."""
    for window in desktop.screen.client_list():
        if desktop.screen.window_property(window, "_NET_WM_STRUT_PARTIAL") is not None:
            return desktop.screen.area(window)
    return None


def panel_frame(desktop):
    panel = desktop.screen.panel()
    return panel and panel.frame


def test_choosing_a_corner_moves_a_visible_card(desktop, binary, folder):
    vantle = Program(binary, desktop, environment=ENVIRONMENT)
    vantle.write_settings()
    vantle.start_watching()
    WatchedFolder(desktop.home / "Desktop", vantle).save("shot.png", png())
    wait_until(desktop.screen.panel, "the panel appears")
    screens = Screens(desktop, vantle)
    screens.open_settings()
    screens.choose("Show panel in", "Top Left")
    frame = expected_frame(desktop.screen.work_area(), "topLeft")
    try:
        wait_until(lambda: panel_frame(desktop) == frame, "it stands there")
        card = wait_for_card(desktop, desktop.screen.panel())
        assert card.x - frame.x <= MARGIN + 1 and card.y - frame.y <= MARGIN + 1
    finally:
        vantle.stop()


def test_countdown_dismisses(desktop, vantle, folder):
    vantle.write_settings(dismissAfter="2")
    vantle.start_watching()
    desktop.screen.pointer.move(20, 400)
    folder.save("shot.png", png())
    wait_until(desktop.screen.panel, "the panel appears")
    wait_until(lambda: desktop.screen.panel() is None, "the panel leaves by itself")
    folder.save("next.png", png())
    wait_until(desktop.screen.panel, "the panel appears again")
    assert vantle.shown_counts() == [1, 1]
