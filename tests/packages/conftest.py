"""Fixtures of the package tests: the Debian package of the build, and what is in it."""

import os
import subprocess
import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "packaging"))


def run(*command, **options):
    """What a program says on both its outputs; it has to succeed."""
    ended = subprocess.run(
        [str(part) for part in command], text=True, stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, **options,
    )  # fmt: skip
    assert ended.returncode == 0, ended.stdout
    return ended.stdout


def release(kind, folder, **options):
    """Makes the package or the tree of the build; its path."""
    build = os.environ["VANTLE_BUILD"]
    run(ROOT / "packaging/release", kind, "--build", build, "--out", folder, **options)
    [made] = folder.glob("vantle[-_]*")
    return made


@pytest.fixture(scope="session")
def package(tmp_path_factory):
    return release("package", tmp_path_factory.mktemp("package"))


@pytest.fixture(scope="session")
def installed(package, tmp_path_factory):
    """The folder usr/ of the package."""
    folder = tmp_path_factory.mktemp("installed")
    run("dpkg-deb", "--extract", package, folder)
    return folder / "usr"
