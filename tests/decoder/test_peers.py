"""Compares thumbnails, sizes and durations with those that other programs report for the same
files."""

import os
import re
import subprocess
import sys
from pathlib import Path

import numpy
import pytest
from PIL import Image

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))

from comparison import corpus  # noqa: E402

DECODER = os.environ["VANTLE_DECODER"]
MOST = 800
SIZES = {"small": (1280, 800), "retina": (2940, 1912), "wide": (3840, 1080)}
IMAGES = ["png", "rgba.png", "jpg", "lzw.tif", "deflate.tif", "raw.tiff", "gif", "heic",
          "avif", "webp", "lossless.webp"]

POINT = ("-define", "quantum:format=floating-point", "-depth")
INK = ("-colorspace", "CMYK", "-depth")
DEEP = {
    "half": (*POINT, 16), "float": (*POINT, 32), "double": (*POINT, 64),
    "float-tiles": (*POINT, 32, "-define", "tiff:tile-geometry=256x256"),
    "float-planes": (*POINT, 32, "-interlace", "plane"),
    "cmyk": (*INK, 8), "deep-cmyk": (*INK, 16),
}  # fmt: skip


def output_of(*command):
    result = subprocess.run([str(part) for part in command], check=True, capture_output=True,
                            text=True)
    return result.stdout


@pytest.fixture(scope="module")
def folder(tmp_path_factory):
    """Returns a folder with a screen of each size in every format, and recordings of one screen."""
    made = tmp_path_factory.mktemp("corpus")
    for name, size in SIZES.items():
        corpus.save_images(made, name, corpus.screen(size))
    corpus.save_recordings(made, "small", minutes=1)
    corpus.text_document(made / "text.pdf")
    return made


def file_named(folder, name, kind):
    return folder / (f"{name}.{kind}" if kind.count(".") == 0 else f"{name}-{kind}")


def thumbnail(file):
    """Returns our picture, the size that we print, and the duration, if any."""
    out = file.with_suffix(".ours.png")
    words = output_of(DECODER, "--thumbnail", file, out, "--max", MOST).split()
    duration = float(words[3]) if len(words) > 3 else None
    return Image.open(out).convert("RGB"), (float(words[0]), float(words[2])), duration


def decoded(file):
    """Returns all pixels, decoded by another program."""
    if file.suffix not in (".heic", ".avif"):
        return Image.open(file).convert("RGB")
    whole = file.with_suffix(".whole.png")
    output_of("heif-convert", file, whole)
    return Image.open(whole).convert("RGB")


def likeness(one, other):
    """Returns the peak signal-to-noise ratio in dB."""
    difference = numpy.asarray(one, dtype=float) - numpy.asarray(other, dtype=float)
    error = (difference**2).mean()
    return 99.0 if error == 0 else 10 * numpy.log10(255**2 / error)


@pytest.mark.parametrize("kind", IMAGES)
@pytest.mark.parametrize("name", SIZES)
def test_images_are_better_than_those_of_another_program(folder, name, kind):
    file = file_named(folder, name, kind)
    ours, _, _ = thumbnail(file)
    reference = decoded(file).resize(ours.size, Image.LANCZOS)
    out = file.with_suffix(".theirs.png")
    output_of("vipsthumbnail", file, "--size", "{}x{}!".format(*ours.size), "-o", out)
    theirs = Image.open(out).convert("RGB")
    mine, others = likeness(ours, reference), likeness(theirs, reference)
    print(f"{file.name}: {mine:.1f} dB, vipsthumbnail {others:.1f} dB")
    assert max(ours.size) == MOST
    assert mine > 40
    assert mine > others


@pytest.mark.parametrize("kind", DEEP)
def test_deep_images_resemble_their_originals(folder, kind):
    source, file = folder / "retina.png", folder / f"retina-{kind}.tif"
    output_of("convert", source, *DEEP[kind], "-compress", "zip", file)
    ours, _, _ = thumbnail(file)
    reference = Image.open(source).convert("RGB").resize(ours.size, Image.LANCZOS)
    print(f"{file.name}: {likeness(ours, reference):.1f} dB")
    assert likeness(ours, reference) > 40


@pytest.mark.parametrize("kind", IMAGES)
@pytest.mark.parametrize("name", SIZES)
def test_image_sizes(folder, name, kind):
    file = file_named(folder, name, kind)
    if kind in ("heic", "avif"):
        said = re.search(r"image: (\d+)x(\d+)", output_of("heif-info", file)).groups()
    else:
        said = output_of("identify", "-format", "%w %h\n", f"{file}[0]").split()
    assert thumbnail(file)[1] == tuple(map(float, said))


@pytest.mark.parametrize("name", ["small", "text"])
def test_documents(folder, name):
    file = folder / f"{name}.pdf"
    ours, size, _ = thumbnail(file)
    said = re.search(r"Page size: *([\d.]+) x ([\d.]+)", output_of("pdfinfo", file)).groups()
    assert size == pytest.approx(tuple(map(float, said)), abs=0.01)
    output_of("pdftoppm", "-png", "-singlefile", "-scale-to-x", ours.width, "-scale-to-y",
              ours.height, file, file.with_suffix(".theirs"))
    theirs = Image.open(file.with_suffix(".theirs.png")).convert("RGB")
    assert likeness(ours, theirs) > 40


@pytest.mark.parametrize("name", ["small-short.mov", "small-10s.mp4", "small-turned.mov",
                                  "small-1min.mp4", "small-vp8.webm", "small-vp9.webm",
                                  "small-10s.mkv"])
def test_recordings(folder, name):
    file = folder / name
    ours, size, duration = thumbnail(file)
    said = output_of("ffprobe", "-v", "error", "-show_entries", "format=duration", "-of",
                     "csv=p=0", file)
    assert duration == pytest.approx(float(said), abs=0.001)
    time = min(duration / 2, 0.5)
    frame = file.with_suffix(".frame.png")
    # The frame that is shown at that time is the last one that begins at or before it.
    output_of("ffmpeg", "-nostdin", "-loglevel", "error", "-y", "-i", file, "-to", time + 1, "-vf",
              f"select='lte(t,{time + 0.001})'", "-vsync", "passthrough", "-update", 1, frame)
    theirs = Image.open(frame).convert("RGB")
    assert size == theirs.size
    assert likeness(ours, theirs.resize(ours.size, Image.LANCZOS)) > 40
