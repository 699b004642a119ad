#!/usr/bin/python3
"""Writes the sample files of the tests into the folder that is its argument.

The honest ones show four quarters: red, green (above), blue, yellow (below).
"""

import sys
from pathlib import Path

from gifs import gifs
from jpegs import jpeg, jpegs
from pdfs import pdfs
from picture import quarters
from pngs import pngs
from recordings import write_heics, write_recordings
from tiffs import tiffs


def others():
    return {
        "empty.png": b"",
        "text.png": b"No picture.\n",
        "really_jpeg.png": jpeg(quarters()),
    }


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for group in (pngs(), jpegs(), gifs(), tiffs(), pdfs(), others()):
        for name, data in group.items():
            (folder / name).write_bytes(data)
    write_heics(folder)
    write_recordings(folder)


main()
