"""Runs qmllint on the QML files.

qmllint needs the types that C++ provides to QML. A build would write them only when everything is
built; here moc reads them from the headers of each module, as the build does.
"""

import json
import pathlib
import re
import shlex

from .repository import (BUILD, ROOT, MissingTool, Problem, checked, configure, files, output_of,
                         require)

WHAT = "QML by qmllint; unused imports count as well"
REPAIR = "by hand; if qmllint is wrong, // qmllint disable KIND at the end of the line"

COMPLAINT = re.compile(r"^(?:Warning|Error|Info): (.+?):(\d+):\d+: (.*)$", re.MULTILINE)


def tool(name):
    require("qmake6", "qt6-base-dev")
    for kind in ("QT_INSTALL_BINS", "QT_INSTALL_LIBEXECS"):
        path = pathlib.Path(output_of("qmake6", "-query", kind)[0].strip()) / name
        if path.is_file():
            return str(path)
    raise MissingTool(f"{name} of Qt 6 is missing. ./test --checks installs it, or: "
                      "apt-get install qt6-declarative-dev qt6-declarative-dev-tools")


def modules():
    """Yields the folder and the name of each QML module."""
    for resources in sorted(BUILD.glob("src/**/.rcc/qmake_*.qrc")):
        name = resources.stem.removeprefix("qmake_").replace("_", ".")
        yield resources.parent.parent.relative_to(BUILD), name


def include_flags():
    """Returns the include flags of a source that uses Qt Quick."""
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    command = next(entry["command"] for entry in commands if "-DQT_QUICK_LIB" in entry["command"])
    words = shlex.split(command)
    system = [f"-I{words[at + 1]}" for at, word in enumerate(words) if word == "-isystem"]
    return [word for word in words if word.startswith("-I")] + system


def describe(headers, name, flags):
    """Writes the types that the headers provide to the module, in the form that qmllint reads."""
    folder = BUILD / "qml" / name.replace(".", "/")
    described = []
    for header in headers:
        described.append(folder / f"{pathlib.Path(header).stem}.json")
        checked(tool("moc"), "--output-json", *flags, header, "-o", str(folder / "moc.cpp"))
        (folder / "moc.cpp.json").rename(described[-1])
    types = re.search(r"^typeinfo (.+)$", (folder / "qmldir").read_text(), re.MULTILINE)[1]
    checked(tool("moc"), "--collect-json", "-o", str(folder / "types.json"), *map(str, described))
    foreign = BUILD.glob(f"src/**/qmltypes/{types.removesuffix('.qmltypes')}_foreign_types.txt")
    checked(tool("qmltyperegistrar"), f"--generate-qmltypes={folder / types}",
            f"--import-name={name}", "--major-version=1", "--minor-version=0",
            f"@{next(foreign)}", "-o", str(folder / "registration.cpp"), str(folder / "types.json"))


def types_of(folder):
    return [path for path in files(f"{folder}/*.h")
            if re.search(r"\bQ_(OBJECT|GADGET)\b", (ROOT / path).read_text())]


def lint(folder, paths):
    resources = (BUILD / folder / ".rcc").glob("*.qrc")
    quick = output_of("qmake6", "-query", "QT_INSTALL_QML")[0].strip()
    output, status = output_of(
        tool("qmllint"), "--bare", "--unused-imports", "warning", "-I", str(BUILD / "qml"),
        "-I", quick, *(f"--resource={path}" for path in resources), *paths)
    found = COMPLAINT.findall(output)
    if status and not found:
        yield Problem(str(folder), None, output.strip())
    for path, line, text in found:
        yield Problem(path.removeprefix(f"{ROOT}/"), int(line), text)


def problems(_everything, note):
    yield from (unconfigured := configure())
    if unconfigured:
        return
    flags = include_flags()
    for folder, name in modules():
        describe(types_of(folder), name, flags)
    for folder, name in modules():
        paths = files(f"{folder}/*.qml")
        if not paths:
            continue
        note(f"{name}: looked at {len(paths)} files in {folder}")
        yield from lint(folder, paths)
