"""The sound of a new capture, as a sound server hears it."""

import numpy
import pytest

from privatedesktop import ensure_never, wait_until

RATE = 44_100


class Ear:
    """A sound server with one loudspeaker, which is recorded."""

    def __init__(self, desktop):
        self._file = desktop.home / "heard.raw"
        desktop.start(
            "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
            "-L", f"module-null-sink sink_name=ear rate={RATE}",
            "-L", "module-native-protocol-unix",
        )  # fmt: skip
        wait_until(
            lambda: desktop.run("pactl", "info", check=False).returncode == 0, "it listens"
        )
        desktop.start(
            "parec", "-d", "ear.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1",
            "--latency-msec=20", str(self._file),
        )  # fmt: skip
        wait_until(lambda: self._file.exists() and self._file.stat().st_size > 0, "it records")

    def loud_seconds(self):
        data = self._file.read_bytes()
        samples = numpy.frombuffer(data[: len(data) // 2 * 2], dtype="<i2")
        return numpy.count_nonzero(numpy.abs(samples.astype(int)) > 500) / RATE


@pytest.fixture
def ear(desktop):
    return Ear(desktop)


def test_a_capture_is_heard(desktop, ear, vantle, folder):
    vantle.write_settings(playSound="true")
    vantle.start_watching()
    folder.save("shot.png")
    wait_until(lambda: ear.loud_seconds() > 0.02, "the sound is heard")


def test_there_is_no_sound_without_the_setting(desktop, ear, vantle, folder):
    vantle.start_watching()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    ensure_never(lambda: ear.loud_seconds() > 0, "a sound", seconds=1.5)


def test_captures_are_shown_without_a_sound_server(desktop, vantle, folder):
    vantle.write_settings(playSound="true")
    vantle.start_watching()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    wait_until(desktop.screen.panel, "the panel appears")
    vantle.signal(15)
    assert vantle.wait_for_end(limit=5.0) == 0
