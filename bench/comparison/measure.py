"""Runs two programs in turn, as whole processes."""

import statistics
import subprocess
import tempfile
import time
from pathlib import Path

from .peers import KINDS


def run_once(command, out):
    """Milliseconds; None when the program made no picture."""
    Path(out).unlink(missing_ok=True)
    begin = time.perf_counter()
    result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)
    elapsed = (time.perf_counter() - begin) * 1000
    return elapsed if result.returncode == 0 and Path(out).exists() else None


def peak_memory(command, folder):
    """In KiB, of the largest of a program's processes. A small program starts it, because a process
    counts as its own what its parent took before it."""
    report = folder / "memory"
    subprocess.run(["/usr/bin/time", "-f", "%M", "-o", report, *command], stdin=subprocess.DEVNULL,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    return int(report.read_text())


def medians(commands, out, rounds):
    """Of each command, run alternately after one round that only warms up; None when one of them
    made no picture."""
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
