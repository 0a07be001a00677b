"""The whole way to a tone and back without a mouse."""

from collections.abc import Callable

import pytest

from rig.measuring import measure
from rig.program import GOOD_SETTINGS, Folders, Tonmira
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import User, Window


@pytest.fixture
def program(launch: Callable[..., Tonmira], folders: Folders) -> Tonmira:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    return program


def type_alt(user: User, window: Window, caption: str) -> None:
    letter = window.button(caption).access_key
    assert letter, f"{caption!r} has no access key"
    user.type_keys("alt+" + letter)


def test_alt_and_a_letter_choose_enter_plays_and_escape_stops(
        program: Tonmira, user: User, recorder: Recorder) -> None:
    window = program.window()
    user.activate(window)
    type_alt(user, window, "High pitch")
    wait_for(lambda: window.is_checked("High pitch"), "the mode")
    recorder.wait_for_silence()
    user.type_keys("Return")
    recorder.wait_for_tone()
    tone = measure(recorder.record(1))
    assert tone and tone.frequency_hz == pytest.approx(10000, rel=1e-4)
    user.type_keys("Escape")
    program.wait_for_buttons(window, playing=False)
    recorder.wait_for_silence()
    # Once more: the keys still reach the window after a tone.
    user.type_keys("Return")
    recorder.wait_for_tone()
    user.type_keys("Escape")
    program.wait_for_buttons(window, playing=False)


def test_the_arrow_keys_move_between_the_modes(program: Tonmira, user: User) -> None:
    window = program.window()
    user.activate(window)
    type_alt(user, window, "Low pitch")
    wait_for(lambda: window.is_checked("Low pitch"), "the mode")
    user.type_keys("Down", "Down")
    wait_for(lambda: window.is_checked("High pitch"), "the mode two below")
    program.wait_for_log("#Option 3 Clicked")
    user.type_keys("Up")
    wait_for(lambda: window.is_checked("Average pitch"), "the mode above")


def test_alt_and_a_letter_press_the_two_buttons(
        program: Tonmira, user: User, recorder: Recorder) -> None:
    window = program.window()
    user.activate(window)
    type_alt(user, window, "Low pitch")
    wait_for(lambda: window.is_checked("Low pitch"), "the mode")
    type_alt(user, window, "Play Sound")
    recorder.wait_for_tone()
    type_alt(user, window, "Stop Sound")
    program.wait_for_buttons(window, playing=False)
    recorder.wait_for_silence()


def test_the_tab_key_reaches_the_slider_and_the_arrow_keys_move_it(
        program: Tonmira, user: User) -> None:
    window = program.window()
    user.activate(window)
    type_alt(user, window, "Custom pitch")
    wait_for(lambda: window.is_checked("Custom pitch"), "the mode")
    assert "1000" in [text.strip() for text in window.texts()]
    user.type_keys("Tab", "Right")
    wait_for(lambda: "1100" in [text.strip() for text in window.texts()], "a small step up")
    user.type_keys("Home")
    wait_for(lambda: " 4" in window.texts(), "the lowest pitch")
    user.type_keys("End")
    wait_for(lambda: " 32000" in window.texts(), "the highest pitch")
