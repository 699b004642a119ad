"""Draws screens whose text is known: windows with paragraphs, a dialog, a table and a listing."""

import json
import re
from pathlib import Path

from PIL import Image, ImageDraw, ImageFont

HERE = Path(__file__).resolve().parent
INTER = "/usr/share/fonts/opentype/inter/Inter-{}.otf"
DEJAVU = "/usr/share/fonts/truetype/dejavu/DejaVuSans{}.ttf"
FONTS = {
    "inter": (INTER.format("Regular"), INTER.format("Bold")),
    "dejavu": (DEJAVU.format(""), DEJAVU.format("-Bold")),
}
MONOSPACED = DEJAVU.format("Mono")
LIGHT = {"page": "#fafafa", "text": "#2e3436", "faint": "#6a6f73", "side": "#ebebed"}
DARK = {"page": "#1e1e22", "text": "#e6e6e8", "faint": "#a2a2aa", "side": "#2b2b31"}
THEMES = {"light": LIGHT, "dark": DARK}

TEXTS = {file.stem: json.loads(file.read_text()) for file in (HERE / "texts").glob("*.json")}

LISTING = """int countOfLines(const std::string& text) {
    int count = 0;
    for (const char c : text) {
        if (c == '\\n') ++count;
    }
    return count;
}

def total(prices, tax=0.19):
    # The sum with tax, rounded to cents.
    return round(sum(prices) * (1 + tax), 2)"""


class Screen:
    """A screen of 900 × 700 points under construction, and the text on it."""

    def __init__(self, theme, font, size, scale):
        self.colors, self.size, self.scale = THEMES[theme], size, scale
        self.regular, self.bold = FONTS[font]
        self.image = Image.new("RGB", (900 * scale, 700 * scale), self.colors["page"])
        self.drawing = ImageDraw.Draw(self.image)
        self.lines = []

    def write(self, x, y, text, size=None, font=None, color="text"):
        """Returns the width of the text in points."""
        made = ImageFont.truetype(font or self.regular, round((size or self.size) * self.scale))
        self.drawing.text((x * self.scale, y * self.scale), text, self.colors[color], made)
        self.lines.append(text)
        return made.getlength(text) / self.scale

    def width(self, text):
        made = ImageFont.truetype(self.regular, round(self.size * self.scale))
        return made.getlength(text) / self.scale

    def wrap(self, text, width):
        line = ""
        for word in text.split():
            longer = f"{line} {word}".strip()
            if line and self.width(longer) > width:
                yield line
                longer = word
            line = longer
        yield line

    def paragraph(self, x, y, text, width):
        """Returns the y below it."""
        for line in self.wrap(text, width):
            self.write(x, y, line)
            y += 1.5 * self.size
        return y + 0.8 * self.size

    def box(self, left, top, right, bottom, color):
        area = [value * self.scale for value in (left, top, right, bottom)]
        self.drawing.rounded_rectangle(area, 6 * self.scale, color)


def draw_menu(screen, names):
    screen.box(0, 0, 900, 28, screen.colors["side"])
    x = 14
    for name in names:
        x += screen.write(x, 14 - 0.62 * screen.size, name) + 20


def draw_table(screen, y, rows):
    for number, row in enumerate(rows):
        for x, cell in zip((30, 330, 460), row):
            screen.write(x, y, cell, color="text" if number else "faint")
        y += 1.8 * screen.size
    return y + 6


def draw_button(screen, y, label):
    width = screen.width(label) + 32
    screen.box(30, y, 30 + width, y + 32, "#2663d9")
    page, screen.colors = screen.colors, {**screen.colors, "text": "#ffffff"}
    screen.write(46, y + 16 - 0.62 * screen.size, label)
    screen.colors = page


def prose(theme, font, size, scale, language):
    texts = TEXTS[language]
    screen = Screen(theme, font, size, scale)
    draw_menu(screen, texts["menu"])
    screen.write(30, 46, texts["title"], 1.7 * size, screen.bold)
    y = 90
    for text in texts["body"]:
        y = screen.paragraph(30, y, text, 620)
    y = draw_table(screen, y + 8, texts["rows"])
    draw_button(screen, y + 10, texts["button"])
    return screen


def listing(theme, _font, size, scale, _language):
    screen = Screen(theme, "dejavu", size, scale)
    screen.box(16, 16, 884, 684, screen.colors["side"])
    y = 36
    for line in LISTING.splitlines():
        indent = len(line) - len(line.lstrip())
        if line.strip():
            screen.write(36 + indent * size * 0.602, y, line.strip(), font=MONOSPACED)
        y += 1.45 * size
    return screen


def words(text):
    """Splits text as a person would compare it: apostrophes and quotes in one form."""
    return re.sub("[’‘`]", "'", text).split()
