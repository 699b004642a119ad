"""Updates of a copy that was installed as a package: the system's installer gets the file."""

import hashlib
import os
import subprocess
import sys
from pathlib import Path

import pytest

from releases import NEW, OLD, SYSTEM, releasing

PACKAGE = b"!<arch>\nwhat the system's installer makes something of"

BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>system</type><listen>unix:dir={folder}</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/>
<allow own="*"/></policy></busconfig>"""


@pytest.fixture
def bus(tmp_path):
    """Returns the address of a private system bus."""
    configuration = tmp_path / "bus.conf"
    configuration.write_text(BUS.format(folder=tmp_path))
    daemon = subprocess.Popen(
        ["dbus-daemon", "--nofork", "--print-address", f"--config-file={configuration}"],
        stdout=subprocess.PIPE, text=True,
    )
    yield daemon.stdout.readline().strip()
    daemon.terminate()
    daemon.wait()


@pytest.fixture
def service(bus):
    """Returns a function that starts an installer, which ends as it is told to."""
    started = []

    def start(ending):
        program = Path(__file__).with_name("package_service.py")
        process = subprocess.Popen(
            [sys.executable, program, ending], stdout=subprocess.PIPE, text=True,
            env={**os.environ, "DBUS_SYSTEM_BUS_ADDRESS": bus},
        )
        started.append(process)
        assert process.stdout.readline() == "ready\n"
        return process

    yield start
    for process in started:
        process.terminate()
        process.wait()


@pytest.fixture
def cache(tmp_path):
    return tmp_path / "cache"


@pytest.fixture
def prepare(copy, publisher, bus, cache):
    """Returns the reports of preparing a package that was found."""
    releasing.describe_release(copy.tree, OLD, f"{SYSTEM}-deb", "package")
    feed = publisher.publish(PACKAGE, NEW, platform=f"{SYSTEM}-deb")

    def run():
        found = copy.check(feed)[-1]
        assert found[0] == "found", found
        assert found[-1] == "1"
        return copy.prepare(found, DBUS_SYSTEM_BUS_ADDRESS=bus, XDG_CACHE_HOME=str(cache))

    return run


def message_of(reports):
    assert reports[-1][0] == "failed", reports
    return reports[-1][1]


def test_a_package_is_handed_to_the_system(copy, service, prepare, cache):
    before = copy.snapshot()
    installer = service("success")
    assert prepare()[-2:] == [["installing"], ["ready"]]
    assert installer.stdout.readline() == "SetHints ['interactive=true']\n"
    call = installer.stdout.readline()
    assert call.startswith(f"InstallFiles 0 ['{cache}/vantle/update/vantle.deb']")
    assert installer.stdout.readline().split()[1] == hashlib.sha256(PACKAGE).hexdigest()
    # The download is removed, and the updater has not changed anything itself.
    assert not list((cache / "vantle").iterdir())
    assert copy.snapshot() == before
    assert not copy.staging.exists()


def test_a_refusal_of_the_system_is_reported(service, prepare, cache):
    service("refuse")
    assert message_of(prepare()) == (
        "The system could not install the package: You are not allowed to do this."
    )
    assert not list((cache / "vantle").iterdir())


@pytest.mark.parametrize("ending", ["silent-failure", "vanish"])
def test_a_failure_without_a_message_is_reported(service, prepare, ending):
    service(ending)
    assert message_of(prepare()) == (
        "The system could not install the package: it gave no reason."
    )


def test_a_refused_call_is_reported(service, prepare):
    service("refuse-method")
    assert message_of(prepare()) == "The system could not install the package: Not today."


def test_a_missing_installer_is_reported(prepare):
    assert message_of(prepare()).startswith("The system could not install the package: ")


def test_a_missing_bus_is_reported(copy, prepare, monkeypatch, bus):
    del bus
    run = copy.run

    def without_bus(*arguments, **environment):
        if "DBUS_SYSTEM_BUS_ADDRESS" in environment:
            environment["DBUS_SYSTEM_BUS_ADDRESS"] = "unix:path=/nowhere"
        return run(*arguments, **environment)

    monkeypatch.setattr(copy, "run", without_bus)
    assert message_of(prepare()).startswith("The system could not install the package: ")


def test_an_unsigned_package_never_reaches_the_installer(copy, server, service, prepare):
    installer = service("success")
    server.save("archive.tar.zst", PACKAGE[:-1] + b"x")
    assert message_of(prepare()) == "The signature of the update is wrong, so it was refused."
    installer.terminate()
    assert installer.stdout.read() == ""


def test_a_leftover_package_is_removed(service, prepare, cache):
    left = cache / "vantle/update/vantle.deb"
    left.parent.mkdir(parents=True)
    left.write_bytes(b"of another time")
    service("success")
    assert prepare()[-1] == ["ready"]
    assert not left.exists()


def test_the_new_version_is_started_and_never_rolled_back(copy):
    releasing.describe_release(copy.tree, NEW, f"{SYSTEM}-deb", "package")
    (copy.tree / "bin/vantle").write_text('#!/bin/sh\necho new > "$VANTLE_TEST_LOG"\nexit 3\n')
    copy.relaunch(NEW)
    assert copy.status == 0
    assert copy.wait_for_log() == "new"
    assert copy.version() == NEW
