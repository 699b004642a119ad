"""Which archives are unpacked, and which are refused with which message.

In every case the installed copy stays as it is, and nothing appears beside it except the staging
folder.
"""

import fcntl
import shutil
import tarfile

import pytest

from releases import NEW, compressed, entry, hand_made_archive, make_archive


@pytest.fixture(autouse=True)
def nothing_else_changes(copy):
    before = copy.snapshot()
    yield
    assert copy.snapshot() == before
    assert set(path.name for path in copy.place.iterdir()) <= {"app", copy.staging.name}


@pytest.fixture
def archive(copy, tmp_path):
    """Returns a good archive."""
    return make_archive(tmp_path / "made", NEW, copy.programs("echo new"))


def message_of(reports):
    assert reports[-1][0] == "failed", reports
    return reports[-1][1]


def refuse(copy, publisher, contents, version=NEW):
    message = message_of(copy.check_and_prepare(publisher.publish(contents, version)))
    # No part of it stays where it could be mistaken for a version.
    assert not copy.staging.exists() or set(
        path.name for path in copy.staging.iterdir()
    ) <= {"lock"}
    return message


def test_a_good_archive_is_prepared(copy, publisher, archive):
    reports = copy.check_and_prepare(publisher.publish(archive, NEW))
    assert [report[0] for report in reports if report[0] != "progress"] == ["installing", "ready"]
    assert reports[-3] == ["progress", str(len(archive))]
    ready = copy.staging / "next"
    assert (ready / "bin/vantle").read_text() == "#!/bin/sh\necho new\n"
    assert (ready / "bin/vantle").stat().st_mode & 0o777 == 0o755
    assert (ready / "share/vantle/release").stat().st_mode & 0o777 == 0o644
    assert copy.staging.stat().st_mode & 0o777 == 0o700


def test_progress_is_reported(copy, server, publisher, tmp_path):
    archive = make_archive(tmp_path / "large", NEW, copy.programs("", copy.updater))
    found = copy.check(publisher.publish(
        archive, NEW, address=server.address("steady/archive.tar.zst")
    ))[-1]
    received = [int(report[1]) for report in copy.prepare(found) if report[0] == "progress"]
    assert received == sorted(received)
    assert len(received) > 5


def test_a_wrong_signature_is_refused(copy, server, publisher, archive):
    feed = publisher.publish(archive, NEW)
    server.save("archive.tar.zst", archive[:-1] + bytes([archive[-1] ^ 1]))
    assert message_of(copy.check_and_prepare(feed)) == (
        "The signature of the update is wrong, so it was refused."
    )


def test_a_shorter_archive_is_refused(copy, server, publisher, archive):
    feed = publisher.publish(archive, NEW)
    server.save("archive.tar.zst", archive[:-1])
    assert message_of(copy.check_and_prepare(feed)) == (
        "The downloaded file is shorter than expected, so it was refused."
    )


def test_a_longer_archive_is_refused(copy, server, publisher, archive):
    feed = publisher.publish(archive, NEW)
    server.save("archive.tar.zst", archive + b"x")
    assert message_of(copy.check_and_prepare(feed)) == (
        f"The server sent more than the expected maximum of {len(archive)} bytes."
    )


def test_an_interrupted_transfer_is_reported(copy, server, publisher, archive):
    feed = publisher.publish(archive, NEW, address=server.address("cut/archive"))
    assert message_of(copy.check_and_prepare(feed)) == (
        "The connection was lost during the download. Try again."
    )


def test_a_slow_transfer_is_given_up(copy, server, publisher, archive):
    feed = publisher.publish(archive, NEW, address=server.address("slow/archive.tar.zst"))
    assert message_of(copy.check_and_prepare(feed)) == (
        "The server is too slow or does not respond. Try again later."
    )


