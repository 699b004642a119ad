#!/usr/bin/python3
"""Writes docs/pictures/hero.png: a capture on its way from the card into a chat."""

import time

# This import must come first: it sets the search path for the others.
from stage import BINARY, PICTURES, furnish, private_desktop

from hand import Hand, screenshot_with_pointer
from pages import Pages
from panel_checks import wait_for_card
from privatedesktop import Program, Rectangle, wait_until, wait_until_still

SIZE, SCALE = (1280, 800), 2
WEBSITE = Rectangle(40, 84, 800, 610)
CHAT = Rectangle(876, 84, 364, 440)
# The part of the website that is captured: its header.
HEADER = Rectangle(40, 84, 800, 400)
COMPOSER = (1130, 488)
CAPTURES = (("visitors", (1280, 800)), ("cabins", (500, 844)), ("map", (1200, 800)))


def screenshot_name():
    return time.strftime("Screenshot %Y-%m-%d %H.%M.%S.png")


def main():
    with private_desktop(SIZE, SCALE) as desktop:
        vantle = Program(BINARY, desktop)
        vantle.write_settings(removeAfterUse="true")
        furnish(desktop)
        vantle.start_watching()
        with Pages(desktop, SCALE) as pages:
            picture(desktop, vantle, pages)
        vantle.stop()


def picture(desktop, vantle, pages):
    pages.open("cabins", "Alder Cabins", WEBSITE)
    pages.open("chat", "Website", CHAT)
    take_captures(desktop, vantle, pages)
    drag_over(desktop, wait_for_card(desktop, desktop.screen.panel()), vantle)
    screenshot_with_pointer(desktop).save(PICTURES / "hero.png", optimize=True)


def take_captures(desktop, vantle, pages):
    folder = desktop.home / "Desktop"
    for page, size in CAPTURES:
        pages.picture(page, size, folder / screenshot_name())
    area = ",".join(str(SCALE * value) for value in (*HEADER.box[:2], HEADER.width, HEADER.height))
    desktop.run("scrot", "--autoselect", area, screenshot_name(), cwd=folder)
    wait_until(lambda: len(vantle.captured()) == len(CAPTURES) + 1, "all captures arrive")
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the desktop")


def drag_over(desktop, card, vantle):
    """Holds the newest capture, the last one in the row, over the chat."""
    hand = Hand(desktop, (card.right - 80 * SCALE, card.y + 60 * SCALE))
    hand.press()
    goal = COMPOSER[0] * SCALE, COMPOSER[1] * SCALE
    hand.glide(goal, 0.5)
    hand.hold_until(lambda: "promised=true" in vantle.log_text(), "the chat would take it")
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the desktop")


if __name__ == "__main__":
    main()
