"""Checks that each folder of the sources uses only the folders that the picture of the architecture
allows.

A room is a folder of src that has a CMakeLists.txt; its subfolders without one belong to it. A room
uses the rooms whose headers its files include and whose modules its QML imports. The picture is the
block "layers" in docs/architecture.md.
"""

import pathlib
import re

from .repository import Problem, files, lines_of, text_of

WHAT = "includes between the folders of src, against docs/architecture.md"
REPAIR = "by hand: move what both need to a lower folder, or draw the arrow if it is right"

PICTURE = "docs/architecture.md"
INCLUDE = re.compile(r'#include "([^"]+)"')
IMPORT = re.compile(r"import (Vantle\.\w+)")
MODULE = re.compile(r"^\s*URI (Vantle\.\w+)", re.MULTILINE)


def rooms():
    return {str(pathlib.PurePath(path).parent.relative_to("src"))
            for path in files("src/*CMakeLists.txt")} - {"."}


def room_of(path, all_rooms):
    """Returns the room that contains a file of src, or None."""
    for folder in map(str, pathlib.PurePath(path).parents):
        if folder in all_rooms:
            return folder
    return None


def drawn():
    """Returns the arrows of the picture: for each room its line, and the rooms that it may use."""
    arrows = {}
    is_inside = False
    for number, line in lines_of(PICTURE):
        if line.startswith("```"):
            is_inside = line == "```layers"
        elif is_inside:
            room, _, used = line.partition(":")
            arrows[room.strip()] = (number, set(used.split()))
    return arrows


def modules(all_rooms):
    """Returns the rooms that are QML modules, by the names under which they are imported."""
    texts = {room: text_of(f"src/{room}/CMakeLists.txt") for room in all_rooms}
    return {name: room for room, text in texts.items() for name in MODULE.findall(text)}


def used(all_rooms):
    """Returns the arrows in the sources, each with the first line that makes it."""
    module_rooms = modules(all_rooms)
    arrows = {}
    for path in files("src/*.h", "src/*.cpp", "src/*.qml"):
        own = room_of(path.removeprefix("src/"), all_rooms)
        for number, line in lines_of(path):
            other = None
            if include := INCLUDE.match(line):
                other = room_of(include[1], all_rooms)
            elif imported := IMPORT.match(line):
                other = module_rooms.get(imported[1])
            if own and other and own != other:
                arrows.setdefault((own, other), (path, number))
    return arrows


def circle(arrows):
    """Returns the rooms that use each other in a circle, or an empty list."""
    left = {room: set(others) for room, (_, others) in arrows.items()}
    while left:
        free = {room for room, others in left.items() if not others & left.keys()}
        if not free:
            return sorted(left)
        for room in free:
            del left[room]
    return []


def problems(_everything, note):
    all_rooms = rooms()
    picture = drawn()
    includes = used(all_rooms)
    note(f"looked at {len(includes)} arrows between {len(all_rooms)} folders")
    for room in sorted(all_rooms - picture.keys()):
        yield Problem(f"src/{room}", None, f"is not in the picture of {PICTURE}")
    for (room, other), (path, line) in sorted(includes.items()):
        if other not in picture.get(room, (0, ()))[1]:
            yield Problem(path, line, f"{PICTURE} draws no arrow from {room} to {other}")
    for room, (line, others) in picture.items():
        for other in sorted(others):
            if (room, other) not in includes:
                yield Problem(PICTURE, line, f"nothing in {room} uses {other}")
    if rooms_in_circle := circle(picture):
        yield Problem(PICTURE, None, f"a circle in {', '.join(rooms_in_circle)}")
