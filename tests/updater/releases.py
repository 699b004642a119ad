"""Makes releases to update to, and feeds that offer them, valid and invalid ones."""

import datetime
import io
import platform
import shutil
import subprocess
import sys
import tarfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "packaging"))

import releasing  # noqa: E402

SYSTEM = f"linux-{platform.machine()}"
OLD = "1.0"
NEW = "1.1"
NOW = datetime.datetime(2026, 11, 21, 12, tzinfo=datetime.timezone.utc)


def compressed(archive):
    return subprocess.run(
        ["zstd", "--quiet", "--stdout"], input=archive, check=True, stdout=subprocess.PIPE
    ).stdout


def make_tree(folder, version, programs):
    """Makes a tree called `folder`. `programs` maps places to the path of a file to copy, or to a
    text."""
    folder = Path(folder)
    for place, program in programs.items():
        target = folder / place
        target.parent.mkdir(parents=True, exist_ok=True)
        if isinstance(program, Path):
            shutil.copy(program, target)
        else:
            target.write_text(program)
            target.chmod(0o755)
    releasing.describe_release(folder, version, SYSTEM)
    releasing.write_manifest(folder)
    return folder


def make_archive(folder, version, programs, change=None):
    """Returns the bytes of a release; `change` is called with its tree before it is packed."""
    tree = make_tree(Path(folder, "vantle"), version, programs)
    if change:
        change(tree)
    archive = Path(folder, "archive.tar.zst")
    releasing.pack(tree, archive, effort=1)
    contents = archive.read_bytes()
    shutil.rmtree(tree)
    archive.unlink()
    return contents


def hand_made_archive(*entries):
    """Returns an archive of (tarfile.TarInfo, contents) pairs."""
    memory = io.BytesIO()
    with tarfile.open(fileobj=memory, mode="w", format=tarfile.PAX_FORMAT) as archive:
        for info, contents in entries:
            info.size = len(contents)
            archive.addfile(info, io.BytesIO(contents))
    return compressed(memory.getvalue())


def entry(name, contents=b"", kind=tarfile.REGTYPE, link=""):
    info = tarfile.TarInfo(name)
    info.type = kind
    info.linkname = link
    info.mode = 0o755
    return info, contents


class Publisher:
    """Puts signed releases onto a server."""

    def __init__(self, server, key, folder):
        self._server = server
        self._key = key
        self._folder = Path(folder)

    def save(self, archive, name="archive.tar.zst"):
        self._server.save(name, archive)
        path = self._folder / name
        path.write_bytes(archive)
        return path

    def feed(self, archive, version, feed=b"", address=None, **details):
        """Returns the bytes of a feed with one more item."""
        details.setdefault("date", NOW)
        path = self.save(archive)
        return releasing.add_item(
            feed, path, address or self._server.address(path.name), self._key, version,
            details.pop("platform", SYSTEM), **details,
        )

    def publish(self, *arguments, **details):
        """Saves a feed with that release onto the server, and returns its address."""
        return self.save_feed(self.feed(*arguments, **details))

    def save_feed(self, contents):
        self._server.save("appcast.xml", contents)
        return self._server.address("appcast.xml")

    def signed(self, xml):
        return releasing.sign_feed(xml, self._key)

    def changed(self, feed, old, new):
        """Returns the feed with a change in it, signed again."""
        xml = releasing.SIGNATURE_COMMENT.sub(b"", feed)
        assert old in xml
        return self.signed(xml.replace(old, new))
