"""Shared by all checks: the files of the repository, its tools, and how a problem is reported."""

import fnmatch
import functools
import os
import pathlib
import shutil
import subprocess
from concurrent.futures import ThreadPoolExecutor
from typing import NamedTuple, Optional

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/checks"
INSTALL = "./test --checks installs it, or: apt-get install"


class MissingTool(Exception):
    pass


class Problem(NamedTuple):
    path: str
    line: Optional[int]
    text: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.text}" if self.line else f"{self.path}: {self.text}"


def require(tool, package):
    if not shutil.which(tool):
        raise MissingTool(f"{tool} is missing. {INSTALL} {package}")


def output_of(*command, **options):
    """Returns what a command writes to both streams, and its exit status."""
    done = subprocess.run(command, cwd=ROOT, text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, errors="replace", check=False, **options)
    return done.stdout, done.returncode


def checked(*command, **options):
    """Returns what a command writes; raises MissingTool if it fails."""
    output, status = output_of(*command, **options)
    if status:
        raise MissingTool(f"{command[0]} failed: {output.strip()}")
    return output


def git(*arguments):
    """Returns the lines of a Git command, or None if there is no repository, as in an archive."""
    if not shutil.which("git"):
        return None
    # Git refuses to read a checkout of another user, as in a container, without safe.directory.
    command = ["git", "-c", f"safe.directory={ROOT}", "-c", "core.quotePath=false", *arguments]
    done = subprocess.run(command, cwd=ROOT, text=True, capture_output=True, check=False)
    return done.stdout.splitlines() if done.returncode == 0 else None


def walked():
    for folder, folders, names in os.walk(ROOT):
        folders[:] = [name for name in folders if name not in ("build", ".git", "__pycache__")]
        for name in names:
            yield os.path.relpath(os.path.join(folder, name), ROOT)


@functools.lru_cache(maxsize=None)
def all_files():
    """Returns the files that Git tracks, and the new ones that it does not ignore."""
    known = git("ls-files", "--cached", "--others", "--exclude-standard")
    there = walked() if known is None else known
    return sorted({path for path in there if (ROOT / path).is_file()})


def files(*patterns):
    return [path for path in all_files()
            if any(fnmatch.fnmatch(path, pattern) for pattern in patterns)]


@functools.lru_cache(maxsize=None)
def text_of(path):
    """Returns the text of a file, or None if it is a picture or another binary file."""
    try:
        return (ROOT / path).read_bytes().decode()
    except UnicodeDecodeError:
        return None


def lines_of(path):
    return enumerate((text_of(path) or "").split("\n"), 1)


def scripts_for(interpreter, *patterns):
    """Returns the files of these patterns, and those without a suffix that begin with the
    interpreter."""
    def is_script(path):
        first = (text_of(path) or "").split("\n", 1)[0]
        return first.startswith("#!") and interpreter in first
    bare = [path for path in all_files() if "." not in path.rsplit("/", 1)[-1] and is_script(path)]
    return sorted({*files(*patterns), *bare})


def side_by_side(function, values):
    with ThreadPoolExecutor(max_workers=os.cpu_count() or 2) as pool:
        return list(pool.map(function, values))


def configure():
    """Configures build/checks, which is never built. Returns the problem if that fails."""
    require("cmake", "cmake")
    output, status = output_of("cmake", "--preset", "checks")
    if status:
        return [Problem("CMakePresets.json", None,
                        f"the preset checks cannot be configured:\n{output[-3000:]}")]
    return []
