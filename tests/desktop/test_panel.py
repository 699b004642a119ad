"""The panel on the screen: where it stands, above what, and whose clicks and keys it takes."""

import io

import pytest

from other_windows import OtherWindow
from pictures import NEUTRAL, RED, area_of, is_one_pattern, mask_of, pattern, plain
from privatedesktop import Rectangle, wait_until, wait_until_still
from watched_folder import png

WINDOW_SIZE = (800, 330)
MARGIN = 14
WORDS = "the quick brown fox jumps over the lazy dog"


def encoded(image):
    buffer = io.BytesIO()
    image.save(buffer, "PNG")
    return buffer.getvalue()


def show_one(desktop, folder, name="shot.png"):
    """Saves a screenshot and waits until its tile stands. Returns the panel."""
    folder.save(name, encoded(pattern()))
    folder.wait_for(name)
    panel = wait_until(desktop.screen.panel, "the panel appears")
    wait_until(lambda: shows_tile(desktop, panel.frame), "the tile stands on the card")
    return panel


def shows_tile(desktop, frame):
    return is_one_pattern(desktop.screen.screenshot(frame))


def is_on_top(desktop, panel):
    """Whether what stands at the tile's place on the screen is the tile."""
    return area_of(desktop.screen.screenshot(panel.frame), RED) > 3000


def card_of(desktop, panel):
    """The part of the panel that takes clicks."""
    areas = desktop.screen.input_areas(panel.number)
    assert len(areas) >= 1
    return Rectangle(
        min(area.x for area in areas),
        min(area.y for area in areas),
        max(area.right for area in areas) - min(area.x for area in areas),
        max(area.bottom for area in areas) - min(area.y for area in areas),
    )


def wait_for_card(desktop, panel):
    return wait_until_still(lambda: card_of(desktop, panel), "the card's input shape")


def expected_frame(work_area, corner):
    width, height = WINDOW_SIZE
    x = work_area.right - width if corner.endswith("Right") else work_area.x
    y = work_area.bottom - height if corner.startswith("bottom") else work_area.y
    return Rectangle(x, y, width, height)


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
    vantle.start_watching()
    OtherWindow(desktop, Rectangle(0, 0, *desktop.size), colour=0x101010, is_full_screen=True)
    panel = show_one(desktop, folder)
    assert is_on_top(desktop, panel)


def test_stays_above_a_window_that_becomes_full_screen(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    OtherWindow(desktop, Rectangle(0, 0, *desktop.size), colour=0x101010, is_full_screen=True)
    wait_until(
        lambda: desktop.screen.screenshot().getpixel((5, 5)) == (16, 16, 16), "it fills the screen"
    )
    assert is_on_top(desktop, panel)


def test_stays_above_a_window_that_is_raised(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    other = OtherWindow(desktop, Rectangle(600, 400, 800, 400), colour=0x101010)
    desktop.screen.pointer.click(650, 450)
    wait_until(other.clicks, "the other window is clicked and raised")
    assert is_on_top(desktop, panel)


def test_not_in_taskbar_or_pager(desktop, vantle, folder):
    vantle.start_watching()
    before = desktop.screen.client_list()
    panel = show_one(desktop, folder)
    assert panel.number not in desktop.screen.client_list()
    assert desktop.screen.client_list() == before


def test_on_every_workspace(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    for workspace in (1, 2, 0):
        desktop.screen.switch_workspace(workspace)
        wait_until(lambda: desktop.screen.current_workspace() == workspace, "the workspace changes")
        assert desktop.screen.panel() == panel
        assert shows_tile(desktop, panel.frame)


def test_one_panel_for_many_captures(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    folder.save("second.png")
    folder.save("third.png")
    folder.wait_for("second.png", "third.png")
    assert desktop.screen.panels() == [panel]


def test_focus_stays_where_one_types(desktop, vantle, folder):
    """Typing goes on while the panel appears and after a click on it; no letter is lost."""
    vantle.start_watching()
    other = OtherWindow(desktop, Rectangle(200, 200, 300, 200))
    typed = ""

    def type_and_look_for_panel():
        nonlocal typed
        typed += "x"
        desktop.screen.keyboard.type("x")
        assert desktop.screen.focused_window() == other.number
        return desktop.screen.panel()

    folder.save("shot.png", encoded(pattern()))
    panel = wait_until(type_and_look_for_panel, "the panel appears while typing")
    wait_until(lambda: type_and_look_for_panel() and shows_tile(desktop, panel.frame), "the tile")
    card = wait_for_card(desktop, panel)
    # Beside the tile: on the glass itself.
    desktop.screen.pointer.click(card.centre[0], card.bottom - 4)
    desktop.screen.keyboard.type(WORDS)
    typed += WORDS
    wait_until(lambda: len(other.typed()) >= len(typed), "all letters arrive")
    assert other.typed() == typed
    assert desktop.screen.active_window() == other.number
    assert desktop.screen.focused_window() == other.number


def test_clicks_beside_the_card_reach_the_window_underneath(desktop, vantle, folder):
    vantle.start_watching()
    work_area = desktop.screen.work_area()
    other = OtherWindow(desktop, expected_frame(work_area, "bottomRight"))
    panel = show_one(desktop, folder)
    card = wait_for_card(desktop, panel)
    frame = panel.frame
    beside = [
        (frame.x + 60, frame.y + 60),
        (card.x - 6, card.centre[1]),
        (card.centre[0], card.y - 6),
        (frame.right - 8, card.centre[1]),
    ]
    for number, point in enumerate(beside, start=1):
        desktop.screen.pointer.click(*point)
        wait_until(lambda: len(other.clicks()) == number, f"the click at {point} arrives")
    on_card = [(card.x + 30, card.bottom - 4), (card.right - 30, card.bottom - 4)]
    for point in on_card:
        desktop.screen.pointer.click(*point)
    # A last click beside the card: when it has arrived, the others would have, too.
    desktop.screen.pointer.click(*beside[0])
    wait_until(lambda: other.clicks()[-1:] == [beside[0]] and len(other.clicks()) > 4, "last click")
    assert other.clicks() == beside + [beside[0]]


def test_transparent_beside_the_card(desktop, vantle, folder):
    """Nothing of the window is to be seen but the card and its shadow."""
    desktop.paint(plain())
    vantle.start_watching()
    panel = show_one(desktop, folder)
    card = wait_for_card(desktop, panel)
    beside = Rectangle(panel.frame.x, panel.frame.y, card.x - 60 - panel.frame.x, panel.frame.height)
    picture = desktop.screen.screenshot(beside)
    assert mask_of(picture, NEUTRAL, tolerance=2).getextrema() == (255, 255)


@pytest.mark.desktop(compositor=False)
def test_no_black_rectangle_without_a_compositor(desktop, vantle, folder):
    desktop.paint(plain())
    vantle.start_watching()
    panel = show_one(desktop, folder)
    card = wait_for_card(desktop, panel)
    screen = desktop.screen.screenshot()
    beside = Rectangle(panel.frame.x, panel.frame.y, card.x - 20 - panel.frame.x, panel.frame.height)
    above = Rectangle(card.x, panel.frame.y, card.width, card.y - 20 - panel.frame.y)
    for area in (beside, above):
        picture = screen.crop(area.box)
        assert mask_of(picture, NEUTRAL, tolerance=2).getextrema() == (255, 255)


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
