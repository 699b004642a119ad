"""Checks that each folder of the sources uses only the folders that the picture of the architecture
allows.

A folder means one in src that has a CMakeLists.txt; its subfolders without one belong to it. It
uses the folders whose headers its files include and whose modules its QML imports. The picture is
the block "layers" in docs/architecture.md.

Only the folders of the display servers, and the list that chooses the folders of a system, may name
a display server.
"""

import pathlib
import re

from .repository import Problem, files, lines_of, text_of

WHAT = "includes between the folders of src, against docs/architecture.md"
REPAIR = "by hand: move what both need to a lower folder, or draw the arrow if it is right"

PICTURE = "docs/architecture.md"
INCLUDE = re.compile(r'#include "([^"]+)"')
IMPORT = re.compile(r"import (Vantle\.\w+)")
DISPLAY_SERVER = re.compile(r"wayland|xcb|x11|iskwin", re.IGNORECASE)
MAY_NAME_IT = re.compile(r"src/(platform/(wayland|x11|displays)/|CMakeLists\.txt$)")
MODULE = re.compile(r"^\s*URI (Vantle\.\w+)", re.MULTILINE)


def folders():
    return {str(pathlib.PurePath(path).parent.relative_to("src"))
            for path in files("src/*CMakeLists.txt")} - {"."}


def folder_of(path, all_folders):
    """Returns the folder that contains a file of src, or None."""
    for folder in map(str, pathlib.PurePath(path).parents):
        if folder in all_folders:
            return folder
    return None


def allowed():
    """Returns the arrows of the picture: for each folder its line and the folders it may use."""
    arrows = {}
    is_inside = False
    for number, line in lines_of(PICTURE):
        if line.startswith("```"):
            is_inside = line == "```layers"
        elif is_inside:
            folder, _, used = line.partition(":")
            arrows[folder.strip()] = (number, set(used.split()))
    return arrows


def modules(all_folders):
    """Returns the folders that are QML modules, by the names under which they are imported."""
    texts = {folder: text_of(f"src/{folder}/CMakeLists.txt") for folder in all_folders}
    return {name: folder for folder, text in texts.items() for name in MODULE.findall(text)}


def used(all_folders):
    """Returns the arrows in the sources, each with the first line that makes it."""
    module_folders = modules(all_folders)
    arrows = {}
    for path in files("src/*.h", "src/*.cpp", "src/*.qml"):
        own = folder_of(path.removeprefix("src/"), all_folders)
        for number, line in lines_of(path):
            other = None
            if include := INCLUDE.match(line):
                other = folder_of(include[1], all_folders)
            elif imported := IMPORT.match(line):
                other = module_folders.get(imported[1])
            if own and other and own != other:
                arrows.setdefault((own, other), (path, number))
    return arrows


def circle(arrows):
    """Returns the folders that use each other in a circle, or an empty list."""
    left = {folder: set(others) for folder, (_, others) in arrows.items()}
    while left:
        free = {folder for folder, others in left.items() if not others & left.keys()}
        if not free:
            return sorted(left)
        for folder in free:
            del left[folder]
    return []


def named_display_servers():
    for path in files("src/*"):
        if not MAY_NAME_IT.match(path):
            for line, text in lines_of(path):
                if DISPLAY_SERVER.search(text):
                    yield Problem(path, line, "names a display server")


def problems(_everything, note):
    yield from named_display_servers()
    all_folders = folders()
    picture = allowed()
    includes = used(all_folders)
    note(f"looked at {len(includes)} arrows between {len(all_folders)} folders")
    for folder in sorted(all_folders - picture.keys()):
        yield Problem(f"src/{folder}", None, f"is not in the picture of {PICTURE}")
    for (folder, other), (path, line) in sorted(includes.items()):
        if other not in picture.get(folder, (0, ()))[1]:
            yield Problem(path, line, f"{PICTURE} draws no arrow from {folder} to {other}")
    for folder, (line, others) in picture.items():
        for other in sorted(others):
            if (folder, other) not in includes:
                yield Problem(PICTURE, line, f"nothing in {folder} uses {other}")
    if circle_folders := circle(picture):
        yield Problem(PICTURE, None, f"a circle in {', '.join(circle_folders)}")
