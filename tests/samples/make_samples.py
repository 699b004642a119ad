#!/usr/bin/python3
"""Writes the sample files of the tests into the folder that is its argument.

The valid samples show four quarters: red, green (above), blue, yellow (below).
"""

import sys
from pathlib import Path

from deep_tiffs import deep_tiffs
from gifs import gifs
from heifs import write_heifs
from jpegs import jpeg, jpegs
from pdfs import pdfs
from picture import quarters, swapped_profile
from pngs import pngs
from recordings import write_recordings
from tiffs import tiffs
from webps import webps
from words import words


def others():
    return {
        "empty.png": b"",
        "text.png": b"No picture.\n",
        "really_jpeg.png": jpeg(quarters()),
    }


def write_profiled(folder):
    """Writes pictures whose stored colours differ from those that a screen must show."""
    translucent = quarters().convert("RGBA")
    translucent.putalpha(128)
    translucent.save(folder / "profile_translucent.png", icc_profile=swapped_profile())
    for name in ("profile.png", "profile.jpg", "profile.tif"):
        quarters().save(folder / name, icc_profile=swapped_profile())


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for group in (pngs(), jpegs(), gifs(), tiffs(), deep_tiffs(), pdfs(), webps(),
                  words(), others()):
        for name, data in group.items():
            (folder / name).write_bytes(data)
    write_profiled(folder)
    write_heifs(folder)
    write_recordings(folder)


main()
