"""Checks that what the documents name exists: the targets of links, their headings, and tests of
the desktop."""

import os
import re

from .repository import Problem, all_files, files, lines_of, text_of

WHAT = "links and names of tests in the documents"
REPAIR = "by hand: follow what was moved or renamed"

LINK = re.compile(r"\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#+ +(.*)$", re.MULTILINE)
TEST = re.compile(r"^def test_(\w+)", re.MULTILINE)
# `desktop.FILE.test`, or `.test` where the table's head names the file.
NAMED_TEST = re.compile(r"`(?:desktop\.(\w+))?\.([a-z]\w*_\w+)`")


def anchors(path):
    """Returns the anchors that a reader on the web gets for the headings."""
    kept = (re.sub(r"[^\w\- ]", "", heading.lower()) for heading in HEADING.findall(text_of(path)))
    return {heading.replace(" ", "-") for heading in kept}


def problem_of_link(path, target, known):
    if "://" in target or target.startswith("mailto:"):
        return None
    name, _, anchor = target.partition("#")
    linked = os.path.normpath(os.path.join(os.path.dirname(path), name)) if name else path
    if linked not in known and not any(each.startswith(linked + "/") for each in known):
        return f"links to {linked}, which does not exist"
    if anchor and anchor not in anchors(linked):
        return f"links to the heading #{anchor}, which {linked} does not have"
    return None


def desktop_tests():
    """Returns the names of the tests by the file that holds them."""
    return {os.path.basename(path)[len("test_"):-len(".py")]: set(TEST.findall(text_of(path)))
            for path in files("tests/desktop/test_*.py")}


def problems(_everything, note):
    known = set(all_files())
    tests = desktop_tests()
    every_test = set().union(*tests.values())
    paths = [path for path in known if path.endswith(".md")]
    note(f"looked at {len(paths)} documents and {len(every_test)} tests of the desktop")
    for path in sorted(paths):
        for line, text in lines_of(path):
            for target in LINK.findall(text):
                what = problem_of_link(path, target, known)
                if what:
                    yield Problem(path, line, what)
            for file, name in NAMED_TEST.findall(text):
                if name not in (tests.get(file, ()) if file else every_test):
                    yield Problem(path, line, f"names the test {name}, which does not exist")
