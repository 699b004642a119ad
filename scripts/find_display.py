#!/usr/bin/python3
"""Prints the display that answers and exits with 0, or prints why none does and exits with 1."""

import os
import pathlib
import socket
import sys


def wayland_problem(name):
    path = pathlib.Path(os.environ.get("XDG_RUNTIME_DIR", "/nonexistent"), name)
    try:
        with socket.socket(socket.AF_UNIX) as connection:
            connection.settimeout(5)
            connection.connect(str(path))
    except OSError as error:
        return f"WAYLAND_DISPLAY={name} does not answer: {error.strerror or error}"
    return None


def x11_problem(name):
    from Xlib import display, error

    try:
        display.Display(name).close()
    except (error.DisplayError, error.ConnectionClosedError, OSError) as problem:
        return f"DISPLAY={name} does not answer: {str(problem).strip()}"
    return None


def main():
    problems = []
    for variable, find_problem in (("WAYLAND_DISPLAY", wayland_problem), ("DISPLAY", x11_problem)):
        name = os.environ.get(variable)
        if not name:
            continue
        problem = find_problem(name)
        if problem is None:
            print(f"{variable}={name}")
            return 0
        problems.append(problem)
    print("; ".join(problems) or "neither DISPLAY nor WAYLAND_DISPLAY is set")
    return 1


sys.exit(main())
