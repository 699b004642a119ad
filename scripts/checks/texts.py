"""Finds the texts that users read in the sources."""

import re
from typing import NamedTuple

from .repository import files, text_of

# Matches a call with a text, and the literals of that text: C++ joins them by white space, QML by a
# plus.
LITERAL = r'"((?:[^"\\\n]|\\.)*)"'
JOINED = rf"{LITERAL}(?:[\s+]*{LITERAL})*"
IN_CPP = re.compile(rf"\b(?:(?:localized|marked|translate|QT_TRANSLATE_NOOP)\(\s*{LITERAL},|tr\()"
                    rf"\s*(?P<text>{JOINED})")
IN_QML = re.compile(rf"\bqsTr\(\s*(?P<text>{JOINED})")
ESCAPES = {"n": "\n", "t": "\t", '"': '"', "\\": "\\", "'": "'"}


class Text(NamedTuple):
    path: str
    line: int
    text: str


def unescaped(literal):
    return re.sub(r"\\(.)", lambda match: ESCAPES.get(match[1], match[0]), literal)


def joined(literals):
    return "".join(unescaped(part) for part in re.findall(LITERAL, literals))


def texts_of(path):
    is_qml = path.endswith(".qml")
    source = text_of(path) or ""
    for match in (IN_QML if is_qml else IN_CPP).finditer(source):
        line = source.count("\n", 0, match.start()) + 1
        yield Text(path, line, joined(match["text"]))


def all_texts():
    return [text for path in files("src/*.qml", "src/*.cpp", "src/*.h") for text in texts_of(path)]
