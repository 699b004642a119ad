"""Runs two programs in turn, as whole processes."""

import statistics
import subprocess
import tempfile
import time
from pathlib import Path

from .peers import KINDS


def run_once(command, out):
    """Returns the milliseconds that the command takes, or None if it makes no picture."""
    Path(out).unlink(missing_ok=True)
    begin = time.perf_counter()
    result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)
    elapsed = (time.perf_counter() - begin) * 1000
    return elapsed if result.returncode == 0 and Path(out).exists() else None


def peak_memory(command, folder):
    """Returns the peak memory, in KiB, of the largest of the command's processes. A small program
    starts it, because a process inherits the peak of the process that started it."""
    report = folder / "memory"
    subprocess.run(["/usr/bin/time", "-f", "%M", "-o", report, *command], stdin=subprocess.DEVNULL,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    return int(report.read_text())


def medians(commands, out, rounds):
    """Returns each command's median milliseconds. Runs the commands in turn, after one round to
    warm up. Returns None if one of them makes no picture."""
    times = [[] for _ in commands]
    for number in range(rounds + 1):
        for command, list_of_times in zip(commands, times):
            elapsed = run_once(command, out)
            if elapsed is None:
                return None
            if number > 0:
                list_of_times.append(elapsed)
    return [statistics.median(one) for one in times]


def compare(file, our, peer, rounds):
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        out = str(folder / "out.png")
        commands = [our.command(str(file), out), peer.command(str(file), out)]
        milliseconds = medians(commands, out, rounds)
        if milliseconds is None:
            return None
        ours_kib, peer_kib = (peak_memory(command, folder) for command in commands)
    ours_ms, peer_ms = milliseconds
    return {
        "file": file.name,
        "kind": KINDS[file.suffix[1:].lower()],
        "peer": peer.name,
        "ours_ms": round(ours_ms, 2),
        "peer_ms": round(peer_ms, 2),
        "ratio": round(peer_ms / ours_ms, 2),
        "ours_kib": ours_kib,
        "peer_kib": peer_kib,
    }
