"""Tries faults in a copy of the sources that has its own build."""

import os
import shutil
import signal
import subprocess
import time
from typing import NamedTuple

from checks.repository import ROOT, all_files

FOLDER = ROOT / "build/mutate"
SOURCES, BUILD = FOLDER / "sources", FOLDER / "build"
KILLED, SURVIVED, UNCOMPILED = "killed", "survived", "did not compile"
# A fault may make a test wait for ever, so each run has a limit.
PATIENCE = 4
LEAST_LIMIT = 30
BUILD_LIMIT = 1800

CONFIGURATION = ("-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
                 "-DVANTLE_WARNINGS_AS_ERRORS=OFF")


class Verdict(NamedTuple):
    result: str
    # The test that failed, or what else happened.
    by: str
    seconds: float


class BrokenBuild(Exception):
    pass


def target_of(path):
    """Returns the test program that would find a fault in that file first."""
    is_view = "/views/" in path or path.startswith(("src/cards/", "src/menus/"))
    return "views_tests" if is_view else "logic_tests"


def run(command, limit, **options):
    """Returns the command's output and status; the status is None if it took too long."""
    with subprocess.Popen(command, text=True, errors="replace", stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, start_new_session=True, **options) as process:
        try:
            output, _ = process.communicate(timeout=limit)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            output, _ = process.communicate()
            return output, None
    return output, process.returncode


def copy_sources():
    """Copies the sources. Files that did not change keep their time, so that they are not compiled
    again."""
    wanted = {path for path in all_files()}
    for path in wanted:
        source, copied = ROOT / path, SOURCES / path
        if copied.is_file() and copied.read_bytes() == source.read_bytes():
            continue
        copied.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(source, copied)
        shutil.copymode(source, copied)
    for copied in [path for path in SOURCES.rglob("*") if path.is_file()]:
        if str(copied.relative_to(SOURCES)) not in wanted:
            copied.unlink()


def build(target):
    command = ("cmake", "--build", BUILD, "--target", target, "--parallel",
               str(os.cpu_count() or 2))
    return run(command, BUILD_LIMIT)


def run_tests(target, limit):
    surroundings = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    return run((BUILD / "bin" / target, "--gtest_fail_fast", "--gtest_brief=1"), limit, cwd=BUILD,
               env=surroundings)


def failed_test(output):
    failed = [line for line in output.splitlines() if line.startswith("[  FAILED  ] ")]
    return failed[0].removeprefix("[  FAILED  ] ").split(",")[0].split(" (")[0] if failed else ""


class Trial:
    """Tries one fault after another. Builds and measures the correct sources when it first needs
    them."""

    def __init__(self):
        copy_sources()
        output, status = run(("cmake", "-S", SOURCES, "-B", BUILD, *CONFIGURATION), BUILD_LIMIT)
        if status:
            raise BrokenBuild(output)
        self._limits = {}

    def _measure(self, target):
        output, status = build(target)
        if status:
            raise BrokenBuild(output[-4000:])
        started = time.monotonic()
        output, status = run_tests(target, BUILD_LIMIT)
        if status:
            raise BrokenBuild(f"{target} fails without any fault:\n{output[-4000:]}")
        self._limits[target] = max(PATIENCE * (time.monotonic() - started), LEAST_LIMIT)

    def verdict(self, fault):
        target = target_of(fault.path)
        if target not in self._limits:
            self._measure(target)
        path = SOURCES / fault.path
        right = path.read_text(encoding="utf-8")
        started = time.monotonic()
        path.write_text(right[:fault.start] + fault.new + right[fault.start + len(fault.old):],
                        encoding="utf-8")
        try:
            result, by = self._tried(target)
        finally:
            path.write_text(right, encoding="utf-8")
        return Verdict(result, by, time.monotonic() - started)

    def _tried(self, target):
        output, status = build(target)
        if status:
            return UNCOMPILED, "" if status else "the build took too long"
        output, status = run_tests(target, self._limits[target])
        if status == 0:
            return SURVIVED, ""
        if status is None:
            return KILLED, "took too long"
        return KILLED, failed_test(output) or f"ended with {status}"
