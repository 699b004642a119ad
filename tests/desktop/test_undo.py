"""Bringing back what left the card by a slip, with real keys and the desktop's own Trash."""

import pytest
from assistant import ENVIRONMENT, Assistant
from panel_checks import is_dismissed, show_one, show_several, wait_for_card
from privatedesktop import Program, ensure_never, wait_until
from using import press_button, press_with_control

# The button of the notice in the place of a single tile of the pattern, from the card's middle and
# its upper edge.
UNDO_BELOW_EDGE = 120


@pytest.fixture
def vantle(desktop, binary):
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings()
    yield program
    program.stop()


@pytest.fixture
def assistant(desktop):
    return Assistant(desktop)


def trashed(desktop):
    return desktop.run("gio", "trash", "--list").stdout.decode().splitlines()


def undo(desktop, card, assistant):
    """Clicks "Undo" in the notice of a single tile. The file is in the Trash before the notice
    stands on the card."""
    assistant.wait_for("Undo")
    desktop.screen.pointer.click(card.centre[0], card.y + UNDO_BELOW_EDGE)


def tiles(assistant):
    return [item["name"] for item in assistant.found() if item["role"] == "list item"]


def test_undo_of_the_trash_puts_the_file_back(desktop, vantle, folder, assistant):
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    original = folder.path / "shot.png"
    content, modified = original.read_bytes(), original.stat().st_mtime_ns
    press_button(desktop, card, "trash")
    wait_until(lambda: len(trashed(desktop)) == 1, "the file is in the Trash")
    undo(desktop, card, assistant)
    wait_until(original.exists, "the file is back")
    wait_until(lambda: trashed(desktop) == [], "the Trash is empty")
    assert (original.read_bytes(), original.stat().st_mtime_ns) == (content, modified)
    ensure_never(lambda: is_dismissed(desktop), "the card leaves", seconds=7)


def test_undo_of_the_trash_never_overwrites(desktop, vantle, folder, assistant):
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    original = folder.path / "shot.png"
    press_button(desktop, card, "trash")
    wait_until(lambda: len(trashed(desktop)) == 1, "the file is in the Trash")
    original.write_bytes(b"of somebody else")
    undo(desktop, card, assistant)
    vantle.wait_for_log("^Undo of the Trash failed: .*shot.png: File exists")
    wait_until(
        lambda: "Could not be put back" in [item["description"] for item in assistant.found()],
        "the tile says so")
    assert original.read_bytes() == b"of somebody else"
    assert len(trashed(desktop)) == 1


def test_the_keys_undo_step_by_step(desktop, vantle, folder, assistant, binary):
    vantle.start_watching()
    show_several(desktop, folder, 3)
    desktop.run(binary, "--focus-panel")
    wait_until(lambda: assistant.in_state("focused") == ["3.png"], "the newest has the keyboard")
    assistant.act("Dismiss")
    wait_until(lambda: len(tiles(assistant)) == 2, "a capture leaves")
    left = tiles(assistant)
    desktop.screen.keyboard.press("Delete")
    wait_until(lambda: len(trashed(desktop)) == 1, "a file is in the Trash")
    press_with_control(desktop, "z")
    wait_until(lambda: trashed(desktop) == [], "the Trash is undone first")
    wait_until(lambda: tiles(assistant) == left, "its capture is back")
    press_with_control(desktop, "z")
    wait_until(lambda: tiles(assistant) == ["1.png", "2.png", "3.png"], "then the dismissal")


def test_what_left_comes_back_by_command(desktop, vantle, folder, assistant, binary):
    vantle.start_watching()
    show_several(desktop, folder, 3)
    desktop.run(binary, "--dismiss")
    wait_until(lambda: is_dismissed(desktop), "the card leaves")
    desktop.run(binary, "--restore")
    wait_until(lambda: tiles(assistant) == ["1.png", "2.png", "3.png"], "all are back in order")
