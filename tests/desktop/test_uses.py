"""Opening, showing, sharing and trashing captures, with the desktop's own programs."""

import os

from panel_checks import encoded, is_dismissed, show_one, wait_for_card
from pictures import pattern
from privatedesktop import ensure_never, wait_until, wait_until_still
from using import press_button, press_with_control, select_all, tile_of, window_titled

# The height of a line in the share menu.
MENU_LINE = 28


def trashed(desktop):
    """Returns the names that the desktop's own tool lists in the Trash."""
    lines = desktop.run("gio", "trash", "--list").stdout.decode().splitlines()
    return sorted(line.split("\t")[0].rsplit("/", 1)[-1] for line in lines)


def restore(desktop, name):
    desktop.run("gio", "trash", "--restore", f"trash:///{name}")


def menus(desktop):
    """Returns Vantle's open menus."""
    return [
        window
        for window in desktop.screen.windows()
        if window.is_mapped
        and "vantle" in (name.lower() for name in window.class_names)
        and window.frame.width < 400
    ]


def open_share_menu(desktop, vantle, card):
    keys = "menu gets the keys: yes"
    before = vantle.log_text().count(keys)
    press_button(desktop, card, "share")
    wait_until(lambda: menus(desktop), "the menu is open")
    vantle.wait_for_log(keys, times=before + 1)


def test_a_click_opens_the_file_with_its_default_application(desktop, vantle, folder):
    applications = desktop.home / ".config"
    (applications / "mimeapps.list").write_text(
        "[Default Applications]\nimage/png=mtpaint.desktop\n")
    vantle.write_settings(removeAfterUse="true")
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    desktop.screen.pointer.click(*tile_of(card))
    window_titled(desktop, str(folder.path / "shot.png"))
    wait_until(lambda: is_dismissed(desktop), "the used capture leaves")
    assert (folder.path / "shot.png").exists()


def test_reveal_shows_the_file_in_the_file_manager(desktop, vantle, folder, card):
    press_button(desktop, card, "reveal")
    # The file manager was not running before.
    window_titled(desktop, "Desktop")
    wait_until(lambda: is_dismissed(desktop), "the used capture leaves")


def test_a_trashed_file_is_restored_with_its_name(desktop, vantle, folder, card):
    original = folder.path / "shot.png"
    content = original.read_bytes()
    press_button(desktop, card, "trash")
    wait_until(lambda: is_dismissed(desktop), "the capture leaves")
    wait_until(lambda: trashed(desktop) == ["shot.png"], "the desktop's tool finds it in the Trash")
    assert not original.exists()
    restore(desktop, "shot.png")
    assert original.read_bytes() == content


def test_a_file_manager_restores_names_of_all_kinds(desktop, vantle, folder):
    names = {"50% of 100 #1?.png", "übung größe.png", "percent%20.png"}
    vantle.start_watching()
    for name in names:
        folder.save(name, encoded(pattern()))
        folder.wait_for(name)
    card = wait_for_card(desktop, wait_until(desktop.screen.panel, "the panel appears"))
    select_all(desktop, card)
    # The second button of the bar on the card's upper edge.
    desktop.screen.pointer.click(card.centre[0] + 20, card.y + 6)
    wait_until(lambda: len(trashed(desktop)) == len(names), "all are trashed")
    assert not os.listdir(folder.path)
    restore_all_by_file_manager(desktop, lambda: set(os.listdir(folder.path)) == names)


def restore_all_by_file_manager(desktop, is_done):
    desktop.start("thunar", "trash:///")
    area = desktop.screen.area(window_titled(desktop, "Trash"))
    pointer = desktop.screen.pointer

    def select_and_restore():
        """Fails while the file manager is still listing, so the caller repeats it."""
        pointer.click(area.right - 20, area.bottom - 120)
        press_with_control(desktop, "a")
        wait_until_still(lambda: desktop.screen.screenshot(area).tobytes(), "the selection")
        # The button "Restore Selected Items".
        pointer.click(area.right - 299, area.bottom - 50)
        wait_until_still(lambda: desktop.screen.screenshot(area).tobytes(), "the list")
        return is_done()

    wait_until(select_and_restore, "all are back", limit=40.0)


def test_the_trash_is_shared_with_other_programs(desktop, vantle, folder, card):
    original = folder.path / "shot.png"
    content = original.read_bytes()
    other = desktop.home / "shot.png"
    other.write_bytes(b"of somebody else")
    desktop.run("gio", "trash", str(other))
    press_button(desktop, card, "trash")
    wait_until(lambda: len(trashed(desktop)) == 2, "both are in the Trash")
    for name in trashed(desktop):
        restore(desktop, name)
    assert original.read_bytes() == content
    assert other.read_bytes() == b"of somebody else"


def test_a_trash_that_cannot_be_made_loses_nothing(desktop, vantle, folder, card):
    data = desktop.home / ".local/share"
    data.mkdir(parents=True, exist_ok=True)
    (data / "Trash").write_text("a file where the folder should be")
    press_button(desktop, card, "trash")
    vantle.wait_for_log("^Trash failed: .*shot.png: ")
    wait_until(lambda: is_dismissed(desktop), "the capture leaves all the same")
    assert (folder.path / "shot.png").exists()


def test_copying_counts_as_use_with_its_delays(desktop, vantle, folder):
    vantle.write_settings(removeAfterUse="true", deleteAfterUse="true")
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    press_button(desktop, card, "copy")
    wait_until(lambda: is_dismissed(desktop), "the used capture leaves")
    # This is long after the card has gone.
    assert (folder.path / "shot.png").exists()
    wait_until(lambda: trashed(desktop) == ["shot.png"], "its file goes to the Trash")


def test_the_share_menu_shows_the_file(desktop, vantle, folder, card):
    open_share_menu(desktop, vantle, card)
    for key in ("Down", "Down", "Return"):
        desktop.screen.keyboard.press(key)
    window_titled(desktop, "Desktop")
    wait_until(lambda: is_dismissed(desktop), "the shared capture leaves")


def test_the_share_menu_copies_the_file_by_a_click(desktop, vantle, folder, card):
    open_share_menu(desktop, vantle, card)
    plate = wait_until_still(lambda: menus(desktop)[0].frame, "the menu")
    desktop.screen.pointer.click(plate.centre[0], plate.centre[1] - MENU_LINE // 2)
    wait_until(lambda: is_dismissed(desktop), "the shared capture leaves")
    address = (folder.path / "shot.png").as_uri() + "\r\n"
    paste = ("xclip", "-selection", "clipboard", "-t", "text/uri-list", "-o")
    wait_until(lambda: desktop.run(*paste, check=False).stdout.decode() == address, "it is copied")


def test_closing_the_share_menu_does_not_count_as_use(desktop, vantle, folder, card):
    pointer = desktop.screen.pointer
    for close in (
        lambda: desktop.screen.keyboard.press("Escape"),
        lambda: pointer.click(300, 300),
    ):
        open_share_menu(desktop, vantle, card)
        close()
        wait_until(lambda: not menus(desktop), "the menu is closed")
    ensure_never(lambda: is_dismissed(desktop), "the capture leaves", 1.0)


def test_the_countdown_waits_for_the_share_menu(desktop, vantle, folder):
    vantle.write_settings(dismissAfter="3")
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    # With a countdown there is a fifth button before the others, whose places count from the right.
    open_share_menu(desktop, vantle, card)
    desktop.screen.pointer.move(300, 300)
    ensure_never(lambda: is_dismissed(desktop), "the countdown goes on", 4.0)
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: is_dismissed(desktop), "the countdown goes on")
