"""What the clipboard holds after a copy, and how other programs paste it."""

import io

import pytest
from PIL import Image

from panel_checks import encoded, show_one, show_several, wait_for_card
from pictures import BLUE, GREEN, RED, YELLOW, area_of, pattern, plain
from privatedesktop import Rectangle, WaitTimeout, wait_until
from using import press_button, press_with_control, select_all, window_titled


@pytest.fixture
def card(desktop, vantle, folder):
    """The card with one capture on it, which stays when it is used."""
    vantle.write_settings(removeAfterUse="false", deleteAfterUse="false")
    vantle.start_watching()
    return wait_for_card(desktop, show_one(desktop, folder))


def paste(desktop, target):
    """Returns the clipboard's content of that type, or nothing if there is none."""
    done = desktop.run("xclip", "-selection", "clipboard", "-t", target, "-o", check=False)
    return done.stdout if done.returncode == 0 else b""


def targets(desktop):
    return paste(desktop, "TARGETS").decode().split()


def copy(desktop, card):
    press_button(desktop, card, "copy")
    wait_until(lambda: "x-special/gnome-copied-files" in targets(desktop), "it is copied")


def test_one_screenshot_is_offered_as_picture_and_as_file(desktop, vantle, folder, card):
    copy(desktop, card)
    file = folder.path / "shot.png"
    # This type is offered only if a portal is installed.
    kinds = [kind for kind in targets(desktop) if kind != "application/vnd.portal.filetransfer"]
    assert kinds[:4] == ["image/png", "image/jpeg", "image/bmp", "text/uri-list"]
    assert paste(desktop, "image/png") == file.read_bytes()
    for kind in ("image/jpeg", "image/bmp"):
        picture = Image.open(io.BytesIO(paste(desktop, kind)))
        assert picture.size == pattern().size
        pixels = zip(picture.getpixel((30, 30)), pattern().getpixel((30, 30)))
        assert all(abs(a - b) < 9 for a, b in pixels)
    assert paste(desktop, "text/uri-list").decode() == file.as_uri() + "\r\n"
    assert paste(desktop, "x-special/gnome-copied-files").decode() == "copy\n" + file.as_uri()
    assert paste(desktop, "x-special/mate-copied-files").decode() == "copy\n" + file.as_uri()
    assert paste(desktop, "application/x-kde-cutselection") == b"0"
    assert paste(desktop, "UTF8_STRING").decode() == str(file)


def test_several_are_offered_as_files_only(desktop, vantle, folder):
    vantle.write_settings(removeAfterUse="false")
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    select_all(desktop, card)
    # The first button of the bar on the card's upper edge.
    desktop.screen.pointer.click(card.centre[0] - 8, card.y + 6)
    wait_until(lambda: "text/uri-list" in targets(desktop), "they are copied")
    assert not [target for target in targets(desktop) if target.startswith("image/")]
    addresses = [(folder.path / name).as_uri() for name in ("1.png", "2.png")]
    assert paste(desktop, "text/uri-list").decode() == "".join(a + "\r\n" for a in addresses)


def test_the_picture_outlives_the_capture_and_its_file(desktop, vantle, folder):
    vantle.write_settings(removeAfterUse="true", deleteAfterUse="true")
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    copy(desktop, card)
    wait_until(lambda: desktop.screen.panel() is None, "the capture leaves")
    trashed = desktop.home / ".local/share/Trash/files/shot.png"
    wait_until(trashed.exists, "its file goes to the Trash")
    assert not (folder.path / "shot.png").exists()
    assert paste(desktop, "image/png") == trashed.read_bytes()


def test_a_clipboard_manager_keeps_it_when_the_program_ends(desktop, vantle, folder, card):
    desktop.start("xfsettingsd", "--no-daemon", "--disable-wm-check")
    wait_until(lambda: desktop.screen.owns("CLIPBOARD_MANAGER"), "the manager is there")
    copy(desktop, card)
    vantle.stop()
    content = (folder.path / "shot.png").read_bytes()
    wait_until(lambda: paste(desktop, "image/png") == content, "the manager has the picture")
    assert paste(desktop, "text/uri-list").decode() == (folder.path / "shot.png").as_uri() + "\r\n"


def test_an_automatic_copy_replaces_a_later_copy_of_another_program(desktop, vantle, folder):
    vantle.write_settings(copyOnCapture="true", removeAfterUse="false")
    vantle.start_watching()
    # Nobody has used Vantle since, so its newest input event is older than this copy.
    desktop.run("sh", "-c", "printf earlier | xclip -selection clipboard >/dev/null 2>&1")
    assert paste(desktop, "UTF8_STRING") == b"earlier"
    show_one(desktop, folder)
    wait_until(lambda: "image/png" in targets(desktop), "the capture is on the clipboard")
    assert paste(desktop, "image/png") == encoded(pattern())


def test_a_file_manager_pastes_a_copy_of_the_file(desktop, vantle, folder, card):
    target = desktop.home / "Target"
    target.mkdir()
    desktop.start("thunar", str(target))
    window_titled(desktop, "Target")
    copy(desktop, card)
    desktop.screen.pointer.click(800, 450)
    press_with_control(desktop, "v")
    content = (folder.path / "shot.png").read_bytes()
    copied = target / "shot.png"
    wait_until(lambda: copied.exists() and copied.read_bytes() == content, "it is pasted")
    assert (folder.path / "shot.png").exists()


def test_a_web_page_pastes_the_file_and_its_text_field_the_path(
    desktop, vantle, folder, card, page
):
    copy(desktop, card)
    page.focus_text()
    press_with_control(desktop, "v")
    [file] = page.pasted()
    content = (folder.path / "shot.png").read_bytes()
    assert (file.name, file.type, file.content) == ("shot.png", "image/png", content)
    assert page.typed() == str(folder.path / "shot.png")


def test_an_image_editor_pastes_the_picture(desktop, vantle, folder, card):
    # A picture with all colours, because this editor starts with one of few.
    paper = desktop.home / "paper.png"
    plain((640, 400)).save(paper)
    desktop.start("mtpaint", str(paper))
    editor = window_titled(desktop, "mtPaint")
    copy(desktop, card)
    desktop.screen.pointer.click(600, 330)
    wait_until(lambda: desktop.screen.active_window() == editor, "the editor is active")
    wait_until(lambda: paste_into_editor(desktop), "the picture is pasted", limit=60)


def paste_into_editor(desktop):
    """Pastes, and returns true if that worked. A busy editor loses keys, so the caller tries
    again."""
    keyboard = desktop.screen.keyboard
    # Menu: Edit, Import Clipboard from System.
    keyboard.hold("Alt_L")
    keyboard.press("e")
    keyboard.let_go("Alt_L")
    try:
        wait_until(lambda: menus(desktop), "the menu is open", limit=5)
        for _ in range(8):
            keyboard.press("Down")
        keyboard.press("Return")
        canvas = Rectangle(280, 150, 300, 240)
        wait_until(lambda: has_all_quarters(desktop.screen.screenshot(canvas)), "it is there",
                   limit=5)
    except WaitTimeout:
        keyboard.press("Escape")
        return False
    return True


def menus(desktop):
    return [
        window
        for window in desktop.screen.windows()
        if window.is_mapped and window.is_override_redirect and "mtpaint" in window.class_names
    ]


def has_all_quarters(picture):
    return all(area_of(picture, colour) > 100 for colour in (RED, GREEN, BLUE, YELLOW))