def test_an_archive_at_a_plain_address_is_refused(copy, publisher, archive):
    feed = publisher.publish(archive, NEW, address="http://vantle.example/archive")
    assert message_of(copy.check_and_prepare(feed)).startswith(
        "Updates are downloaded only over HTTPS"
    )


@pytest.mark.parametrize("name", [
    "../outside", "vantle/../../outside", "vantle/bin/../../../outside", "outside",
    "vantle/bin/../../outside", "..", "vantle/..",
])
def test_a_name_that_leads_elsewhere_is_refused(copy, publisher, name):
    contents = hand_made_archive(entry("vantle/bin/vantle", b"good"), entry(name, b"bad"))
    assert refuse(copy, publisher, contents) == (
        f'The update was refused: it contains the unexpected path "{name}".'
    )


def test_a_file_without_a_name_is_refused(copy, publisher):
    contents = hand_made_archive(entry("vantle/bin/vantle", b"good"), entry("", b"bad"))
    assert refuse(copy, publisher, contents) == (
        "The update was refused: it contains a file without a name."
    )


def test_an_absolute_name_is_refused(copy, publisher, tmp_path):
    name = str(tmp_path / "outside")
    contents = hand_made_archive(entry(name, b"bad"))
    assert refuse(copy, publisher, contents) == (
        f'The update was refused: it contains the unexpected path "{name}".'
    )
    assert not (tmp_path / "outside").exists()


@pytest.mark.parametrize("kind", [
    tarfile.SYMTYPE, tarfile.LNKTYPE, tarfile.CHRTYPE, tarfile.BLKTYPE, tarfile.FIFOTYPE,
], ids=["symbolic-link", "hard-link", "character-device", "block-device", "pipe"])
def test_an_entry_that_is_neither_file_nor_folder_is_refused(copy, publisher, kind):
    contents = hand_made_archive(
        entry("vantle/bin/vantle", b"good"), entry("vantle/bin/bad", kind=kind, link="/etc/passwd")
    )
    assert refuse(copy, publisher, contents) == (
        'The update was refused: "vantle/bin/bad" is neither a file nor a folder.'
    )


def test_a_file_below_a_link_is_refused(copy, publisher, tmp_path):
    outside = tmp_path / "outside"
    outside.mkdir()
    contents = hand_made_archive(
        entry("vantle/bin", kind=tarfile.SYMTYPE, link=str(outside)),
        entry("vantle/bin/vantle", b"bad"),
    )
    refuse(copy, publisher, contents)
    assert not list(outside.iterdir())


def test_a_file_twice_is_refused(copy, publisher):
    contents = hand_made_archive(entry("vantle/a", b"one"), entry("vantle/a", b"other"))
    assert refuse(copy, publisher, contents) == (
        'The update was refused: it contains "a" twice.'
    )


def test_an_archive_that_unpacks_to_too_much_is_refused(copy, publisher):
    contents = hand_made_archive(entry("vantle/bomb", b"\0" * (600 << 20)))
    assert len(contents) < 1 << 20
    assert refuse(copy, publisher, contents) == (
        "The update was refused: its unpacked files are too large."
    )


def test_an_archive_with_too_many_files_is_refused(copy, publisher):
    contents = hand_made_archive(*(entry(f"vantle/{i}") for i in range(10_001)))
    assert refuse(copy, publisher, contents) == (
        "The update was refused: it contains too many files."
    )


@pytest.mark.parametrize("contents", [b"no archive", compressed(b"no archive" * 1000)],
                         ids=["text", "compressed-text"])
def test_a_file_that_is_no_archive_is_refused(copy, publisher, contents):
    assert refuse(copy, publisher, contents).startswith("The update was refused: ")


@pytest.mark.parametrize("part", [0.1, 0.5, 0.9])
def test_an_archive_that_was_cut_before_it_was_signed_is_refused(copy, publisher, archive, part):
    assert refuse(copy, publisher, archive[: int(len(archive) * part)]).startswith(
        "The update was refused: "
    )


