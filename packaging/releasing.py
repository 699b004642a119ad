"""Makes the parts of an update: a release's archive, its signature, its entry in the feed."""

import base64
import datetime
import email.utils
import hashlib
import os
import re
import subprocess
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SPARKLE = "http://www.andymatuschak.org/xml-namespaces/sparkle"
SIGNATURE_COMMENT = re.compile(rb"<!-- sparkle-signatures:.*?-->\s*\Z", re.DOTALL)
ElementTree.register_namespace("sparkle", SPARKLE)


def sparkle(name):
    return f"{{{SPARKLE}}}{name}"


def make_key(path):
    """Makes a key pair and writes the private key to a file that only its owner can read."""
    with open(os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o600), "wb") as file:
        file.write(_openssl("genpkey", "-algorithm", "ed25519"))


def public_key(path):
    """Returns the public key as the build of Vantle takes it: its bytes in base64."""
    whole = _openssl("pkey", "-in", path, "-pubout", "-outform", "DER")
    return base64.b64encode(whole[-32:]).decode()


def signature(contents, key):
    with tempfile.NamedTemporaryFile() as file:
        file.write(contents)
        file.flush()
        signed = _openssl("pkeyutl", "-sign", "-rawin", "-inkey", key, "-in", file.name)
    return base64.b64encode(signed).decode()


def describe_release(tree, version, platform, installation="tree"):
    """Writes into a tree what it is, so that an update can replace it."""
    folder = Path(tree, "share/vantle")
    folder.mkdir(parents=True, exist_ok=True)
    folder.joinpath("release").write_text(
        f"version={version}\nplatform={platform}\ninstallation={installation}\n"
    )


def write_manifest(tree):
    """Lists each file of a tree and its checksum, as sha256sum does."""
    tree = Path(tree)
    manifest = tree / "share/vantle/manifest"
    files = sorted(path for path in tree.rglob("*") if path.is_file() and path != manifest)
    manifest.write_text(
        "".join(
            f"{hashlib.sha256(path.read_bytes()).hexdigest()}  {path.relative_to(tree)}\n"
            for path in files
        )
    )


def pack(tree, archive, date=0, effort=19):
    """Packs a tree, a folder named "vantle"; the same tree always gives the same bytes."""
    tree = Path(tree)
    subprocess.run(
        ["tar", "--create", "--file", str(archive),
         f"--use-compress-program=zstd -{effort} --quiet",
         "--format=ustar", "--sort=name", f"--mtime=@{date}", "--owner=0", "--group=0",
         "--numeric-owner", "--mode=u+rwX,go+rX,go-w", "-C", str(tree.parent), tree.name],
        check=True,
    )


def date_of_package(changelog):
    """Returns the date of the newest version in Debian's changelog, in seconds since 1970."""
    text = Path(changelog).read_text()
    date = re.search(r"^ -- .*>  (.*)$", text, re.MULTILINE).group(1)
    return int(email.utils.parsedate_to_datetime(date).timestamp())


def repack(package, target, date):
    """Packs a Debian package again, with a size that does not depend on the file system."""
    with tempfile.TemporaryDirectory() as folder:
        tree = Path(folder, "package")
        subprocess.run(["dpkg-deb", "--raw-extract", str(package), str(tree)], check=True)
        control = tree / "DEBIAN/control"
        size = f"Installed-Size: {installed_size(tree)}"
        control.write_text(re.sub("^Installed-Size: .*", size, control.read_text(), flags=re.M))
        subprocess.run(
            ["dpkg-deb", "-Zxz", "--root-owner-group", "--build", str(tree), str(target)],
            check=True, stdout=subprocess.DEVNULL,
            env={**os.environ, "SOURCE_DATE_EPOCH": str(date)},
        )


