"""Reads what the kernel says about a process, and finds the processes that distort it."""

import os
import pathlib
import re

MEMORY_KINDS = {
    "Pss": "all", "Pss_Anon": "anonymous", "Pss_File": "of files", "Pss_Shmem": "shared",
}  # fmt: skip


def memory(pid):
    """Returns the proportional memory in MiB: the total and its parts."""
    found = {}
    for line in pathlib.Path("/proc", str(pid), "smaps_rollup").read_text().splitlines():
        name, _, value = line.partition(":")
        if name in MEMORY_KINDS:
            found[MEMORY_KINDS[name]] = int(value.split()[0]) / 1024
    return found


def descriptors(pid):
    return len(os.listdir(f"/proc/{pid}/fd"))


def threads(pid):
    return len(os.listdir(f"/proc/{pid}/task"))


def watches(pid):
    """Returns the number of its inotify watches."""
    count = 0
    for entry in pathlib.Path("/proc", str(pid), "fdinfo").iterdir():
        try:
            count += entry.read_text().count("\ninotify wd:")
        except FileNotFoundError:
            # The descriptor was closed meanwhile.
            continue
    return count


def children(pid):
    """Returns its running child processes."""
    lists = pathlib.Path("/proc", str(pid), "task").glob("*/children")
    return [int(child) for entry in lists for child in entry.read_text().split()]


def sharers(pid, library="libQt6Core"):
    """Returns the other processes that have the library in memory, and so share its pages."""
    found = []
    for name in filter(str.isdigit, os.listdir("/proc")):
        if int(name) == pid:
            continue
        try:
            text = pathlib.Path("/proc", name, "maps").read_text()
        except (FileNotFoundError, ProcessLookupError, PermissionError):
            # The process ended meanwhile, or belongs to another user.
            continue
        if re.search(library, text):
            found.append(int(name))
    return found
