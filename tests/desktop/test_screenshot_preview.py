"""The previews of the desktops' screenshot tools are hidden, and restored as they were."""

import pytest

import screenshot_tools
from assistant import ENVIRONMENT
from privatedesktop import Program, wait_until
from screenshot_tools import USER_FOLDERS, Notifications, pictures_in

HIDE = "Hide the desktop's own preview"


@pytest.fixture
def vantle(desktop, binary):
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings(screenshotTool=None)
    (desktop.home / "Bilder").mkdir()
    yield program
    program.stop()


def check_preview(desktop, vantle, screens, tool, name, folder="Bilder"):
    """Checks that the tool notifies by default, not while that is hidden, and again afterwards."""
    notifications = Notifications(desktop)
    vantle.start_watching()
    tool.take(desktop)
    wait_until(lambda: notifications.count(name) == 1, "it notifies by default")
    screens.open_settings()
    assert not screens.is_on(HIDE)
    screens.click(HIDE)
    wait_until(lambda: screens.is_on(HIDE), "it is hidden")
    tool.take(desktop)
    screens.click(HIDE)
    wait_until(lambda: not screens.is_on(HIDE), "it is shown")
    tool.take(desktop)
    # A notification of the second screenshot would have arrived before this one.
    wait_until(lambda: notifications.count(name) == 2, "it notifies again")
    vantle.wait_for_log("captured ", times=3)
    assert len(pictures_in(desktop.home / folder)) == 3


@pytest.mark.desktop(
    environment={"XDG_CURRENT_DESKTOP": "KDE"}, configuration={"user-dirs.dirs": USER_FOLDERS}
)
def test_spectacle(desktop, vantle, screens):
    tool = screenshot_tools.ScreenshotTool("spectacle", "-b")
    folder = "Bilder" if screenshot_tools.spectacle_is_for_qt5() else "Bilder/Screenshots"
    check_preview(desktop, vantle, screens, tool, "Spectacle", folder)


@pytest.mark.desktop(configuration={"user-dirs.dirs": USER_FOLDERS})
def test_flameshot(desktop, vantle, screens):
    check_preview(desktop, vantle, screens, screenshot_tools.FLAMESHOT, "flameshot")


def test_ksnip(desktop, vantle, screens):
    vantle.write_settings(screenshotTool="ksnip")
    check_preview(desktop, vantle, screens, screenshot_tools.KSNIP_EDITOR, "ksnip", folder="")


@pytest.mark.desktop(environment={"XDG_CURRENT_DESKTOP": "LXQt"})
def test_screengrab_cannot_be_silenced(desktop, vantle, screens):
    notifications = Notifications(desktop)
    vantle.start_watching()
    screenshot_tools.SCREENGRAB.take(desktop)
    wait_until(lambda: notifications.count("Screen Grab") == 1, "it notifies")
    screens.open_settings()
    assert not screens.is_on(HIDE)
    assert "enabled" not in screens.control(HIDE)["states"]


@pytest.mark.desktop(environment={"XDG_CURRENT_DESKTOP": "KDE"})
def test_the_onboarding_hides_it(desktop, vantle):
    settings = desktop.home / ".config/spectacle.notifyrc"
    vantle.settings_file.unlink()
    vantle.start()
    wait_until(desktop.screen.dialogs, "the onboarding opens")
    wait_until(settings.exists, "the tool's settings are changed")
    assert settings.read_text() == "[Event/newScreenshotSaved]\nAction=\n"
