#!/usr/bin/python3
"""Measures the card's frames on private desktops at several scales, and prints them.

  bench/frame_times.py [--binary build/dev/bin/frame_times] [--scales 1,2] [--renderer opengl]
"""

import argparse
import pathlib
import sys

REPOSITORY = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(REPOSITORY / "scripts"))

from privatedesktop import PrivateDesktop  # noqa: E402

SCREEN = (1440, 900)


def measure(arguments, scale):
    size = tuple(int(side * float(scale)) for side in SCREEN)
    with PrivateDesktop(size=size) as desktop:
        desktop.environment["QT_SCALE_FACTOR"] = scale
        if arguments.renderer:
            desktop.environment["QSG_RHI_BACKEND"] = arguments.renderer
        return desktop.run(arguments.binary).stdout.decode()


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--binary", default=str(REPOSITORY / "build/dev/bin/frame_times"))
    parser.add_argument("--scales", default="1,2")
    parser.add_argument("--renderer", help="a renderer other than the software renderer")
    arguments = parser.parse_args()
    for scale in arguments.scales.split(","):
        print(measure(arguments, scale))


if __name__ == "__main__":
    main()
