"""Samples of recordings, made by ffmpeg."""

import struct
import subprocess

from picture import HEIGHT, WIDTH, quarters

RATE = 30
COLORS = {"red": 0.4, "lime": 0.4, "blue": 9.2}


def ffmpeg(*arguments):
    subprocess.run(["ffmpeg", "-nostdin", "-loglevel", "error", "-y", *map(str, arguments)],
                   check=True)


def changing_colors(folder):
    """Writes 10 s with one key frame: red, green from 0.4 s on, blue from 0.8 s on."""
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
    """Writes a recording that lies on its left side, with a display matrix that turns it
    upright."""
    still(folder, "lying.mov", 1, "-vf", "transpose=cclock")
    data = bytearray((folder / "lying.mov").read_bytes())
    start = data.index(b"tkhd") + 44
    data[start:start + 36] = struct.pack(">9i", 0, 1 << 16, 0, -1 << 16, 0, 0, 0, 0, 1 << 30)
    (folder / "portrait.mov").write_bytes(data)


def sound(folder):
    ffmpeg("-f", "lavfi", "-i", "sine=d=2", "-f", "mp4", folder / "sound.m4v")


def without_duration(folder):
    """Writes fragments with a header that does not know how many will follow."""
    still(folder, "fragments.mp4", 2, "-movflags", "frag_keyframe+empty_moov+default_base_moof")


VP8 = ("-c:v", "libvpx", "-b:v", "2M", "-deadline", "realtime", "-cpu-used", "8")
VP9 = ("-c:v", "libvpx-vp9", "-b:v", "2M", "-deadline", "realtime", "-cpu-used", "8")
AV1 = ("-c:v", "libaom-av1", "-b:v", "2M", "-usage", "realtime", "-cpu-used", "8")


def matroska(folder):
    """Writes what recorders of Wayland desktops write, with each codec that they use."""
    still(folder, "vp8.webm", 10, *VP8)
    still(folder, "vp9.webm", 0.5, *VP9)
    still(folder, "translucent.webm", 0.5, *VP9, "-pix_fmt", "yuva420p")
    still(folder, "av1.webm", 0.5, *AV1)
    still(folder, "h264.mkv", 1)
    still(folder, "wide_pixels.mkv", 1, "-vf", "setsar=2")
    ffmpeg("-i", folder / "colors.mp4", *VP8, "-g", 1000, folder / "colors.webm")
    ffmpeg("-f", "lavfi", "-i", "sine=d=2", "-c:a", "libopus", folder / "sound.webm")


def live(folder):
    """Writes a recording whose header has no duration and no index, as if it were streamed live,
    and the same file as it is left when the recorder is killed."""
    still(folder, "live.webm", 2, *VP8, "-g", 10, "-live", 1)
    data = (folder / "live.webm").read_bytes()
    (folder / "killed.webm").write_bytes(data[:len(data) * 3 // 4])
    (folder / "cut.webm").write_bytes(data[:300])


def lying_frames(folder):
    """Writes key frames that claim another size than their track: one that no decoder opens, and
    one that takes much memory for little data."""
    data = (folder / "vp8.webm").read_bytes()
    start = b"\x9d\x01\x2a"
    usual = start + struct.pack("<HH", WIDTH, HEIGHT)
    for name, side in (("huge_frames", 16_383), ("large_frames", 8000)):
        lying = data.replace(usual, start + struct.pack("<HH", side, side))
        (folder / f"{name}.webm").write_bytes(lying)


def lying_index(folder):
    """Writes an index that points beyond the end of the file."""
    data = bytearray((folder / "ten_seconds.mp4").read_bytes())
    start = data.index(b"stco") + 8
    count = struct.unpack(">I", data[start:start + 4])[0]
    for i in range(count):
        at = start + 4 + 4 * i
        data[at:at + 4] = struct.pack(">I", 0xffff_0000 + i)
    (folder / "lying_index.mp4").write_bytes(data)


def long_index(folder):
    """Writes a table of sizes that claims four thousand million frames."""
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
    matroska(folder)
    live(folder)
    lying_frames(folder)
    lying_index(folder)
    long_index(folder)
    (folder / "cut.mp4").write_bytes((folder / "ten_seconds.mp4").read_bytes()[:2000])
