"""What is found in feeds, and which feeds are refused with which message."""

import datetime
import os
import re
import shutil

import pytest

from releases import NEW, NOW, OLD, ROOT, SYSTEM, Publisher, releasing

ARCHIVE = b"what is not looked at yet"


def failure(reports):
    assert reports[-1][0] == "failed", reports
    return reports[-1][1]


def reason(reports):
    assert reports[-1][0] == "nothing", reports
    return reports[-1][1]


def test_a_newer_version_is_found(copy, publisher):
    feed = publisher.publish(
        ARCHIVE, NEW, display_version="1.1 (beta)", page="https://vantle.example/1.1",
        notes="<h2>New</h2><script>alert(1)</script><p onclick='x()'>Quick &amp; <b>calm</b></p>",
    )
    loaded, found = copy.check(feed)
    assert loaded == ["loaded", "1", str(int(NOW.timestamp()))]
    assert found[:3] == ["found", NEW, "1.1 (beta)"]
    assert found[3] == "<h2>New</h2><p>Quick &amp; <b>calm</b></p>"
    assert found[4] == "https://vantle.example/1.1"
    assert found[6] == str(len(ARCHIVE))
    assert copy.status == 0


def test_the_newest_of_several_is_found(copy, publisher):
    feed = b""
    for version in ["1.2", "1.10", "0.9"]:
        feed = publisher.feed(ARCHIVE, version, feed)
    loaded, found = copy.check(publisher.save_feed(feed))
    assert loaded[1] == "3"
    assert found[1] == "1.10"


def test_the_same_version_is_up_to_date(copy, publisher):
    assert reason(copy.check(publisher.publish(ARCHIVE, OLD))) == (
        "Vantle 1.0 is the latest version."
    )


def test_a_downgrade_is_refused(copy, publisher):
    assert reason(copy.check(publisher.publish(ARCHIVE, "0.9"))) == (
        "Vantle 1.0 is newer than the latest available version, 0.9."
    )


def test_a_feed_without_items_offers_nothing(copy, publisher):
    feed = publisher.changed(publisher.feed(ARCHIVE, NEW), b"<item>", b"<other>")
    feed = publisher.changed(feed, b"</item>", b"</other>")
    assert reason(copy.check(publisher.save_feed(feed))) == "Vantle 1.0 is the latest version."


def test_a_version_for_another_system_is_not_offered(copy, publisher):
    feed = publisher.publish(ARCHIVE, NEW, platform="linux-pdp11")
    assert reason(copy.check(feed)) == (
        f"A newer version exists, but not for this system ({SYSTEM})."
    )


def test_a_version_for_a_newer_system_is_not_offered(copy, publisher):
    feed = publisher.publish(ARCHIVE, NEW, minimum_system_version="99.1")
    assert reason(copy.check(feed)).startswith(
        "Version 1.1 needs a newer system (C library 99.1; this system has "
    )


def test_an_older_version_for_this_system_is_better_than_none(copy, publisher):
    feed = publisher.feed(ARCHIVE, "1.2", minimum_system_version="99.1")
    found = copy.check(publisher.publish(ARCHIVE, NEW, feed))[-1]
    assert found[:2] == ["found", NEW]


def test_a_channel_is_offered_only_on_request(copy, publisher):
    feed = publisher.publish(ARCHIVE, NEW, channel="beta")
    assert reason(copy.check(feed)) == "Vantle 1.0 is the latest version."
    assert copy.check(feed, "--channel=beta")[-1][:2] == ["found", NEW]


def test_an_unsigned_version_is_refused(copy, publisher):
    feed = publisher.changed(publisher.feed(ARCHIVE, NEW), b"sparkle:edSignature", b"sparkle:none")
    assert failure(copy.check(publisher.save_feed(feed))) == (
        "Version 1.1 is not signed, so it was refused."
    )


def test_a_version_without_a_length_is_refused(copy, publisher):
    feed = publisher.changed(publisher.feed(ARCHIVE, NEW), b"length=", b"breadth=")
    assert failure(copy.check(publisher.save_feed(feed))) == (
        "Version 1.1 has no length in the update feed, so it was refused."
    )


def test_a_version_that_is_too_large_is_refused(copy, publisher):
    length = b'length="%d"' % len(ARCHIVE)
    feed = publisher.changed(publisher.feed(ARCHIVE, NEW), length, b'length="99999999999"')
    assert failure(copy.check(publisher.save_feed(feed))) == (
        "Version 1.1 is too large for an update, so it was refused."
    )


