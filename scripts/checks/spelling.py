"""Checks the English spelling, British or American, of what users and developers read.

hunspell checks prose: the texts of the program, documents, manual pages, and what launchers and
software centres show. codespell looks for common misspellings everywhere, in code as well.
"""

import re

from .repository import (ROOT, MissingTool, Problem, all_files, checked, files, lines_of, output_of,
                         require, text_of)
from .texts import all_texts

WHAT = "English in texts of the program, documents and code"
WORDS = "scripts/checks/words.txt"
REPAIR = f"by hand; add a word that is right to {WORDS}"

WORD = re.compile(r"[^\W\d_]+(?:['’][^\W\d_]+)*")
FENCE = re.compile(r"^\s*```")
# Code in prose: `code`, targets of links, addresses, tags, paths, options, file names.
CODE = re.compile(r"`[^`]*`|\]\([^)]*\)|\w+://\S+|</?[\w!][^>]*>|&\w+;|\S*[/_~$@=\\]\S*"
                  r"|(?<!\w)--?[a-z][\w-]*|\b\w+\.\w+\b|%n|%\d|\b\d\w*")
NO_PROSE = re.compile(r"\s*<(id|url|image|launchable|binary)\b|.*xml:lang=")
ENTRY = re.compile(r"^(Name|GenericName|Comment|Keywords)=(.*)$")
# Names, codes of languages, and texts of the launcher's entry and the metainfo in other languages.
NOT_ENGLISH = (r"\b[a-z]+[A-Z]\w*|\\[nt]|\{\"[a-z]{2}\", \"[a-z]{3}\"\}"
               r"|\w+\[[a-z]{2}\]=.*|xml:lang=.*")
# Translations, and texts for measurements.
IN_OTHER_LANGUAGES = re.compile(r".*\.ts|bench/texts/.*")
MISSPELLING = re.compile(r"^(?:\./)?(.+?):(\d+): (.+ ==> .+)$", re.MULTILINE)


def prose_of_markdown(path):
    fenced = False
    for line, text in lines_of(path):
        if FENCE.match(text):
            fenced = not fenced
        elif not fenced and not text.startswith("    "):
            yield path, line, text


def prose_of_manual(path):
    """Yields the lines of a manual page without requests and without the words to be typed or
    replaced."""
    for line, text in lines_of(path):
        if not re.match(r"^[.'](?!SH|SS|TP|IP|PP)", text):
            yield path, line, re.sub(r"\\f[BI].*?\\f[RP]|\\[-&e]|\\\([a-z]{2}|^\.\w+", " ", text)


def prose_of_entry(path):
    for line, text in lines_of(path):
        if match := ENTRY.match(text):
            yield path, line, match[2]


def prose_of_metainfo(path):
    """Yields the lines of the metainfo without names, addresses and texts in other languages."""
    for line, text in lines_of(path):
        if not NO_PROSE.match(text):
            yield path, line, text


def prose():
    """Yields all prose, as path, line and text."""
    kinds = ((prose_of_markdown, ("*.md",)), (prose_of_entry, ("*.desktop", "*.desktop.in")),
             (prose_of_manual, ("*.[1-8]", "*.[1-8].in")),
             (prose_of_metainfo, ("*.metainfo.xml", "*.metainfo.xml.in")))
    for lines, patterns in kinds:
        for path in files(*patterns):
            yield from lines(path)
    for text in all_texts():
        yield text.path, text.line, text.text


def words_of(text):
    """Yields the words of a text. Leaves out names of types and abbreviations, which have capitals
    inside."""
    for word in WORD.findall(CODE.sub(" ", text).replace("’", "'")):
        if word[1:] == word[1:].lower():
            yield word.removesuffix("'s")


def our_words():
    return {text.lower() for _, text in lines_of(WORDS) if not text.startswith("#")}


def unknown(words):
    output = checked("hunspell", "-i", "utf-8", "-d", "en_GB,en_US", "-l",
                     input="\n".join(sorted(words)))
    return set(output.split()) - {""}


def unknown_words(note):
    require("hunspell", "hunspell hunspell-en-gb hunspell-en-us")
    ours = our_words()
    places = [(path, line, word) for path, line, text in prose() for word in words_of(text)
              if word.lower() not in ours]
    note(f"looked at the prose of {len({path for path, _, _ in places})} files")
    wrong = unknown({word for _, _, word in places})
    for path, line, word in places:
        if word in wrong:
            yield Problem(path, line, f"unknown word: {word}")


def common_misspellings(note):
    require("codespell", "codespell")
    paths = [path for path in all_files()
             if text_of(path) and not IN_OTHER_LANGUAGES.fullmatch(path)]
    note(f"looked for common misspellings in {len(paths)} files")
    output, status = output_of("codespell", "--ignore-words", str(ROOT / WORDS),
                               "--ignore-regex", NOT_ENGLISH, *paths)
    found = MISSPELLING.findall(output)
    if status and not found:
        raise MissingTool(f"codespell failed: {output.strip()}")
    for path, line, text in found:
        yield Problem(path, int(line), text)


def problems(_everything, note):
    yield from unknown_words(note)
    yield from common_misspellings(note)
