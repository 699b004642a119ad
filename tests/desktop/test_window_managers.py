"""The panel under other window managers than the one of the other tests."""

import pytest

import panel_checks

CHECKS = [
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


# The next two compose the screen themselves.
@every_check
@pytest.mark.desktop(window_manager=["kwin_x11"], compositor=False)
def test_kwin(desktop, vantle, folder, check):
    check(desktop, vantle, folder)


@every_check
@pytest.mark.desktop(window_manager=["mutter", "--x11"], compositor=False)
def test_mutter(desktop, vantle, folder, check):
    check(desktop, vantle, folder)