def test_an_unsigned_feed_is_refused(copy, publisher):
    feed = publisher.feed(ARCHIVE, NEW)
    unsigned = feed[: feed.index(b"<!-- sparkle-signatures")]
    assert failure(copy.check(publisher.save_feed(unsigned))) == (
        "The update feed is not signed, so it was refused."
    )


def test_a_changed_feed_is_refused(copy, publisher):
    feed = publisher.feed(ARCHIVE, NEW).replace(b"Vantle 1.1", b"Vantle 1.7")
    assert failure(copy.check(publisher.save_feed(feed))) == (
        "The signature of the update feed is wrong, so the feed was refused."
    )


def test_a_feed_with_something_after_its_signature_is_refused(copy, publisher):
    feed = publisher.feed(ARCHIVE, NEW) + b"<rss/>"
    assert failure(copy.check(publisher.save_feed(feed))) == (
        "The update feed is not signed, so it was refused."
    )


def test_a_partly_signed_feed_is_refused(copy, publisher):
    feed = publisher.feed(ARCHIVE, NEW)
    at = feed.index(b"<!-- sparkle-signatures")
    assert failure(copy.check(publisher.save_feed(feed[:at] + b" " + feed[at:]))) == (
        "The signature of the update feed is wrong, so the feed was refused."
    )


def test_a_feed_of_another_key_is_refused(copy, server, publisher, tmp_path):
    releasing.make_key(tmp_path / "another.pem")
    folder = tmp_path / "others"
    folder.mkdir()
    other = Publisher(server, tmp_path / "another.pem", folder)
    assert failure(copy.check(other.publish(ARCHIVE, NEW))) == (
        "The signature of the update feed is wrong, so the feed was refused."
    )


def test_an_outdated_feed_is_refused(copy, publisher):
    yesterday = publisher.publish(ARCHIVE, NEW, date=NOW - datetime.timedelta(days=1))
    newest = f"--newest-feed={int(NOW.timestamp())}"
    assert failure(copy.check(yesterday, newest)) == (
        "The update feed is older than the last one received, so it was refused."
    )
    assert copy.check(publisher.publish(ARCHIVE, NEW), newest)[-1][0] == "found"


@pytest.mark.parametrize("xml, message", [
    (b"<rss><channel>", "The update feed is damaged: "),
    (b"\0\xff\xfe", "The update feed is damaged: "),
    (b"<html><body>Not found</body></html>",
     "The update feed is damaged: there is no list of versions."),
    (b"<rss><channel><item/></channel></rss>", "The update feed is damaged: it has no date."),
    (b"<a>" * 200_000, "The update feed is damaged: "),
], ids=["unfinished", "binary", "page", "dateless", "deep"])
def test_a_damaged_feed_is_refused(copy, publisher, xml, message):
    assert failure(copy.check(publisher.save_feed(publisher.signed(xml)))).startswith(message)


def test_entities_are_not_expanded(copy, publisher):
    laughs = b"".join(
        b'<!ENTITY l%d "%s">' % (i, b"&l%d;" % (i - 1) * 10) for i in range(1, 10)
    )
    feed = publisher.changed(
        publisher.feed(ARCHIVE, NEW, display_version="laugh"), b"<rss",
        b'<!DOCTYPE rss [<!ENTITY l0 "ha">' + laughs + b"]><rss",
    )
    feed = publisher.changed(feed, b"laugh", b"&l9;")
    found = copy.check(publisher.save_feed(feed))[-1]
    assert found[0] != "found" or len(found[2]) < 100


def test_an_oversized_feed_is_refused(copy, publisher):
    feed = publisher.signed(b"<rss>" + b" " * 2_000_000 + b"</rss>")
    assert failure(copy.check(publisher.save_feed(feed))) == (
        "The server sent more than the expected maximum of 1048576 bytes."
    )


def test_a_slow_server_is_given_up(copy, server, publisher):
    publisher.save_feed(publisher.signed(b"<rss>" + b" " * 20_000))
    assert failure(copy.check(server.address("slow/appcast.xml"))) == (
        "The server is too slow or does not respond. Try again later."
    )


def test_an_interrupted_answer_is_reported(copy, server):
    assert failure(copy.check(server.address("cut/appcast.xml"))) == (
        "The connection was lost during the download. Try again."
    )


def test_a_missing_feed_is_reported(copy, server):
    assert failure(copy.check(server.address("nothing.xml"))) == (
        "The server reported error 404."
    )


def test_a_missing_server_is_reported(copy):
    message = failure(copy.check("https://127.0.0.1:1/appcast.xml"))
    assert message.startswith("The server could not be reached: ")


def test_a_server_with_an_unknown_certificate_is_refused(copy, server, publisher):
    publisher.publish(ARCHIVE, NEW)
    message = failure(copy.check(server.strangers_address("appcast.xml")))
    assert "certificate" in message or "peer" in message


