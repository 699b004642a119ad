"""The onboarding, in a fresh home directory."""

import pytest
from PIL import Image

from assistant import ENVIRONMENT
from panel_checks import show_one
from privatedesktop import Program, wait_until
from screens import Screens


@pytest.fixture
def vantle(desktop, binary):
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings(hasCompletedOnboarding=None)
    yield program
    program.stop()


def start(desktop, vantle):
    vantle.start()
    window = wait_until(desktop.screen.dialogs, "the onboarding opens")[0]
    wait_until(lambda: desktop.screen.active_window() == window, "it has the keyboard")
    return window


def state(vantle):
    return vantle.command("--status")[1]


def test_from_a_fresh_home_to_the_first_tile_by_mouse(desktop, vantle, folder, screens):
    window = start(desktop, vantle)
    assert desktop.screen.area(window).width == 600
    screens.wait_for_text("Welcome to Vantle")
    folder.save("unseen.png")
    assert "state: not watching" in state(vantle)
    # Opening the step has already applied the recommended settings.
    assert screens.setting("removeAfterUse") == "true"
    assert screens.setting("corner") == "bottomRight"
    assert screens.starts_at_login() and not screens.thumbnail_is_shown()
    screens.click("Get Started")
    screens.wait_for_text("Vantle can read this folder")
    screens.click("Open Vantle at login")
    wait_until(lambda: not screens.starts_at_login(), "it does not start at login")
    screens.choose("Show panel in", "Top Left")
    screens.click("Back")
    screens.wait_for_text("Welcome to Vantle")
    screens.click("Get Started")
    screens.click("Next")
    screens.wait_for_text("Panel in the Top Left")
    assert screens.setting("hasCompletedOnboarding") != "true"
    screens.click("Start Using Vantle")
    screens.wait_until_closed()
    screens.wait_for_setting("hasCompletedOnboarding", "true")
    vantle.wait_for_log(f"watching {desktop.home / 'Desktop'} ")
    panel = show_one(desktop, folder)
    assert panel.frame.x == desktop.screen.work_area().x
    assert vantle.captured() == ["shot.png"]


def test_by_keyboard(desktop, vantle, screens):
    start(desktop, vantle)
    keyboard = desktop.screen.keyboard
    screens.wait_for_text("Welcome to Vantle")
    keyboard.press("Return")
    screens.wait_for_text("Set up Vantle")
    # From the forward button past the row of the folder to the first toggle.
    for key in ("Tab", "Tab", "space"):
        keyboard.press(key)
    screens.wait_for_setting("dismissAfter", "10")
    keyboard.press("Return")
    screens.wait_for_text("Stays for 10 seconds unless pinned")
    keyboard.press("Return")
    screens.wait_until_closed()
    screens.wait_for_setting("hasCompletedOnboarding", "true")


def test_by_an_assistive_program(desktop, vantle, screens):
    start(desktop, vantle)
    act = screens.assistant.act
    screens.wait_for_text("Step 1 of 3")
    act("Get Started")
    screens.wait_for_text("Step 2 of 3")
    act("Check again")
    act("Also show screen recordings")
    screens.wait_for_setting("showRecordings", "false")
    act("Next")
    screens.wait_for_text("Step 3 of 3")
    act("Back")
    screens.wait_for_text("Step 2 of 3")
    assert not screens.is_on("Also show screen recordings")
    act("Next")
    screens.wait_for_text("Step 3 of 3")
    act("Show me a sample")
    wait_until(desktop.screen.panel, "the samples are shown")
    act("Start Using Vantle")
    screens.wait_until_closed()
    assert "state: watching" in state(vantle)


def test_it_comes_back_until_it_is_finished(desktop, vantle, screens):
    window = start(desktop, vantle)
    screens.click("Get Started")
    desktop.screen.ask_to_close(window)
    screens.wait_until_closed()
    assert "state: not watching" in state(vantle)
    assert vantle.command() == (0, "")
    wait_until(desktop.screen.dialogs, "it comes back")
    screens.wait_for_text("Set up Vantle")
    assert vantle.command("--quit")[0] == 0
    vantle.wait_for_end()
    start(desktop, vantle)
    screens.wait_for_text("Welcome to Vantle")


def test_it_is_moved_by_its_background(desktop, vantle):
    window = start(desktop, vantle)
    before = desktop.screen.area(window)
    pointer = desktop.screen.pointer
    pointer.move(before.x + 20, before.y + 20)
    pointer.press()
    turn = 0

    def is_moved():
        # The window manager takes over the drag somewhere on the way.
        nonlocal turn
        turn += 1
        pointer.move(before.x + 20 + min(100, 10 * turn) + turn % 3, before.y + 20)
        return desktop.screen.area(window).x > before.x + 20

    wait_until(is_moved, "it is moved", interval=0.05)
    pointer.release()


def test_a_folder_that_is_not_there(desktop, vantle, screens):
    (desktop.home / "Desktop").rmdir()
    start(desktop, vantle)
    screens.click("Get Started")
    screens.wait_for_text("Vantle cannot read this folder")
    (desktop.home / "Desktop").mkdir()
    screens.click("Check access")
    screens.wait_for_text("Vantle can read this folder")


@pytest.mark.parametrize(
    "step, text", [("2", "You're all set"), ("x", "Welcome to Vantle"), ("7", "You're all set")]
)
def test_a_step_and_a_snapshot_for_developers(desktop, binary, step, text):
    picture = desktop.home / "onboarding.png"
    environment = {
        **ENVIRONMENT,
        "VANTLE_ONBOARDING_STEP": step,
        "VANTLE_SNAPSHOT_ONBOARDING": str(picture),
    }
    program = Program(binary, desktop, environment=environment)
    start(desktop, program)
    Screens(desktop, program).wait_for_text(text)
    wait_until(picture.exists, "the snapshot is written")
    height = min(900, desktop.screen.work_area().height - 60)
    assert Image.open(picture).size == (1200, 2 * height)
    program.stop()
