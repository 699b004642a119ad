"""HEIC and AVIF samples, made by libheif's tool."""

import struct
import subprocess

from picture import HUGE, quarters

CODECS = {"heic": (), "avif": ("-A",)}


def encode(codec, picture, out):
    subprocess.run(["heif-enc", *CODECS[codec], "-q", "95", picture, "-o", out], check=True,
                   stdout=subprocess.DEVNULL)


def write_honest(folder, codec):
    picture = folder / "encoded.png"
    translucent = quarters().convert("RGBA")
    translucent.putalpha(128)
    images = {"quarters": quarters(), "large": quarters(1000, 750), "translucent": translucent}
    for name, image in images.items():
        image.save(picture)
        encode(codec, picture, folder / f"{name}.{codec}")
    picture.unlink()
    encode(codec, folder / "profile.png", folder / f"profile.{codec}")


def write_damaged(folder, codec):
    good = (folder / f"quarters.{codec}").read_bytes()
    (folder / f"cut.{codec}").write_bytes(good[:len(good) // 2])
    huge = bytearray(good)
    start = huge.index(b"ispe") + 8
    huge[start:start + 8] = struct.pack(">II", HUGE, HUGE)
    (folder / f"huge.{codec}").write_bytes(huge)


def write_heifs(folder):
    """Writes the samples; must run after the samples of profiles, because it encodes one of
    them."""
    for codec in CODECS:
        write_honest(folder, codec)
        write_damaged(folder, codec)
