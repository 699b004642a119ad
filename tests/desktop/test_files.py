"""Which files become tiles, and how often."""

import os

from privatedesktop import wait_until
from watched_folder import jpeg, png


def grow_until_captured(vantle, folder, name):
    """Lets a file grow until the watcher reports it, which is when its patience ends.

    By then every file that was seen before this one has also been polled to the end.
    """
    with open(folder.path / name, "ab", buffering=0) as file:

        def grow_and_look():
            file.write(b"\0" * 64)
            return name in vantle.captured()

        wait_until(grow_and_look, f"{name} is taken while growing", limit=30.0, interval=0.05)


def test_files_already_there(vantle, folder):
    folder.save("before.png")
    folder.save("before.jpg", jpeg())
    (folder.path / "folder.png").mkdir()
    vantle.start_watching()
    assert "3 existing files" in vantle.log_text()
    folder.wait_for_marker()
    assert folder.captured() == []


def test_every_kind(vantle, folder):
    vantle.start_watching()
    kinds = ("png", "jpg", "jpeg", "heic", "tiff", "tif", "gif", "pdf", "webp", "avif")
    images = [f"shot.{kind}" for kind in kinds]
    recordings = [f"clip.{kind}" for kind in ("mov", "mp4", "m4v", "webm", "mkv")]
    shouting = ["SHOT.PNG", "Clip.MP4"]
    for name in images + recordings + shouting:
        folder.save(name)
    folder.wait_for(*images, *recordings, *shouting)
    folder.wait_for_marker()
    assert sorted(folder.captured()) == sorted(images + recordings + shouting)


def test_other_files_are_no_captures(vantle, folder):
    vantle.start_watching()
    for name in (".hidden.png", "notes.txt", "shot", "shot.png~", "shot.png.part", "png"):
        folder.save(name)
    (folder.path / "folder.png").mkdir()
    os.mkfifo(folder.path / "pipe.png")
    folder.wait_for_marker()
    assert folder.captured() == []
    assert vantle.is_running()


def test_three_minutes_old(vantle, folder):
    vantle.start_watching()
    folder.move_in("old.png", age=180)
    folder.move_in("recent.png", age=100)
    folder.wait_for("recent.png")
    folder.wait_for_marker()
    assert folder.captured() == ["recent.png"]


def test_renamed_into_place(vantle, folder):
    vantle.start_watching()
    folder.move_in("a.png", temporary_name=".a.png.tmp")
    folder.move_in("b.png", temporary_name="b.part")
    folder.move_in("c.png")
    folder.wait_for("a.png", "b.png", "c.png")
    folder.wait_for_marker()
    assert sorted(folder.captured()) == ["a.png", "b.png", "c.png"]
    assert folder.shown_count() == 3


def test_created_empty_and_written_later(vantle, folder):
    vantle.start_watching()
    folder.save("shot.png", b"")
    folder.wait_for_marker()
    assert folder.captured() == []
    folder.save("shot.png")
    folder.wait_for("shot.png")
    folder.wait_for_marker()
    assert folder.captured() == ["shot.png"]


def test_empty_file_and_one_deleted_while_pending(vantle, folder):
    vantle.start_watching()
    folder.save("empty.png", b"")
    folder.save("deleted.png", b"")
    folder.wait_for_marker()
    folder.delete("deleted.png")
    grow_until_captured(vantle, folder, "growing.png")
    folder.wait_for_marker()
    assert folder.captured() == ["growing.png"]
    assert vantle.is_running()


def test_same_name_again(vantle, folder):
    vantle.start_watching()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    folder.delete("shot.png")
    folder.wait_for_marker()
    folder.save("shot.png", png(colour=(200, 40, 40)))
    folder.wait_for_capture("shot.png", times=2)
    folder.wait_for_marker()
    assert folder.captured() == ["shot.png", "shot.png"]
    # The second capture replaces the first.
    assert folder.shown_count() == 1


def test_overwritten_in_place_is_not_new(vantle, folder):
    vantle.start_watching()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    folder.save("shot.png", png(colour=(200, 40, 40)))
    folder.wait_for_marker()
    assert folder.captured() == ["shot.png"]


def test_damaged_pictures_give_tiles(vantle, folder):
    vantle.start_watching()
    damaged = {
        "truncated.png": png((400, 300))[:200],
        "truncated.jpg": jpeg()[:600],
        "nonsense.png": b"this is no picture",
        # The header promises 60000 x 60000 pixels.
        "lying.png": png()[:16] + b"\0\0\xea\x60\0\0\xea\x60" + png()[24:],
        "header-only.jpg": b"\xff\xd8\xff\xe0",
        "other-kind.png": jpeg(),
    }
    for name, content in damaged.items():
        folder.save(name, content)
    folder.wait_for(*damaged)
    folder.wait_for_marker()
    assert sorted(folder.captured()) == sorted(damaged)
    assert folder.shown_count() == len(damaged)
    assert vantle.is_running()


def test_forty_first_capture_pushes_the_oldest_out(vantle, folder):
    vantle.start_watching()
    names = [f"shot {number}.png" for number in range(41)]
    for name in names:
        folder.save(name)
    folder.wait_for(*names)
    assert sorted(folder.captured()) == sorted(names)
    assert vantle.shown_counts()[-1] == 40
