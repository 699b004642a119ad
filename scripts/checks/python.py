"""Python without unused or undefined names, in the layout that its style guide asks for."""

import re

from .repository import Problem, output_of, require, scripts_for, text_of

WHAT = "Python by pyflakes and pycodestyle, 100 columns"
REPAIR = "by hand; where it is meant so, # noqa: NUMBER (REASON) at the end of the line"

COMPLAINT = re.compile(r"^(.+?):(\d+):(?:\d+:?)? (.*)$", re.MULTILINE)
# What is not asked for:
#   E203       white space stands around the colon of a slice where its parts are long
#   E402       imports below code: a script sets its search path before it imports what is there
#   E731       a lambda with a name says in one line what it is
#   W503 W504  an operator may stand at either side of a break
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
    """pyflakes does not know this mark of its successors."""
    return "# noqa" in text_of(path).split("\n")[line - 1]


def problems(_everything, note):
    require("pyflakes3", "pyflakes3")
    require("pycodestyle", "pycodestyle")
    paths = scripts_for("python", "*.py")
    note(f"looked at {len(paths)} files of Python")
    if paths:
        yield from complaints("pyflakes3", *paths)
        yield from complaints("pycodestyle", "--max-line-length=100", f"--ignore={NOT_ASKED_FOR}",
                              *paths)
