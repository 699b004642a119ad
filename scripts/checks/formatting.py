"""Checks that C++ is formatted as .clang-format says, and bash as shfmt formats it."""

import re

from .repository import MissingTool, Problem, files, output_of, require, scripts_for

WHAT = "C++ by clang-format 14, bash by shfmt"
REPAIR = "clang-format-14 -i FILE for C++, shfmt -i 2 -w FILE for bash"

# Other versions break lines elsewhere, so two people would keep reformatting each other's files.
FORMATTER = "clang-format-14"
COMPLAINT = re.compile(r"^(.+?):(\d+):\d+: error: ", re.MULTILINE)
HUNK = re.compile(r"^--- (?P<path>.+?)(?:\.orig)?$|^@@ -(?P<line>\d+)", re.MULTILINE)


def require_formatter():
    require(FORMATTER, FORMATTER)
    version, _ = output_of(FORMATTER, "--version")
    if " version 14." not in version:
        raise MissingTool(f"{FORMATTER} must be version 14, but is: {version.strip()}")


def cpp_problems(note):
    require_formatter()
    paths = files("*.cpp", "*.h")
    note(f"looked at {len(paths)} C++ files")
    output, status = output_of(FORMATTER, "--dry-run", "-Werror", *paths) if paths else ("", 0)
    places = sorted({(path, int(line)) for path, line in COMPLAINT.findall(output)})
    if status and not places:
        yield Problem(".clang-format", None, output.strip())
    for path, line in places:
        yield Problem(path, line, "clang-format 14 formats this differently")


def bash_problems(note):
    require("shfmt", "shfmt")
    paths = scripts_for("bash", "*.sh")
    note(f"looked at {len(paths)} bash scripts")
    for path in paths:
        output, status = output_of("shfmt", "-i", "2", "-d", path)
        lines = [int(match["line"]) for match in HUNK.finditer(output) if match["line"]]
        if status and not lines:
            yield Problem(path, None, output.strip())
        for line in lines:
            yield Problem(path, line, "shfmt formats the lines below differently")


def problems(_everything, note):
    yield from cpp_problems(note)
    yield from bash_problems(note)
