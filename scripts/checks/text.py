"""Checks that lines and files end properly, and that no file mentions the machine that it was
written on."""

import os
import re

from .repository import ROOT, Problem, all_files, lines_of, text_of

WHAT = "ends of lines and files, paths of the author's machine"
REPAIR = ("sed -i 's/[[:space:]]*$//' FILE removes white space at the ends of lines; "
          "make paths relative")

# Paths of home folders may appear in tests, as samples, and nowhere else.
HOME = re.compile(r"(?<![\w.~$}])/(?:home|Users)/[A-Za-z]")
CONFLICT = re.compile(r"(<<<<<<<|>>>>>>>) ")


def own_paths():
    """Returns the paths of this checkout and of the user's home, unless they are too short to mean
    anything."""
    paths = (str(ROOT), os.path.expanduser("~"))
    return [path for path in paths if path.count("/") > 1]


def problems_of_line(path, line, text):
    if text != text.rstrip():
        what = "ends with a carriage return" if text.endswith("\r") else "ends with white space"
        yield Problem(path, line, what)
    if CONFLICT.match(text):
        yield Problem(path, line, "an unresolved Git conflict")
    if any(own in text for own in own_paths()):
        yield Problem(path, line, "names the folder of this checkout, or your home")
    elif HOME.search(text) and not path.startswith("tests/"):
        yield Problem(path, line, "names somebody's home")


def problems(_everything, note):
    paths = [path for path in all_files() if text_of(path)]
    note(f"looked at {len(paths)} files")
    for path in paths:
        text = text_of(path)
        if not text.endswith("\n"):
            yield Problem(path, text.count("\n") + 1, "the last line has no end")
        if text.endswith("\n\n"):
            yield Problem(path, text.count("\n"), "an empty line at the end of the file")
        for line, content in lines_of(path):
            yield from problems_of_line(path, line, content)
