"""Starting, starting twice, and ending."""

import itertools
import pathlib
import re
import signal

import pytest
from PIL import Image

from build_tree import copy_program
from privatedesktop import Program, processes, wait_until


def test_second_start_ends_by_itself(desktop, vantle, folder, binary):
    vantle.start_watching()
    second = Program(binary, desktop, name="second").start()
    try:
        assert second.wait_for_end() == 0
    finally:
        second.stop()
    assert vantle.is_running()
    assert "watching" not in second.log_text()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    wait_until(desktop.screen.panel, "the panel appears")
    assert len(desktop.screen.panels()) == 1


def test_second_start_without_a_session_bus(desktop, vantle, binary):
    no_bus = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"}
    first = Program(binary, desktop, environment=no_bus, name="first")
    second = Program(binary, desktop, environment=no_bus, name="second")
    try:
        first.start_watching()
        second.start()
        assert second.wait_for_end() == 0
        assert first.is_running()
        assert "watching" not in second.log_text()
    finally:
        second.stop()
        first.stop()


def test_starts_again_after_it_was_killed(desktop, vantle, binary):
    vantle.start_watching()
    vantle.kill()
    again = Program(binary, desktop, name="again")
    try:
        again.start_watching()
        assert again.is_running()
    finally:
        again.stop()


def test_a_hundred_starts_leave_one_copy(desktop, vantle, binary):
    vantle.start_watching()
    for _ in range(100):
        assert vantle.command() == (0, "")
    assert vantle.is_running()
    assert processes.running(binary, desktop.home) == [vantle.pid]


def test_ten_starts_at_once_leave_one_copy(desktop, vantle, binary):
    copies = [Program(binary, desktop, name=f"copy {n}").start() for n in range(10)]
    try:
        wait_until(lambda: sum(copy.is_running() for copy in copies) == 1, "one is left")
        (left,) = [copy for copy in copies if copy.is_running()]
        left.wait_for_log("watching")
        assert [copy.exit_status() for copy in copies if copy is not left] == [0] * 9
    finally:
        for copy in copies:
            copy.stop()


def test_starts_again_after_it_was_killed_without_a_session_bus(desktop, vantle, binary):
    no_bus = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"}
    killed = Program(binary, desktop, environment=no_bus, name="killed").start_watching()
    killed.kill()
    again = Program(binary, desktop, environment=no_bus, name="again")
    try:
        again.start_watching()
        assert again.command()[0] == 0
        assert again.is_running()
    finally:
        again.stop()


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT, signal.SIGHUP])
def test_ends_when_asked(desktop, vantle, number):
    vantle.start_watching()
    vantle.signal(number)
    assert vantle.wait_for_end(limit=5.0) == 0


def test_ends_with_the_display_server(desktop, vantle, folder):
    vantle.start_watching()
    folder.save("shot.png")
    wait_until(desktop.screen.panel, "the panel appears")
    desktop.kill_server()
    # The program failed, but did not crash: a signal would be a negative number.
    assert vantle.wait_for_end(limit=5.0) == 1


def test_outlives_the_session_bus(desktop, vantle, folder):
    vantle.start_watching()
    desktop.kill_bus()
    folder.save("shot.png")
    wait_until(desktop.screen.panel, "the panel appears")
    vantle.signal(signal.SIGTERM)
    assert vantle.wait_for_end(limit=5.0) == 0


def test_ends_when_asked_with_a_tile_on_the_screen(desktop, vantle, folder):
    vantle.start_watching()
    folder.save("shot.png")
    wait_until(desktop.screen.panel, "the panel appears")
    vantle.signal(signal.SIGTERM)
    assert vantle.wait_for_end(limit=5.0) == 0
    wait_until(lambda: desktop.screen.panel() is None, "the panel is gone")


def test_shows_captures_after_an_update_has_replaced_its_views(desktop, folder, binary, tmp_path):
    copy = Program(copy_program(binary, tmp_path), desktop, name="copy")
    views = tmp_path / "lib/vantle/modules/vantle-views.so"
    copy.write_settings()
    try:
        copy.start_watching()
        views.with_suffix(".next").write_text("the views of the next version")
        views.with_suffix(".next").replace(views)
        folder.save("shot.png")
        wait_until(desktop.screen.panel, "the panel appears")
        assert copy.is_running()
    finally:
        copy.stop()


def test_says_that_it_lacks_its_views(desktop, binary, tmp_path):
    copy = Program(copy_program(binary, tmp_path), desktop, name="copy")
    (tmp_path / "lib/vantle/modules/vantle-views.so").unlink()
    copy.start()
    try:
        assert copy.wait_for_end() == 1
        assert re.search("cannot read .*/lib/vantle/modules/vantle-views.so\n", copy.log_text())
    finally:
        copy.stop()


def test_loads_nothing_that_reaches_the_network(desktop, vantle, folder):
    vantle.start_watching()
    folder.save("shot.png")
    wait_until(desktop.screen.panel, "the panel appears")
    loaded = pathlib.Path(f"/proc/{vantle.pid}/maps").read_text()
    assert "libQt6Quick" in loaded
    for library in ("libcurl", "libgnutls", "libssl", "libcrypto", "libpxbackend", "libduktape"):
        assert library not in loaded


def test_snapshot_of_the_card(desktop, folder, vantle, binary):
    path = desktop.home / "card.png"
    program = Program(
        binary, desktop, environment={"VANTLE_SNAPSHOT": str(path), "VANTLE_RENDER_PLAIN": "1"}
    )
    try:
        program.start_watching()
        folder.save("shot.png")
        wait_until(path.exists, "the snapshot is written")

        def is_whole():
            try:
                with Image.open(path) as image:
                    image.load()
                    return image.size == (800, 330)
            except OSError:
                return False

        wait_until(is_whole, "the snapshot is a whole picture of the panel")
    finally:
        program.stop()


def test_without_debug_the_log_is_silent(desktop, folder, vantle, binary):
    program = Program(binary, desktop, environment={"VANTLE_DEBUG": None}, name="silent")
    numbers = itertools.count()

    def save_one_more_and_look():
        # Without a log it is unknown when it begins to watch, so this saves until it has seen a
        # file.
        folder.save(f"shot {next(numbers)}.png")
        return desktop.screen.panel()

    try:
        program.start()
        wait_until(save_one_more_and_look, "the panel appears", interval=0.5)
        assert program.log_text() == ""
    finally:
        program.stop()
