"""The card and the tray in the whole GNOME Shell, with the extension that shows tray icons.

Each test runs in GNOME's Wayland session and in its X11 session.
"""

import pathlib
import subprocess

import pytest

from conftest import require_peer
from first_day import (
    Card,
    go_through_onboarding,
    move_to_trash_and_back,
    paste_into_editor,
    wait_for_copy,
)
from gnome_shell_desktop import EXTENSION, GnomeShellDesktop, GnomeShellOnX11
from pictures import GREEN, area_of
from privatedesktop import Rectangle, wait_until, wait_until_still
from trays import Icon
from using import Drag, press_with_control
from wayland_checks import (
    beside_card,
    check_clicks_count_under_a_pointer_at_rest,
    check_clicks_pass,
    check_clicks_pass_while_time_runs,
    check_corner,
    check_dragged_into_a_web_page,
    is_gone,
    program_on,
    show_one,
)
from wayland_desktop import NativeWindow

pytestmark = pytest.mark.desktop(tray=False, compositor=False)

_BAR = 32


@pytest.fixture(params=[GnomeShellDesktop, GnomeShellOnX11])
def gnome(request, desktop):
    require_peer("gnome-shell")
    assert pathlib.Path("/usr/share/gnome-shell/extensions", EXTENSION).exists()
    return request.param(desktop)


@pytest.fixture
def vantle(gnome, binary):
    with program_on(gnome, binary) as program:
        yield program


def shell_version():
    told = subprocess.run(["gnome-shell", "--version"], stdout=subprocess.PIPE, text=True,
                          check=True)
    return told.stdout.removeprefix("GNOME Shell ")


def place_of_icon(gnome):
    return Icon(gnome, "top", _BAR).wait()


def take_screenshot(gnome, vantle):
    """Takes a screenshot with the shell's own key, and returns the file when it is on the card."""
    captured = len(vantle.captured())
    # Only a part of the card, because the bar with the remaining time changes.
    x, y = Card(gnome).tile

    def tile():
        return gnome.screen.screenshot(Rectangle(x - 80, y - 60, 160, 120))

    empty = wait_until_still(tile, "what is behind the card")
    before = gnome.screen.screenshot()
    gnome.screen.keyboard.press("F12")
    wait_until(lambda: gnome.screen.screenshot() != before, "the shell asks what to take")
    wait_until_still(lambda: gnome.screen.screenshot(), "its question")
    gnome.screen.keyboard.press("Return")
    [name] = wait_until(lambda: vantle.captured()[captured:], "it is captured")
    assert name.startswith("Screenshot")
    wait_until(lambda: vantle.shown_counts()[-1:] == [1], "it is on the card")
    wait_until(lambda: tile() != empty, "the card comes")
    wait_until_still(tile, "the card")
    return gnome.home / "Screenshots" / name


class Menu:
    """The icon's menu, as the shell draws it below its bar."""

    def __init__(self, gnome, place, button=1):
        self._gnome = gnome
        x, y = place
        # The previous menu may still fade out.
        before = wait_until_still(gnome.screen.screenshot, "the screen")
        gnome.screen.pointer.move(x - 3, y)
        gnome.screen.pointer.click(x, y, button)
        wait_until(lambda: self._is_below_bar(before), "the menu opens")
        wait_until_still(lambda: gnome.screen.screenshot().tobytes(), "the menu")

    def _is_below_bar(self, before):
        place = (1380, 60)
        return self._gnome.screen.screenshot().getpixel(place) != before.getpixel(place)

    def choose(self, downs):
        for _ in range(downs):
            self._gnome.screen.keyboard.press("Down")
        self._gnome.screen.keyboard.press("Return")


def test_the_card_is_in_its_corner(gnome, vantle):
    check_corner(gnome, vantle)


def test_clicks_beside_the_card_reach_the_window_underneath(gnome, vantle):
    check_clicks_pass(gnome, vantle, beside_card)


def test_clicks_beside_the_card_pass_while_its_time_runs(gnome, binary):
    # GNOME 43's shell learns by timing which clicks pass, and may miss it while it is busy.
    is_told_by_timing = type(gnome) is GnomeShellDesktop and shell_version().startswith("43.")
    check_clicks_pass_while_time_runs(gnome, binary, tries=2 if is_told_by_timing else 1)


def test_clicks_count_when_the_card_appears_under_a_resting_pointer(gnome, vantle):
    check_clicks_count_under_a_pointer_at_rest(gnome, vantle)


def test_its_own_screenshot_appears_on_the_card(gnome, binary):
    with program_on(gnome, binary, screenshotTool=None) as vantle:
        vantle.start_watching()
        take_screenshot(gnome, vantle)


def test_the_menu_of_its_icon_by_either_button(gnome, vantle):
    vantle.start_watching()
    place = place_of_icon(gnome)
    for button, state in ((1, "paused"), (3, "watching")):
        Menu(gnome, place, button).choose(1)
        wait_until(lambda: f"state: {state}" in vantle.command("--status")[1], state)


def test_its_menu_shows_the_thumbnails_of_captures(gnome, vantle):
    vantle.start_watching()
    show_one(gnome, vantle)
    vantle.command("--dismiss")
    wait_until(lambda: is_gone(gnome), "the card goes")
    Menu(gnome, place_of_icon(gnome))
    gnome.screen.keyboard.press("Down")
    wait_until_still(lambda: gnome.screen.screenshot().tobytes(), "the menu")
    assert 20 < area_of(gnome.screen.screenshot(), GREEN) < 2500


def test_the_settings_come_to_the_front(gnome, vantle):
    vantle.start_watching()
    place = place_of_icon(gnome)
    window = NativeWindow(gnome, "--beside-bars")
    Menu(gnome, place).choose(2)
    wait_until(window.has_lost_focus, "the settings have the keyboard")
    press_with_control(gnome, "w")
    wait_until(window.has_focus, "the other window has it again")


def test_dragged_into_a_web_page(gnome, vantle):
    require_peer("firefox-esr")
    check_dragged_into_a_web_page(gnome, vantle)


def test_from_a_fresh_home_to_the_trash_and_back(gnome, binary):
    for peer in ("nautilus", "gnome-text-editor"):
        require_peer(peer)
    target = gnome.home / "target"
    fresh = {"screenshotTool": None, "hasCompletedOnboarding": None, "removeAfterUse": None}
    with program_on(gnome, binary, **fresh) as vantle:
        vantle.start()
        go_through_onboarding(gnome, vantle)
        card = Card(gnome)

        target.mkdir()
        gnome.give_to_user()
        gnome.start("nautilus", "--new-window", target)
        file = take_screenshot(gnome, vantle)
        width, height = gnome.size
        assert Drag(gnome, vantle, card.tile).hold_over(width // 2 + 80, height // 2).drop()
        wait_for_copy(file, target / file.name)

        file = take_screenshot(gnome, vantle)
        card.press("copy")
        paste_into_editor(
            gnome, lambda notes: gnome.start("gnome-text-editor", "-s", notes),
            target / "notes.txt", file.name,
        )  # fmt: skip

        move_to_trash_and_back(gnome, card, take_screenshot(gnome, vantle))
