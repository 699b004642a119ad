"""What the kernel says of a process, and what stands in the way of measuring it alone."""

import os
import pathlib
import re

MEMORY_KINDS = {
    "Pss": "all", "Pss_Anon": "anonymous", "Pss_File": "of files", "Pss_Shmem": "shared",
}  # fmt: skip


def memory(pid):
    """The proportional memory in MiB: all of it, and what it is made of."""
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
    """How many inotify watches it has."""
    count = 0
    for entry in pathlib.Path("/proc", str(pid), "fdinfo").iterdir():
        try:
            count += entry.read_text().count("\ninotify wd:")
        except FileNotFoundError:
            # Closed meanwhile.
            continue
    return count


def descendants(pid):
    """How many processes it has started that run."""
    children = pathlib.Path("/proc", str(pid), "task").glob("*/children")
    return sum(len(entry.read_text().split()) for entry in children)


def sharers(pid, library="libQt6Core"):
    """The numbers of the other processes that have the library in memory, and so a share of it."""
    found = []
    for name in filter(str.isdigit, os.listdir("/proc")):
        if int(name) == pid:
            continue
        try:
            text = pathlib.Path("/proc", name, "maps").read_text()
        except (FileNotFoundError, ProcessLookupError, PermissionError):
            # It ended meanwhile, or belongs to somebody else.
            continue
        if re.search(library, text):
            found.append(int(name))
    return found
