"""Starts processes that end with us, and ends processes by their number."""

import ctypes
import os
import signal
import subprocess
import time

_PR_SET_PDEATHSIG = 1
_libc = ctypes.CDLL(None, use_errno=True)


def _end_with_parent():
    _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


def start(arguments, environment, log, **options):
    """Starts a process in its own session (Ctrl-C reaches only us), which writes to a log file."""
    with open(log, "ab") as output:
        return subprocess.Popen(
            arguments,
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=output,
            stderr=output,
            start_new_session=True,
            preexec_fn=_end_with_parent,
            **options,
        )


def end(process, limit=5.0):
    """Asks a process to end, and kills it after the limit. Returns its exit status."""
    if process.poll() is None:
        process.terminate()
        try:
            return process.wait(limit)
        except subprocess.TimeoutExpired:
            process.kill()
    return process.wait()


def marked(variable, value):
    """Returns the numbers of all processes that inherited variable=value in their environment."""
    wanted = f"{variable}={value}".encode()
    found = []
    for name in os.listdir("/proc"):
        if not name.isdigit() or int(name) == os.getpid():
            continue
        try:
            with open(f"/proc/{name}/environ", "rb") as file:
                if wanted in file.read().split(b"\0"):
                    found.append(int(name))
        except OSError:
            # The process ended meanwhile, or belongs to another user.
            continue
    return found


def running(program, home):
    """Returns the numbers of the processes of that program on the desktop with that home."""
    path = os.path.realpath(program)
    return [number for number in marked("HOME", home) if _executable(number) == path]


def end_marked(variable, value, limit=3.0):
    """Ends processes that others started on our behalf: services of the session bus, background
    helpers."""
    for number in (signal.SIGTERM, signal.SIGKILL):
        end_time = time.monotonic() + limit
        while found := marked(variable, value):
            for pid in found:
                try:
                    os.kill(pid, number)
                except ProcessLookupError:
                    continue
            if time.monotonic() > end_time:
                break
            time.sleep(0.02)


def _executable(number):
    try:
        return os.readlink(f"/proc/{number}/exe")
    except OSError:
        # The process ended meanwhile.
        return None
