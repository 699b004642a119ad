"""Fixtures of the package tests: the Debian package of the build, and its contents."""

import os
import subprocess
import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "packaging"))


def run(*command, **options):
    """Runs a program that must succeed, and returns what it writes to both outputs."""
    ended = subprocess.run(
        [str(part) for part in command], text=True, stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, **options,
    )  # fmt: skip
    assert ended.returncode == 0, ended.stdout
    return ended.stdout


def release(kind, folder, **options):
    """Makes the package or the tree of the build, and returns its path."""
    build = os.environ["VANTLE_BUILD"]
    run(ROOT / "packaging/release", kind, "--build", build, "--out", folder, **options)
    [made] = folder.glob("vantle[-_]*")
    return made


@pytest.fixture(scope="session")
def package(tmp_path_factory):
    return release("package", tmp_path_factory.mktemp("package"))


@pytest.fixture(scope="session")
def installed(package, tmp_path_factory):
    """Returns the folder usr/ of the package."""
    folder = tmp_path_factory.mktemp("installed")
    run("dpkg-deb", "--extract", package, folder)
    return folder / "usr"