def test_a_wrong_version_is_refused(copy, publisher, archive):
    assert refuse(copy, publisher, archive, "1.2") == (
        'The update was refused: it contains version "1.1" instead of 1.2.'
    )


@pytest.mark.parametrize("change, message", [
    (lambda tree: (tree / "bin/extra").write_text("x"),
     "it contains the unexpected file bin/extra."),
    (lambda tree: (tree / "bin/vantle").write_text("x"), "bin/vantle is missing or damaged."),
    (lambda tree: (tree / "bin/vantle").unlink(), "bin/vantle is missing or damaged."),
    (lambda tree: (tree / "share/vantle/manifest").unlink(), "bin/vantle is missing."),
    (lambda tree: (tree / "share/vantle/release").unlink(),
     'it contains version "" instead of 1.1.'),
], ids=["stranger", "changed", "missing", "no-manifest", "no-release"])
def test_an_archive_that_contradicts_itself_is_refused(copy, publisher, tmp_path, change, message):
    contents = make_archive(tmp_path / "bad", NEW, copy.programs("echo new"), change)
    assert refuse(copy, publisher, contents) == f"The update was refused: {message}"


def test_permissions_in_an_archive_are_ignored(copy, publisher, tmp_path):
    def change(tree):
        (tree / "bin/vantle").chmod(0o6777)

    contents = make_archive(tmp_path / "bad", NEW, copy.programs("echo new"), change)
    assert copy.check_and_prepare(publisher.publish(contents, NEW))[-1] == ["ready"]
    assert (copy.staging / "next/bin/vantle").stat().st_mode & 0o7777 == 0o755


def test_leftovers_do_not_prevent_an_update(copy, publisher, archive):
    feed = publisher.publish(archive, NEW)
    copy.staging.mkdir(mode=0o700)
    for name in ("unpacking", "next", "discarded"):
        (copy.staging / name / "bin").mkdir(parents=True)
        (copy.staging / name / "bin/vantle").write_text("half")
    assert copy.check_and_prepare(feed)[-1] == ["ready"]
    assert (copy.staging / "next/bin/vantle").read_text() == "#!/bin/sh\necho new\n"


def test_a_link_in_place_of_the_staging_folder_is_refused(copy, publisher, archive, tmp_path):
    outside = tmp_path / "outside"
    outside.mkdir(mode=0o700)
    copy.staging.symlink_to(outside)
    message = message_of(copy.check_and_prepare(publisher.publish(archive, NEW)))
    assert message == (
        f"{copy.staging} is not a folder that only you can access. "
        "Remove or rename it, then try again."
    )
    assert not list(outside.iterdir())


def test_files_of_the_user_in_the_tree_stop_it(copy, publisher, archive):
    mine = copy.tree / "my notes.txt"
    mine.write_text("precious")
    reports = copy.check_and_prepare(publisher.publish(archive, NEW))
    assert message_of(reports) == (
        f'Vantle\'s folder {copy.tree} contains "my notes.txt", which is not part of Vantle. '
        "Move it elsewhere, then try again."
    )
    mine.unlink()


def test_files_of_the_user_in_the_previous_version_stop_it(copy, publisher, archive):
    previous = copy.staging / "previous"
    copy.staging.mkdir(mode=0o700)
    shutil.copytree(copy.tree, previous)
    (previous / "my notes.txt").write_text("precious")
    reports = copy.check_and_prepare(publisher.publish(archive, NEW))
    assert 'contains "my notes.txt"' in message_of(reports)
    assert (previous / "my notes.txt").read_text() == "precious"


def test_two_updates_at_a_time_are_refused(copy, publisher, archive):
    copy.staging.mkdir(mode=0o700)
    with open(copy.staging / "lock", "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        reports = copy.check_and_prepare(publisher.publish(archive, NEW))
    assert message_of(reports) == "Another update is already in progress."
