"""GNOME's own screenshots: their folder has a name in the user's language, and keeps it."""

import gettext

import pytest

from assistant import ENVIRONMENT
from languages import compile_locale
from privatedesktop import Program
from screenshot_tools import USER_FOLDERS
from screens import Screens
from watched_folder import WatchedFolder

LANGUAGES = (
    "de_DE.UTF-8",
    "fr_FR.UTF-8",
    "ja_JP.UTF-8",
    "xx_XX.UTF-8",  # not installed, so GNOME speaks English
)
GNOME = {"XDG_CURRENT_DESKTOP": "ubuntu:GNOME"}


@pytest.fixture
def make_vantle(desktop, binary):
    """Returns a function that makes a program with a language."""
    made = []

    def make(language):
        environment = {
            **ENVIRONMENT, "LANG": language, "LC_ALL": None,
            "LOCPATH": compile_locale(desktop, language),
        }  # fmt: skip
        program = Program(binary, desktop, environment=environment, name=f"vantle-{language}")
        program.write_settings(screenshotTool=None)
        made.append(program)
        return program

    yield make
    for program in made:
        program.stop()


def name_in(language, text):
    """Returns the installed shell's translation, because translators change them."""
    catalogue = gettext.translation("gnome-shell", "/usr/share/locale", [language], fallback=True)
    return catalogue.gettext(text)


def test_the_shell_is_translated():
    assert name_in("de_DE.UTF-8", "Screenshots") == "Bildschirmfotos"
    assert name_in("fr_FR.UTF-8", "Screencasts") == "Captures vidéo"


@pytest.mark.desktop(environment=GNOME, configuration={"user-dirs.dirs": USER_FOLDERS})
def test_its_folder_is_found_in_any_language(desktop, make_vantle):
    for language in LANGUAGES:
        vantle = make_vantle(language)
        vantle.start_watching()
        recordings = desktop.home / name_in(language, "Screencasts")
        vantle.wait_for_log(f"waiting in {desktop.home} until {recordings} is created$")
        folder = WatchedFolder(desktop.home / "Bilder" / name_in(language, "Screenshots"), vantle)
        folder.save(f"{language}.png")
        folder.wait_for(f"{language}.png")
        vantle.stop()


@pytest.mark.desktop(environment=GNOME)
def test_its_folder_is_in_the_home_directory_without_a_pictures_folder(desktop, make_vantle):
    vantle = make_vantle("de_DE.UTF-8").start_watching()
    vantle.wait_for_log(f"watching {desktop.home / 'Bildschirmfotos'} ")


@pytest.mark.desktop(environment=GNOME, configuration={"user-dirs.dirs": USER_FOLDERS})
def test_the_settings_say_that_its_folder_cannot_be_changed(desktop, make_vantle):
    vantle = make_vantle("de_DE.UTF-8").start_watching()
    screens = Screens(desktop, vantle)
    vantle.command("--settings")
    screens.wait_for_text("BILDSCHIRMFOTOS LANDEN IN")
    screens.wait_for_text("~/Bilder/Bildschirmfotos")
    screens.wait_for_text("GNOME speichert Bildschirmfotos immer in diesem Ordner.")
    assert not screens.is_on("Vorschau des Desktops ausblenden")
    for name in ("Ändern", "Vorschau des Desktops ausblenden"):
        assert "enabled" not in screens.control(name)["states"], name
