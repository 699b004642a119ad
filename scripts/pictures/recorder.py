"""Records a private desktop into an animated picture."""

import contextlib
import time

from privatedesktop import processes, wait_until, wait_until_still
from stage import PICTURES

_FRAMES_PER_SECOND = 25


@contextlib.contextmanager
def recorded(desktop, size, name):
    """Writes what happens in the with statement to the picture of that name in docs/pictures."""
    wait_until_still(lambda: desktop.screen.screenshot().tobytes(), "the desktop")
    recording = desktop.home / "recording.mkv"
    recorder = _start_recorder(desktop, size, recording)
    begun = time.monotonic()
    yield
    seconds = time.monotonic() - begun
    processes.end(recorder)
    _write_animation(desktop, recording, seconds, PICTURES / name)


def _start_recorder(desktop, size, path):
    recorder = desktop.start(
        "ffmpeg", "-f", "x11grab", "-draw_mouse", "1", "-framerate", str(_FRAMES_PER_SECOND),
        "-video_size", f"{size[0]}x{size[1]}", "-i", desktop.environment["DISPLAY"],
        "-c:v", "libx264rgb", "-preset", "ultrafast", "-qp", "0", str(path),
    )  # fmt: skip
    wait_until(lambda: path.exists() and path.stat().st_size > 0, "the recorder records")
    return recorder


def _write_animation(desktop, recording, seconds, path):
    """Writes the last `seconds` of the recording, which began before there was something to see."""
    colours = (
        "split[all][once];[once]palettegen=stats_mode=full[palette];"
        "[all][palette]paletteuse=dither=sierra2_4a:diff_mode=rectangle"
    )
    desktop.run("ffmpeg", "-y", "-sseof", str(-seconds), "-i", str(recording), "-vf", colours,
                "-loop", "0", str(path))
