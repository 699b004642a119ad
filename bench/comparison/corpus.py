"""Makes the files that are measured: screens in every image format, and recordings of them."""

import random
import struct
import subprocess
from pathlib import Path

from PIL import Image, ImageDraw, ImageFilter, ImageFont

SCREENS = {"1080p": (1920, 1080), "retina": (2940, 1912), "5k": (5120, 2880), "8k": (7680, 4320)}
RECORDED = ("1080p", "5k")
FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
WORDS = ("the quick brown fox jumps over a lazy dog while const auto values return from void "
         "functions and nobody reads any of it twice").split()


def photograph(size, random_numbers):
    """Returns smooth shapes of many colours, with the grain of a sensor."""
    small = Image.frombytes("RGB", (24, 16), random_numbers.randbytes(24 * 16 * 3))
    picture = small.resize(size, Image.BICUBIC)
    grain = Image.effect_noise(size, 14).convert("RGB").filter(ImageFilter.GaussianBlur(0.7))
    return Image.blend(picture, grain, 0.12)


def write_page(draw, box, scale, random_numbers, dark):
    """Draws a window full of text, in the colours of an editor."""
    left, top, right, bottom = box
    font = ImageFont.truetype(FONT, round(13 * scale))
    draw.rectangle(box, fill=(32, 34, 42) if dark else (252, 252, 252))
    draw.rectangle((left, top, right, top + 28 * scale), fill=(60, 63, 75) if dark else (232,) * 3)
    y = top + 40 * scale
    while y < bottom - 20 * scale:
        colour = tuple(random_numbers.randrange(110, 250) if dark else
                       random_numbers.randrange(0, 110) for _ in range(3))
        length = random_numbers.randrange(3, 14)
        line = " ".join(random_numbers.choice(WORDS) for _ in range(length))
        indent = random_numbers.randrange(4) * 24 * scale
        draw.text((left + 14 * scale + indent, y), line, font=font, fill=colour)
        y += 19 * scale


def screen(size):
    """Returns a desktop: a photograph as wallpaper, two windows of text, a third one with a
    picture."""
    random_numbers = random.Random(size[0])
    wide, high = size
    scale = wide / 1920
    picture = photograph(size, random_numbers)
    draw = ImageDraw.Draw(picture)
    box = [round(part) for part in (wide * .05, high * .08, wide * .48, high * .82)]
    write_page(draw, box, scale, random_numbers, dark=True)
    box = [round(part) for part in (wide * .4, high * .3, wide * .85, high * .93)]
    write_page(draw, box, scale, random_numbers, dark=False)
    inset = photograph((round(wide * .22), round(high * .3)), random_numbers)
    picture.paste(inset, (round(wide * .6), round(high * .5)))
    draw.rectangle((0, 0, wide, round(28 * scale)), fill=(40, 40, 46))
    return picture


def run(*command):
    subprocess.run([str(part) for part in command], check=True, stdout=subprocess.DEVNULL)


def save_images(folder, name, picture):
    picture.save(folder / f"{name}.png", compress_level=6)
    picture.convert("RGBA").save(folder / f"{name}-rgba.png", compress_level=6)
    picture.save(folder / f"{name}.jpg", quality=90)
    picture.save(folder / f"{name}-lzw.tif", compression="tiff_lzw")
    picture.save(folder / f"{name}-deflate.tif", compression="tiff_adobe_deflate")
    picture.save(folder / f"{name}-raw.tiff")
    picture.quantize(256, dither=Image.Dither.NONE).save(folder / f"{name}.gif")
    picture.save(folder / f"{name}.pdf", resolution=144)
    picture.save(folder / f"{name}.webp", quality=90, method=2)
    picture.save(folder / f"{name}-lossless.webp", lossless=True, quality=20, method=1)
    run("heif-enc", "-q", "60", folder / f"{name}.png", "-o", folder / f"{name}.heic")
    run("heif-enc", "-A", "-q", "60", "-p", "speed=9", folder / f"{name}.png", "-o",
        folder / f"{name}.avif")


def ffmpeg(*arguments):
    run("ffmpeg", "-nostdin", "-loglevel", "error", "-y", *arguments)


def save_recordings(folder, name, minutes=10):
    """Saves recordings of the picture as it scrolls by, for 0.4 s, 10 s and some minutes, and one
    of 10 s that is turned by 90 degrees."""
    rolling = ("-loop", "1", "-framerate", "30", "-i", folder / f"{name}.png", "-vf",
               "scroll=vertical=0.002", "-pix_fmt", "yuv420p", "-preset", "veryfast")
    ffmpeg(*rolling, "-t", "0.4", folder / f"{name}-short.mov")
    ffmpeg(*rolling, "-t", "10", folder / f"{name}-10s.mp4")
    ffmpeg("-stream_loop", 6 * minutes - 1, "-i", folder / f"{name}-10s.mp4", "-c", "copy",
           folder / f"{name}-{minutes}min.mp4")
    ffmpeg("-i", folder / f"{name}-10s.mp4", "-c", "copy", folder / f"{name}-10s.mkv")
    # These settings are those of programs that record live.
    live = ("-b:v", "8M", "-deadline", "realtime", "-cpu-used", "8")
    ffmpeg("-i", folder / f"{name}-10s.mp4", "-c:v", "libvpx", *live, folder / f"{name}-vp8.webm")
    ffmpeg("-i", folder / f"{name}-10s.mp4", "-c:v", "libvpx-vp9", *live,
           folder / f"{name}-vp9.webm")
    save_turned(folder / f"{name}-10s.mp4", folder / f"{name}-turned.mov")


def save_turned(upright, turned):
    """Copies the recording with a display matrix that says to turn it by 90 degrees."""
    data = bytearray(upright.read_bytes())
    start = data.index(b"tkhd") + 44
    data[start:start + 36] = struct.pack(">9i", 0, -1 << 16, 0, 1 << 16, 0, 0, 0, 0, 1 << 30)
    turned.write_bytes(data)


def text_document(path):
    """Returns a page of text in a standard font that the file does not embed."""
    content = b"BT /F1 11 Tf 50 790 Td 14 TL\n"
    random_numbers = random.Random(1)
    for _ in range(52):
        line = " ".join(random_numbers.choice(WORDS) for _ in range(14))
        content += b"(%s) Tj T*\n" % line.encode()
    content += b"ET"
    objects = [
        b"<< /Type /Catalog /Pages 2 0 R >>", b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R "
        b"/Resources << /Font << /F1 5 0 R >> >> >>",
        b"<< /Length %d >>\nstream\n%s\nendstream" % (len(content), content),
        b"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    ]  # fmt: skip
    data, offsets = b"%PDF-1.4\n", []
    for number, one in enumerate(objects, 1):
        offsets.append(len(data))
        data += b"%d 0 obj\n%s\nendobj\n" % (number, one)
    table = b"".join(b"%010d 00000 n \n" % offset for offset in offsets)
    data += (b"xref\n0 6\n0000000000 65535 f \n" + table +
             b"trailer << /Size 6 /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % len(data))
    path.write_bytes(data)


def make(folder):
    """Makes the files that do not exist yet."""
    folder = Path(folder)
    done = folder / "complete"
    if done.exists():
        return
    folder.mkdir(parents=True, exist_ok=True)
    for name, size in SCREENS.items():
        print(f"making {name} files", flush=True)
        save_images(folder, name, screen(size))
    for name in RECORDED:
        print(f"making {name} recordings", flush=True)
        save_recordings(folder, name)
    text_document(folder / "text.pdf")
    done.touch()
