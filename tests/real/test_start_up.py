"""The start-up with settings of every kind, and the languages of the menu."""

from collections.abc import Callable

import pytest

from rig.program import GOOD_SETTINGS, MAIN_TITLE, MODES, Folders, Tonmira
from rig.waiting import wait_for

ENGLISH, DUTCH = 1012, 1013  # ids of the menu's entries
SWEEP, MORSE, HEARING = MODES[5], MODES[7], MODES[8]


def settings_with(**changed: str) -> list[str]:
    """Good settings, some lines of them as they are given here."""
    names = [line.split("=")[0].lower() for line in GOOD_SETTINGS]
    lines = list(GOOD_SETTINGS)
    for name, line in changed.items():
        lines[names.index(name)] = line
    return lines


@pytest.mark.parametrize("sound_bit", ["16", "32", "64", "128", "256"])
def test_each_sound_mode_of_the_file_brings_up_its_main_window(
        launch: Callable[..., Tonmira], folders: Folders, sound_bit: str) -> None:
    folders.write_settings(settings_with(soundbit=f"SoundBit={sound_bit}"))
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    assert f"> Bit: {sound_bit}" in folders.log()
    window = program.window()
    wait_for(lambda: program.titles() == [MAIN_TITLE], "the main window alone")
    # DirectSound knows no short tones: these modes need them.
    closed = {SWEEP, MORSE, HEARING} if sound_bit == "64" else set()
    assert {mode for mode in MODES if not window.button(mode).enabled} == closed
    assert not (folders.temp / "error.log").exists()


def test_a_sensitivity_in_the_file_is_the_main_windows(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    folders.write_settings(settings_with(microphone="Microphone= 7"))
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    window = program.window()
    assert "Microphone input, sensitivity: 7" in window.texts()
    window.press("+")
    wait_for(lambda: "Microphone input, sensitivity: 8" in window.texts(), "one more")
    # The caption changes first.
    wait_for(lambda: folders.settings_file.read_text().split("\n")[4] == "Microphone= 8",
             "the new setting")


def test_languages_are_changed_in_the_menu_and_kept(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    window = program.window()
    for command, code, texts in [(DUTCH, "NL", ["Geluid afspelen", "Hoge toon", "Geluidsgolven"]),
                                 (ENGLISH, "EN", ["Play Sound", "High pitch", "Sound waves"]),
                                 (DUTCH, "NL", ["Geluid afspelen"])]:
        window.choose(command)
        wait_for(lambda texts=texts: set(texts) <= set(window.texts()), f"the texts in {code}")
        assert folders.settings_file.read_text().split("\n")[2] == f"Language={code}"
    window.close()
    program.wait_for_end()
    again = launch(folders)
    again.wait_for_log(">> Program starting finished")
    assert again.window().button("Geluid afspelen").enabled
