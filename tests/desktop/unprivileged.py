"""Starts programs without root's rights, although root runs the tests."""

import os

# Root can read everything unless it drops these capabilities.
_RIGHTS = "-dac_override,-dac_read_search"


def unprivileged(binary):
    """Returns the command that starts the binary so that file permissions apply to it."""
    if os.geteuid() != 0:
        return binary
    return ["setpriv", "--bounding-set", _RIGHTS, "--inh-caps", _RIGHTS, binary]
