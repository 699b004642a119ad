"""The text in a picture, read by Tesseract and copied to the clipboard."""

import os
import pathlib

import pytest
from assistant import ENVIRONMENT, Assistant
from card_menu import CardMenu
from PIL import Image, ImageDraw, ImageFont

from panel_checks import encoded, wait_for_card
from privatedesktop import Program, wait_until, wait_until_still
from using import tile_of

FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
LINES = ["Copy the text", "of this picture"]
# The line "Copy Text", from the end of the menu of a capture that cannot be pinned.
COPY_TEXT = ["Up"] * 6


def written(lines, size=(600, 400)):
    picture = Image.new("RGB", size, "white")
    drawing, font = ImageDraw.Draw(picture), ImageFont.truetype(FONT, 28)
    for number, line in enumerate(lines):
        drawing.text((30, 30 + 44 * number), line, "black", font)
    return picture


def many_words():
    """Returns so many words that reading them takes many seconds."""
    line = "Every one of these words has to be read before the text of this picture is known. "
    return written([2 * line] * 80, (2600, 60 + 44 * 80))


class Texts:
    """A card with one capture, the text of which can be copied."""

    def __init__(self, desktop, vantle, folder):
        self._desktop = desktop
        self._vantle = vantle
        self._folder = folder
        self.assistant = Assistant(desktop)

    def show(self, picture):
        """Saves the picture as the only capture, and waits until its tile stands."""
        self._folder.save("shot.png", encoded(picture))
        self._folder.wait_for("shot.png")
        panel = wait_until(self._desktop.screen.panel, "the panel appears")
        wait_until(lambda: self._desktop.screen.input_areas(panel.number), "the card takes clicks")
        self._card = wait_for_card(self._desktop, panel)
        wait_until_still(lambda: self._desktop.screen.screenshot(panel.frame).tobytes(), "the card")

    def choose_copy_text(self):
        CardMenu(self._desktop, self._vantle).open_at(*tile_of(self._card)).choose(*COPY_TEXT)

    def tile_says(self):
        """Returns what the tile tells of its state."""
        return [tile["description"] for tile in self.assistant.find("shot.png")
                if tile["role"] == "list item"]  # fmt: skip

    def wait_until_tile_says(self, text):
        wait_until(lambda: self.tile_says() == [text], f"the tile says {text!r}")

    def click(self, name):
        """Clicks the button of that name, on the card or in the preview."""
        def frame():
            shown = [item["frame"] for item in self.assistant.find(name)
                     if item["role"] == "button" and "showing" in item["states"]]  # fmt: skip
            return shown[0] if shown else None

        x, y, width, height = wait_until_still(
            lambda: wait_until(frame, f"there is a button {name}"), "the button")
        self._desktop.screen.pointer.click(x + width // 2, y + height // 2)

    def clipboard(self):
        """Returns the text on the clipboard, or None."""
        done = self._desktop.run(
            "xclip", "-selection", "clipboard", "-t", "UTF8_STRING", "-o", check=False)
        return done.stdout.decode() if done.returncode == 0 else None

    def is_reading(self):
        return "vantle-reader" in children_of(self._vantle.pid)


def children_of(pid):
    """Returns the names of the programs that this process has started."""
    names = []
    for entry in os.listdir("/proc"):
        try:
            stat = pathlib.Path("/proc", entry, "stat").read_text()
        except OSError:
            # No process, or it has ended meanwhile.
            continue
        name, rest = stat.partition("(")[2].rsplit(")", 1)
        if int(rest.split()[1]) == pid:
            names.append(name)
    return names


@pytest.fixture
def vantle(desktop, binary):
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings()
    yield program
    program.stop()


@pytest.fixture
def texts(desktop, vantle, folder):
    vantle.start_watching()
    return Texts(desktop, vantle, folder)


def test_the_menu_copies_the_text_with_its_lines(texts):
    texts.show(written(LINES))
    texts.choose_copy_text()
    texts.wait_until_tile_says("Copied 6 words")
    assert texts.clipboard() == "\n".join(LINES)
    texts.wait_until_tile_says("")


def test_a_click_on_the_ring_stops_the_reading(texts):
    texts.show(many_words())
    texts.choose_copy_text()
    wait_until(texts.is_reading, "the reader runs")
    texts.wait_until_tile_says("Copying text")
    texts.click("Stop")
    wait_until(lambda: not texts.is_reading(), "the reader has ended")
    texts.wait_until_tile_says("")
    assert texts.clipboard() is None


def test_a_picture_without_text_says_so(texts):
    texts.show(Image.new("RGB", (600, 400), "white"))
    texts.choose_copy_text()
    texts.wait_until_tile_says("No text found")
    assert texts.clipboard() is None


def test_the_preview_copies_the_text(desktop, texts, binary):
    texts.show(written(LINES))
    desktop.run(binary, "--focus-panel")
    panel = desktop.screen.panel().number
    wait_until(lambda: desktop.screen.focused_window() == panel, "the card has the keys")
    desktop.screen.keyboard.press("space")
    texts.click("Copy Text")
    texts.assistant.wait_for("Copied 6 words")
    assert texts.clipboard() == "\n".join(LINES)


def test_the_preview_stops_the_reading(desktop, texts, binary):
    texts.show(many_words())
    desktop.run(binary, "--focus-panel")
    panel = desktop.screen.panel().number
    wait_until(lambda: desktop.screen.focused_window() == panel, "the card has the keys")
    desktop.screen.keyboard.press("space")
    texts.click("Copy Text")
    wait_until(texts.is_reading, "the reader runs")
    texts.click("Stop")
    wait_until(lambda: not texts.is_reading(), "the reader has ended")
    assert texts.clipboard() is None


def test_without_a_language_the_menu_has_no_such_line(desktop, binary, folder, vantle):
    program = Program(
        binary, desktop, environment={**ENVIRONMENT, "TESSDATA_PREFIX": "/nowhere"}, name="without")
    program.write_settings()
    program.start_watching()
    texts = Texts(desktop, program, type(folder)(folder.path, program))
    texts.show(written(LINES))
    # The line before it, "Copy Path", is in its place.
    texts.choose_copy_text()
    wait_until(texts.clipboard, "something is copied")
    assert texts.clipboard() == str(folder.path / "shot.png")
    program.stop()
