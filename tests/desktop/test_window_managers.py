"""The panel under window managers other than the one in the other tests."""

import pytest

import panel_checks
from other_windows import OtherWindow
from privatedesktop import Rectangle, wait_until
from using import Drag, tile_of, window_titled

BLUR_PROPERTY = "_KDE_NET_WM_BLUR_BEHIND_REGION"


def check_stands_in_its_corner(desktop, vantle, folder):
    vantle.start_watching()
    panel = panel_checks.show_one(desktop, folder)
    work_area = desktop.screen.work_area()
    assert panel.frame == panel_checks.expected_frame(work_area, "bottomRight")


def check_drags_into_a_file_manager(desktop, vantle, folder):
    target = desktop.home / "Target"
    target.mkdir()
    desktop.start("thunar", str(target))
    window = window_titled(desktop, "Target")
    vantle.start_watching()
    card = panel_checks.wait_for_card(desktop, panel_checks.show_one(desktop, folder))
    area = desktop.screen.area(window)
    # In the middle of its files, which the card does not cover.
    goal = area.x + area.width // 2, area.y + area.height // 2
    assert Drag(desktop, vantle, tile_of(card)).hold_over(*goal).drop()
    copy, original = target / "shot.png", folder.path / "shot.png"
    wait_until(lambda: copy.exists() and copy.read_bytes() == original.read_bytes(), "it is copied")


CHECKS = [
    check_stands_in_its_corner,
    check_drags_into_a_file_manager,
    panel_checks.check_above_a_full_screen_window,
    panel_checks.check_not_in_taskbar_or_pager,
    panel_checks.check_on_every_workspace,
    panel_checks.check_focus_stays_where_one_types,
    panel_checks.check_clicks_beside_the_card_pass_through,
]
every_check = pytest.mark.parametrize("check", CHECKS, ids=lambda check: check.__name__)


@every_check
@pytest.mark.desktop(window_manager=["xfwm4"])
def test_xfwm4(desktop, vantle, folder, check):
    check(desktop, vantle, folder)


# The next two window managers are also compositors.
@every_check
@pytest.mark.desktop(window_manager=["kwin_x11"], compositor=False)
def test_kwin(desktop, vantle, folder, check):
    check(desktop, vantle, folder)


@every_check
@pytest.mark.desktop(window_manager=["mutter", "--x11"], compositor=False)
def test_mutter(desktop, vantle, folder, check):
    check(desktop, vantle, folder)


KWIN_WITH_BLUR = {
    "window_manager": ["kwin_x11"],
    "compositor": False,
    "environment": {"KWIN_COMPOSE": "O2", "LIBGL_ALWAYS_SOFTWARE": "1"},
    "configuration": {"kwinrc": "[Plugins]\nblurEnabled=true\n[Compositing]\nEnabled=true\n"},
}


@pytest.mark.desktop(**KWIN_WITH_BLUR)
def test_kwin_blurs_what_is_behind_the_glass(desktop, vantle, folder):
    screen = desktop.screen
    wait_until(lambda: screen.root_property(BLUR_PROPERTY) is not None, "KWin offers its blur")
    behind = OtherWindow(desktop, Rectangle(0, 0, *desktop.size), is_full_screen=True)
    behind.paint_stripes()
    vantle.start_watching()
    panel = panel_checks.show_one(desktop, folder)
    card = panel_checks.wait_for_card(desktop, panel)
    # Below the tile, left of its buttons, there is only glass; beside the card there are stripes.
    glass = Rectangle(card.x + 30, card.bottom - 7, 200, 3)
    beside = glass.moved(-300, 0)

    def contrast(area):
        darkest, brightest = screen.screenshot(area).convert("L").getextrema()
        return brightest - darkest

    wait_until(lambda: contrast(beside) > 120 and contrast(glass) < 12, "the stripes are blurred")
