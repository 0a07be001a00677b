"""In every window the Tab key goes to each control that can be used, in the order of reading, and
around; Shift+Tab goes back. The help, the about box, the tool windows and the dialogs close by a
key."""

import contextlib
from collections.abc import Callable, Iterator

import pytest

from rig.bad_hosts import host
from rig.hearing import CLOSE, NO, START, YES, Listener, start_hearing_test
from rig.morse import open_tool
from rig.online import PATIENCE_S, good_site
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.rig import Rig
from rig.tone_programs import file_of, open_file, wait_until_played
from rig.waiting import wait_for
from rig.window import Driver, User, Window

Launch = Callable[..., Tonmira]
# Ids of the main window's controls.
LOW_PITCH, CUSTOM_PITCH, SLIDER, PLAY, STOP, HELP, LOUDER, SOFTER = (
    101, 107, 117, 119, 120, 121, 127, 128)


def presses(user: User, window: Window, key: str, count: int) -> list[int]:
    """Where the keyboard is after each press."""
    places = []
    for _ in range(count):
        before = window.focused()
        user.type_keys(key)
        with contextlib.suppress(TimeoutError):
            wait_for(lambda before=before: window.focused() != before, "another control", 2)
        places.append(window.focused())
    return places


def assert_goes_around(user: User, window: Window, order: list[int]) -> None:
    """From the control that has the keyboard, through all of them, to it again; and back."""
    user.activate(window)
    wait_for(lambda: window.focused() in order, "a control with the keyboard")
    usable = {control.id for control in window.controls() if control.enabled and control.visible}
    assert set(order) <= usable
    at = order.index(window.focused())
    around = [*order[at + 1:], *order[:at + 1]]
    assert presses(user, window, "Tab", len(order)) == around
    assert presses(user, window, "shift+Tab", len(order)) == [*around[-2::-1], around[-1]]


@pytest.fixture
def started(launch: Launch, folders: Folders) -> Tonmira:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    return program


@pytest.fixture
def player(rig: Rig, driver: Driver) -> Iterator[Tonmira]:
    path = rig.new_folder("tones") / "test.tnf"
    path.write_bytes(file_of([(440, 200)]))
    program = open_file(rig, driver, path)
    yield program
    program.finish()


def choose(window: Window, mode: str) -> None:
    window.press(mode)
    wait_for(lambda: window.is_checked(mode), mode)


def test_the_main_window(started: Tonmira, user: User) -> None:
    window = started.window()
    choose(window, "Low pitch")
    assert_goes_around(user, window, [LOW_PITCH, PLAY, LOUDER, SOFTER])
    choose(window, "Custom pitch")
    assert_goes_around(user, window, [CUSTOM_PITCH, SLIDER, PLAY, HELP, LOUDER, SOFTER])


def test_the_main_window_while_it_plays(started: Tonmira, user: User) -> None:
    window = started.window()
    choose(window, "Low pitch")
    window.press("Play Sound")
    started.wait_for_buttons(window, playing=True)
    assert_goes_around(user, window, [STOP, LOUDER, SOFTER])


@pytest.mark.parametrize("key", ["Escape", "Return", "space"])
def test_the_help_window_opens_and_closes_by_a_key(
        started: Tonmira, user: User, key: str) -> None:
    main = started.window()
    user.activate(main)
    user.type_keys("F1")
    window = started.window("Help")
    assert_goes_around(user, window, [109])
    user.type_keys(key)
    wait_for(lambda: started.titles() == [main.title], "the main window alone")


def test_the_about_box(started: Tonmira, user: User) -> None:
    started.window().choose(MENU_ABOUT)
    window = started.window("About Tonmira")
    assert_goes_around(user, window, [105, 106])
    user.type_keys("Escape")
    wait_for(lambda: not window.is_open(), "its end")


def test_the_morse_tool(started: Tonmira, user: User) -> None:
    tool = open_tool(started, user)
    playing = [control.id for control in tool.controls()
               if control.kind == "Button" and control.enabled]
    assert_goes_around(user, tool, [101, 103, 105, *playing])
    assert {107, 109} <= set(playing)
    # The field was entered once; a tool that is opened anew has the same order.
    tool.close()
    wait_for(lambda: not tool.is_open(), "its end")
    started.window().press("Start")
    assert_goes_around(user, started.window("Morse tool"), [101, 103, 105, *playing])


def test_the_first_run_dialog(launch: Launch, folders: Folders, user: User) -> None:
    program = launch(folders)
    dialog = program.window(FIRST_RUN_TITLE)
    program.wait_for_log(">> Program starting finished")
    assert_goes_around(user, dialog, [101, 105, 106, 107])
    user.type_keys("Escape")
    program.wait_for_end()
    assert not folders.settings_file.exists()


def test_the_update_dialog(begin: Callable[..., Tonmira], user: User) -> None:
    with host(good_site(b"237\r\nhttp://a.example/\r\n")) as site:
        program = begin(site.site)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        assert_goes_around(user, dialog, [101, 102, 103])
        user.type_keys("Escape")
        wait_for(lambda: not dialog.is_open(), "its end")
        program.window()


def test_the_error_dialog(launch: Launch, folders: Folders, user: User) -> None:
    folders.write_settings([*GOOD_SETTINGS[:4], "Microphone=abc", GOOD_SETTINGS[5]])
    program = launch(folders)
    dialog = program.window("Error")
    wait_for(lambda: program.titles() == ["Error"], "the dialog alone")
    assert_goes_around(user, dialog, [101, 102, 103])
    user.type_keys("Escape")
    program.wait_for_end()


def test_the_player(player: Tonmira, user: User) -> None:
    window = player.window()
    wait_until_played(window)
    enabled = [control.id for control in window.controls()
               if control.kind == "Button" and control.enabled]
    assert_goes_around(user, window, enabled)
    assert {109, 111} <= set(enabled)
    # Again, by the keyboard; then the way out.
    user.type_keys("alt+" + window.button("(Re)play").access_key)
    wait_until_played(window)
    user.type_keys("alt+" + window.button("Exit").access_key)
    player.wait_for_end()


def test_the_hearing_test(rig: Rig, driver: Driver, folders: Folders, user: User) -> None:
    program, window = start_hearing_test(rig, driver, folders)
    try:
        assert_goes_around(user, window, [START, CLOSE])
        listener = Listener(window, None, 0)
        listener.press_start()
        listener.wait_for_question()
        assert_goes_around(user, window, [YES, NO, CLOSE])
    finally:
        program.finish()
