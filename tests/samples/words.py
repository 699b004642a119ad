"""Samples of pictures with text, for the text reader."""

import io

from PIL import Image, ImageDraw, ImageFont

FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
LINES = ["Copy the text", "of this picture"]


def png(image):
    file = io.BytesIO()
    image.save(file, "PNG")
    return file.getvalue()


def written(lines, size=(420, 160), paper="white", ink="black"):
    picture = Image.new("RGB", size, paper)
    drawing, font = ImageDraw.Draw(picture), ImageFont.truetype(FONT, 28)
    for number, line in enumerate(lines):
        drawing.text((30, 30 + 44 * number), line, ink, font)
    return picture


def on_nothing():
    """Returns black letters on a background that is wholly transparent."""
    letters = written(LINES).convert("L").point(lambda value: 255 - value)
    picture = Image.new("RGBA", letters.size)
    picture.putalpha(letters)
    return picture


def many_words():
    """Returns so many words that reading them takes seconds."""
    line = "Every one of these words has to be read before the text of this picture is known."
    return written([line] * 30, (1300, 60 + 44 * 30))


def on_second_page():
    file = io.BytesIO()
    Image.new("L", (420, 160), 255).save(file, "PDF", save_all=True,
                                         append_images=[written(LINES).convert("L")])
    return file.getvalue()


def words():
    return {
        "words.png": png(written(LINES)),
        "words_dark.png": png(written(LINES, paper="#1e1e22", ink="#e6e6e8")),
        "words_on_nothing.png": png(on_nothing()),
        "words_on_second_page.pdf": on_second_page(),
        "no_words.png": png(Image.new("RGB", (420, 160), "white")),
        "many_words.png": png(many_words()),
        "one_pixel.png": png(Image.new("RGB", (1, 1))),
        "strip.png": png(Image.new("RGB", (60_000, 2), "white")),
    }
