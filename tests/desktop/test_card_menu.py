"""The menus of the card, opened by the second mouse button and by keys."""

import os

import pytest
from assistant import ENVIRONMENT, Assistant
from card_menu import CardMenu
from conftest import require_peer
from panel_checks import is_dismissed, show_one, show_several, wait_for_card
from privatedesktop import Program, wait_until
from using import tile_of, window_titled


@pytest.fixture
def vantle(desktop, binary):
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings()
    yield program
    program.stop()


@pytest.fixture
def assistant(desktop):
    return Assistant(desktop)


@pytest.fixture
def menu(desktop, vantle):
    return CardMenu(desktop, vantle)


def test_a_program_of_the_menu_opens_the_file(desktop, vantle, folder, menu):
    require_peer("viewnior")
    (desktop.home / ".config/mimeapps.list").write_text(
        "[Default Applications]\nimage/png=viewnior.desktop\n")
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    # The second line is "Open With", and the first program in it is the default one.
    menu.open_at(*tile_of(card)).choose("Down", "Down", "Right")
    window_titled(desktop, "shot.png")
    wait_until(lambda: is_dismissed(desktop), "the used capture leaves")


def test_a_name_typed_on_the_tile_renames_the_file(desktop, vantle, folder, menu, assistant):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    # "Rename…" is the third line from the end.
    menu.open_at(card.x + 60, card.y + 60).choose("Up", "Up", "Up")
    panel = desktop.screen.panel()
    wait_until(lambda: desktop.screen.focused_window() == panel.number, "the card has the keys")
    desktop.screen.keyboard.type("2")
    desktop.screen.keyboard.press("Return")
    wait_until(
        lambda: "A file of this name exists already." in
        [item["description"] for item in assistant.found()], "the field says why not")
    desktop.screen.keyboard.type("5 invoices")
    desktop.screen.keyboard.press("Return")
    wait_until(
        lambda: sorted(os.listdir(folder.path)) == ["2.png", "25 invoices.png"],
        "the file has its new name")
    folder.wait_for_marker()
    assert vantle.log_text().count("captured 25 invoices.png") == 0
    assert vantle.log_text().count("remove") == 0


def test_the_background_offers_to_clear_the_card(desktop, vantle, folder, menu):
    vantle.start_watching()
    card = show_several(desktop, folder, 2)
    # The lower edge of the card is background.
    menu.open_at(card.x + 6, card.bottom - 5).choose("Down", "Down")
    wait_until(lambda: is_dismissed(desktop), "the card leaves")


def test_a_click_beside_the_menu_only_closes_it(desktop, vantle, folder, menu):
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    menu.open_at(*tile_of(card))
    wait_until(desktop.screen.menu, "the menu is open")
    desktop.screen.pointer.click(60, 300)
    wait_until(lambda: desktop.screen.menu() is None, "the menu closes")
    assert not is_dismissed(desktop)
