"""Vantle as a process on a private desktop: its settings, its log, its end."""

import os
import pathlib
import re
import signal
import subprocess

from . import processes
from .waiting import wait_until, wait_until_still

_DEBUG = "Vantle[dbg]: "
# Otherwise the folder would be that of the installed screenshot tool.
_SETTINGS_KEYS_AT_HAND = {"hasCompletedOnboarding": "true", "screenshotTool": "none"}


class Program:
    """One run of Vantle. Its log is its standard error, kept in a file.

    The binary may be a list: a program that starts Vantle, with its arguments.
    """

    def __init__(self, binary, desktop, environment=None, name="vantle"):
        self._desktop = desktop
        self._command = [binary] if isinstance(binary, (str, os.PathLike)) else list(binary)
        wanted = {**desktop.environment, "VANTLE_DEBUG": "1", **(environment or {})}
        # A value of None removes the variable.
        self._environment = {name: text for name, text in wanted.items() if text is not None}
        self._log = desktop.log_folder / f"{name}.log"
        self._process = None

    @property
    def pid(self):
        return self._process.pid

    @property
    def config_folder(self):
        return pathlib.Path(self._environment["XDG_CONFIG_HOME"], "vantle")

    @property
    def settings_file(self):
        return self.config_folder / "vantle.conf"

    @property
    def log_file(self):
        return self._log

    def write_settings(self, **values):
        """Writes the settings that the program reads at its next start; None leaves a setting
        out."""
        lines = {**_SETTINGS_KEYS_AT_HAND, **values}
        text = "".join(f"{key}={value}\n" for key, value in lines.items() if value is not None)
        self.config_folder.mkdir(parents=True, exist_ok=True)
        self.settings_file.write_text("[General]\n" + text)

    def start(self):
        self._process = processes.start(self._command, self._environment, self._log)
        return self

    def command(self, *arguments, limit=60.0, environment=None):
        """Starts it with arguments, waits for its end, and returns (exit status, output)."""
        wanted = {**self._environment, **(environment or {})}
        ended = subprocess.run(
            [*self._command, *arguments],
            env={name: text for name, text in wanted.items() if text is not None},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=limit,
            check=False,
        )
        return ended.returncode, ended.stdout.decode("utf-8", "replace")

    def start_watching(self, limit=20.0):
        """Starts it and waits until it treats newly saved files as new.

        The program may begin to watch more than once during its start; files saved in between count
        as old.
        """
        self.start()
        self.wait_for_log(r"^Vantle\[dbg\]: watching ", limit=limit)
        wait_until_still(self.log_text, "the launch", interval=0.05)
        return self

    def is_running(self):
        return self._process is not None and self._process.poll() is None

    def log_text(self):
        if not self._log.exists():
            return ""
        return self._log.read_bytes().decode("utf-8", "surrogateescape")

    def log_lines(self):
        return self.log_text().splitlines()

    def exit_status(self):
        """Returns None while it runs; a negative number is the signal that ended it."""
        return self._process.poll()

    def wait_for_log(self, pattern, times=1, limit=20.0):
        """Waits until the pattern is in the log so many times; fails at once if the program
        ended."""
        expression = re.compile(pattern, re.MULTILINE)

        def stands_there():
            found = len(expression.findall(self.log_text())) >= times
            assert found or self.is_running(), self._end_report()
            return found

        wait_until(stands_there, f"the log has {times} x {pattern}", limit)

    def _end_report(self):
        return f"Vantle ended with status {self.exit_status()}, its log says:\n{self.log_text()}"

    def captured(self):
        """Returns the names of the captures added so far, in order."""
        start = _DEBUG + "captured "
        return [line[len(start) :] for line in self.log_lines() if line.startswith(start)]

    def shown_counts(self):
        """Returns how many captures the panel held after each one that was added."""
        shows = r"^Vantle\[dbg\]: panel shows (\d+) capture"
        found = re.findall(shows, self.log_text(), re.MULTILINE)
        return [int(number) for number in found]

    def voluntary_switches(self):
        """Returns how often its threads have waited for something so far."""
        total = 0
        for task in self._threads():
            for line in (task / "status").read_text().splitlines():
                if line.startswith("voluntary_ctxt_switches"):
                    total += int(line.split()[1])
        return total

    def has_thread(self, name):
        return any((task / "comm").read_text().strip() == name for task in self._threads())

    def _threads(self):
        return pathlib.Path("/proc", str(self.pid), "task").iterdir()

    def proportional_memory(self):
        """Returns the PSS in KiB."""
        for line in pathlib.Path("/proc", str(self.pid), "smaps_rollup").read_text().splitlines():
            if line.startswith("Pss:"):
                return int(line.split()[1])
        raise RuntimeError("smaps_rollup without Pss")

    def signal(self, number):
        os.kill(self.pid, number)

    def kill(self):
        self.signal(signal.SIGKILL)
        self._process.wait()

    def wait_for_end(self, limit=20.0):
        """Waits for its end and returns its exit status."""
        wait_until(lambda: not self.is_running(), "Vantle ends", limit)
        return self.exit_status()

    def stop(self):
        if self._process is None:
            return None
        return processes.end(self._process)
