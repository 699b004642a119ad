"""The settings file survives damage and crashes."""

import configparser
import time

import pytest

from privatedesktop import Program, wait_until, wait_until_still

TRUTHS = ("true", "false")
KEYS = {
    "hasCompletedOnboarding": TRUTHS,
    "corner": ("bottomRight", "bottomLeft", "topRight", "topLeft"),
    "showRecordings": TRUTHS,
    "copyOnCapture": TRUTHS,
    "playSound": TRUTHS,
    "removeAfterUse": TRUTHS,
    "deleteAfterUse": TRUTHS,
    "showInDock": TRUTHS,
}


def check_readable(path):
    """Checks that the file is missing or that every line of it is valid."""
    if not path.exists():
        return
    parser = configparser.ConfigParser(interpolation=None)
    parser.optionxform = str
    parser.read(path)
    for key, value in parser["General"].items():
        if key == "dismissAfter":
            float(value)
        else:
            assert value in KEYS[key], (key, value)


def test_killed_while_it_writes(desktop, binary):
    """The program is killed at ever later moments of a first start, which writes the recommended
    settings."""
    for moment in range(16):
        program = Program(binary, desktop, name=f"vantle-{moment}")
        program.settings_file.unlink(missing_ok=True)
        program.start()
        # There is no condition to wait for: the moments must be spread over the start.
        time.sleep(moment * 0.025)
        program.kill()
        check_readable(program.settings_file)
        left = [path.name for path in program.config_folder.glob("*.damaged")]
        assert left == []
    final = Program(binary, desktop, name="vantle-final")
    try:
        final.start()
        wait_until(desktop.screen.dialogs, "the onboarding opens")
        assert "damaged" not in final.log_text()
        check_readable(final.settings_file)
    finally:
        final.stop()


def test_killed_while_running(desktop, vantle, binary):
    vantle.write_settings(corner="topLeft", dismissAfter="7.5")
    vantle.start_watching()
    written = vantle.settings_file.read_text()
    vantle.kill()
    assert vantle.settings_file.read_text() == written
    again = Program(binary, desktop, name="vantle-again")
    try:
        again.start_watching()
        assert again.settings_file.read_text() == written
    finally:
        again.stop()


# Without its settings the program takes MATE's screenshot tool, which saves to the Desktop.
@pytest.mark.desktop(environment={"XDG_CURRENT_DESKTOP": "MATE"})
def test_an_invalid_file_means_defaults(desktop, vantle, folder):
    damaged = b"\x00\xff[Gen\x00eral\ncorner\x01=topLeft\n\x80\x81=\x00" + bytes(range(256))
    vantle.settings_file.write_bytes(damaged)
    vantle.start()
    # Without its settings the program shows the onboarding again.
    window = wait_until(desktop.screen.dialogs, "the onboarding opens")[0]
    wait_until(lambda: desktop.screen.active_window() == window, "it has the keyboard")
    for _ in range(3):
        desktop.screen.keyboard.press("Return")
    vantle.wait_for_log("watching ")
    wait_until_still(vantle.log_text, "the start", interval=0.05)
    lines = [line for line in vantle.log_lines() if "vantle.conf" in line]
    assert len(lines) == 1, lines
    kept = vantle.settings_file.with_name("vantle.conf.damaged")
    assert kept.read_bytes() == damaged
    folder.save("shot.png")
    folder.wait_for("shot.png")
    panel = wait_until(desktop.screen.panel, "the panel appears")
    assert panel.frame.right == desktop.screen.work_area().right, "not the default corner"


@pytest.mark.parametrize("odd", ["no sense", "[General", "<<<<<<< HEAD", "text=\x00", ""])
def test_an_invalid_line_loses_only_that_line(desktop, vantle, folder, odd):
    """Only the odd line is lost. An empty file loses nothing, because its copy is used."""
    vantle.write_settings(corner="topLeft")
    autostart = desktop.home / ".config/autostart/org.vantle.Vantle.desktop"
    vantle.start_watching()
    vantle.stop()
    whole = vantle.settings_file.read_text()
    vantle.settings_file.write_text(f"{whole}{odd}\n" if odd else "")
    vantle.start()
    vantle.wait_for_log("watching ", times=4)
    assert desktop.screen.dialogs() == [], "it introduces itself again"
    assert not autostart.exists()
    assert "corner=topLeft" in vantle.settings_file.read_text()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    panel = wait_until(desktop.screen.panel, "the panel appears")
    assert panel.frame.x == desktop.screen.work_area().x


def test_unknown_values_are_tolerated(desktop, vantle, folder):
    vantle.write_settings(corner="TOPLEFT", dismissAfter="soon", somethingElse="1")
    vantle.start_watching()
    folder.save("shot.png")
    folder.wait_for("shot.png")
    panel = wait_until(desktop.screen.panel, "the panel appears")
    assert panel.frame.right == desktop.screen.work_area().right
    assert vantle.is_running()
