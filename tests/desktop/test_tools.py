"""Each screenshot tool, as people use it, gives exactly one tile with the right picture."""

import subprocess

from pictures import count_patterns, is_one_pattern, pattern, plain
from privatedesktop import wait_until
from screenshot_tools import Notifications


def panel_picture(desktop):
    panel = desktop.screen.panel()
    return desktop.screen.screenshot(panel.frame) if panel else plain((800, 330))


def check_one_tile(desktop, vantle, folder, take):
    vantle.start_watching()
    desktop.paint(pattern())
    take()
    vantle.wait_for_log("captured ")
    # The panel is translucent, so the wallpaper must not show the pattern from here on.
    desktop.paint(plain())
    wait_until(lambda: is_one_pattern(panel_picture(desktop)), "one tile shows the screenshot")
    folder.wait_for_marker()
    assert len(folder.captured()) == 1, folder.captured()
    assert folder.shown_count() == 1
    assert vantle.is_running()


def test_scrot(desktop, vantle, folder):
    check_one_tile(
        desktop, vantle, folder, lambda: desktop.run("scrot", "shot.png", cwd=folder.path)
    )


def test_import(desktop, vantle, folder):
    check_one_tile(
        desktop, vantle, folder,
        lambda: desktop.run("import", "-window", "root", str(folder.path / "shot.png")),
    )  # fmt: skip


def test_import_as_jpeg(desktop, vantle, folder):
    check_one_tile(
        desktop, vantle, folder,
        lambda: desktop.run("import", "-window", "root", str(folder.path / "shot.jpg")),
    )  # fmt: skip


def test_maim(desktop, vantle, folder):
    check_one_tile(
        desktop, vantle, folder, lambda: desktop.run("maim", str(folder.path / "shot.png"))
    )


def test_gnome_screenshot(desktop, vantle, folder):
    check_one_tile(
        desktop, vantle, folder,
        lambda: desktop.run("gnome-screenshot", "-f", str(folder.path / "shot.png")),
    )  # fmt: skip


def test_xfce4_screenshooter(desktop, vantle, folder):
    check_one_tile(
        desktop, vantle, folder,
        lambda: desktop.run("xfce4-screenshooter", "-f", "-s", str(folder.path / "shot.png")),
    )  # fmt: skip


def test_flameshot(desktop, vantle, folder):
    Notifications(desktop)
    check_one_tile(
        desktop, vantle, folder, lambda: desktop.run("flameshot", "full", "-p", str(folder.path))
    )


def test_ten_screenshots_at_once(desktop, vantle, folder):
    vantle.start_watching()
    desktop.paint(pattern())
    names = [f"shot {number}.png" for number in range(10)]
    running = [desktop.start("scrot", name, cwd=folder.path) for name in names]
    for process in running:
        assert process.wait(60) == 0
    folder.wait_for(*names)
    desktop.paint(plain())
    # The row scrolls to its end: about four of ten tiles are visible.
    wait_until(lambda: count_patterns(panel_picture(desktop)) >= 3, "the last tiles can be seen")
    folder.wait_for_marker()
    assert sorted(folder.captured()) == sorted(names)
    assert folder.shown_count() == 10
    assert vantle.is_running()


def test_growing_file_waits_for_its_end(desktop, vantle, folder):
    """A tool that writes slowly gives one tile, and only when it has finished."""
    picture = folder.path / "slow.png"
    vantle.start_watching()
    writer = desktop.start(
        "sh", "-c",
        'for i in 1 2 3 4 5 6 7 8 9 10; do head -c 500 /dev/zero; sleep 0.1; done >"$0"',
        str(picture),
    )  # fmt: skip
    while writer.poll() is None:
        assert folder.captured() == []
        try:
            writer.wait(0.05)
        except subprocess.TimeoutExpired:
            continue
    folder.wait_for("slow.png")
    folder.wait_for_marker()
    assert folder.captured() == ["slow.png"]
