"""Each window on the screen, and how the program ends by its messages."""

import re
from collections.abc import Callable, Iterator

import pytest

from rig.paths import SCREENS
from rig.pictures import assert_shows_something
from rig.program import GOOD_SETTINGS, MODES, Folders, Tonmira, play_once
from rig.rig import Rig
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, User


@pytest.fixture
def started(launch: Callable[..., Tonmira], folders: Folders) -> Tonmira:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    return program


@pytest.fixture
def fine_screen(rig: Rig) -> Iterator[None]:
    """A screen of 144 dots per inch."""
    key = ("HKCU\\Control Panel\\Desktop", "/v", "LogPixels", "/f")
    rig.run("wine", "reg", "add", *key, "/t", "REG_DWORD", "/d", "144")
    yield
    rig.run("wine", "reg", "delete", *key)


def test_the_main_window(started: Tonmira, user: User) -> None:
    window = started.window()
    user.activate(window)
    user.screenshot(window, SCREENS / "main.png")
    assert_shows_something(SCREENS / "main.png", 600, 450)
    shown = window.texts()
    for text in [*MODES, "Play Sound", "Stop Sound", "Help", "Choices", "Info", "Sound waves",
                 "<< Select a mode >>", "No information avaible"]:
        assert text in shown
    assert window.button("Play Sound").enabled
    assert not window.button("Stop Sound").enabled
    assert not any(window.is_checked(mode) for mode in MODES)


def test_the_main_window_while_it_plays(started: Tonmira, user: User, recorder: Recorder) -> None:
    window = play_once(started, user, "Average pitch")
    recorder.wait_for_tone()
    user.screenshot(window, SCREENS / "playing.png", moving=True)
    assert_shows_something(SCREENS / "playing.png", 600, 450)
    assert not window.button("Play Sound").enabled
    assert window.button("Stop Sound").enabled
    assert not any(window.button(mode).enabled for mode in MODES)


def test_the_help_window_opens_beside_the_main_window(
        started: Tonmira, driver: Driver, user: User) -> None:
    main = started.window()
    user.activate(main)
    user.click_button(main, "Help")
    wait_for(lambda: len(started.titles()) == 2, "the help window")
    title = next(title for title in started.titles() if title != main.title)
    window = started.window(title)
    user.activate(window)
    user.screenshot(window, SCREENS / "help.png")
    assert_shows_something(SCREENS / "help.png", 300, 300)
    written = [c for c in window.controls() if c.kind == "Static" and c.text]
    assert len(written) >= 9
    window.close()
    wait_for(lambda: started.titles() == [main.title], "the main window alone")


def test_a_fine_screen_brings_a_warning_over_the_status_window_and_a_larger_main_window(
        fine_screen: None, launch: Callable[..., Tonmira], folders: Folders, user: User) -> None:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    warning = program.window("Warning")
    assert "DPI settings could cause problems!" in warning.texts()
    status = program.window("Starting Tonmira")
    user.move(warning, 20, 20)
    user.screenshot(status, SCREENS / "status.png")
    assert_shows_something(SCREENS / "status.png", 300, 100)
    user.screenshot(warning, SCREENS / "dpi-warning.png")
    warning.press("OK")
    program.wait_for_log(">> Program starting finished")
    assert folders.log()[3] == ">>> Bad DPI settings"
    window = program.window()
    user.activate(window)
    user.screenshot(window, SCREENS / "main-144dpi.png")
    assert_shows_something(SCREENS / "main-144dpi.png", 900, 670)
    assert program.titles() == [window.title]


def test_play_with_no_mode_chosen_shows_its_message_and_ends(
        started: Tonmira, user: User) -> None:
    window = started.window()
    user.activate(window)
    user.click_button(window, "Play Sound")
    message = started.window("Error")
    assert "Insoluble error, contact Zevrin Software!" in message.texts()
    user.screenshot(message, SCREENS / "no-mode.png")
    assert_shows_something(SCREENS / "no-mode.png", 150, 80)
    message.press("OK")
    started.wait_for_end()
    assert started.folders.log()[-2:] == ["#Pressed Button 2", " 0"]


def test_closing_the_window_while_it_plays_silences_and_ends(
        started: Tonmira, user: User, recorder: Recorder) -> None:
    window = play_once(started, user, "Average pitch")
    recorder.wait_for_tone()
    window.close()
    started.wait_for_end()
    recorder.wait_for_silence()


def test_another_program_that_hides_the_main_window_ends_the_tone(
        started: Tonmira, user: User, driver: Driver, recorder: Recorder) -> None:
    window = play_once(started, user, "Average pitch")
    recorder.wait_for_tone()
    driver.ask("hide", window.handle)
    started.wait_for_log("#Sound stopped")
    recorder.wait_for_silence()
    assert started.running()


def test_exit_in_the_menu_ends_the_program(started: Tonmira) -> None:
    started.window().choose(1003)
    started.wait_for_end()


def test_a_fault_is_shown_in_the_error_dialog_and_its_exit_ends_the_program(
        launch: Callable[..., Tonmira], folders: Folders, user: User) -> None:
    folders.write_settings([*GOOD_SETTINGS[:4], "Microphone=abc", GOOD_SETTINGS[5]])
    program = launch(folders)
    dialog = program.window("Error")
    wait_for(lambda: program.titles() == ["Error"], "the dialog alone")
    user.screenshot(dialog, SCREENS / "error.png")
    assert_shows_something(SCREENS / "error.png", 250, 150)
    assert ("Something went wrong and Tonmira must restart.... Sorry for the inconvenience!"
            in dialog.texts())
    lines = (folders.temp / "error.log").read_bytes().decode("cp1252").split("\r\n")
    assert lines[0] == "Error number:  13,   Error value:  103"
    assert re.fullmatch("<.+>", lines[1])
    assert lines[2] == "Resolution: 1280 x 1024,   DPI: 96"
    assert re.fullmatch(r"Time: .+, Date: \d.+", lines[3])
    assert lines[4:] == [""]
    user.activate(dialog)
    user.click_button(dialog, "Exit")
    program.wait_for_end()
