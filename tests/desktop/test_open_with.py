"""The programs with which the desktop opens files, found and started as Vantle does."""

import pathlib
import re

import pytest
from conftest import require_peer
from privatedesktop import wait_until
from using import find_window, window_titled
from watched_folder import png

VIEWERS = {"feh": "feh.desktop", "viewnior": "viewnior.desktop", "eog": "org.gnome.eog.desktop"}


@pytest.fixture
def applications(desktop, binary):
    """Returns a function that runs vantle-applications."""
    program = pathlib.Path(binary).with_name("vantle-applications")
    return lambda *arguments: desktop.run(program, *arguments)


@pytest.fixture
def picture(desktop):
    path = desktop.home / "Desktop" / "my picture 50%.png"
    path.write_bytes(png())
    return path


def listed(applications, *files):
    """Returns the identifiers and the names of the programs for the files."""
    texts = applications("list", *files).stdout.decode().split("\0")
    assert len(texts) % 4 == 1 and texts[-1] == ""
    return list(zip(texts[0:-1:4], texts[1:-1:4]))


def of_gio(desktop, kind):
    """Returns the default program and all programs for a type, as gio lists them."""
    text = desktop.run("gio", "mime", kind).stdout.decode()
    registered = text.partition("Registered applications:")[2].partition("Recommended")[0]
    return re.findall(r"\S+\.desktop", text)[0], registered.split()


def name_of(identifier):
    """Returns the name in a desktop file of this machine."""
    for folder in ("/usr/local/share/applications", "/usr/share/applications"):
        file = pathlib.Path(folder, identifier)
        if file.exists():
            entry = file.read_text(encoding="utf-8").partition("[Desktop Entry]")[2]
            return re.search(r"^Name=(.*)$", entry, re.MULTILINE)[1]
    raise AssertionError(f"{identifier} is not installed")


def test_the_programs_are_those_of_the_desktop(desktop, applications, picture):
    for viewer in ("feh", "viewnior"):
        require_peer(viewer)
    default, registered = of_gio(desktop, "image/png")
    assert {"feh.desktop", "viewnior.desktop"} <= set(registered)
    found = listed(applications, picture)
    assert [identifier for identifier, _ in found] == [default] + [
        identifier for identifier in registered if identifier != default
    ]
    for identifier, name in found:
        assert name == name_of(identifier), identifier


def test_the_default_that_the_user_chooses_comes_first(desktop, applications, picture):
    require_peer("viewnior")
    for chosen in ("viewnior.desktop", "feh.desktop"):
        desktop.run("gio", "mime", "image/png", chosen)
        assert listed(applications, picture)[0][0] == chosen


def test_an_editor_opens_text_but_no_pictures(desktop, applications, picture):
    require_peer("mousepad")
    text = desktop.home / "notes.txt"
    text.write_text("notes")
    editor = "org.xfce.mousepad.desktop"
    assert editor in dict(listed(applications, text))
    assert editor not in dict(listed(applications, picture))
    assert editor not in dict(listed(applications, text, picture))


@pytest.mark.parametrize("viewer", ["feh", "viewnior"])
def test_the_chosen_program_opens_the_file(desktop, applications, picture, viewer):
    require_peer(viewer)
    applications("open", VIEWERS[viewer], "--token=", picture)
    window_titled(desktop, "my picture 50%.png")


def test_a_program_opens_several_files(desktop, applications, picture):
    require_peer("feh")
    other = picture.with_name("other.png")
    other.write_bytes(png())
    applications("open", "feh.desktop", "--token=", picture, other)
    window = window_titled(desktop, "picture")
    assert b"1 of 2" in desktop.screen.title(window)


def test_a_program_outlives_the_one_that_started_it(desktop, applications, picture):
    require_peer("feh")
    applications("open", "feh.desktop", "--token=", picture)
    window = window_titled(desktop, "my picture 50%.png")
    desktop.screen.ask_to_close(window)
    wait_until(lambda: find_window(desktop, "my picture") is None, "the viewer ends")
