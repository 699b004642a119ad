"""A screen reader for the tests: what it finds on the card, and what it does there."""

import json
import pathlib
import subprocess

from privatedesktop import wait_until

_TRY_AGAIN = 75
_PROGRAM = pathlib.Path(__file__).with_name("assistive_program.py")
# The program offers itself to screen readers only where one runs, or where it is told to.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


class Assistant:
    def __init__(self, desktop):
        self._desktop = desktop

    def found(self):
        """What is on the card; each thing has a name, role, description, states and actions."""
        return json.loads(wait_until(self._list, "nothing leaves the card while it is read"))

    def _list(self):
        done = self._desktop.run("/usr/bin/python3", str(_PROGRAM), "list", check=False)
        assert done.returncode in (0, _TRY_AGAIN), done.stdout.decode()
        return done.stdout if done.returncode == 0 else None

    def wait_for(self, name):
        wait_until(lambda: name in self.names(), f"the assistant finds {name}")

    def names(self):
        return [item["name"] for item in self.found()]

    def in_state(self, state):
        """The names of the captures in that state."""
        return [
            item["name"]
            for item in self.found()
            if item["role"] == "list item" and state in item["states"]
        ]

    def act(self, name, action="Press"):
        self._do("act", name, action)

    def set_value(self, name, value):
        self._do("set", name, str(value))

    def _do(self, *what):
        try:
            self._desktop.run("/usr/bin/python3", str(_PROGRAM), *what)
        except subprocess.CalledProcessError as error:
            raise AssertionError(f"{what}: {error.stdout.decode()}") from error
