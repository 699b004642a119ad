"""The folder of each desktop's screenshot tool is found, changed and restored."""

import re

import pytest

import screenshot_tools
from assistant import ENVIRONMENT
from languages import compile_locale
from privatedesktop import Program, wait_until
from screenshot_tools import USER_FOLDERS, pictures_in
from watched_folder import WatchedFolder


def on_desktop(name):
    """Marks a test to run on that desktop with a German user's folders."""
    return pytest.mark.desktop(
        environment={"XDG_CURRENT_DESKTOP": name}, configuration={"user-dirs.dirs": USER_FOLDERS}
    )


@pytest.fixture
def vantle(desktop, binary):
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings(screenshotTool=None)
    (desktop.home / "Bilder").mkdir(exist_ok=True)
    yield program
    program.stop()


def take(desktop, vantle, tool, folder):
    """Saves one more picture with the tool into that folder, and waits for it on the card."""
    before, shown = pictures_in(folder), len(vantle.shown_counts())
    tool.take(desktop)
    wait_until(lambda: len(pictures_in(folder)) == len(before) + 1, f"it is saved in {folder}")
    (name,) = set(pictures_in(folder)) - set(before)
    vantle.wait_for_log(f"captured {re.escape(name)}$")
    wait_until(lambda: len(vantle.shown_counts()) == shown + 1, "the card shows it")


def change_folder(desktop, screens, tool, choice):
    """Chooses another folder in the settings. Vantle watches it at once and tells GSettings in the
    background, so a tool that starts at once could still read the folder before."""
    before = tool.stored_folder(desktop)
    screens.choose("Change", choice)
    if before:
        wait_until(lambda: tool.stored_folder(desktop) != before, "the tool's folder is stored")


def check_folder(desktop, vantle, screens, tool, default):
    """Checks the default folder, a change in the settings, and the restored default."""
    folder, changed = desktop.home / default, desktop.home / "Screenshots"
    vantle.start_watching()
    take(desktop, vantle, tool, folder)
    screens.open_settings()
    change_folder(desktop, screens, tool, "~/Screenshots")
    vantle.wait_for_log(f"watching {changed} ")
    take(desktop, vantle, tool, changed)
    assert len(pictures_in(folder)) == 1
    # The start may have begun to watch it more than once.
    before = vantle.log_text().count(f"watching {folder} ")
    change_folder(desktop, screens, tool, "Restore " + (f"~/{default}" if default else "~"))
    vantle.wait_for_log(f"watching {folder} ", times=before + 1)
    take(desktop, vantle, tool, folder)
    assert vantle.shown_counts() == [1, 2, 3]


def folder_of_spectacle(name="Screenshots"):
    """Returns Spectacle's default folder. Later versions have their own, named in the user's
    language."""
    return "Bilder" if screenshot_tools.spectacle_is_for_qt5() else f"Bilder/{name}"


def setting_of_spectacle():
    """Returns where Spectacle stores a chosen folder."""
    if screenshot_tools.spectacle_is_for_qt5():
        return "[Save]\ndefaultSaveLocation"
    return "[ImageSave]\nimageSaveLocation"


@on_desktop("KDE")
def test_spectacle(desktop, vantle, screens):
    check_folder(desktop, vantle, screens, screenshot_tools.SPECTACLE, folder_of_spectacle())


@on_desktop("KDE")
def test_spectacle_in_another_language(desktop, binary):
    language = "de_DE.UTF-8"
    speaking = {"LANG": language, "LC_ALL": None, "LOCPATH": compile_locale(desktop, language)}
    vantle = Program(binary, desktop, environment=speaking)
    vantle.write_settings(screenshotTool=None)
    (desktop.home / "Bilder").mkdir()
    folder = desktop.home / folder_of_spectacle("Bildschirmfotos")
    vantle.start_watching()
    vantle.wait_for_log(f"watching {folder} ")
    desktop.environment.pop("LC_ALL", None)
    desktop.environment.update({name: text for name, text in speaking.items() if text})
    take(desktop, vantle, screenshot_tools.SPECTACLE, folder)
    vantle.stop()
    # In another language it stays the folder that the tool has stored.
    vantle = Program(binary, desktop, environment={"LANG": "C.UTF-8"}, name="vantle-english")
    vantle.start_watching()
    vantle.wait_for_log(f"watching {folder} ")
    vantle.stop()


@on_desktop("XFCE")
def test_xfce4_screenshooter(desktop, vantle, screens):
    check_folder(desktop, vantle, screens, screenshot_tools.XFCE, "Bilder")


@on_desktop("X-Cinnamon")
def test_gnome_screenshot(desktop, vantle, screens):
    check_folder(desktop, vantle, screens, screenshot_tools.GNOME_SCREENSHOT, "Bilder")


@on_desktop("MATE")
def test_mate_screenshot(desktop, vantle, screens):
    check_folder(desktop, vantle, screens, screenshot_tools.MATE, "Desktop")


@on_desktop("LXQt")
def test_screengrab(desktop, vantle, screens):
    check_folder(desktop, vantle, screens, screenshot_tools.SCREENGRAB, "")


@on_desktop("sway")
def test_flameshot(desktop, vantle, screens):
    screenshot_tools.Notifications(desktop)
    check_folder(desktop, vantle, screens, screenshot_tools.FLAMESHOT, "Bilder")


@on_desktop("i3")
def test_ksnip_chosen_in_the_settings_file(desktop, vantle, screens):
    vantle.write_settings(screenshotTool="ksnip")
    check_folder(desktop, vantle, screens, screenshot_tools.KSNIP, "")


@on_desktop("KDE")
def test_a_change_from_outside_counts_from_the_next_start(desktop, vantle):
    vantle.start_watching()
    (desktop.home / "Andere").mkdir()
    settings = desktop.home / ".config/spectaclerc"
    settings.write_text(f"{setting_of_spectacle()}[$e]=file://$HOME/Andere\n")
    folder = desktop.home / folder_of_spectacle()
    WatchedFolder(folder, vantle).save("shot.png")
    vantle.wait_for_log("captured shot.png$")
    vantle.stop()
    vantle.start_watching()
    vantle.wait_for_log(f"watching {desktop.home / 'Andere'} ")
    take(desktop, vantle, screenshot_tools.SPECTACLE, desktop.home / "Andere")


@on_desktop("KDE")
def test_damaged_settings_of_the_tool_are_left_alone(desktop, vantle, screens):
    settings = desktop.home / ".config/spectaclerc"
    damage = setting_of_spectacle().encode() + b"=file:///usr\n\0\0\0"
    settings.write_bytes(damage)
    vantle.start_watching()
    vantle.wait_for_log(f"watching {desktop.home / folder_of_spectacle()} ")
    screens.open_settings()
    screens.wait_for_text("The tool's settings file spectaclerc cannot be read: it is damaged.")
    assert "enabled" not in screens.control("Change")["states"]
    screens.click("Change")
    assert desktop.screen.menu() is None
    assert settings.read_bytes() == damage
    assert vantle.log_text().count("spectaclerc") == 1


@on_desktop("KDE")
def test_an_unknown_tool_in_the_settings_file_is_reported(desktop, vantle):
    vantle.write_settings(screenshotTool="camera")
    vantle.start_watching()
    vantle.wait_for_log('Vantle: unknown screenshotTool "camera"; no screenshot tool is used$')
    vantle.wait_for_log(f"watching {desktop.home / 'Desktop'} ")
