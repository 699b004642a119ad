"""Which packages scripts/common.sh finds missing, on a simulated system."""

import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
INSTALLED = ("g++",)
KNOWN = ("g++", "cmake", "codec")


@pytest.fixture
def system(tmp_path):
    """Returns a folder with programs that simulate another system, and room for a list of
    packages."""
    programs = {
        "dpkg-query": f'case " {" ".join(INSTALLED)} " in *" ${{!#}} "*) echo -n installed; esac',
        "apt-cache": f'case " {" ".join(KNOWN)} " in *" $2 "*) exit 0; esac; exit 100',
    }
    for name, text in programs.items():
        program = tmp_path / name
        program.write_text(f"#!/bin/bash\n{text}\n")
        program.chmod(0o755)
    (tmp_path / "scripts/packages").mkdir(parents=True)
    return tmp_path


def missing(system, *lines):
    (system / "scripts/packages/some.list").write_text("\n".join(["# What is needed.", *lines, ""]))
    script = f'source "{ROOT}/scripts/common.sh"; root=$1; PATH=$1:$PATH; missing_packages some'
    done = subprocess.run(["bash", "-c", script, "bash", system], text=True, capture_output=True,
                          check=True)
    return [tuple(line.split(maxsplit=1)) for line in done.stdout.splitlines()]


def test_an_installed_package_is_not_missing(system):
    assert missing(system, "g++ compiles", "cmake configures") == [("cmake", "configures")]


def test_a_package_that_the_release_lacks_is_missing(system):
    assert missing(system, "other does it") == [("other", "does it")]


def test_a_package_with_a_question_mark_is_missing_only_if_the_release_has_it(system):
    assert missing(system, "other? does it", "codec? writes") == [("codec", "writes")]


def test_an_installed_package_with_a_question_mark_is_not_missing(system):
    assert missing(system, "g++? compiles") == []
