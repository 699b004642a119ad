"""What ctest does with a test program that is not built."""

import os
import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROJECT = f"""cmake_minimum_required(VERSION 3.25)
project(some LANGUAGES CXX)
enable_testing()
list(APPEND CMAKE_MODULE_PATH "{ROOT}/cmake")
include(VantleTests)
find_package(GTest REQUIRED)
foreach(name one other)
  add_executable(${{name}} test.cpp)
  target_link_libraries(${{name}} PRIVATE GTest::gtest_main)
  target_compile_definitions(${{name}} PRIVATE NAME=${{name}})
  vantle_discover_tests(${{name}} LABELS ${{name}}-label TIMEOUT 60)
endforeach()
"""
TEST = "#include <gtest/gtest.h>\nTEST(NAME, IsRun) {}\n"


def output(*command, environment=()):
    """Returns what the command writes, and whether it succeeds."""
    done = subprocess.run(command, env={**os.environ, **dict(environment)}, text=True, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return done.stdout, done.returncode == 0


@pytest.fixture(name="build")
def one_of_two_is_built(tmp_path, monkeypatch):
    monkeypatch.delenv("VANTLE_REQUIRE_ALL_TESTS", raising=False)
    (tmp_path / "CMakeLists.txt").write_text(PROJECT)
    (tmp_path / "test.cpp").write_text(TEST)
    folder = tmp_path / "build"
    for command in (("cmake", "-G", "Ninja", "-S", tmp_path, "-B", folder),
                    ("cmake", "--build", folder, "--target", "one")):
        written, succeeds = output(*command)
        assert succeeds, written
    return folder


def test_unbuilt_tests_are_left_out(build):
    written, succeeds = output("ctest", "--test-dir", build)
    assert succeeds, written
    assert "one.IsRun" in written and "other" not in written


def test_unbuilt_tests_fail_if_all_are_required(build):
    everything = {"VANTLE_REQUIRE_ALL_TESTS": "1"}
    written, succeeds = output("ctest", "--test-dir", build, environment=everything)
    assert not succeeds
    assert "other_NOT_BUILT" in written and "one.IsRun" in written
    output("cmake", "--build", build)
    written, succeeds = output("ctest", "--test-dir", build, "-L", "other-label",
                               environment=everything)
    assert succeeds and "other.IsRun" in written, written
