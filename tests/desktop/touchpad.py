"""Two fingers on the touchpad of a Wayland desktop.

They speak the protocol wlr-virtual-pointer by hand, because no package has it for Python.
"""

import os
import socket
import struct
import time

_VERTICAL, _HORIZONTAL = 0, 1
_WHEEL, _FINGER = 0, 1
_MANAGER = "zwlr_virtual_pointer_manager_v1"
_DISPLAY, _REGISTRY, _CALLBACK = 1, 2, 3
_MANAGER_ID, _POINTER_ID = 4, 5
_FRAME_SECONDS = 0.01


class ProtocolError(Exception):
    """The compositor does not do what the protocol says."""


def _string(text):
    data = text.encode() + b"\0"
    return struct.pack("=I", len(data)) + data + b"\0" * (-len(data) % 4)


def _fixed(value):
    return struct.pack("=i", round(value * 256))


class _Connection:
    """A connection to a compositor, with the few messages that are needed here."""

    def __init__(self, desktop):
        folder = desktop.environment["XDG_RUNTIME_DIR"]
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.settimeout(20)
        self._socket.connect(os.path.join(folder, desktop.environment["WAYLAND_DISPLAY"]))

    def send(self, receiver, opcode, *arguments):
        parts = [struct.pack("=I", part) if isinstance(part, int) else part for part in arguments]
        data = b"".join(parts)
        self._socket.sendall(struct.pack("=II", receiver, (8 + len(data)) << 16 | opcode) + data)

    def receive(self):
        """Returns the sender of the next event, its opcode and its data."""
        sender, word = struct.unpack("=II", self._read(8))
        return sender, word & 0xFFFF, self._read((word >> 16) - 8)

    def _read(self, size):
        data = b""
        while len(data) < size:
            part = self._socket.recv(size - len(data))
            if not part:
                raise ProtocolError("the compositor has closed the connection")
            data += part
        return data

    def close(self):
        self._socket.close()


class Touchpad:
    """Scrolls what is under the desktop's pointer. Positive numbers move content right and down."""

    def __init__(self, desktop):
        self._connection = _Connection(desktop)
        self._send = self._connection.send
        self._send(_DISPLAY, 1, _REGISTRY)  # get_registry
        self._send(_DISPLAY, 0, _CALLBACK)  # sync
        name = self._find_manager()
        self._send(_REGISTRY, 0, name, _string(_MANAGER), 1, _MANAGER_ID)  # bind
        self._send(_MANAGER_ID, 0, 0, _POINTER_ID)  # create_virtual_pointer, for any seat

    def _find_manager(self):
        found = None
        while True:
            sender, opcode, data = self._connection.receive()
            if sender == _CALLBACK:
                break
            if sender == _REGISTRY and opcode == 0:
                name, length = struct.unpack("=II", data[:8])
                if data[8 : 8 + length - 1].decode() == _MANAGER:
                    found = name
        if found is None:
            raise ProtocolError(f"the compositor has no {_MANAGER}")
        return found

    def move(self, x=0, y=0, steps=10):
        """Moves two fingers that far, one step each hundredth of a second. A test of speed must
        take real time."""
        for _ in range(steps):
            for axis, way in ((_HORIZONTAL, x), (_VERTICAL, y)):
                if way:
                    # The protocol's numbers say how far the view moves, not its content.
                    self._send(_POINTER_ID, 3, _now(), axis, _fixed(-way / steps))
                    self._source(_FINGER)
            self._end_frame()
            time.sleep(_FRAME_SECONDS)

    def _source(self, source):
        """Names the source of the axis before: Sway dies of a frame with axes of two sources."""
        self._send(_POINTER_ID, 5, source)

    def _end_frame(self):
        self._send(_POINTER_ID, 4)

    def lift(self):
        for axis in (_VERTICAL, _HORIZONTAL):
            self._send(_POINTER_ID, 6, _now(), axis)  # axis_stop
            self._source(_FINGER)
        self._end_frame()

    def rest(self, seconds=0.3):
        """Keeps the fingers where they are, so that a gesture ends without any speed."""
        time.sleep(seconds)

    def turn_wheel(self, axis, notches):
        """Turns a wheel with notches instead of moving fingers."""
        for _ in range(abs(notches)):
            direction = 1 if notches > 0 else -1
            way = struct.pack("=i", direction)
            self._send(_POINTER_ID, 7, _now(), axis, _fixed(15 * direction), way)  # axis_discrete
            self._source(_WHEEL)
            self._end_frame()
            time.sleep(_FRAME_SECONDS)

    def close(self):
        self._connection.close()


HORIZONTAL = _HORIZONTAL
VERTICAL = _VERTICAL


def _now():
    return int(time.monotonic() * 1000) & 0xFFFFFFFF
