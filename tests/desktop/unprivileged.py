"""Programs that may not do everything, although root runs the tests."""

import os

# Root reads everything, unless it gives up the right to.
_RIGHTS = "-dac_override,-dac_read_search"


def unprivileged(binary):
    """The command that starts the binary as one whom permissions hold back."""
    if os.geteuid() != 0:
        return binary
    return ["setpriv", "--bounding-set", _RIGHTS, "--inh-caps", _RIGHTS, binary]
