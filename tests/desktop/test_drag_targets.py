"""A tile is dragged into common programs, which all get the file under its own name."""

import pytest

from conftest import require_peer
from panel_checks import is_dismissed
from pictures import is_one_pattern
from privatedesktop import wait_until, wait_until_still
from using import Drag, find_window, window_titled
from web_page import WebPage, start_firefox


def wait_until_drawn(desktop):
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the screen", readings=10)


def drop_on(desktop, vantle, tile, place):
    assert Drag(desktop, vantle, tile).hold_over(*place).drop()
    wait_until(lambda: is_dismissed(desktop), "the used capture leaves")


@pytest.fixture
def tile(card):
    return card.x + 164, card.y + 100


@pytest.fixture
def target(desktop):
    path = desktop.home / "Target"
    path.mkdir()
    return path


def check_only_a_copy_arrives(target, folder):
    copy, original = target / "shot.png", folder.path / "shot.png"
    wait_until(lambda: copy.exists() and copy.read_bytes() == original.read_bytes(), "it is copied")
    assert [path.name for path in target.iterdir()] == ["shot.png"]


def test_into_nautilus(desktop, vantle, folder, tile, target):
    require_peer("nautilus")
    desktop.start("env", "GSK_RENDERER=cairo", "nautilus", "--new-window", str(target))
    window_titled(desktop, "Target")
    wait_until_drawn(desktop)
    drop_on(desktop, vantle, tile, (800, 450))
    check_only_a_copy_arrives(target, folder)


def test_into_gimp(desktop, vantle, folder, tile):
    require_peer("gimp")
    desktop.start("gimp", "--no-splash", "--new-instance")
    window = window_titled(desktop, "GNU Image Manipulation Program", limit=60)
    wait_until_drawn(desktop)
    # Some versions show a welcome window at their first start.
    if greeting := find_window(desktop, "Welcome to GIMP"):
        desktop.screen.ask_to_close(greeting)
        wait_until(lambda: not find_window(desktop, "Welcome to GIMP"), "the greeting goes")
    drop_on(desktop, vantle, tile, desktop.screen.area(window).centre)
    window_titled(desktop, "[shot] (imported)", limit=60)


def test_into_firefox(desktop, vantle, folder, tile):
    require_peer("firefox-esr")
    page = WebPage(desktop, start_firefox)
    try:
        drop_on(desktop, vantle, tile, page.middle)
        [file] = page.dropped()
        assert (file.name, file.type) == ("shot.png", "image/png")
        assert file.content == (folder.path / "shot.png").read_bytes()
    finally:
        page.close()


def test_into_a_text_of_libreoffice(desktop, vantle, folder, tile):
    require_peer("lowriter")
    desktop.start("lowriter", "--nologo", "--norestore")
    window_titled(desktop, "LibreOffice Writer", limit=60)
    drop_on(desktop, vantle, tile, (700, 450))
    wait_until(lambda: is_one_pattern(desktop.screen.screenshot()), "the picture is in the text")
