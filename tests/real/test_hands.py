"""The hands of a user: the slider's keys, wheel and digits, a field whose text is typed over, Enter
where it must do nothing."""

from collections.abc import Callable

import pytest

from rig.bad_hosts import host
from rig.desktop import start
from rig.online import PATIENCE_S, good_site, opened
from rig.program import Folders, Tonmira
from rig.waiting import wait_for
from rig.window import Driver, User, Window

Launch = Callable[..., Tonmira]


def pitch_of(window: Window) -> str:
    return window.numbered(115).text


@pytest.fixture
def slider(launch: Launch, folders: Folders, user: User) -> Window:
    """The main window with its slider in use and focused."""
    window = start(launch, folders).window()
    user.activate(window)
    window.press("Custom pitch")
    wait_for(lambda: window.is_checked("Custom pitch"), "the mode")
    user.type_keys("alt+" + window.button("Custom pitch").access_key, "Tab")
    return window


def test_ctrl_and_shift_make_the_sliders_steps_smaller(slider: Window, user: User) -> None:
    for keys, pitch in [("Right", " 1100"), ("shift+Right", " 1110"), ("ctrl+Right", " 1111"),
                        ("Left", " 1011"), ("shift+Left", " 1001"), ("ctrl+Left", " 1000"),
                        ("Next", " 2000"), ("Prior", " 1000")]:
        user.type_keys(keys)
        wait_for(lambda pitch=pitch: pitch_of(slider) == pitch, f"{pitch} after {keys}")


def test_the_wheel_moves_the_slider_by_the_same_steps(slider: Window, user: User) -> None:
    user.point_at(slider.control("ScrollBar"))
    for key, button, pitch in [("", "4", " 1100"), ("ctrl", "4", " 1101"), ("ctrl", "5", " 1100"),
                               ("shift", "5", " 1090"), ("", "5", " 990")]:
        if key:
            user.xdotool("keydown", key)
        user.xdotool("click", button)
        if key:
            user.xdotool("keyup", key)
        wait_for(lambda pitch=pitch: pitch_of(slider) == pitch, f"{pitch} after {key} {button}")


def test_digits_typed_on_the_slider_set_its_number(slider: Window, user: User) -> None:
    user.type_keys("4", "4", "0")
    wait_for(lambda: pitch_of(slider) == " 440", "440")
    user.type_keys("BackSpace")
    wait_for(lambda: pitch_of(slider) == " 44", "44")
    user.type_keys("Left", "5", "0", "0", "0", "0")
    wait_for(lambda: pitch_of(slider) == " 32000", "the highest number")
    assert slider.is_checked("Custom pitch")


def test_the_first_text_of_the_morse_tool_is_replaced_by_what_is_typed(
        launch: Launch, folders: Folders, driver: Driver, user: User) -> None:
    program = start(launch, folders)
    main = program.window()
    main.press("Morse tool")
    wait_for(lambda: main.is_checked("Morse tool"), "the mode")
    main.press("Start")
    tool = program.window("Morse tool")
    field = tool.numbered(101)
    user.activate(tool)
    wait_for(lambda: driver.ask("selection", field.handle)
             == [["0", str(len("Type your message here..."))]], "a selected text")
    user.type_keys("s", "o", "s")
    wait_for(lambda: driver.ask("text", field.handle) == [["sos"]], "the typed text")
    # Only the first time.
    for number in (105, 101):
        user.point_at(tool.numbered(number))
        user.xdotool("click", "1")
    user.type_keys("End", "e")
    wait_for(lambda: driver.ask("text", field.handle) == [["sose"]], "a longer text")


def test_enter_in_the_update_dialog_opens_no_link(
        begin: Launch, browser: str, folders: Folders, user: User) -> None:
    with host(good_site(b"237\r\nhttp://a.example/tonmira-2.3.7.exe\r\n")) as good:
        program = begin(good.site)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        user.activate(dialog)
        user.type_keys("Return", "Return")
        # What is typed after it is done after it: the dialog is closed by its other button.
        user.type_keys("Escape")
        wait_for(lambda: not dialog.is_open(), "the end of the dialog")
        program.wait_for_log(">> Program starting finished")
        assert program.running() and opened(folders) == []
