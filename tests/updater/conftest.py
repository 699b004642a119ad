"""Fixtures of the tests of updates: a server, a key, and a copy of the program to update."""

import os
import subprocess
import sys
import time
from pathlib import Path

import pytest

sys.path.insert(0, str(Path(__file__).resolve().parent))

from releases import OLD, Publisher, make_tree  # noqa: E402
from server import Server  # noqa: E402


@pytest.fixture
def key():
    return Path(os.environ["VANTLE_UPDATE_KEY_FILE"])


@pytest.fixture(scope="module")
def running_server(tmp_path_factory):
    server = Server(tmp_path_factory.mktemp("server"))
    yield server
    server.close()


@pytest.fixture
def server(running_server):
    """Returns the server without files of other tests."""
    for path in running_server.files.iterdir():
        path.unlink()
    return running_server


@pytest.fixture
def publisher(server, key, tmp_path):
    folder = tmp_path / "published"
    folder.mkdir()
    return Publisher(server, key, folder)


class Copy:
    """An installed copy of version OLD of the program, and what its updater reports."""

    def __init__(self, folder, certificates):
        self.updater = Path(os.environ["VANTLE_UPDATER"])
        self.place = folder
        self.log = folder.parent / "log"
        self.tree = make_tree(folder / "app", OLD, self.programs("echo old", self.updater))
        # The messages are compared in English, whatever the developer's language is.
        self._environment = {**os.environ, "LANGUAGE": "", "LC_ALL": "C.UTF-8",
                             "SSL_CERT_FILE": str(certificates), "VANTLE_TEST_LOG": str(self.log)}

    @staticmethod
    def programs(script, updater="#!/bin/sh\nexit 1\n"):
        """Returns the programs of a tree, with a script as the program itself; only some tests need
        the real updater."""
        return {"bin/vantle": f"#!/bin/sh\n{script}\n", "bin/vantle-updater": updater}

    @property
    def staging(self):
        return self.place / ".app-update"

    def version(self):
        return (self.tree / "share/vantle/release").read_text().split("\n")[0].split("=")[1]

    def snapshot(self):
        """Returns all files in the place, except the staging folder."""
        return {
            str(path.relative_to(self.place)): path.read_bytes() if path.is_file() else None
            for path in sorted(self.place.rglob("*"))
            if self.staging not in [path, *path.parents]
        }

    def run(self, command, *arguments, descriptors=(), **environment):
        """Runs the updater and returns its reports, each as a list of fields."""
        ended = subprocess.run(
            [self.tree / "bin/vantle-updater", command, *arguments],
            env={**self._environment, **environment}, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE, stdin=subprocess.DEVNULL, timeout=120, check=False,
            pass_fds=descriptors,
        )
        self.errors = ended.stderr.decode()
        assert "Sanitizer" not in self.errors, self.errors
        assert ended.returncode >= 0, ended.returncode
        self.status = ended.returncode
        return [line.split("\t") for line in ended.stdout.decode().splitlines()]

    def relaunch(self, version, process=2**22 - 1):
        """Relaunches when that process has ended, or at once without one. Returns true if the
        updater said that it goes on."""
        answer, tell = os.pipe()
        with open(answer, "rb") as reader, open(tell, "wb") as writer:
            self.run("relaunch", f"--version={version}", f"--process={process}",
                     f"--tell={writer.fileno()}", descriptors=[writer.fileno()])
            writer.close()
            return reader.read() == b"r"

    def wait_for_log(self):
        """Waits for the log, because the started program may still be writing it."""
        deadline = time.monotonic() + 20
        while not (self.log.exists() and self.log.read_text()) and time.monotonic() < deadline:
            time.sleep(0.01)
        return self.log.read_text().rstrip()

    def check(self, feed, *arguments, version=OLD):
        return self.run("check", f"--feed={feed}", f"--version={version}", *arguments)

    def prepare(self, found, **environment):
        """Prepares an item as it was reported."""
        _, version, _, _, page, address, length, signature, _ = found
        return self.run(
            "prepare", f"--version={version}", f"--address={address}", f"--length={length}",
            f"--signature={signature}", f"--page={page}", **environment,
        )

    def check_and_prepare(self, feed):
        found = self.check(feed)[-1]
        assert found[0] == "found", found
        return self.prepare(found)


@pytest.fixture
def copy(tmp_path, server):
    place = tmp_path / "place"
    place.mkdir()
    return Copy(place, server.certificates)
