"""Makes a release of a few hundred kilobytes that compression does not reduce."""

import random
import sys
import tempfile
from pathlib import Path

from releases import make_archive

noise = random.Random(7)
with tempfile.TemporaryDirectory() as folder:
    names = ["vantle", "vantle-updater", *(f"program-{i}" for i in range(6))]
    programs = {f"bin/{name}": noise.randbytes(20_000).hex() for name in names}
    Path(sys.argv[1]).write_bytes(make_archive(folder, "1.1", programs))
