"""Files for the watched folder, and the captures that Vantle made of them."""

import io
import os
import re
import time

from PIL import Image

_MARKER = "marker "


def png(size=(64, 40), colour=(90, 140, 200)):
    buffer = io.BytesIO()
    Image.new("RGB", size, colour).save(buffer, "PNG")
    return buffer.getvalue()


def jpeg(size=(640, 400), colour=(90, 140, 200)):
    buffer = io.BytesIO()
    Image.new("RGB", size, colour).save(buffer, "JPEG")
    return buffer.getvalue()


class WatchedFolder:
    def __init__(self, path, vantle):
        self.path = path
        self._vantle = vantle
        self._markers = 0
        self._staging = path.parent / "staging"

    def save(self, name, content=None):
        """Writes a file as most tools do: creates, fills and closes it in place."""
        with open(os.path.join(os.fsencode(self.path), os.fsencode(name)), "wb") as file:
            file.write(png() if content is None else content)

    def move_in(self, name, content=None, age=0.0, temporary_name=None):
        """Renames a finished file into place, from another folder or from another name in this
        one."""
        if temporary_name:
            source = self.path / temporary_name
        else:
            self._staging.mkdir(exist_ok=True)
            source = self._staging / "file"
        source.write_bytes(png() if content is None else content)
        changed = time.time() - age
        os.utime(source, (changed, changed))
        source.rename(self.path / name)

    def delete(self, name):
        (self.path / name).unlink()

    def wait_for_marker(self):
        """Saves one more capture and waits for it.

        When the marker arrives, everything that the watcher saw before has been handled, so after
        this "nothing came" is a fact and not a matter of patience.
        """
        self._markers += 1
        name = f"{_MARKER}{self._markers}.png"
        self.save(name)
        self._vantle.wait_for_log(rf"captured {name}$(?:\n.*)*?\nVantle\[dbg\]: panel shows ")

    def wait_for(self, *names):
        for name in names:
            self.wait_for_capture(name)

    def wait_for_capture(self, name, times=1, limit=20.0):
        self._vantle.wait_for_log(rf"^Vantle\[dbg\]: captured {re.escape(name)}$", times, limit)

    def captured(self):
        """Returns the names of the captures so far, without the markers, in order."""
        return [name for name in self._vantle.captured() if not name.startswith(_MARKER)]

    def shown_count(self):
        """Returns how many captures the panel holds, without the markers (which are never
        removed)."""
        counts = self._vantle.shown_counts()
        return (counts[-1] if counts else 0) - self._markers
