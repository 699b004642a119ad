#!/usr/bin/python3
"""Writes docs/pictures/drag.gif: a capture is taken, appears on the card, and is dragged into a
chat."""

import time

# This import must come first: it sets the search path for the others.
from stage import BINARY, furnish, private_desktop

from hand import Hand
from hero import CHAT, HEADER, SIZE, WEBSITE, screenshot_name
from pages import Pages
from panel_checks import is_dismissed, wait_for_card
from privatedesktop import Program, wait_until, wait_until_still
from recorder import recorded
from using import tile_of

REST = (600, 640)
# The dragged capture must not cover the input line of the chat.
ABOVE_COMPOSER = (1064, 385)


def main():
    with private_desktop(SIZE, scale=1) as desktop:
        vantle = Program(BINARY, desktop)
        vantle.write_settings(removeAfterUse="true")
        furnish(desktop)
        vantle.start_watching()
        with Pages(desktop) as pages:
            pages.open("cabins", "Alder Cabins", WEBSITE)
            pages.open("chat", "Website", CHAT)
            show_and_dismiss_one(desktop, vantle)
            hand = Hand(desktop, REST)
            with recorded(desktop, SIZE, "drag.gif"):
                play(desktop, vantle, pages, hand)
        vantle.stop()


def show_and_dismiss_one(desktop, vantle):
    """Shows and dismisses a card, because the very first one takes longer to appear than usual."""
    desktop.run("scrot", screenshot_name(), cwd=desktop.home / "Desktop")
    wait_until(desktop.screen.panel, "the panel appears")
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the card")
    vantle.command("--dismiss")
    wait_until(lambda: is_dismissed(desktop), "the card goes")


def play(desktop, vantle, pages, hand):
    time.sleep(0.3)
    take_capture(desktop, vantle, hand)
    panel = wait_until(desktop.screen.panel, "the panel appears")
    wait_until(lambda: desktop.screen.input_areas(panel.number), "the card stands on it")
    card = wait_for_card(desktop, panel)
    hand.glide(tile_of(card), 0.8, bend=-0.1)
    hand.press()
    hand.glide(ABOVE_COMPOSER, 1.2, bend=0.12)
    hand.hold_until(lambda: "promised=true" in vantle.log_text(), "the chat would take it")
    time.sleep(0.3)
    hand.release()
    pages.wait_for("shown")
    wait_until(lambda: is_dismissed(desktop), "the used capture leaves")
    hand.glide(REST, 0.9, bend=0.1)
    time.sleep(1.2)


def take_capture(desktop, vantle, hand):
    """Captures the header of the website with a real screenshot tool."""
    desktop.start(
        "scrot", "--select", "--line", "mode=edge,width=3,color=white", screenshot_name(),
        cwd=desktop.home / "Desktop",
    )  # fmt: skip
    hand.glide((HEADER.x + 2, HEADER.y + 2), 0.8)
    hand.press()
    hand.glide((HEADER.right - 2, HEADER.bottom - 2), 0.9)
    hand.release()
    vantle.wait_for_log("captured ", times=2)


if __name__ == "__main__":
    main()
