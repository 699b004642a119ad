"""Finds the faults that can be put into a source: changed constants and comparisons, and dropped
calls.

It splits a source into tokens and does not understand it: the compiler rejects what does not
compile.
"""

import itertools
import random
import re
from typing import NamedTuple

KINDS = ("constant", "comparison", "dropped call")

TOKEN = re.compile(r"""
  (?P<comment>//[^\n]*|/\*.*?\*/)
| (?P<preprocessor>^[ \t]*\#[^\n]*)
| (?P<string>R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'|`[^`]*`)
| (?P<number>\b(?:0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d*)?(?:[eE][-+]?\d+)?)[fFuUlL]*)
| (?P<word>[A-Za-z_]\w*)
| (?P<operator>===|!==|<=>|<<=?|>>=?|<=|>=|==|!=|&&|\|\||->|::|\S)
""", re.VERBOSE | re.DOTALL | re.MULTILINE)

REPLACED_OPERATORS = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "===": "!==",
    "!==": "===", "&&": "||", "||": "&&", "!": "",
}
REPLACED_WORDS = {"true": "false", "false": "true"}
OPENING, CLOSING = "([{", ")]}"
# Keywords that may stand, with a condition in parentheses, before a statement on the same line.
CONDITIONS = ("if", "for", "while", "switch")


class Token(NamedTuple):
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


class Fault(NamedTuple):
    path: str
    kind: str
    start: int
    old: str
    new: str
    line: int
    # The text at the fault, and how many of the same kind come before it, plus one. A line number
    # would change too often.
    text: str
    ordinal: int = 1

    @property
    def name(self):
        is_call = self.kind == "dropped call"
        change = "dropped" if is_call else f"{self.old} -> {self.new or 'nothing'}"
        number = f" #{self.ordinal}" if self.ordinal > 1 else ""
        return f"{self.path}: {' '.join(self.text.split())}: {' '.join(change.split())}{number}"


def tokens(source):
    found = (Token(match.lastgroup, match.group(), match.start())
             for match in TOKEN.finditer(source))
    return [token for token in found if token.kind not in ("comment", "preprocessor")]


def closing(found, opening):
    """Returns the position of the token that closes the one at `opening`."""
    depth = 0
    for position in range(opening, len(found)):
        if found[position].kind == "operator":
            depth += found[position].text in OPENING
            depth -= found[position].text in CLOSING
        if depth == 0:
            return position
    return len(found) - 1


def without_diagnostics(found):
    """Leaves out log calls for developers, and what the compiler checks by itself."""
    left, position = [], 0
    while position < len(found):
        texts = [token.text for token in found[position:position + 4]]
        skipped = texts == ["Debug", "::", "log", "("] or texts[:2] == ["static_assert", "("]
        if skipped:
            position = closing(found, position + texts.index("("))
        else:
            left.append(found[position])
        position += 1
    return left


def changed_number(text):
    digits = text.rstrip("fFuUlL")
    suffix = text[len(digits):]
    if re.fullmatch(r"0[xX].*|\d+", digits.replace("'", "")):
        value = int(digits.replace("'", ""), 0)
        return f"{value + max(1, value // 4)}{suffix}"
    value = float(digits.replace("'", ""))
    return f"{value * 1.25 if value else 1.0:.12g}{suffix}"


def replaced_tokens(source, found):
    """Yields the kind, the start, the old text and the new text of each replacement."""
    for token in found:
        if token.kind == "number":
            yield "constant", token.start, token.text, changed_number(token.text)
        elif token.text in REPLACED_WORDS:
            yield "constant", token.start, token.text, REPLACED_WORDS[token.text]
        elif token.kind == "operator" and token.text in REPLACED_OPERATORS:
            around = source[token.start - 1], source[token.end]
            is_negation = token.text == "!" and not around[1].isspace()
            # Without spaces around it, it is a template's bracket or a reference.
            if is_negation or (around[0].isspace() and around[1].isspace()):
                yield "comparison", token.start, token.text, REPLACED_OPERATORS[token.text]


def begins_statement(found, position):
    before = found[position - 1].text if position else ";"
    if before in (";", "{", "}", "else"):
        return True
    if before != ")":
        return False
    depth, opening = 0, position - 1
    while opening > 0:
        depth += (found[opening].text == ")") - (found[opening].text == "(")
        if depth == 0:
            return found[opening - 1].text in CONDITIONS
        opening -= 1
    return False


def dropped_call(found, position):
    """Returns the token that ends the call that begins at `position`, or None if none begins
    there."""
    first = position + (found[position].text == "emit")
    end, callee_ends = first, False
    while end < len(found) and found[end].text not in (";", "=", "}", ")", "{"):
        text = found[end].text
        follows_word = end > first and found[end - 1].kind == "word" and found[end].kind == "word"
        is_of_callee = found[end].kind == "word" or text in ("::", ".", "->", "(")
        if text in CONDITIONS or follows_word or not is_of_callee:
            return None
        if text in ("(", "["):
            end = closing(found, end)
            callee_ends = True
        end += 1
    is_call = (end < len(found) and found[end].text == ";" and callee_ends
               and found[end - 1].text == ")")
    return end if is_call and found[first].kind == "word" else None


def dropped_calls(source, found):
    for position, token in enumerate(found):
        if token.kind == "word" and begins_statement(found, position):
            end = dropped_call(found, position)
            if end is not None:
                old = source[token.start:found[end].end]
                yield "dropped call", token.start, old, ";"


def faults_of(path, source):
    """Returns all faults of a source, in order."""
    found = without_diagnostics(tokens(source))
    changes = list(replaced_tokens(source, found))
    if path.endswith(".cpp"):
        changes += dropped_calls(source, found)
    faults, seen = [], {}
    for kind, start, old, new in sorted(changes, key=lambda change: change[1]):
        begin = source.rfind("\n", 0, start) + 1
        text = old if kind == "dropped call" else source[begin:source.find("\n", start)]
        fault = Fault(path, kind, start, old, new, source.count("\n", 0, start) + 1, text.strip())
        seen[fault.name] = seen.get(fault.name, 0) + 1
        faults.append(fault._replace(ordinal=seen[fault.name]))
    return faults


def place_of(path):
    """Returns the part of the sources that the path belongs to. Each part gets an equal share of a
    sample."""
    return "/".join(path.split("/")[:3] if "/views/" in path else path.split("/")[:2])


def in_turn(lists):
    """Returns the first item of each list, then the second of each, and so on."""
    return [item for turn in itertools.zip_longest(*lists) for item in turn if item]


def sample(faults, count, seed):
    """Returns `count` faults, chosen in turn from each part of the sources, and in each part in
    turn from each kind in each file."""
    chance = random.Random(seed)
    groups = {}
    for fault in faults:
        columns = groups.setdefault(place_of(fault.path), {})
        columns.setdefault((fault.path, fault.kind), []).append(fault)
    parts = []
    for columns in groups.values():
        lists = list(columns.values())
        for faults_alike in lists:
            chance.shuffle(faults_alike)
        chance.shuffle(lists)
        parts.append(in_turn(lists))
    return sorted(in_turn(parts)[:count], key=lambda fault: (fault.path, fault.start))
