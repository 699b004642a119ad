"""Validates the desktop entries with desktop-file-validate."""

from .repository import Problem, files, output_of, require

WHAT = "desktop entries by desktop-file-validate"
REPAIR = "by hand, as the message says"


def problems(_everything, note):
    require("desktop-file-validate", "desktop-file-utils")
    paths = files("*.desktop", "*.desktop.in")
    note(f"looked at {', '.join(paths) or 'none'}")
    for path in paths:
        # Warnings and hints count as well: nothing else reports keys that launchers will ignore.
        output, status = output_of("desktop-file-validate", path)
        lines = [line.removeprefix(f"{path}: ") for line in output.splitlines()]
        for line in lines or (["is refused"] if status else []):
            yield Problem(path, None, line)
