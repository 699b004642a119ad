"""Makes copies of the program that a test may change."""

import pathlib
import shutil

_PARTS = ("bin/vantle*", "lib/vantle/*/*", "share/vantle/*/*")


def copy_program(binary, folder):
    """Copies Vantle with everything that it starts and loads, and returns the path of the
    program."""
    build = pathlib.Path(binary).parents[1]
    for part in (path for parts in _PARTS for path in build.glob(parts)):
        copy = folder / part.relative_to(build)
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(part, copy)
    return folder / "bin/vantle"
