"""The real program updates itself: from the check to the version that runs afterwards."""

import os
import signal
import sys
from pathlib import Path

import pytest

from assistant import ENVIRONMENT
from other_windows import OtherWindow
from panel_checks import expected_frame, show_one
from privatedesktop import Program, Rectangle, processes, wait_until
from trays import Icon, OwnMenu
from using import find_window, window_titled

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "updater"))

from releases import Publisher, make_archive, make_tree  # noqa: E402
from server import Server  # noqa: E402

LATER = "99.0"
TITLE = "Vantle Update"
NOTES = (
    "<h2>Later is better</h2><p>All that was there, and <b>more</b>.</p>"
    "<ul><li>Updates itself</li><li>Keeps your settings</li></ul>"
)


@pytest.fixture
def server(tmp_path):
    running = Server(tmp_path / "server")
    yield running
    running.close()


@pytest.fixture
def publisher(server, tmp_path):
    return Publisher(server, Path(os.environ["VANTLE_UPDATE_KEY_FILE"]), tmp_path)


def programs(binary, main):
    """Returns the files of a tree with `main` as the program; of the decoder only what the tests
    need."""
    build = Path(binary).parents[1]
    modules = ["libvantle-core", "vantle-decoder-png", "vantle-no-proxies", "vantle-views"]
    places = ["bin/vantle-applications", "bin/vantle-decoder", "bin/vantle-folder-dialog",
              *(f"lib/vantle/modules/{name}.so" for name in modules)]
    return {
        "bin/vantle": main,
        "bin/vantle-updater": Path(os.environ["VANTLE_UPDATER"]),
        **{place: build / place for place in places},
    }


@pytest.fixture
def later(binary, tmp_path):
    """Returns a function that makes the archive of a later version, with another main program if
    given."""
    return lambda main=Path(os.environ["VANTLE_LATER"]): make_archive(
        tmp_path / "later", LATER, programs(binary, main)
    )


@pytest.fixture
def tree(desktop, binary):
    """The installed program, in the user's home folder."""
    version = Program(binary, desktop).command("--version")[1].split()[-1]
    return make_tree(desktop.home / "Apps/vantle", version, programs(binary, Path(binary)))


class UpdatingProgram(Program):
    """A program that another copy may follow, which writes to the same log."""

    def __init__(self, tree, desktop, environment):
        super().__init__(str(tree / "bin/vantle"), desktop, environment=environment)
        self._find = lambda: copies(desktop, tree)

    def is_running(self):
        return super().is_running() or bool(self._find())


@pytest.fixture
def vantle(desktop, tree, server):
    program = UpdatingProgram(
        tree, desktop,
        environment={**ENVIRONMENT, "VANTLE_FEED_URL": server.address("appcast.xml"),
                     "SSL_CERT_FILE": str(server.certificates), "VANTLE_CHECK_UPDATES_NOW": "1"},
    )  # fmt: skip
    program.write_settings(corner="topLeft", removeAfterUse="false")
    yield program
    program.stop()


def version_of(vantle):
    return vantle.command("--version")[1].split()[-1]


def copies(desktop, tree):
    return processes.running(str(tree / "bin/vantle"), desktop.home)


def wait_for_offer(desktop, screens):
    window_titled(desktop, TITLE)
    screens.wait_for_text(f"Vantle {LATER} is available")


def wait_for_end_of_first(vantle):
    assert wait_until(lambda: vantle.exit_status() is not None, "the first copy ends")
    assert vantle.exit_status() == 0


def updaters(desktop, tree):
    return processes.running(str(tree / "bin/vantle-updater"), desktop.home)


def chosen(vantle):
    """Returns the user's settings, without those that updates keep for themselves."""
    lines = vantle.settings_file.read_text().splitlines()
    return [line for line in lines if "Update" not in line]


def start_and_wait_for_offer(desktop, vantle, screens):
    vantle.start_watching()
    window_titled(desktop, TITLE)
    screens.wait_for_text(f"Vantle {LATER} is available")


def test_update_to_the_next_version(desktop, vantle, folder, tree, screens, publisher, later):
    publisher.publish(later(), LATER, notes=NOTES)
    start_and_wait_for_offer(desktop, vantle, screens)
    settings = chosen(vantle)
    first, watched = vantle.pid, vantle.log_text().count("watching ")
    screens.click("Install and Relaunch")
    wait_for_end_of_first(vantle)
    wait_until(lambda: copies(desktop, tree), "the next version runs")
    wait_until(lambda: vantle.log_text().count("watching ") > watched, "it watches")
    running = copies(desktop, tree)
    assert len(running) == 1 and running != [first]
    assert version_of(vantle) == LATER
    log = vantle.log_text()
    assert f"sparkle: found {LATER} ({LATER})" in log
    assert f"sparkle: installing {LATER}" in log
    # For the user it is the same program.
    assert chosen(vantle) == settings
    panel = show_one(desktop, folder)
    assert panel.frame == expected_frame(desktop.screen.work_area(), "topLeft")


