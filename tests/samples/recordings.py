"""HEIC and recording samples, made by the tools of others."""

import struct
import subprocess
from pathlib import Path

from picture import HEIGHT, WIDTH, quarters

RATE = 30
COLORS = {"red": 0.4, "lime": 0.4, "blue": 9.2}


def ffmpeg(*arguments):
    subprocess.run(["ffmpeg", "-nostdin", "-loglevel", "error", "-y", *map(str, arguments)],
                   check=True)


def changing_colors(folder):
    """10 s: red, from 0.4 s green, from 0.8 s blue; one key frame."""
    inputs = []
    for color, seconds in COLORS.items():
        inputs += ["-f", "lavfi", "-i", f"color={color}:s={WIDTH}x{HEIGHT}:r={RATE}:d={seconds}"]
    ffmpeg(*inputs, "-filter_complex", "concat=n=3", "-pix_fmt", "yuv420p", "-g", 1000,
           folder / "colors.mp4")


def still(folder, name, seconds, *options):
    picture = folder / "recorded.png"
    quarters().save(picture)
    ffmpeg("-loop", 1, "-framerate", RATE, "-i", picture, "-t", seconds, "-pix_fmt", "yuv420p",
           *options, folder / name)
    picture.unlink()


def turned(folder):
    """Stored lying on its left side, with the order to turn it upright: the matrix of its track."""
    still(folder, "lying.mov", 1, "-vf", "transpose=cclock")
    data = bytearray((folder / "lying.mov").read_bytes())
    start = data.index(b"tkhd") + 44
    data[start:start + 36] = struct.pack(">9i", 0, 1 << 16, 0, -1 << 16, 0, 0, 0, 0, 1 << 30)
    (folder / "portrait.mov").write_bytes(data)


def sound(folder):
    ffmpeg("-f", "lavfi", "-i", "sine=d=2", "-f", "mp4", folder / "sound.m4v")


def without_duration(folder):
    """Fragments, and a header that does not know how many will come."""
    still(folder, "fragments.mp4", 2, "-movflags", "frag_keyframe+empty_moov+default_base_moof")


def lying_index(folder):
    """The table of where the frames are points behind the end of the file."""
    data = bytearray((folder / "ten_seconds.mp4").read_bytes())
    start = data.index(b"stco") + 8
    count = struct.unpack(">I", data[start:start + 4])[0]
    for i in range(count):
        at = start + 4 + 4 * i
        data[at:at + 4] = struct.pack(">I", 0xffff_0000 + i)
    (folder / "lying_index.mp4").write_bytes(data)


def long_index(folder):
    """The table of sizes says that there are four thousand million frames."""
    data = bytearray((folder / "ten_seconds.mp4").read_bytes())
    start = data.index(b"stsz") + 12
    data[start:start + 4] = b"\xff\xff\xff\xff"
    (folder / "long_index.mp4").write_bytes(data)


def write_recordings(folder):
    changing_colors(folder)
    still(folder, "ten_seconds.mp4", 10)
    still(folder, "short.mov", 0.4)
    still(folder, "prores.mov", 0.5, "-c:v", "prores_ks", "-pix_fmt", "yuva444p10le")
    still(folder, "wide_pixels.mp4", 1, "-vf", "setsar=2")
    turned(folder)
    sound(folder)
    without_duration(folder)
    lying_index(folder)
    long_index(folder)
    (folder / "cut.mp4").write_bytes((folder / "ten_seconds.mp4").read_bytes()[:2000])


def write_heics(folder):
    picture = Path(folder) / "encoded.png"
    for name, image in (("quarters", quarters()), ("large", quarters(1000, 750))):
        image.save(picture)
        subprocess.run(["heif-enc", "-q", "95", picture, "-o", folder / f"{name}.heic"],
                       check=True, stdout=subprocess.DEVNULL)
    translucent = quarters().convert("RGBA")
    translucent.putalpha(128)
    translucent.save(picture)
    subprocess.run(["heif-enc", "-q", "95", picture, "-o", folder / "translucent.heic"],
                   check=True, stdout=subprocess.DEVNULL)
    picture.unlink()
    good = (folder / "quarters.heic").read_bytes()
    (folder / "cut.heic").write_bytes(good[:len(good) // 2])
