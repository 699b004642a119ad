"""What must be true of the panel under every window manager."""

import io

from other_windows import OtherWindow
from pictures import RED, area_of, is_one_pattern, pattern
from privatedesktop import Rectangle, wait_until, wait_until_still

WINDOW_SIZE = (800, 330)
WORDS = "the quick brown fox jumps over the lazy dog"


def encoded(image):
    buffer = io.BytesIO()
    image.save(buffer, "PNG")
    return buffer.getvalue()


def show_one(desktop, folder, name="shot.png"):
    """Saves a screenshot, waits until its tile is on the screen, and returns the panel."""
    folder.save(name, encoded(pattern()))
    folder.wait_for(name)
    panel = wait_until(desktop.screen.panel, "the panel appears")
    wait_until(lambda: shows_tile(desktop, panel.frame), "the tile stands on the card")
    return panel


def is_dismissed(desktop):
    return desktop.screen.panel() is None


def shows_tile(desktop, frame):
    return is_one_pattern(desktop.screen.screenshot(frame))


def is_on_top(desktop, panel):
    """Returns true if the tile is visible at its place on the screen."""
    return area_of(desktop.screen.screenshot(panel.frame), RED) > 3000


def card_of(desktop, panel):
    """Returns the part of the panel that takes clicks."""
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


def show_several(desktop, folder, count):
    """Takes so many screenshots in a row, and returns the card when it shows them all."""
    for number in range(1, count + 1):
        folder.save(f"{number}.png", encoded(pattern()))
        folder.wait_for(f"{number}.png")
    panel = wait_until(desktop.screen.panel, "the panel appears")
    wait_until_still(lambda: desktop.screen.screenshot(panel.frame).tobytes(), "the card")
    return card_of(desktop, panel)


def expected_frame(work_area, corner):
    width, height = WINDOW_SIZE
    x = work_area.right - width if corner.endswith("Right") else work_area.x
    y = work_area.bottom - height if corner.startswith("bottom") else work_area.y
    return Rectangle(x, y, width, height)


def check_above_a_full_screen_window(desktop, vantle, folder):
    vantle.start_watching()
    OtherWindow(desktop, Rectangle(0, 0, *desktop.size), colour=0x101010, is_full_screen=True)
    panel = show_one(desktop, folder)
    assert is_on_top(desktop, panel)


def check_stays_above_a_window_that_becomes_full_screen(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    OtherWindow(desktop, Rectangle(0, 0, *desktop.size), colour=0x101010, is_full_screen=True)
    wait_until(
        lambda: desktop.screen.screenshot().getpixel((5, 5)) == (16, 16, 16), "it fills the screen"
    )
    assert is_on_top(desktop, panel)


def check_stays_above_a_window_that_is_raised(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    other = OtherWindow(desktop, Rectangle(600, 400, 800, 400), colour=0x101010)
    desktop.screen.pointer.click(650, 450)
    wait_until(other.clicks, "the other window is clicked and raised")
    assert is_on_top(desktop, panel)


def check_not_in_taskbar_or_pager(desktop, vantle, folder):
    vantle.start_watching()
    before = desktop.screen.client_list()
    panel = show_one(desktop, folder)
    assert panel.number not in desktop.screen.client_list()
    assert desktop.screen.client_list() == before


def check_on_every_workspace(desktop, vantle, folder):
    vantle.start_watching()
    panel = show_one(desktop, folder)
    desktop.screen.make_workspaces(3)
    for workspace in (1, 2, 0):
        desktop.screen.switch_workspace(workspace)
        assert desktop.screen.panel() == panel
        assert shows_tile(desktop, panel.frame)


def check_focus_stays_where_one_types(desktop, vantle, folder):
    """Checks that typing goes on while the panel appears and after a click on it, without losing a
    letter."""
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
    # Below the tile, on the glass itself.
    desktop.screen.pointer.click(card.centre[0], card.bottom - 4)
    desktop.screen.keyboard.type(WORDS)
    typed += WORDS
    wait_until(lambda: len(other.typed()) >= len(typed), "all letters arrive")
    assert other.typed() == typed
    assert desktop.screen.active_window() == other.number
    assert desktop.screen.focused_window() == other.number


def check_clicks_beside_the_card_pass_through(desktop, vantle, folder):
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
    # When this last click beside the card has arrived, the ones before must have arrived, too.
    desktop.screen.pointer.click(*beside[0])
    wait_until(lambda: other.clicks()[-1:] == [beside[0]] and len(other.clicks()) > 4, "last click")
    assert other.clicks() == beside + [beside[0]]
