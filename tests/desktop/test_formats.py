"""Every kind of capture has its picture on the card."""

import subprocess

import pytest

from panel_checks import shows_tile
from pictures import pattern
from privatedesktop import wait_until


def encode(name, folder):
    """Writes the pattern in the format of that name, outside the watched folder."""
    path, picture = folder / name, folder / "picture.png"
    if path.suffix in (".heic", ".avif", ".mov", ".mp4", ".m4v", ".webm", ".mkv"):
        pattern().save(picture)
        command = {
            ".heic": ["heif-enc", picture, "-o", path],
            ".avif": ["heif-enc", "-A", picture, "-o", path],
        }.get(path.suffix, ["ffmpeg", "-nostdin", "-loglevel", "error", "-loop", "1", "-i", picture,
                            "-t", "2", "-pix_fmt", "yuv420p", path])
        subprocess.run([str(part) for part in command], check=True, stdout=subprocess.DEVNULL)
    else:
        pattern().save(path)
    return path.read_bytes()


@pytest.mark.parametrize(
    "name", ["shot.png", "shot.jpg", "shot.jpeg", "shot.heic", "shot.tiff", "shot.tif", "shot.gif",
             "shot.pdf", "shot.webp", "shot.avif", "clip.mov", "clip.mp4", "clip.m4v", "clip.webm",
             "clip.mkv"])  # fmt: skip
def test_every_kind_has_its_picture(desktop, vantle, folder, tmp_path, name):
    vantle.start_watching()
    folder.move_in(name, encode(name, tmp_path))
    folder.wait_for(name)
    panel = wait_until(desktop.screen.panel, "the panel appears")
    wait_until(lambda: shows_tile(desktop, panel.frame), "the tile shows the picture")
