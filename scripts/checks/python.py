"""Checks Python for unused and undefined names, and its layout for what the style guide
requires."""

import re

from .repository import Problem, output_of, require, scripts_for, text_of

WHAT = "Python by pyflakes and pycodestyle, 100 columns"
REPAIR = "by hand; if it is intended, # noqa: NUMBER (REASON) at the end of the line"

COMPLAINT = re.compile(r"^(.+?):(\d+):(?:\d+:?)? (.*)$", re.MULTILINE)
# Rules that are switched off:
#   E203       white space around the colon of a slice with long parts
#   E402       imports below code: a script sets its search path before it imports from there
#   E731       a lambda with a name, which describes itself in one line
#   W503 W504  an operator may stand on either side of a line break
NOT_ASKED_FOR = "E203,E402,E731,W503,W504"


def complaints(*command):
    output, status = output_of(*command)
    found = COMPLAINT.findall(output)
    if status and not found:
        yield Problem(command[0], None, output.strip())
    for path, line, text in found:
        if not is_excused(path, int(line)):
            yield Problem(path, int(line), text)


def is_excused(path, line):
    """Returns true if the line has a mark that excuses it; pyflakes does not know this mark."""
    return "# noqa" in text_of(path).split("\n")[line - 1]


def problems(_everything, note):
    require("pyflakes3", "pyflakes3")
    require("pycodestyle", "pycodestyle")
    paths = scripts_for("python", "*.py")
    note(f"looked at {len(paths)} Python files")
    if paths:
        yield from complaints("pyflakes3", *paths)
        yield from complaints("pycodestyle", "--max-line-length=100", f"--ignore={NOT_ASKED_FOR}",
                              *paths)
