"""A recording becomes a capture when it has ended, and not before."""

import signal

import pytest

from assistant import ENVIRONMENT
from privatedesktop import Program, ensure_never, wait_until
from watched_folder import WatchedFolder


def start_recording(desktop, path):
    return desktop.start(
        "ffmpeg", "-nostdin", "-loglevel", "error", "-f", "x11grab", "-framerate", "10",
        "-video_size", "640x400", "-i", desktop.environment["DISPLAY"],
        *(("-c:v", "libvpx", "-deadline", "realtime") if path.suffix == ".webm" else ()), str(path),
    )  # fmt: skip


def record(desktop, folder, name, seconds):
    """Records for a while, checks that no tile appears meanwhile, and ends the recorder as Ctrl-C
    would."""
    path = folder.path / name
    recorder = start_recording(desktop, path)
    wait_until(path.exists, "the recording begins")
    for _ in range(seconds):
        # Each marker makes the watcher look at the whole folder again.
        folder.wait_for_marker()
        assert folder.captured() == []
        assert recorder.poll() is None, "the recorder ended by itself"
        ensure_never(folder.captured, "a tile appears while recording", seconds=1.0)
    recorder.send_signal(signal.SIGINT)
    recorder.wait(30)


@pytest.mark.parametrize("name", ["recording.mp4", "recording.webm"])
def test_ffmpeg_gives_one_tile_after_its_end(desktop, vantle, folder, name):
    vantle.start_watching()
    record(desktop, folder, name, seconds=8)
    folder.wait_for(name)
    folder.wait_for_marker()
    assert folder.captured() == [name]


@pytest.mark.parametrize("name", ["clip.mp4", "clip.webm", "clip.mkv"])
def test_open_recording_waits_for_its_writer(vantle, folder, name):
    """Without a recorder: a file stays open for writing and does not grow."""
    vantle.start_watching()
    with open(folder.path / name, "wb") as file:
        file.write(b"\0" * 4096)
        file.flush()
        folder.wait_for_marker()
        folder.wait_for_marker()
        assert folder.captured() == []
    folder.wait_for(name)
    folder.wait_for_marker()
    assert folder.captured() == [name]


def test_recordings_switched_off(desktop, vantle, folder):
    vantle.write_settings(showRecordings="false")
    vantle.start_watching()
    folder.save("clip.mp4", b"\0" * 4096)
    folder.wait_for_marker()
    assert folder.shown_count() == 0


@pytest.mark.desktop(
    environment={"XDG_CURRENT_DESKTOP": "GNOME"},
    configuration={"user-dirs.dirs": 'XDG_VIDEOS_DIR="$HOME/Filme"\n'},
)
def test_a_recorder_that_makes_its_own_folder_gives_one_tile(desktop, binary):
    """GNOME's recorder makes its folder at its first use, and screenshots go to another folder."""
    vantle = Program(binary, desktop, environment=ENVIRONMENT)
    vantle.write_settings(screenshotTool=None)
    (desktop.home / "Filme").mkdir()
    recordings = desktop.home / "Filme/Screencasts"
    vantle.start_watching()
    vantle.wait_for_log(f"waiting in {desktop.home / 'Filme'} until {recordings} is created$")
    assert "recordings: waiting for the folder\n" in vantle.command("--status")[1]
    recordings.mkdir()
    screenshots = WatchedFolder(desktop.home / "Screenshots", vantle)
    record_beside(desktop, recordings / "first.webm", screenshots)
    vantle.wait_for_log("captured first.webm$")
    assert "recordings: watched\n" in vantle.command("--status")[1]
    record_beside(desktop, recordings / "second.mp4", screenshots)
    vantle.wait_for_log("captured second.mp4$")
    screenshots.wait_for_marker()
    assert screenshots.captured() == ["first.webm", "second.mp4"]
    assert screenshots.shown_count() == 2
    vantle.stop()


def record_beside(desktop, path, screenshots):
    """Records for some seconds, and checks that no tile of it appears meanwhile."""
    recorder = start_recording(desktop, path)
    wait_until(path.exists, "the recording begins")
    for _ in range(3):
        screenshots.wait_for_marker()
        ensure_never(
            lambda: path.name in screenshots.captured(), "a tile while recording", seconds=1.0
        )
    recorder.send_signal(signal.SIGINT)
    recorder.wait(30)