def installed_size(tree):
    """Returns KiB as Debian's policy counts: each file rounded up, everything else as one."""
    entries = [path for path in tree.rglob("*") if "DEBIAN" not in path.relative_to(tree).parts]
    return sum(
        -(-path.stat().st_size // 1024) if path.is_file() and not path.is_symlink() else 1
        for path in entries
    )


def needed_libc_version(tree):
    """Returns the version of the C library that the programs of a tree need."""
    versions = {(0,)}
    for path in Path(tree).rglob("*"):
        if path.is_file() and path.read_bytes()[:4] == b"\x7fELF":
            symbols = subprocess.run(["objdump", "-T", str(path)], check=True, capture_output=True)
            for found in re.findall(rb"\(?GLIBC_([0-9.]+)\)?", symbols.stdout):
                versions.add(tuple(map(int, found.split(b"."))))
    return ".".join(map(str, max(versions)))


def add_item(feed, archive, address, key, version, platform, **details):
    """Adds a release to a feed, which may be empty, and returns the new feed, signed.

    `details`: display_version, minimum_system_version, channel, page, notes (HTML) and date.
    """
    root = _channel(_verified(feed, key))
    channel = root.find("channel")
    date = details.get("date") or datetime.datetime.now(datetime.timezone.utc)
    feed_date = _date_after_feed(date, channel)
    channel.find("lastBuildDate").text = email.utils.format_datetime(feed_date)
    for item in channel.findall("item"):
        enclosure = item.find("enclosure")
        if (item.findtext(sparkle("version")), enclosure.get(sparkle("os"))) == (version, platform):
            channel.remove(item)
    item = ElementTree.SubElement(channel, "item")
    _add(item, "title", f"Vantle {details.get('display_version') or version}")
    _add(item, "pubDate", email.utils.format_datetime(date))
    _add(item, sparkle("version"), version)
    _add(item, sparkle("shortVersionString"), details.get("display_version"))
    _add(item, sparkle("minimumSystemVersion"), details.get("minimum_system_version"))
    _add(item, sparkle("channel"), details.get("channel"))
    _add(item, "link", details.get("page"))
    _add(item, "description", details.get("notes"))
    contents = Path(archive).read_bytes()
    ElementTree.SubElement(item, "enclosure", {
        "url": address,
        "length": str(len(contents)),
        "type": "application/octet-stream",
        sparkle("os"): platform,
        sparkle("edSignature"): signature(contents, key),
    })
    ElementTree.indent(root)
    xml = ElementTree.tostring(root, encoding="utf-8", xml_declaration=True) + b"\n"
    return sign_feed(xml, key)


def sign_feed(xml, key):
    """Appends a comment that holds the signature of everything before it."""
    return xml + (
        f"<!-- sparkle-signatures:\nedSignature: {signature(xml, key)}\nlength: {len(xml)}\n-->\n"
    ).encode()


def _verified(feed, key):
    """Returns the feed without its signature. Refuses a feed that this key did not sign, because
    its contents would be signed again."""
    if not feed:
        return feed
    xml = SIGNATURE_COMMENT.sub(b"", feed)
    # Ed25519 always gives the same signature for the same bytes, so signing again verifies it.
    if sign_feed(xml, key) != feed:
        raise ValueError("the feed was not signed with this key")
    return xml


def _date_after_feed(date, channel):
    """Returns a date after that of the old feed: updaters refuse a feed that is older."""
    before = channel.findtext("lastBuildDate")
    if not before:
        return date
    return max(date, email.utils.parsedate_to_datetime(before) + datetime.timedelta(seconds=1))


def _channel(feed):
    if feed:
        return ElementTree.fromstring(feed)
    root = ElementTree.Element("rss", {"version": "2.0"})
    channel = ElementTree.SubElement(root, "channel")
    _add(channel, "title", "Vantle")
    ElementTree.SubElement(channel, "lastBuildDate")
    return root


def _add(parent, name, text):
    if text:
        ElementTree.SubElement(parent, name).text = text


def _openssl(*arguments):
    return subprocess.run(
        ["openssl", *map(str, arguments)], check=True, stdout=subprocess.PIPE
    ).stdout
