"""Runs clang-tidy on the C++ files, with the checks of .clang-tidy.

One file takes five to twenty seconds, mostly for the headers of Qt and of the test framework.
Therefore it usually looks at the files that changed last: first the uncommitted ones, then those of
the newest commits.
"""

import json
import os
import re

from .repository import (BUILD, ROOT, Problem, checked, configure, files, git, lines_of, output_of,
                         require, side_by_side)

WHAT = "C++ by clang-tidy 14"
REPAIR = ("by hand; if clang-tidy is wrong, // NOLINT(CHECK) with the reason; "
          "if a check is wrong in general, switch it off in .clang-tidy and say why")

TOOL = "clang-tidy-14"
USUAL_NUMBER = 5
COMPLAINT = re.compile(r"^(/.+?):(\d+):\d+: (?:error|warning): (.*)$", re.MULTILINE)
# The compiler's flags are meant for gcc, whose warnings are errors in the build.
FLAGS = ("--quiet", "--extra-arg=-Wno-unknown-warning-option", "--extra-arg=-Wno-error")
# The analyzer follows every path through a function; the macros of tests make that take minutes.
WITHOUT_ANALYZER = "--checks=-clang-analyzer-*"


def commands():
    """Returns the compile command of each source. Keeps one per source, since clang-tidy would
    otherwise look at a source once for each of its targets."""
    entries = json.loads((BUILD / "compile_commands.json").read_text())
    by_path = {}
    for entry in entries:
        path = os.path.relpath(entry["file"], ROOT)
        if not path.startswith("build/"):
            by_path.setdefault(path, entry)
    folder = BUILD / "clang-tidy"
    folder.mkdir(exist_ok=True)
    (folder / "compile_commands.json").write_text(json.dumps(list(by_path.values())))
    return by_path


def changed_last():
    """Returns all files: first the uncommitted ones, then those of the newest to the oldest
    commit."""
    changed = git("ls-files", "--modified", "--others", "--exclude-standard") or []
    changed += git("diff", "--cached", "--name-only") or []
    changed += git("log", "--format=", "--name-only", "--no-renames") or []
    return list(dict.fromkeys(changed))


def sources_that_include(header):
    line = f'#include "{header.removeprefix("src/")}"'
    near = f'#include "{os.path.basename(header)}"'
    for path in files("*.cpp"):
        here = os.path.dirname(path) == os.path.dirname(header)
        if any(text == line or (here and text == near) for _, text in lines_of(path)):
            yield path


def source_of(path, compiled):
    """Returns the source that clang-tidy compiles to look at a file: a header's own source, or else
    one that includes the header."""
    if path in compiled:
        return path
    if not path.endswith(".h") or not (ROOT / path).is_file():
        return None
    own = path.removesuffix(".h") + ".cpp"
    return own if own in compiled else next(
        (source for source in sources_that_include(path) if source in compiled), None)


def newest(compiled):
    chosen = {}
    for path in changed_last():
        source = source_of(path, compiled)
        if source:
            chosen[source] = True
        if len(chosen) == USUAL_NUMBER:
            break
    return list(chosen) or sorted(compiled)[:USUAL_NUMBER]


def moc(path, command):
    """Makes the moc file that the source includes, if any: nothing else would have to be built."""
    name = os.path.basename(path).removesuffix(".cpp") + ".moc"
    if not any(text == f'#include "{name}"' for _, text in lines_of(path)):
        return
    folder = re.search(r"-I(\S+_autogen/include)\b", command)[1]
    os.makedirs(folder, exist_ok=True)
    libexec = output_of("qmake6", "-query", "QT_INSTALL_LIBEXECS")[0].strip()
    checked(f"{libexec}/moc", path, "-o", f"{folder}/{name}")


def look_at(path, everything):
    flags = FLAGS if everything and path.startswith("src/") else (*FLAGS, WITHOUT_ANALYZER)
    output, status = output_of(TOOL, "-p", str(BUILD / "clang-tidy"), *flags, path)
    found = [Problem(os.path.relpath(file, ROOT), int(line), text)
             for file, line, text in COMPLAINT.findall(output)]
    return found or ([Problem(path, None, output.strip())] if status else [])


def problems(everything, note):
    require(TOOL, TOOL)
    yield from (unconfigured := configure())
    if unconfigured:
        return
    compiled = commands()
    chosen = sorted(compiled) if everything else newest(compiled)
    if everything:
        note(f"looks at all {len(chosen)} sources and the headers that they include")
    else:
        note(f"looks at the {len(chosen)} sources of {len(compiled)} that changed last, without "
             "the analyzer;")
        note("scripts/check --all clang-tidy looks at all of them with it. The sources:")
        for path in chosen:
            note(f"  {path}")
    for path in chosen:
        moc(path, compiled[path]["command"])
    results = side_by_side(lambda path: look_at(path, everything), chosen)
    yield from sorted({problem for found in results for problem in found})
