"""A folder on a server that never answers."""

import contextlib
import ctypes
import os

_LIBC = ctypes.CDLL(None, use_errno=True)
_DETACH = 2


@contextlib.contextmanager
def mounted_on(path):
    """Mounts it on `path`, and yields true if that is permitted. Until the end every access to
    `path` blocks."""
    # The kernel passes each request on, and nobody ever reads it.
    device = os.open("/dev/fuse", os.O_RDWR) if os.access("/dev/fuse", os.W_OK) else -1
    options = f"fd={device},rootmode=40000,user_id=0,group_id=0".encode()
    target = os.fsencode(path)
    is_mounted = device >= 0 and _LIBC.mount(b"server", target, b"fuse.server", 0, options) == 0
    try:
        yield is_mounted
    finally:
        if is_mounted:
            _LIBC.umount2(target, _DETACH)
        if device >= 0:
            os.close(device)  # blocked accesses fail
