"""The watched folder disappears, and the program goes on."""

import shutil
import signal
import subprocess

import pytest

from dead_server import mounted_on
from privatedesktop import Program, wait_until
from unprivileged import unprivileged
from using import window_titled
from watched_folder import png

WATCHING = r"^Vantle\[dbg\]: watching "


def wait_until_watching_again(vantle, folder, starts_before):
    """Waits until the program has made the folder again and watches it, without an alert."""
    vantle.wait_for_log(WATCHING, times=starts_before + 1)
    wait_until(folder.path.is_dir, "the folder is there again")


def count_starts(vantle):
    return sum("]: watching " in line for line in vantle.log_lines())


def check_it_goes_on(vantle, folder):
    folder.save("after.png")
    folder.wait_for("after.png")
    folder.wait_for_marker()
    assert folder.captured() == ["after.png"]
    assert "cannot watch" not in vantle.log_text()
    assert vantle.is_running()


def test_deleted(vantle, folder):
    vantle.start_watching()
    before = count_starts(vantle)
    shutil.rmtree(folder.path)
    wait_until_watching_again(vantle, folder, before)
    check_it_goes_on(vantle, folder)


def test_deleted_again_and_again(vantle, folder):
    vantle.start_watching()
    for _ in range(3):
        before = count_starts(vantle)
        shutil.rmtree(folder.path)
        wait_until_watching_again(vantle, folder, before)
    check_it_goes_on(vantle, folder)


def test_moved_away(vantle, folder):
    vantle.start_watching()
    before = count_starts(vantle)
    elsewhere = folder.path.with_name("Elsewhere")
    folder.path.rename(elsewhere)
    wait_until_watching_again(vantle, folder, before)
    (elsewhere / "shot.png").write_bytes(png())
    check_it_goes_on(vantle, folder)


def test_replaced_by_another(vantle, folder):
    """The folder is replaced before the program can make it again; the new folder counts."""
    vantle.start_watching()
    before = count_starts(vantle)
    folder.path.rename(folder.path.with_name("Elsewhere"))
    folder.path.mkdir(exist_ok=True)
    wait_until_watching_again(vantle, folder, before)
    check_it_goes_on(vantle, folder)


def test_missing_at_start(vantle, folder):
    folder.path.rmdir()
    vantle.start_watching()
    assert folder.path.is_dir()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    assert vantle.is_running()


def unmount(path):
    return subprocess.run(["umount", str(path)], capture_output=True).returncode == 0


def test_unmounted(vantle, folder):
    mounted = subprocess.run(
        ["mount", "-t", "tmpfs", "vantle-test", str(folder.path)], capture_output=True
    )
    if mounted.returncode != 0:
        pytest.skip("mounting is not permitted here")
    try:
        vantle.start_watching()
        folder.save("before.png")
        folder.wait_for("before.png")
        before = count_starts(vantle)
    finally:
        # The folder is busy while a program reads from it.
        wait_until(lambda: unmount(folder.path), "the folder is unmounted")
    wait_until_watching_again(vantle, folder, before)
    folder.save("after.png")
    folder.wait_for("after.png")
    folder.wait_for_marker()
    assert folder.captured() == ["before.png", "after.png"]


def test_unreadable(desktop, binary, folder):
    vantle = Program(unprivileged(binary), desktop)
    folder.path.chmod(0)
    try:
        vantle.start()
        vantle.wait_for_log(r"^Vantle: cannot watch .*: accessDenied$")
        assert vantle.is_running()
    finally:
        vantle.stop()
        folder.path.chmod(0o700)


def test_removed_and_made_again_while_in_use(desktop, vantle, folder):
    vantle.start_watching()
    standing = desktop.start("sleep", "600", cwd=folder.path)
    folder.save("first.png")
    folder.wait_for("first.png")
    shutil.rmtree(folder.path)
    folder.path.mkdir()
    folder.save("second.png")
    folder.wait_for("second.png")
    assert standing.poll() is None


def test_saved_as_soon_as_it_is_watched(vantle, folder):
    """During its start the program begins to watch twice."""
    vantle.start()
    vantle.wait_for_log("watching ")
    folder.save("early.png")
    folder.wait_for("early.png")


def test_on_a_server_that_never_answers(desktop, vantle, folder):
    """Windows, commands and the end of the program do not wait; another folder can be chosen."""
    with mounted_on(folder.path) as is_mounted:
        if not is_mounted:
            pytest.skip("mounting is not permitted here")
        vantle.start()
        wait_until(lambda: "waiting for the folder" in vantle.command("--status")[1],
                   "the program runs")
        assert vantle.command("--settings")[0] == 0
        window_titled(desktop, "Vantle Settings")
        vantle.signal(signal.SIGTERM)
        assert vantle.wait_for_end() == 0
    vantle.start_watching()
    folder.save("shot.png")
    folder.wait_for("shot.png")
