"""Runs two programs in turn, as whole processes."""

import os
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

from .peers import KINDS


def run_once(command, out):
    """Milliseconds, and the peak memory in KiB of the largest of its processes. None when the
    program made no picture."""
    Path(out).unlink(missing_ok=True)
    begin = time.perf_counter()
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    elapsed = (time.perf_counter() - begin) * 1000
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0 or not Path(out).exists():
        return None
    return elapsed, usage.ru_maxrss


def compare(file, our, peer, rounds):
    """The medians of both, run alternately after one round that only warms up."""
    with tempfile.TemporaryDirectory() as folder:
        out = str(Path(folder) / "out.png")
        commands = [our.command(str(file), out), peer.command(str(file), out)]
        results = [[], []]
        for number in range(rounds + 1):
            for command, list_of_results in zip(commands, results):
                result = run_once(command, out)
                if result is None:
                    return None
                if number > 0:
                    list_of_results.append(result)
    ours_ms, peer_ms = (statistics.median(ms for ms, _ in one) for one in results)
    ours_kib, peer_kib = (max(kib for _, kib in one) for one in results)
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
