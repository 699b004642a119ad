"""Fixtures of the desktop tests: each test gets a private desktop and the real program on it."""

import os
import pathlib
import shutil
import subprocess
import sys

import pytest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))

from panel_checks import show_one, wait_for_card  # noqa: E402
from privatedesktop import PrivateDesktop, Program  # noqa: E402
from screens import Screens  # noqa: E402
from watched_folder import WatchedFolder  # noqa: E402
from web_page import WebPage  # noqa: E402

# For ctest this exit status means "skipped".
SKIPPED_EXIT_STATUS = 77


def pytest_configure(config):
    config.addinivalue_line("markers", "desktop(**options): how the private desktop is to be made")
    config.addinivalue_line("markers", "sway(lines): more of its configuration")
    config.addinivalue_line("markers", "kwin(**options): how it is to be started")
    config.addinivalue_line("markers", "labwc(**options): the same")
    config.addinivalue_line("markers", "mutter(**options): the same")
    config.passed_tests = 0
    config.skipped_tests = 0


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    report = (yield).get_result()
    # A test that failed as expected was not skipped.
    failed_as_expected = report.skipped and hasattr(report, "wasxfail")
    if report.skipped and not failed_as_expected:
        item.config.skipped_tests += 1
    if report.when == "call" and (report.passed or failed_as_expected):
        item.config.passed_tests += 1
    if report.failed and report.when in ("setup", "call"):
        keep_evidence(item)


def pytest_sessionfinish(session, exitstatus):
    config = session.config
    if exitstatus == 0 and config.skipped_tests and not config.passed_tests:
        session.exitstatus = SKIPPED_EXIT_STATUS


def keep_evidence(item):
    """Keeps the picture of the screen and the logs of the programs of a failed test."""
    folder = os.environ.get("VANTLE_FAILURES")
    desktop = item.funcargs.get("desktop")
    if not folder or desktop is None:
        return
    target = pathlib.Path(folder, item.name)
    target.mkdir(parents=True, exist_ok=True)
    desktop.screen.screenshot().save(target / "screen.png")
    for log in desktop.log_folder.iterdir():
        shutil.copy(log, target)


def require_peer(tool, package=None):
    """Skips the test if a heavy program is missing, or fails it if none may be missing. A program
    whose package only some releases have may be missing in the others."""
    if shutil.which(tool):
        return
    if os.environ.get("VANTLE_REQUIRE_ALL_PEERS") and (package is None or is_offered(package)):
        pytest.fail(f"{tool} is not installed")
    pytest.skip(f"{tool} is not installed; ./test --all installs it")


def is_offered(package):
    """Returns true if this release has the package, installed or not."""
    shown = subprocess.run(["apt-cache", "show", package], capture_output=True, check=False)
    return shown.returncode == 0


@pytest.fixture
def desktop(request):
    marker = request.node.get_closest_marker("desktop")
    options = marker.kwargs if marker else {}
    for tool in options.get("window_manager", [])[:1]:
        require_peer(tool)
    with PrivateDesktop(**options) as private_desktop:
        yield private_desktop


@pytest.fixture
def binary():
    return os.environ["VANTLE_BINARY"]


@pytest.fixture
def vantle(desktop, binary):
    """The program, not started yet, with the settings that follow the onboarding."""
    program = Program(binary, desktop)
    program.write_settings()
    yield program
    program.stop()


@pytest.fixture
def folder(desktop, vantle):
    """The folder that the program watches."""
    return WatchedFolder(desktop.home / "Desktop", vantle)


@pytest.fixture
def card(desktop, vantle, folder):
    """The card with one capture on it, which leaves when it is used."""
    vantle.write_settings(removeAfterUse="true", deleteAfterUse="false")
    vantle.start_watching()
    return wait_for_card(desktop, show_one(desktop, folder))


@pytest.fixture
def screens(desktop, vantle):
    """Vantle's windows, for a program that offers itself to assistive programs."""
    return Screens(desktop, vantle)


@pytest.fixture
def page(desktop):
    """A browser with a page that accepts drops and pastes."""
    opened = WebPage(desktop)
    yield opened
    opened.close()
