"""The settings window, used as people do: what it changes in the file and on the desktop."""

import pytest

from assistant import ENVIRONMENT
from panel_checks import expected_frame, show_one
from privatedesktop import Program, wait_until, wait_until_still
from using import press_with_control, window_titled

CHOOSER = "Choose where to save screenshots."
KEEP = "Keep captures until dismissed (recommended)"
TOGGLES = {
    "Move the file to the Trash after I use it": ("deleteAfterUse", "true"),
    "Also show screen recordings": ("showRecordings", "false"),
    "Copy screenshot to clipboard automatically": ("copyOnCapture", "true"),
    "Also show Vantle in the taskbar": ("showInDock", "true"),
}


@pytest.fixture
def vantle(desktop, binary):
    program = Program(binary, desktop, environment=ENVIRONMENT)
    program.write_settings()
    yield program
    program.stop()


def is_in_taskbar(desktop, window):
    return "_NET_WM_STATE_SKIP_TASKBAR" not in desktop.screen.states(window)


def test_it_stays_where_it_was_moved(desktop, vantle, screens):
    vantle.start_watching()
    screen = desktop.screen
    window = screens.open_settings()
    first = wait_until_still(lambda: screen.area(window), "the window")
    screen.ask_to_move(window, 30, 60)
    wait_until(lambda: screen.area(window).x < first.x - 100, "it is moved")
    moved = wait_until_still(lambda: screen.area(window), "the window")
    for _ in range(2):
        screen.ask_to_close(window)
        wait_until(lambda: screen.dialogs() == [], "it closes")
        window = screens.open_settings()
        assert wait_until_still(lambda: screen.area(window), "the window") == moved


def test_every_setting_by_mouse(desktop, vantle, folder, screens):
    vantle.start_watching()
    window = screens.open_settings()
    wait_until(lambda: not is_in_taskbar(desktop, window), "it stays out of the taskbar")
    screens.choose("Change", "~/Screenshots")
    vantle.wait_for_log(f"watching {desktop.home / 'Screenshots'} ")
    screens.choose("Change", "Your desktop's default")
    screens.wait_for_text("~/Desktop")
    for name, (key, value) in TOGGLES.items():
        screens.click(name)
        screens.wait_for_setting(key, value)
    wait_until(lambda: is_in_taskbar(desktop, window), "it stands in the taskbar")
    screens.click("Hide the desktop's own preview")
    wait_until(lambda: not screens.thumbnail_is_shown(), "the thumbnail is off")
    screens.click("Open Vantle at login")
    wait_until(lambda: screens.starts_at_login(), "it starts at login")
    screens.click("Keep it in Vantle")
    screens.wait_for_setting("removeAfterUse", "false")
    screens.click(KEEP)
    screens.wait_for_setting("dismissAfter", "10")
    slider = screens.frame("Otherwise dismiss after")
    desktop.screen.pointer.drag((slider.x + 30, slider.centre[1]), (slider.right, slider.centre[1]))
    screens.wait_for_setting("dismissAfter", "120")
    screens.choose("Show panel in", "Top Left")
    screens.wait_for_setting("corner", "topLeft")
    # All settings apply to the next capture.
    panel = show_one(desktop, folder)
    assert panel.frame == expected_frame(desktop.screen.work_area(), "topLeft")
    wait_until(lambda: "Pin" in " ".join(screens.assistant.names()), "it can be pinned")
    wait_until(lambda: "image/png" in clipboard_targets(desktop), "it was copied")


def clipboard_targets(desktop):
    asked = ("xclip", "-selection", "clipboard", "-o", "-t", "TARGETS")
    return desktop.run(*asked, check=False).stdout.decode()


def test_every_setting_by_keyboard(desktop, vantle, folder, screens):
    vantle.start_watching()
    screens.open_settings()
    keyboard = desktop.screen.keyboard

    def step(*keys):
        for key in keys:
            keyboard.press(key)

    def open_menu(key):
        keyboard.press(key)
        menu = wait_until(desktop.screen.menu, "the menu opens")
        wait_until_still(lambda: desktop.screen.screenshot(menu.frame).tobytes(), "the menu")

    step("Tab")
    open_menu("Down")
    step("Down", "Down", "Return")  # Change: ~/Pictures/Screenshots
    pictures = desktop.home / "Pictures/Screenshots"
    vantle.wait_for_log(f"watching {pictures} ")
    step("Tab", "space")  # Keep captures until dismissed
    screens.wait_for_setting("dismissAfter", "10")
    step("Tab", "Right", "Right", "Right")
    screens.wait_for_setting("dismissAfter", "13")
    step("Tab", "Right", "space")  # Keep it in Vantle
    screens.wait_for_setting("removeAfterUse", "false")
    step("Tab", "space")
    screens.wait_for_setting("deleteAfterUse", "true")
    step("Tab", "space")
    screens.wait_for_setting("showRecordings", "false")
    step("Tab", "space")
    screens.wait_for_setting("copyOnCapture", "true")
    step("Tab")
    open_menu("space")
    step("Down", "Return")  # Show panel in: Bottom Left
    screens.wait_for_setting("corner", "bottomLeft")
    step("Tab", "space")
    wait_until(lambda: not screens.thumbnail_is_shown(), "the thumbnail is off")
    step("Tab", "space")
    wait_until(lambda: screens.starts_at_login(), "it starts at login")
    step("Tab", "space")
    screens.wait_for_setting("showInDock", "true")
    step("Tab", "Return")  # Test with a sample
    wait_until(desktop.screen.panel, "the samples are shown")
    step("Escape")
    screens.wait_until_closed()


