"""Waits for conditions instead of for a fixed time."""

import time


class WaitTimeout(AssertionError):
    """A condition did not become true within its limit."""


def wait_until(condition, what, limit=20.0, interval=0.02):
    """Returns the first true value of condition(); raises WaitTimeout after limit seconds."""
    end = time.monotonic() + limit
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() >= end:
            raise WaitTimeout(f"waited {limit:g} s in vain: {what}")
        time.sleep(interval)


def ensure_never(condition, what, seconds, interval=0.02):
    """Fails if condition() becomes true within the given time."""
    try:
        wait_until(condition, what, limit=seconds, interval=interval)
    except WaitTimeout:
        return
    raise AssertionError(f"should not have happened: {what}")


def wait_until_still(read, what, readings=6, limit=20.0, interval=0.1):
    """Returns the value of read() when it has been the same several times in a row."""
    same = 0
    last = read()

    def is_still():
        nonlocal same, last
        value = read()
        same = same + 1 if value == last else 0
        last = value
        return same >= readings

    wait_until(is_still, f"{what} comes to rest", limit, interval)
    return last
