"""File names that programs often handle wrongly."""

import os

import pytest

from privatedesktop import wait_until

NAMES = {
    "spaces": b" two  spaces .png",
    "percent": b"100%20 %s %n %.png",
    "newline": b"first line\nsecond line.png",
    "control_characters": b"tab\tbell\a.png",
    "quotes": b"it's \"quoted\" $HOME `id` \\.png",
    "invalid_utf8": b"caf\xe9 \xff\xfe.png",
    "no_latin_letters": "Екранна снимка – スクリーンショット 🖼.png".encode(),
    "255_bytes": b"a" * 251 + b".png",
    "leading_dash": b"-rf.png",
    "question_mark_and_hash": b"what?#fragment.png",
    "colon": b"file:shot.png",
}


@pytest.mark.parametrize("kind", NAMES)
def test_name(vantle, folder, kind):
    name = NAMES[kind]
    vantle.start_watching()
    folder.save(name)
    wait_until(lambda: vantle.shown_counts()[-1:] == [1], "the panel shows the capture")
    folder.wait_for_marker()
    assert folder.shown_count() == 1
    os.unlink(os.path.join(os.fsencode(folder.path), name))
    folder.wait_for_marker()
    folder.save(name)
    wait_until(lambda: len(vantle.shown_counts()) == 4, "the same name is taken in again")
    folder.wait_for_marker()
    assert folder.shown_count() == 1, "the same name stands on the panel twice"
    assert vantle.is_running()
