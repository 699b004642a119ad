"""The contents of the Debian package, each of which must work on a Debian system."""

import os
import platform
import re

import pytest
from PIL import Image

import releasing
from conftest import ROOT, release, run

IDENTIFIER = "org.vantle.Vantle"
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
PROGRAMS = [
    "vantle", "vantle-applications", "vantle-decoder", "vantle-folder-dialog", "vantle-reader",
    "vantle-updater",
]  # fmt: skip
LANGUAGES = sorted(path.stem for path in (ROOT / "translations").glob("*.ts"))
FORMATS = sorted(path.parent.name
                 for path in (ROOT / "src/decoder/formats").glob("*/CMakeLists.txt"))
LIBRARIES = ["libvantle-core", "vantle-no-proxies", "vantle-views"]
OF_ANY_COPY = [
    *(f"bin/{program}" for program in PROGRAMS),
    *(f"lib/vantle/modules/vantle-decoder-{name}.so" for name in FORMATS),
    *(f"lib/vantle/modules/{name}.so" for name in LIBRARIES),
    "share/doc/vantle/copyright",
    "share/vantle/release",
    "share/vantle/sounds/Pop.wav",
    *(f"share/vantle/translations/{language}.qm" for language in LANGUAGES),
]
OF_THE_SYSTEM = [
    f"share/applications/{IDENTIFIER}.desktop",
    "share/bash-completion/completions/vantle",
    f"share/dbus-1/services/{IDENTIFIER}.service",
    "share/doc/vantle/CHANGELOG.md.gz",
    "share/doc/vantle/changelog.gz",
    "share/fish/vendor_completions.d/vantle.fish",
    *(f"share/icons/hicolor/{size}x{size}/apps/{IDENTIFIER}.png" for size in SIZES),
    f"share/icons/hicolor/scalable/apps/{IDENTIFIER}.svg",
    f"share/icons/hicolor/symbolic/apps/{IDENTIFIER}-symbolic.svg",
    *(f"share/man/man1/{program}.1.gz" for program in PROGRAMS),
    f"share/metainfo/{IDENTIFIER}.metainfo.xml",
    "share/zsh/vendor-completions/_vantle",
]


def files_in(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file())


def field(package, name):
    return run("dpkg-deb", "--field", package, name).strip()


def program_version(installed):
    return run(installed / "bin/vantle", "--version").split()[-1]


def test_the_package_holds_exactly_the_expected_files(package, installed):
    assert files_in(installed) == sorted(OF_ANY_COPY + OF_THE_SYSTEM)
    for line in run("dpkg-deb", "--contents", package).splitlines():
        mode, owner, *_, name = line.split()
        executable = mode.startswith("d") or name.startswith("./usr/bin/")
        assert mode[1:] == ("rwxr-xr-x" if executable else "rw-r--r--"), name
        assert owner == "root/root"
    # The package has no scripts that run at its installation.
    assert re.findall(r"\* +(\w+)", run("dpkg-deb", "--info", package)) == []


def test_a_tree_holds_no_files_of_a_system(tmp_path):
    run("tar", "-xf", release("tree", tmp_path), "-C", tmp_path)
    tree = tmp_path / "vantle"
    assert files_in(tree) == sorted([*OF_ANY_COPY, "share/vantle/manifest"])
    assert "installation=tree" in (tree / "share/vantle/release").read_text()


def test_lintian_reports_nothing(package):
    assert run("lintian", "--allow-root", "--fail-on", "warning", package) == ""


def test_the_same_build_makes_the_same_bytes(package, tmp_path):
    # Another file system gives folders other sizes.
    elsewhere = {**os.environ, "TMPDIR": "/dev/shm"}
    again = release("package", tmp_path, umask=0o077, env=elsewhere)
    assert again.read_bytes() == package.read_bytes()


def test_its_name_and_changelog_have_its_version(package, installed):
    version = program_version(installed)
    assert package.name == f"vantle_{version}_{field(package, 'Architecture')}.deb"
    assert field(package, "Version") == version
    changelog = run("zcat", installed / "share/doc/vantle/changelog.gz")
    assert changelog.startswith(f"vantle ({version}) ")
    metainfo = (installed / f"share/metainfo/{IDENTIFIER}.metainfo.xml").read_text()
    assert re.search(r'<release version="([^"]+)"', metainfo).group(1) == version


def test_it_is_updated_as_a_package(installed):
    said = dict(
        line.split("=") for line in (installed / "share/vantle/release").read_text().splitlines()
    )
    assert said == {
        "version": program_version(installed),
        "platform": f"linux-{platform.machine()}-deb",
        "installation": "package",
    }


def test_it_depends_on_modules_that_are_loaded_by_name(package):
    lines = (ROOT / "scripts/packages/run.list").read_text().splitlines()
    modules = [line.split()[0] for line in lines if line.startswith("qml6-module")]
    assert modules
    depends = [part.split()[0] for part in field(package, "Depends").split(", ")]
    assert set(modules) < set(depends)
    assert {"libqt6quick6", "libc6"} < set(depends)
    # The text reader loads its library, so that Vantle can be installed without it.
    assert not any(name.startswith("libtesseract") for name in depends)
    assert "tesseract-ocr" in field(package, "Recommends").split(", ")
    # The number in the package's name depends on the release.
    assert any(name.startswith("libpoppler-cpp") for name in depends)


