#!/usr/bin/python3
"""Measures how many words of a screen are read correctly, and the processor time of that.

  bench/reading.py [--binary build/dev/bin/vantle-reader] [--variants]

Screens in three languages, in light and dark, with two fonts, each at 1x and 2x, are read by the
real program. With --variants Tesseract also reads them with other preparations. It needs
scripts/packages/bench.list.
"""

import argparse
import itertools
import os
import subprocess
import tempfile
from collections import Counter
from pathlib import Path

import numpy
from PIL import Image, ImageOps

from tesseract import Tesseract
from text_screens import THEMES, listing, prose, words

REPOSITORY = Path(__file__).resolve().parents[1]
SIZES = {"inter": 13, "dejavu": 12}
LANGUAGES = {"eng": "eng", "deu": "deu+eng", "fra": "fra+eng"}


def screens(scale):
    """Yields each screen with the languages in which it is read."""
    for language, theme, (font, size) in itertools.product(LANGUAGES, THEMES, SIZES.items()):
        yield prose(theme, font, size, scale, language), LANGUAGES[language]
    for theme in THEMES:
        yield listing(theme, "dejavu", 12, scale, "eng"), LANGUAGES["eng"]


def right_words(screen, text):
    """Returns how many words of the screen are in the text, and how many there are."""
    expected = Counter(word for line in screen.lines for word in words(line))
    return (expected & Counter(words(text))).total(), expected.total()


def processor_time():
    """Returns the seconds that this process and its children have used."""
    return sum(os.times()[:4])


def measure(read, scale):
    """Returns the share of right words in percent, and the processor time of a screen."""
    right = count = number = seconds = 0
    for screen, languages in screens(scale):
        started = processor_time()
        text = read(screen.image, languages)
        seconds += processor_time() - started
        found, expected = right_words(screen, text)
        right, count, number = right + found, count + expected, number + 1
    return 100 * right / count, seconds / number


def by_the_program(binary):
    def read(image, languages):
        with tempfile.NamedTemporaryFile(suffix=".png") as file:
            image.save(file.name, compress_level=1)
            command = [binary, "--text", file.name, "--languages", languages]
            return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout

    return read


def enlarged(image, factor, method=Image.Resampling.BICUBIC):
    size = (round(image.width * factor), round(image.height * factor))
    return image.convert("L").resize(size, method)


def inverted(image):
    """Returns dark pictures with light and dark exchanged."""
    return ImageOps.invert(image) if numpy.median(image) < 128 else image


VARIANTS = {
    "as they are": lambda engine, image: engine.text(image.convert("L")),
    "enlarged twice": lambda engine, image: engine.text(enlarged(image, 2)),
    "enlarged three times": lambda engine, image: engine.text(enlarged(image, 3)),
    "enlarged twice, without interpolation":
        lambda engine, image: engine.text(enlarged(image, 2, Image.Resampling.NEAREST)),
    "enlarged twice, between two pixels":
        lambda engine, image: engine.text(enlarged(image, 2, Image.Resampling.BILINEAR)),
    "enlarged twice, dark ones inverted":
        lambda engine, image: engine.text(inverted(enlarged(image, 2))),
    "enlarged twice, black and white by parts":
        lambda engine, image: engine.text(enlarged(image, 2), thresholding_method=1),
    "enlarged twice, black and white by neighbours":
        lambda engine, image: engine.text(enlarged(image, 2), thresholding_method=2),
    "enlarged twice, as one block":
        lambda engine, image: engine.text(enlarged(image, 2), segmentation=6),
    "enlarged twice, as scattered words":
        lambda engine, image: engine.text(enlarged(image, 2), segmentation=11),
}  # fmt: skip


def by_tesseract(variant):
    engines = {languages: Tesseract(languages) for languages in LANGUAGES.values()}
    return lambda image, languages: variant(engines[languages], image)


def report(name, read):
    for scale in (1, 2):
        share, seconds = measure(read, scale)
        print(f"{name}, {scale}x: {share:.1f} %, {seconds:.2f} s a screen", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binary", default=str(REPOSITORY / "build/dev/bin/vantle-reader"))
    parser.add_argument("--variants", action="store_true", help="measure other preparations too")
    arguments = parser.parse_args()
    report("Vantle", by_the_program(arguments.binary))
    if arguments.variants:
        for name, variant in VARIANTS.items():
            report(name, by_tesseract(variant))


if __name__ == "__main__":
    # The reader uses one thread.
    os.environ["OMP_THREAD_LIMIT"] = "1"
    main()
