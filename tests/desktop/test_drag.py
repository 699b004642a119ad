"""Tiles are dragged into other programs with a real pointer; the tests check what arrives there."""

from drop_target import DropTarget, served
from panel_checks import is_dismissed, show_one, show_several, wait_for_card
from privatedesktop import Rectangle, ensure_never, wait_until, wait_until_still
from using import Drag, select_all, tile_of, window_titled

TARGET = Rectangle(200, 200, 300, 300)


def check_nothing_happened(desktop, folder):
    """Checks that the tile and the file are still there, and that nothing is in the Trash."""
    ensure_never(lambda: is_dismissed(desktop), "the tile leaves", 1.0)
    assert (folder.path / "shot.png").exists()
    assert not (desktop.home / ".local/share/Trash").exists()


def test_into_a_file_manager_which_copies_the_file(desktop, vantle, folder, card):
    target = desktop.home / "Target"
    target.mkdir()
    desktop.start("thunar", str(target))
    window_titled(desktop, "Target")
    assert Drag(desktop, vantle, tile_of(card)).hold_over(800, 450).drop()
    copy = target / "shot.png"
    original = folder.path / "shot.png"
    wait_until(lambda: copy.exists() and copy.read_bytes() == original.read_bytes(), "it is copied")
    wait_until(lambda: is_dismissed(desktop), "the used capture leaves")


def test_into_a_web_page(desktop, vantle, folder, card, page):
    assert Drag(desktop, vantle, tile_of(card)).hold_over(*page.middle).drop()
    [file] = page.dropped()
    content = (folder.path / "shot.png").read_bytes()
    assert (file.name, file.type, file.size) == ("shot.png", "image/png", len(content))
    assert file.content == content


def test_a_selection_of_seven_into_a_web_page(desktop, vantle, folder, page):
    vantle.write_settings(removeAfterUse="true")
    vantle.start_watching()
    card = show_several(desktop, folder, 7)
    # The row of seven is longer than the card: a marquee over the visible part selects four of
    # them, and Ctrl-clicks select the others.
    pointer, keyboard = desktop.screen.pointer, desktop.screen.keyboard
    select_all(desktop, card)
    pointer.move(*tile_of(card))
    for _ in range(12):
        pointer.press(4)
        pointer.release(4)
    wait_until_still(lambda: desktop.screen.screenshot(card).tobytes(), "the row")
    keyboard.hold("Control_L")
    for column in range(3):
        pointer.click(card.x + 12 + 80 + 170 * column, card.y + 60)
    keyboard.let_go("Control_L")
    assert Drag(desktop, vantle, (card.x + 92, card.y + 60)).hold_over(*page.middle).drop()
    files = page.dropped()
    assert [file.name for file in files] == [f"{number}.png" for number in range(1, 8)]
    for file in files:
        assert file.type == "image/png"
        assert file.content == (folder.path / file.name).read_bytes()
    wait_until(lambda: is_dismissed(desktop), "all seven leave")


def test_into_an_image_editor(desktop, vantle, folder, card):
    desktop.start("mtpaint")
    window_titled(desktop, "mtPaint")
    assert Drag(desktop, vantle, tile_of(card)).hold_over(600, 400).drop()
    window_titled(desktop, str(folder.path / "shot.png"))


def test_a_drag_offers_the_file_alone(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET)
    with served(target):
        assert Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre).drop()
    assert "text/uri-list" in target.offered
    assert not [kind for kind in target.offered if kind.startswith("image/")]
    assert bytes(target.received).decode().split() == [(folder.path / "shot.png").as_uri()]


def test_a_program_that_asks_before_the_drop_gets_the_file(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET, behaviour="early")
    with served(target):
        assert Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre).drop()
    assert bytes(target.received).decode().split() == [(folder.path / "shot.png").as_uri()]


def test_a_tile_dropped_on_nothing_stays(desktop, vantle, folder, card):
    assert not Drag(desktop, vantle, tile_of(card)).move(500, 300).drop()
    check_nothing_happened(desktop, folder)


def test_a_tile_dropped_on_the_card_stays(desktop, vantle, folder, card):
    assert not Drag(desktop, vantle, tile_of(card)).move(card.x + 30, card.bottom - 20).drop()
    check_nothing_happened(desktop, folder)


def test_escape_ends_a_drag(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET)
    with served(target):
        drag = Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre)
        desktop.screen.keyboard.press("Escape")
        assert not drag.was_taken()
        desktop.screen.pointer.release()
        check_nothing_happened(desktop, folder)
        # The next drag works.
        assert Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre).drop()


def test_a_refused_tile_stays(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET, behaviour="refuse")
    with served(target):
        drag = Drag(desktop, vantle, tile_of(card)).move(*TARGET.centre)
        wait_until(lambda: target.offered, "the target hears of the drag")
        assert not drag.drop()
    check_nothing_happened(desktop, folder)


def test_a_broken_promise_does_not_count_as_use(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET, behaviour="deny")
    with served(target):
        assert not Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre).drop()
    check_nothing_happened(desktop, folder)


def test_a_target_that_reads_nothing_takes_nothing(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET, behaviour="ignore")
    with served(target):
        assert not Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre).drop()
    check_nothing_happened(desktop, folder)


def test_a_target_that_dies_at_the_drop_takes_nothing(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET, behaviour="die")
    with served(target):
        assert not Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre).drop()
    check_nothing_happened(desktop, folder)


def test_a_target_that_dies_in_the_middle_of_a_drag_takes_nothing(desktop, vantle, folder, card):
    target = DropTarget(desktop, TARGET)
    with served(target):
        drag = Drag(desktop, vantle, tile_of(card)).hold_over(*TARGET.centre)
    target.die()
    assert not drag.drop()
    check_nothing_happened(desktop, folder)


def test_the_countdown_waits_for_the_drag(desktop, vantle, folder):
    vantle.write_settings(dismissAfter="3")
    vantle.start_watching()
    card = wait_for_card(desktop, show_one(desktop, folder))
    drag = Drag(desktop, vantle, tile_of(card)).move(500, 300)
    ensure_never(lambda: is_dismissed(desktop), "the countdown goes on", 4.0)
    drag.drop()
    wait_until(lambda: is_dismissed(desktop), "the countdown goes on")
