"""What a screen reader says of the controls of the real program."""

import re
from collections.abc import Callable

import pytest

from rig.desktop import open_windows, start
from rig.program import FIRST_RUN_TITLE, Folders, Tonmira
from rig.rig import Rig
from rig.tone_programs import file_of, open_file
from rig.window import Driver, Window

Launch = Callable[..., Tonmira]

# What screen readers call the controls; by their ids, without those that are labels or lines.
NAMES = {
    "EN": {
        100: "Choices", 101: "Low pitch", 102: "Average pitch", 103: "High pitch",
        104: "Extreme pitch", 105: "Spooky pitch", 106: "Low to high", 107: "Custom pitch",
        108: "Morse tool", 109: "Hearing age", 110: "Info", 117: "Custom pitch (Hz)",
        119: "Play Sound", 120: "Stop Sound", 121: "Help", 122: "Sound waves",
        124: "Wave of the chosen tone", 125: "Microphone input, sensitivity: 1",
        126: "Wave of the microphone input", 127: "Raise the microphone sensitivity",
        128: "Lower the microphone sensitivity", 129: "Actual pitch (Hertz):"},
    "NL": {
        107: "Eigen toonhoogte", 117: "Eigen toonhoogte (Hz)", 124: "Golf van de gekozen toon",
        126: "Golf van de microfooninvoer", 127: "Microfoongevoeligheid verhogen",
        128: "Microfoongevoeligheid verlagen"},
}


def without_marks(names: dict[int, str]) -> dict[int, str]:
    return {number: re.sub("&(.)", r"\1", name) for number, name in names.items()}


def assert_all_are_named(window: Window, silent: set[int]) -> None:
    """Every control that is no line and no empty label has a name that says something."""
    names = without_marks(window.names())
    for control in window.controls():
        name = names[control.id]
        if control.id in silent or control.kind.startswith("tooltips"):
            continue
        assert re.search("[a-z]", name) or name in ("OK", " 4"), (window.title, control)
        assert not re.fullmatch("[A-Za-z]+[0-9]+|pic[A-Z].*", name), (window.title, control)


@pytest.mark.parametrize("language", ["EN", "NL"])
def test_every_control_has_the_name_that_a_screen_reader_should_say(
        name_service: None, launch: Launch, folders: Folders, language: str) -> None:
    program = start(launch, folders, language)
    main = program.window()
    names = without_marks(main.names())
    assert {number: names[number] for number in NAMES[language]} == NAMES[language]
    windows = open_windows(program, language)
    lines = {"main": {123, 115}, "help": set(), "about": {104}, "morse": {106, 108}}
    for name, (window, _) in windows.items():
        assert_all_are_named(window, lines[name])
    morse = without_marks(windows["morse"][0].names())
    assert [morse[number] for number in (101, 103, 105)] == {
        "EN": ["Text:", "Speed (normal + this (ms)) (higher is slower):", "Pitch (Hertz):"],
        "NL": [morse[100], morse[102], morse[104]]}[language]
    # The buttons show what they have always shown.
    assert main.button("+").id == 127 and main.button("-").id == 128


def test_the_player_and_the_first_run_dialog_have_names_too(
        name_service: None, rig: Rig, driver: Driver, launch: Launch, folders: Folders) -> None:
    path = rig.new_folder("tones") / "test.tnf"
    path.write_bytes(file_of([(440, 3000)]))
    player = open_file(rig, driver, path)
    try:
        window = player.window()
        assert window.names()[103] == "Tones played"
        assert_all_are_named(window, {102, 104, 106, 108})
    finally:
        player.finish()
    dialog = launch(folders).window(FIRST_RUN_TITLE)
    assert dialog.names()[101] == dialog.names()[100]
    assert_all_are_named(dialog, set())