def test_a_redirection_is_followed(copy, server, publisher):
    publisher.publish(ARCHIVE, NEW)
    assert copy.check(server.address("moved/appcast.xml"))[-1][:2] == ["found", NEW]


def test_nothing_is_added_to_a_feed_of_another_key(publisher, tmp_path):
    releasing.make_key(tmp_path / "another.pem")
    feed = publisher.feed(ARCHIVE, OLD)
    archive = publisher.save(ARCHIVE)
    with pytest.raises(ValueError, match="not signed with this key"):
        releasing.add_item(feed, archive, "https://x", tmp_path / "another.pem", NEW, SYSTEM)


def test_a_feed_is_never_older_than_the_one_before(copy, publisher):
    feed = publisher.feed(ARCHIVE, OLD)
    earlier = NOW - datetime.timedelta(days=30)
    loaded = copy.check(publisher.publish(ARCHIVE, NEW, feed, date=earlier))[0]
    assert int(loaded[2]) == int(NOW.timestamp()) + 1


@pytest.mark.parametrize("path, target", [
    ("moved-to-plain/appcast.xml", "http://vantle.example/appcast.xml"),
    ("moved-to-file/", "file:///etc/passwd"),
])
def test_a_redirection_to_anything_but_https_is_refused(copy, server, path, target):
    assert failure(copy.check(server.address(path))) == (
        f'Updates are downloaded only over HTTPS, so the address "{target}" was refused.'
    )


def test_a_redirection_in_a_circle_ends(copy, server):
    assert failure(copy.check(server.address("round/"))) == (
        "The server redirected too many times."
    )


def test_a_redirection_from_the_web_to_this_machine_is_refused(copy, server, publisher):
    publisher.publish(ARCHIVE, NEW)
    assert failure(copy.check(server.address("inside/appcast.xml"))) == (
        "Updates are downloaded only over HTTPS, "
        f'so the address "{server.plain_address("appcast.xml")}" was refused.'
    )


def test_this_machine_needs_no_https(copy, server, publisher):
    publisher.publish(ARCHIVE, NEW)
    assert copy.check(server.plain_address("appcast.xml"))[-1][:2] == ["found", NEW]


@pytest.mark.parametrize("address", [
    "", "appcast.xml", "ftp://127.0.0.1/appcast.xml", "file:///etc/passwd",
    "http://vantle.example/appcast.xml", "http://127.0.0.1.vantle.example/",
    "http://127.0.0.1@vantle.example/", "http://126.255.255.255/", "http://128.0.0.1/",
    "http://192.0.2.1/appcast.xml", "http://0.0.0.0/", "http://[::2]/", "http://[2001:db8::1]/",
    "http://[::ffff:192.0.2.1]/", "http://localhost.example/",
])
def test_other_addresses_are_refused(copy, address):
    assert failure(copy.check(address)) == (
        f'Updates are downloaded only over HTTPS, so the address "{address}" was refused.'
    )


@pytest.mark.parametrize("host", [
    "127.0.0.1", "127.255.255.254", "[::1]", "localhost",
])
def test_each_name_of_this_machine_needs_no_https(copy, host):
    # No server listens there.
    message = failure(copy.check(f"http://{host}:1/appcast.xml"))
    assert message.startswith("The server could not be reached: ")


def test_the_built_in_feed_is_used_without_another_one(copy):
    reports = copy.run("check", f"--version={OLD}")
    assert failure(reports) == (
        "Updates are downloaded only over HTTPS, "
        f'so the address "{os.environ["VANTLE_BUILT_IN_FEED"]}" was refused.'
    )


def test_a_release_has_the_feed_of_the_project_built_in():
    """The feed is the project's, unless the build names another one."""
    configuration = (ROOT / "src/updater/CMakeLists.txt").read_text()
    default = re.search(r'set\(VANTLE_UPDATE_FEED "(.*?)" CACHE', configuration)[1]
    assert default == "https://vantle.org/updates/appcast.xml"


def test_a_copy_without_a_key_cannot_be_updated(copy, publisher):
    shutil.copy(os.environ["VANTLE_UPDATER_WITHOUT_KEY"], copy.tree / "bin/vantle-updater")
    reports = copy.check(publisher.publish(ARCHIVE, NEW))
    assert "built without the key" in failure(reports)
    assert reports[-1][2] == "", "nobody answers for the page either"


def test_a_copy_with_a_key_names_the_page_of_new_versions(copy):
    reports = copy.check("ftp://127.0.0.1/appcast.xml")
    assert failure(reports) and reports[-1][2].startswith("https://")
