"""How a prepared version is put in place and started, and taken back if it fails."""

import os
import signal
import subprocess

import pytest

from releases import NEW, OLD, make_archive

COMES_UP = ('echo "new $VANTLE_UPDATE_OUTCOME" >> "$VANTLE_TEST_LOG"; '
            'eval "echo r >&$VANTLE_UPDATE_READY"')
OLD_COMES_UP = 'echo "old $VANTLE_UPDATE_OUTCOME" >> "$VANTLE_TEST_LOG"'


@pytest.fixture
def ready(copy, publisher, tmp_path):
    """Returns a function that prepares a version whose program is a script; the old program logs
    its start."""
    def prepare(script):
        (copy.tree / "bin/vantle").write_text(f"#!/bin/sh\n{OLD_COMES_UP}\n")
        contents = make_archive(tmp_path / "new", NEW, copy.programs(script, copy.updater))
        assert copy.check_and_prepare(publisher.publish(contents, NEW))[-1] == ["ready"]

    return prepare


def relaunch(copy):
    assert copy.relaunch(NEW)


def log(copy):
    return copy.wait_for_log()


def test_the_new_version_replaces_the_old_one(copy, ready):
    ready(COMES_UP)
    relaunch(copy)
    assert copy.status == 0
    assert log(copy) == "new"
    assert copy.version() == NEW
    assert OLD in (copy.staging / "previous/share/vantle/release").read_text()
    assert not (copy.staging / "next").exists()


def test_it_can_be_updated_again_and_again(copy, ready, publisher, tmp_path):
    ready(COMES_UP)
    relaunch(copy)
    contents = make_archive(tmp_path / "newer", "1.2", copy.programs(COMES_UP))
    found = copy.check(publisher.publish(contents, "1.2"), version=NEW)[-1]
    assert copy.prepare(found)[-1] == ["ready"]
    assert copy.relaunch("1.2")
    assert copy.version() == "1.2"
    assert NEW in (copy.staging / "previous/share/vantle/release").read_text()


@pytest.mark.parametrize("script, problem", [
    ("kill -SEGV $$", "crashed when it started"),
    ("exit 3", "quit when it started"),
    ("exec sleep 600", "did not start in time"),
    ('eval "exec $VANTLE_UPDATE_READY>&-"; kill -ABRT $$', "crashed when it started"),
], ids=["crash", "error", "hang", "crash-without-pipe"])
def test_a_version_that_does_not_report_its_start_is_rolled_back(copy, ready, script, problem):
    before = copy.snapshot()
    ready(script)
    before["app/bin/vantle"] = (copy.tree / "bin/vantle").read_bytes()
    relaunch(copy)
    assert copy.status == 1
    assert copy.snapshot() == before
    assert log(copy) == (
        f"old rolled-back\t{NEW}\tVantle 1.1 {problem}, so the previous version was restored."
    )
    assert f"Vantle: Vantle 1.1 {problem}" in copy.errors
    assert {path.name for path in copy.staging.iterdir()} == {"lock"}


def test_a_version_that_cannot_be_started_is_rolled_back(copy, ready):
    ready("")
    (copy.staging / "next/bin/vantle").write_bytes(b"\x7fELF, but not really")
    relaunch(copy)
    assert copy.version() == OLD
    assert "old rolled-back\t1.1\tVantle 1.1 cannot be started" in log(copy)


def test_a_version_that_ends_before_it_reports_its_start_is_rolled_back(copy, ready):
    ready("exit 0")
    relaunch(copy)
    assert copy.version() == OLD
    assert "old rolled-back\t1.1\tVantle 1.1 quit when it started" in log(copy)


def test_a_version_that_hands_over_to_a_running_copy_counts_as_started(copy, ready):
    # Simulates a user who starts the program while the updater does.
    ready('cp /bin/sleep "$0.x"; mv "$0.x" "$0"; '
          'eval "\\"$0\\" 600 $VANTLE_UPDATE_READY>&- > /dev/null 2>&1 &"; exit 0')
    relaunch(copy)
    for process in running(copy.tree / "bin/vantle"):
        os.kill(process, signal.SIGKILL)
    assert copy.status == 0
    assert copy.version() == NEW


def running(program):
    found = []
    for name in filter(str.isdigit, os.listdir("/proc")):
        try:
            if os.readlink(f"/proc/{name}/exe") == str(program):
                found.append(int(name))
        except OSError:
            # The process ended meanwhile, or belongs to another user.
            continue
    return found


def test_its_starter_is_told_that_it_continues(copy, ready):
    ready(COMES_UP)
    assert copy.relaunch(NEW)


def test_nothing_happens_if_nobody_waits_for_it(copy, ready):
    ready(COMES_UP)
    reader, writer = os.pipe()
    os.close(reader)
    copy.run("relaunch", f"--version={NEW}", f"--process={2**22 - 1}", f"--tell={writer}",
             descriptors=[writer])
    os.close(writer)
    assert copy.status == 1
    assert copy.version() == OLD
    assert not copy.log.exists()


def test_a_closed_log_does_not_prevent_the_relaunch(copy, ready):
    ready("exit 1")
    reader, writer = os.pipe()
    os.close(reader)
    subprocess.run(
        [copy.tree / "bin/vantle-updater", "relaunch", f"--version={NEW}",
         f"--process={2**22 - 1}", "--tell=1"],
        env={**os.environ, "VANTLE_TEST_LOG": str(copy.log)}, stdout=subprocess.PIPE,
        stderr=writer, timeout=60, check=False,
    )
    os.close(writer)
    assert copy.version() == OLD
    assert log(copy).startswith("old rolled-back")


def has_handle_of_process(process):
    for descriptor in os.listdir(f"/proc/{process.pid}/fd"):
        try:
            if "pidfd" in os.readlink(f"/proc/{process.pid}/fd/{descriptor}"):
                return True
        except OSError:
            # The descriptor was closed meanwhile.
            continue
    return False


def test_nothing_happens_before_the_old_one_has_ended(copy, ready):
    ready(COMES_UP)
    running = subprocess.Popen(["sleep", "600"])
    waiting = subprocess.Popen(
        [copy.tree / "bin/vantle-updater", "relaunch", f"--version={NEW}",
         f"--process={running.pid}", "--tell=1"],
        env={**os.environ, "VANTLE_TEST_LOG": str(copy.log)}, stdout=subprocess.DEVNULL,
    )
    # When it holds this handle, it waits for the process.
    while not has_handle_of_process(waiting):
        assert waiting.poll() is None
    assert copy.version() == OLD
    assert not copy.log.exists()
    running.send_signal(signal.SIGKILL)
    running.wait()
    assert waiting.wait(timeout=60) == 0
    assert copy.version() == NEW


def test_files_that_were_put_into_the_tree_meanwhile_stop_it(copy, ready):
    ready(COMES_UP)
    (copy.tree / "my notes.txt").write_text("precious")
    relaunch(copy)
    assert copy.version() == OLD
    assert 'contains "my notes.txt"' in log(copy)


def test_without_a_prepared_version_the_old_one_starts_again(copy, ready):
    ready("")
    subprocess.run(["rm", "-r", copy.staging / "next"], check=True)
    relaunch(copy)
    assert copy.version() == OLD
    assert "old rolled-back\t\tThe update could not be installed: " in log(copy)