def test_the_desktop_understands_its_entries(installed):
    entry = installed / f"share/applications/{IDENTIFIER}.desktop"
    run("desktop-file-validate", entry)
    assert "DBusActivatable=true" in entry.read_text()
    service = (installed / f"share/dbus-1/services/{IDENTIFIER}.service").read_text()
    assert f"Name={IDENTIFIER}\n" in service
    assert "Exec=/usr/bin/vantle --dbus-activated\n" in service
    # The tool of Debian 12 does not know <developer>; the one of Debian 13 requires it.
    run("appstreamcli", "validate", "--strict", "--no-net", "--override=unknown-tag=pedantic",
        installed / f"share/metainfo/{IDENTIFIER}.metainfo.xml")  # fmt: skip


@pytest.mark.parametrize("size", SIZES)
def test_icons_have_their_size(installed, size):
    icon = installed / f"share/icons/hicolor/{size}x{size}/apps/{IDENTIFIER}.png"
    with Image.open(icon) as image:
        assert image.size == (size, size)
        alpha = image.getchannel("A")
    assert alpha.getextrema() == (0, 255)
    left, top, right, bottom = alpha.getbbox()
    assert min(right - left, bottom - top) > 0.75 * size


@pytest.mark.parametrize("program", PROGRAMS)
def test_each_program_has_a_manual(installed, program):
    page = installed / f"share/man/man1/{program}.1.gz"
    environment = {"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "MANROFFSEQ": "", "MANWIDTH": "80",
                   "GROFF_NO_SGR": "1"}
    said = run("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", page, env=environment)
    assert "warning" not in said and "mdoc" not in said
    # Bold letters appear twice, with a backspace in between.
    assert re.search(rf"^NAME\n +{program} —", re.sub(".\b", "", said), re.MULTILINE)


def options_of(vantle):
    return re.findall(r"^  (--[a-z-]+)", run(vantle, "--help"), re.MULTILINE)


def details_of(vantle):
    """Returns the options that may follow --status."""
    return re.findall(r"^    (--[a-z-]+)", run(vantle, "--help"), re.MULTILINE)


def test_the_manual_describes_every_option(installed):
    page = run("zcat", installed / "share/man/man1/vantle.1.gz")
    told = [f"-{name}" for name in re.findall(r"^\.It Fl (-[a-z-]+)", page, re.MULTILINE)]
    assert [name for name in told if name != "--dbus-activated"] == options_of(
        installed / "bin/vantle"
    )
    for detail in details_of(installed / "bin/vantle"):
        assert f"Fl {detail[1:]}" in page


def test_bash_completes(installed, tmp_path):
    completion = installed / "share/bash-completion/completions/vantle"
    (tmp_path / "a b.png").touch()

    def completed(*words):
        script = (
            f'source "{completion}"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); '
            'compopt() { :; }; _vantle vantle "${!#}" ""; printf "%s\\n" "${COMPREPLY[@]}"'
        )
        return run("bash", "-uec", script, "bash", *words, cwd=tmp_path).splitlines()

    assert completed("vantle", "--") == options_of(installed / "bin/vantle")
    assert completed("vantle", "--se") == ["--settings"]
    assert completed("vantle", "--show", "a") == ["a b.png"]
    assert completed("vantle", "--pause", "") == [""]
    assert completed("vantle", "--status", "--") == details_of(installed / "bin/vantle")


def test_fish_completes(installed, tmp_path):
    completion = installed / "share/fish/vendor_completions.d/vantle.fish"
    (tmp_path / "a b.png").touch()

    def completed(line):
        script = f"source {completion}; complete -C '{line}'"
        environment = {"HOME": str(tmp_path), "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8"}
        said = run("fish", "--no-config", "-c", script, cwd=tmp_path, env=environment)
        return [line.split("\t")[0] for line in said.splitlines()]

    assert sorted(completed("vantle --")) == sorted(options_of(installed / "bin/vantle"))
    assert completed("vantle --show a") == ["a b.png"]
    assert completed("vantle --pause a") == []
    assert sorted(completed("vantle --status --")) == sorted(details_of(installed / "bin/vantle"))


def test_zsh_completes(installed):
    completion = installed / "share/zsh/vendor-completions/_vantle"
    run("zsh", "-n", completion)
    offered = re.findall(r"\)(--[a-z-]+)\[", completion.read_text())
    assert offered == options_of(installed / "bin/vantle")
    for detail in details_of(installed / "bin/vantle"):
        assert detail in completion.read_text()


def test_programs_find_their_files(installed, tmp_path):
    picture, thumbnail = tmp_path / "picture.png", tmp_path / "thumbnail.png"
    Image.new("RGB", (1600, 900), "teal").save(picture)
    said = run(installed / "bin/vantle-decoder", "--thumbnail", picture, thumbnail)
    assert said == "1600 x 900\n"
    with Image.open(thumbnail) as image:
        assert image.size == (800, 450)
        assert image.getpixel((400, 200))[:3] == (0, 128, 128)


def test_the_feed_knows_the_package_by_its_name(package, tmp_path):
    key, feed = tmp_path / "key.pem", tmp_path / "appcast.xml"
    run(ROOT / "packaging/release", "key", key)
    run(ROOT / "packaging/release", "feed", "--key", key, "--feed", feed, "--archive", package,
        "--address", f"https://vantle.org/updates/{package.name}")  # fmt: skip
    text = feed.read_text()
    assert f'sparkle:os="linux-{platform.machine()}-deb"' in text
    assert f"<sparkle:version>{field(package, 'Version')}</sparkle:version>" in text


def test_its_files_have_the_date_of_the_changelog(package):
    date = releasing.date_of_package(ROOT / "packaging/debian/changelog")
    [made] = set(re.findall(r"\d{4}-\d\d-\d\d \d\d:\d\d", run("dpkg-deb", "--contents", package)))
    assert made == run("date", "-u", "-d", f"@{date}", "+%Y-%m-%d %H:%M").strip()
