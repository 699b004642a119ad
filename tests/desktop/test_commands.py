"""The command line, as scripts and launchers use it with a running program."""

import pathlib
import re

import pytest
from PIL import Image

from panel_checks import encoded, is_dismissed, show_one
from pictures import pattern
from privatedesktop import Program, wait_until

NO_DISPLAY = {"DISPLAY": None, "WAYLAND_DISPLAY": None}


def state(vantle):
    return re.search(r"^state: (.*)$", vantle.command("--status")[1], re.MULTILINE).group(1)


def test_pause_and_resume(desktop, vantle, folder):
    vantle.start_watching()
    assert vantle.command("--pause") == (0, "")
    assert state(vantle) == "paused"
    folder.save("unseen.png")
    assert vantle.command("--resume") == (0, "")
    assert state(vantle) == "watching"
    show_one(desktop, folder)
    assert vantle.captured() == ["shot.png"]


def test_dismiss_and_quit(desktop, vantle, folder):
    vantle.start_watching()
    show_one(desktop, folder)
    assert vantle.command("--dismiss") == (0, "")
    wait_until(lambda: is_dismissed(desktop), "the card goes")
    assert vantle.command("--quit") == (0, "")
    assert vantle.wait_for_end() == 0


def test_show_files(desktop, vantle):
    pictures = desktop.home / "Pictures"
    pictures.mkdir()
    (pictures / "ä b.png").write_bytes(encoded(pattern()))
    (pictures / "letter.txt").write_text("Dear")
    vantle.start_watching()
    status, said = vantle.command("--show", str(pictures / "ä b.png"))
    assert (status, said) == (0, "")
    wait_until(desktop.screen.panel, "the file is shown")
    status, said = vantle.command(
        "--show", str(pictures / "none.png"), str(pictures / "letter.txt")
    )
    assert status == 1
    assert f"no such file: {pictures}/none.png" in said
    assert f"not a supported image or recording: {pictures}/letter.txt" in said
    assert "not a supported image or recording" in vantle.command("--show", str(pictures))[1]


def test_verbose_status_describes_the_system_without_paths(desktop, vantle, folder):
    vantle.start_watching()
    show_one(desktop, folder)
    status, report = vantle.command("--status", "--verbose")
    assert status == 0
    facts = dict(re.findall(r"^([^:]+): (.*)$", report, re.MULTILINE))
    assert facts["state"] == "watching"
    assert facts["captures"] == "1"
    assert facts["folder"] == "in the home directory"
    assert facts["folder set by"] == "the default (the Desktop), because no folder is set"
    assert facts["display server"].startswith("X11, ")
    assert facts["window manager"] == "Openbox"
    assert facts["compositor"] == "yes"
    assert facts["tray"] == "embedded"
    assert facts["decoders"].startswith("png, jpeg, gif, tiff, heic, webp, pdf, recording; ")
    assert facts["screens"].endswith("at 0, 0, scale 1")
    assert str(desktop.home) not in report
    assert str(desktop.home) in vantle.command("--status", "--verbose", "--with-paths")[1]


def test_show_starts_the_program(desktop, vantle, binary):
    picture = desktop.home / "picture.png"
    picture.write_bytes(encoded(pattern()))
    started = Program([binary, "--show", str(picture)], desktop, name="started")
    try:
        started.start_watching()
        wait_until(desktop.screen.panel, "the file is shown")
        assert state(vantle) == "watching"
    finally:
        started.stop()


def test_samples(desktop, vantle):
    vantle.start_watching()
    assert vantle.command("--sample") == (0, "")
    wait_until(lambda: vantle.shown_counts() == [1, 2], "both samples are shown")
    sizes = {}
    for path in pathlib.Path(desktop.environment["TMPDIR"]).glob("vantle-*/*.png"):
        with Image.open(path) as image:
            sizes[path.name] = image.size
            image.verify()
    assert sizes == {"Vantle Sample.png": (1600, 1000), "Vantle Sample 2.png": (900, 1200)}
    assert vantle.captured() == []


def test_nothing_happens_without_a_place_for_samples(desktop, vantle, binary):
    nowhere = Program(binary, desktop, environment={"TMPDIR": "/proc"}, name="nowhere")
    try:
        nowhere.start_watching()
        assert nowhere.command("--sample") == (0, "")
        assert state(nowhere) == "watching"
        assert nowhere.shown_counts() == []
        assert desktop.screen.dialogs() == []
    finally:
        nowhere.stop()


def test_commands_need_no_display(desktop, vantle):
    vantle.start_watching()
    status, said = vantle.command("--status", environment=NO_DISPLAY)
    assert status == 0
    assert f"folder: {desktop.home}/Desktop" in said
    assert re.search(r"^version: \d+\.\d+\.\d+$", said, re.MULTILINE)


def test_a_start_without_a_display_fails_with_a_reason(vantle):
    status, said = vantle.command(environment=NO_DISPLAY)
    assert status == 1
    assert said.splitlines()[-1] == "Vantle: cannot connect to a display"


def test_commands_without_a_session_bus(desktop, vantle, binary):
    no_bus = {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent/bus"}
    first = Program(binary, desktop, environment=no_bus, name="first")
    try:
        first.start_watching()
        assert first.command("--pause") == (0, "")
        assert state(first) == "paused"
        assert first.command("--show", "/nowhere.png")[0] == 1
        assert first.command("--quit") == (0, "")
        assert first.wait_for_end() == 0
    finally:
        first.stop()


@pytest.mark.parametrize("option", ["--pause", "--resume", "--dismiss", "--quit", "--status"])
def test_commands_for_a_running_program_say_that_none_runs(vantle, option):
    assert vantle.command(option) == (1, "vantle: Vantle is not running\n")


def test_wrong_command_lines(vantle):
    for arguments in (["--dance"], ["-x"], ["file.png"], ["--show"], ["--pause", "now"]):
        status, said = vantle.command(*arguments)
        assert status == 2
        assert said.startswith("vantle: ")
        assert '"vantle --help"' in said


def test_version_and_help(vantle):
    assert re.fullmatch(r"Vantle \d+\.\d+\.\d+\n", vantle.command("--version")[1])
    status, said = vantle.command("--help", environment=NO_DISPLAY)
    assert status == 0
    assert "--show FILE…" in said


def test_actions_of_the_launcher(desktop, vantle):
    """The program accepts each action in the desktop entry."""
    entry = pathlib.Path(__file__).resolve().parents[2] / "packaging/org.vantle.Vantle.desktop"
    desktop.run("desktop-file-validate", str(entry))
    text = entry.read_text()
    actions = re.search(r"^Actions=(.*);$", text, re.MULTILINE).group(1).split(";")
    assert re.findall(r"^\[Desktop Action (.*)\]$", text, re.MULTILINE) == actions
    vantle.start_watching()
    for action in actions:
        if action == "quit":
            continue
        desktop.run(
            "gdbus", "call", "--session", "--dest", "org.vantle.Vantle",
            "--object-path", "/org/vantle/Vantle",
            "--method", "org.freedesktop.Application.ActivateAction", action, "[]", "{}",
        )  # fmt: skip
        assert re.search(rf"^Exec=vantle --{action}$", text, re.MULTILINE)
    wait_until(lambda: vantle.shown_counts() == [1, 2] or "sample" not in actions, "the samples")
