"""While nothing happens, the program does nothing."""

import time

from privatedesktop import wait_until, wait_until_still

MEASURED_SECONDS = 10


def switches_while_idle(desktop, vantle):
    """Returns how often any of its threads woke up in ten seconds without input."""
    desktop.screen.pointer.move(20, 400)
    wait_until_still(vantle.voluntary_switches, "the program", readings=20)
    before = vantle.voluntary_switches()
    time.sleep(MEASURED_SECONDS)
    return vantle.voluntary_switches() - before


def test_before_the_first_capture(desktop, vantle):
    vantle.start_watching()
    assert switches_while_idle(desktop, vantle) == 0


def test_with_a_tile_on_the_screen(desktop, vantle, folder):
    vantle.start_watching()
    desktop.screen.pointer.move(20, 400)
    folder.save("shot.png")
    folder.wait_for("shot.png")
    wait_until(desktop.screen.panel, "the panel appears")
    assert switches_while_idle(desktop, vantle) == 0
