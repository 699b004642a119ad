"""Checks that every text of the program is translated with the same placeholders, that no other
text is, and that what a user of Linux reads does not mention things that only another system
has."""

import os
import re
import xml.etree.ElementTree as xml

from .repository import ROOT, Problem, files, output_of, text_of

WHAT = "translations: complete, with the placeholders of the source, right for Linux"
REPAIR = "scripts/update_translations, then translate the new texts"

PLACEHOLDER = re.compile(r"%(?:L?\d|n)")
# The sources are in English. This file holds only texts that differ on Linux.
AS_WRITTEN = "translations/vantle_en.ts"
# Words in the sources, in any language, for things that only another system has.
ELSEWHERE = re.compile(
    r"\b(?:mac ?os|mac|apple|finder|dock|notch|menu bar|privacy|cmd|command key)\b|⌘|⇧|⌥"
    r"|menüleiste|datenschutz|befehlstaste|barre des menus|confidentialité|encoche"
    r"|メニューバー|ノッチ|プライバシー|システム設定", re.IGNORECASE)
PACKAGING = ("packaging/*.desktop*", "packaging/*.xml*")
UNFINISHED = {"unfinished": "is not translated", "vanished": "is no longer in the sources",
              "obsolete": "is no longer in the sources"}


def line_of(path, source):
    """Returns the line of a text in the file, found by its first words."""
    start = xml.tostring(with_text(source), encoding="unicode")[3:-4].split("\n")[0][:40]
    at = (text_of(path) or "").replace("&quot;", '"').replace("&apos;", "'").find(start)
    return text_of(path).count("\n", 0, at) + 1 if at >= 0 else None


def with_text(text):
    element = xml.Element("t")
    element.text = text
    return element


def translated(message):
    """Returns the translation, or the one for each number of things."""
    translation = message.find("translation")
    forms = [form.text or "" for form in translation.findall("numerusform")]
    return forms or [translation.text or ""]


def faults(message, may_be_as_written):
    source = message.findtext("source") or ""
    kind = message.find("translation").get("type")
    is_as_written = kind == "unfinished" and may_be_as_written
    for form in [source] if is_as_written else translated(message):
        if found := ELSEWHERE.search(form):
            yield f"mentions \"{found[0]}\", which Linux does not have"
    if is_as_written:
        return
    if kind in UNFINISHED:
        yield UNFINISHED[kind]
        return
    wanted = set(PLACEHOLDER.findall(source))
    for form in translated(message):
        if not form.strip():
            yield "has an empty translation"
        # A form for one thing, such as "one file", needs no number.
        elif set(PLACEHOLDER.findall(form)) - {"%n"} != wanted - {"%n"}:
            yield f"has other placeholders in its translation: {form}"


def problems_of(path):
    for message in xml.parse(ROOT / path).getroot().iter("message"):
        source = message.findtext("source") or ""
        for fault in faults(message, path == AS_WRITTEN):
            yield Problem(path, line_of(path, source), f"\"{source}\" {fault}")


def foreign_words():
    for path in files(*PACKAGING):
        for number, line in enumerate((text_of(path) or "").splitlines(), start=1):
            if found := ELSEWHERE.search(line):
                yield Problem(path, number, f"mentions \"{found[0]}\", which Linux does not have")


def outdated():
    """Reports what scripts/update_translations would change; here it only compares."""
    output, status = output_of("scripts/update_translations", "--check",
                               env={**os.environ, "VANTLE_SKIP_PACKAGES": "1"})
    if status:
        yield Problem("translations", None, output.strip())


def problems(_everything, note):
    paths = files("translations/*.ts")
    note(f"looked at {', '.join(paths) or 'none'}")
    for path in paths:
        yield from problems_of(path)
    yield from foreign_words()
    if paths:
        yield from outdated()