@pytest.mark.parametrize("script", ["kill -SEGV $$", "exit 1"], ids=["crash", "error"])
def test_a_version_that_does_not_start_is_rolled_back(
    desktop, vantle, folder, tree, screens, publisher, later, script
):
    publisher.publish(later(f"#!/bin/sh\n{script}\n"), LATER)
    before = version_of(vantle)
    start_and_wait_for_offer(desktop, vantle, screens)
    settings = chosen(vantle)
    screens.click("Install and Relaunch")
    wait_for_end_of_first(vantle)
    screens.wait_for_text("Vantle could not be updated")
    screens.wait_for_text(reason(script))
    assert version_of(vantle) == before
    assert chosen(vantle) == settings
    assert len(copies(desktop, tree)) == 1
    screens.click("OK")
    wait_until(lambda: not find_window(desktop, TITLE), "the window closes")
    show_one(desktop, folder)


def reason(script):
    problem = "crashed" if "kill" in script else "quit"
    return f"Vantle {LATER} {problem} when it started, so the previous version was restored."


def test_a_rollback_does_not_take_the_keyboard(desktop, vantle, screens, publisher, later):
    publisher.publish(later("#!/bin/sh\nexit 1\n"), LATER)
    start_and_wait_for_offer(desktop, vantle, screens)
    screens.click("Install and Relaunch")
    wait_for_end_of_first(vantle)
    other = OtherWindow(desktop, Rectangle(900, 500, 300, 200))
    screens.wait_for_text("Vantle could not be updated")
    desktop.screen.keyboard.type("a")
    wait_until(lambda: other.typed() == "a", "what is typed goes where it should")


def test_a_download_can_be_cancelled(desktop, vantle, tree, screens, server, publisher, later):
    publisher.publish(later(), LATER, address=server.address("unhurried/archive.tar.zst"))
    before = version_of(vantle)
    start_and_wait_for_offer(desktop, vantle, screens)
    screens.click("Install and Relaunch")
    screens.wait_for_text(f"Downloading Vantle {LATER}…")
    screens.click("Cancel")
    wait_until(lambda: not find_window(desktop, TITLE), "the window closes")
    wait_until(lambda: not updaters(desktop, tree), "nothing is fetched any more")
    assert vantle.is_running()
    assert version_of(vantle) == before


def test_a_killed_updater_is_reported(desktop, vantle, tree, screens, server, publisher, later):
    publisher.publish(later(), LATER, address=server.address("unhurried/archive.tar.zst"))
    start_and_wait_for_offer(desktop, vantle, screens)
    screens.click("Install and Relaunch")
    screens.wait_for_text(f"Downloading Vantle {LATER}…")
    os.kill(wait_until(lambda: updaters(desktop, tree), "something is fetched")[0], signal.SIGKILL)
    screens.wait_for_text("Vantle could not be updated")
    assert vantle.is_running()
    # The next try succeeds.
    screens.click("OK")
    vantle.command("--quit")
    wait_for_end_of_first(vantle)
    publisher.publish(later(), LATER)
    start_and_wait_for_offer(desktop, vantle, screens)
    screens.click("Install and Relaunch")
    wait_for_end_of_first(vantle)
    wait_until(lambda: version_of(vantle) == LATER, "it is the next version")


def test_a_check_that_fails_says_why(desktop, vantle, screens, publisher, later):
    publisher.save_feed(b"<rss/>")
    vantle.start_watching()
    screens.wait_for_text("Could not check for updates")
    screens.wait_for_text("The update feed is not signed, so it was refused.")
    assert "sparkle: aborted: The update feed is not signed" in vantle.log_text()


def test_a_check_from_the_menu_of_the_tray(desktop, vantle, screens, publisher, later):
    publisher.publish(later(), version_of(vantle))
    vantle.start_watching()
    screens.wait_for_text("Vantle is up to date")
    # The text can be read before the window has the keyboard.
    wait_until(
        lambda: desktop.screen.active_window() == find_window(desktop, TITLE), "it is active"
    )
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: not find_window(desktop, TITLE), "the window closes")
    icon = Icon(desktop, "top")
    icon.wait()
    OwnMenu(desktop, icon)
    screens.click("Check for Updates…")
    screens.wait_for_text("Vantle is up to date")
    assert vantle.log_text().count("sparkle: no update: ") == 2
