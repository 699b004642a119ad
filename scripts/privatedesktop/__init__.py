"""A private X desktop of its own, and eyes and hands for it.

./run starts Vantle on it where there is no display, and the desktop tests drive Vantle on it.
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
