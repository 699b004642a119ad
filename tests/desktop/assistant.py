"""A screen reader for the tests: reads Vantle's windows and operates them."""

import json
import pathlib
import subprocess

from privatedesktop import wait_until

_PROGRAM = pathlib.Path(__file__).with_name("assistive_program.py")
# Without this, the program offers itself to screen readers only if one runs.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


class Assistant:
    """Starts its program with the first question; the program ends with the desktop."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._process = None

    def _ask(self, *command):
        if self._process is None:
            self._process = subprocess.Popen(
                ["/usr/bin/python3", str(_PROGRAM)], env=self._desktop.environment,
                stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
            )  # fmt: skip
        self._process.stdin.write(json.dumps(command) + "\n")
        self._process.stdin.flush()
        return json.loads(self._process.stdout.readline())

    def _read(self, *command):
        answers = []

        def is_answered():
            answers.append(self._ask(*command))
            return answers[-1] is not None

        wait_until(is_answered, "nothing leaves a window while it is read")
        return answers[-1]

    def found(self):
        """Returns what is on the windows; each thing has a name, role, description, states and
        actions."""
        return self._read("list")

    def find(self, name):
        """Returns the things of that name."""
        return self._read("find", name)

    def wait_for(self, name):
        wait_until(lambda: name in self.names(), f"the assistant finds {name}")

    def names(self):
        return self._read("names")

    def in_state(self, state):
        """Returns the names of the captures in that state."""
        return [
            item["name"]
            for item in self.found()
            if item["role"] == "list item" and state in item["states"]
        ]

    def act(self, name, action="Press"):
        assert self._ask("act", name, action), f"cannot {action} {name}"

    def set_value(self, name, value):
        assert self._ask("set", name, value), f"cannot set {name} to {value}"
