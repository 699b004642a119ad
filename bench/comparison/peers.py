"""The programs that are measured, and the kinds of files that each of them opens."""

import shutil
from dataclasses import dataclass

KINDS = {
    "png": "png", "jpg": "jpeg", "jpeg": "jpeg", "gif": "gif", "tif": "tiff", "tiff": "tiff",
    "heic": "heic", "avif": "avif", "webp": "webp", "pdf": "pdf", "mov": "recording",
    "mp4": "recording", "m4v": "recording", "webm": "recording", "mkv": "recording",
}  # fmt: skip
IMAGES = frozenset(KINDS.values()) - {"recording", "pdf"}
MOST = 800


@dataclass
class Peer:
    name: str
    kinds: frozenset
    command: object  # takes the file and the output path, returns the command as a list of words
    program: str

    def is_installed(self):
        return shutil.which(self.program) is not None


def ours(decoder):
    return Peer("vantle-decoder", frozenset(KINDS.values()),
                lambda file, out: [decoder, "--thumbnail", file, out, "--max", str(MOST)], decoder)


def peers(qt_reader):
    """Returns the other programs; each writes a PNG of at most MOST pixels a side."""
    side = str(MOST)
    return [
        Peer("vipsthumbnail", IMAGES | {"pdf"},
             lambda file, out: ["vipsthumbnail", file, "--size", f"{side}x{side}", "-o", out],
             "vipsthumbnail"),
        Peer("GraphicsMagick", IMAGES,
             lambda file, out: ["gm", "convert", f"{file}[0]", "-thumbnail", f"{side}x{side}", out],
             "gm"),
        Peer("ImageMagick", IMAGES,
             lambda file, out: ["convert", f"{file}[0]", "-thumbnail", f"{side}x{side}", out],
             "convert"),
        Peer("gdk-pixbuf-thumbnailer", IMAGES,
             lambda file, out: ["gdk-pixbuf-thumbnailer", "-s", side, file, out],
             "gdk-pixbuf-thumbnailer"),
        Peer("Qt", IMAGES - {"heic", "avif", "webp"},
             lambda file, out: [qt_reader, file, out, side], qt_reader),
        Peer("pdftoppm", frozenset({"pdf"}),
             lambda file, out: ["pdftoppm", "-png", "-singlefile", "-f", "1", "-scale-to", side,
                                file, out.removesuffix(".png")], "pdftoppm"),
        Peer("ffmpegthumbnailer", frozenset({"recording"}),
             lambda file, out: ["ffmpegthumbnailer", "-i", file, "-o", out, "-s", side],
             "ffmpegthumbnailer"),
    ]  # fmt: skip
