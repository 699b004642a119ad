#!/usr/bin/python3
"""Writes docs/pictures/preview.gif: a capture grows out of its tile and goes back into it."""

import time

# This import must come first: it sets the search path for the others.
from stage import BINARY, furnish, private_desktop

from hand import Hand
from hero import CAPTURES, WEBSITE, screenshot_name
from pages import Pages
from panel_checks import wait_for_card
from privatedesktop import Program, wait_until
from recorder import recorded

SIZE = (1000, 680)
REST = (620, 330)


def main():
    with private_desktop(SIZE, scale=1) as desktop:
        vantle = Program(BINARY, desktop)
        vantle.write_settings()
        furnish(desktop)
        vantle.start_watching()
        with Pages(desktop) as pages:
            pages.open("cabins", "Alder Cabins", WEBSITE)
            for number, (page, size) in enumerate(CAPTURES, 1):
                pages.picture(page, size, desktop.home / "Desktop" / screenshot_name())
                vantle.wait_for_log("captured ", times=number)
            panel = wait_until(desktop.screen.panel, "the panel appears")
            wait_until(lambda: desktop.screen.input_areas(panel.number), "the card stands on it")
            card = wait_for_card(desktop, panel)
            hand = Hand(desktop, REST)
            with recorded(desktop, SIZE, "preview.gif"):
                play(desktop, hand, card)
        vantle.stop()


def play(desktop, hand, card):
    keyboard = desktop.screen.keyboard
    time.sleep(0.4)
    # The first tile, whose picture is the widest.
    hand.glide((card.x + 70, card.y + 70), 0.8, bend=-0.1)
    time.sleep(0.3)
    keyboard.press("space")
    time.sleep(1.6)
    keyboard.press("Right")
    time.sleep(1.4)
    keyboard.press("Right")
    time.sleep(1.4)
    keyboard.press("Escape")
    time.sleep(1.2)
    hand.glide(REST, 0.7, bend=0.1)
    time.sleep(0.8)


if __name__ == "__main__":
    main()
