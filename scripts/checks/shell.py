"""Runs shellcheck on the bash scripts."""

import re

from .repository import Problem, output_of, require, scripts_for

WHAT = "bash by shellcheck"
REPAIR = "by hand; https://www.shellcheck.net/wiki/NUMBER explains each warning"

# shellcheck writes in gcc's notation: path:line:column: kind: text [number]
COMPLAINT = re.compile(r"^(.+?):(\d+):\d+: \w+: (.*)$", re.MULTILINE)


def problems(_everything, note):
    require("shellcheck", "shellcheck")
    paths = scripts_for("bash", "*.sh")
    note(f"looked at {len(paths)} bash scripts")
    output, status = output_of("shellcheck", "--external-sources", "--source-path=SCRIPTDIR",
                               "--format=gcc", *paths) if paths else ("", 0)
    found = COMPLAINT.findall(output)
    if status and not found:
        yield Problem("scripts", None, output.strip())
    for path, line, text in found:
        yield Problem(path, int(line), text)