def test_every_setting_by_an_assistive_program(desktop, vantle, screens):
    vantle.start_watching()
    screens.open_settings()
    act = screens.assistant.act
    for name, (key, value) in TOGGLES.items():
        assert screens.is_on(name) == (value == "false")
        act(name, "Toggle")
        screens.wait_for_setting(key, value)
        assert screens.is_on(name) == (value == "true")
    act("Hide the desktop's own preview")
    wait_until(lambda: not screens.thumbnail_is_shown(), "the thumbnail is off")
    act("Open Vantle at login")
    wait_until(lambda: screens.starts_at_login(), "it starts at login")
    act("Keep it in Vantle")
    screens.wait_for_setting("removeAfterUse", "false")
    assert screens.is_on("Keep it in Vantle") and not screens.is_on("Remove it from Vantle")
    slider = "Otherwise dismiss after"
    assert "read only" in screens.control(slider)["states"]
    act(KEEP)
    assert "read only" not in screens.control(slider)["states"]
    screens.assistant.set_value(slider, 42)
    screens.wait_for_setting("dismissAfter", "42")
    assert screens.control(slider)["description"] == "42 seconds"
    act("Show panel in")
    screens.control("Top Right")
    act("Top Right")
    screens.wait_for_setting("corner", "topRight")
    act("Change")
    screens.control("~/Screenshots")
    act("~/Screenshots")
    vantle.wait_for_log(f"watching {desktop.home / 'Screenshots'} ")
    act("Test with a sample")
    wait_until(desktop.screen.panel, "the samples are shown")


def choose_other_folder(desktop, screens):
    screens.choose("Change", "Choose…")
    return window_titled(desktop, CHOOSER)


def test_the_folder_chooser(desktop, vantle, screens):
    other = desktop.home / "Desktop/shots"
    other.mkdir()
    vantle.start_watching()
    settings = screens.open_settings()
    dialog = choose_other_folder(desktop, screens)
    wait_until(lambda: desktop.screen.active_window() == dialog, "it has the keyboard")
    assert desktop.screen.window_property(dialog, "WM_TRANSIENT_FOR")[0] == settings
    desktop.screen.keyboard.press("Escape")
    wait_until(lambda: dialog not in desktop.screen.client_list(), "it closes")
    screens.wait_for_text("~/Desktop")
    dialog = choose_other_folder(desktop, screens)
    wait_until(lambda: desktop.screen.active_window() == dialog, "it has the keyboard")
    # The dialog starts in the folder that contains this one.
    desktop.screen.keyboard.type("shots")
    desktop.screen.keyboard.press("Return")
    vantle.wait_for_log(f"watching {other} ")
    screens.wait_for_text("~/Desktop/shots")


def test_the_folder_chooser_ends_with_the_program(desktop, vantle, screens):
    vantle.start_watching()
    screens.open_settings()
    dialog = choose_other_folder(desktop, screens)
    vantle.kill()
    wait_until(lambda: dialog not in desktop.screen.client_list(), "it closes")


def test_outside_changes_are_visible_when_it_is_shown_again(desktop, vantle, folder, screens):
    vantle.start_watching()
    screens.open_settings()
    elsewhere = desktop.home / "elsewhere"
    elsewhere.mkdir()
    (vantle.config_folder / "com.apple.screencapture.conf").write_text(
        f"[General]\nlocation={elsewhere}\nshow-thumbnail=false\n"
    )
    desktop.screen.keyboard.press("Escape")
    screens.wait_until_closed()
    vantle.command("--settings")
    screens.wait_for_text("~/elsewhere")
    assert screens.is_on("Hide the desktop's own preview")
    vantle.wait_for_log(f"watching {elsewhere} ")


def test_a_single_window_is_closed_and_brought_forward(desktop, vantle, screens):
    vantle.start_watching()
    window = screens.open_settings()
    assert desktop.screen.title(window) == b"Vantle Settings"
    for close in (
        lambda: desktop.screen.keyboard.press("Escape"),
        lambda: press_with_control(desktop, "w"),
        lambda: desktop.screen.ask_to_close(desktop.screen.dialogs()[0]),
    ):
        close()
        screens.wait_until_closed()
        assert vantle.is_running()
        vantle.command("--settings")
        vantle.command("--settings")
        wait_until(lambda: len(desktop.screen.dialogs()) == 1, "it is there once")


@pytest.mark.desktop(size=(640, 480))
def test_a_small_screen(desktop, vantle, screens):
    vantle.start_watching()
    window = screens.open_settings()
    work = desktop.screen.work_area()
    area = desktop.screen.area(window)
    assert area.width == 480 and area.height == work.height - 60
    # The window scrolls to the control that has the keyboard focus.
    for _ in range(12):
        desktop.screen.keyboard.press("Tab")
    wait_until(
        lambda: area.y <= screens.frame("Test with a sample").y < area.bottom, "it is scrolled to"
    )
    desktop.screen.keyboard.press("Return")
    wait_until(desktop.screen.panel, "the samples are shown")


def test_no_window_leaves_anything_in_the_users_cache(desktop, vantle, screens):
    vantle.start_watching()
    screens.open_settings()
    screens.choose("Change", "Your desktop's default")
    assert not (desktop.home / ".cache/vantle").exists()
