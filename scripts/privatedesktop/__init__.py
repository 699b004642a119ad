"""A private X desktop, with functions to look at it and to use it.

./run starts Vantle on it if there is no display, and the desktop tests drive Vantle on it.
"""

from .desktop import DesktopFailure, PrivateDesktop
from .program import Program
from .screen import Rectangle, Screen, Window
from .waiting import WaitTimeout, ensure_never, wait_until, wait_until_still

__all__ = [
    "DesktopFailure",
    "PrivateDesktop",
    "Program",
    "Rectangle",
    "Screen",
    "WaitTimeout",
    "Window",
    "ensure_never",
    "wait_until",
    "wait_until_still",
]
