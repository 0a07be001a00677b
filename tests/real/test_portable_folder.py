"""A portable copy is the same after it was used as before: whatever is written is written
elsewhere."""

import shutil
from collections.abc import Callable
from pathlib import Path

import pytest

from rig.paths import PROGRAM
from rig.playing import helpers_running
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, Folders, Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.tone_programs import wait_until_played
from rig.waiting import wait_for
from rig.window import Driver, wait_for_window

Contents = dict[str, tuple[bytes, int]]


def contents(folder: Path) -> Contents:
    """Of every file and folder, with the time when it was last written."""
    return {path.relative_to(folder).as_posix():
            (path.read_bytes() if path.is_file() else b"", path.stat().st_mtime_ns)
            for path in (folder, *folder.rglob("*"))}


@pytest.fixture
def copy(rig: Rig) -> Path:
    """The main program of a fresh portable copy."""
    folder = rig.new_folder("portable") / "Tonmira"
    shutil.copytree(PROGRAM.parent, folder)
    return folder / PROGRAM.name


@pytest.fixture
def unchanged(copy: Path) -> Callable[[], bool]:
    before = contents(copy.parent)
    assert {"tonmira.exe", "hearage.dll", "tnf.exe", "readme.txt", "changes.txt",
            "samples/scale.tnf"} <= before.keys()
    return lambda: contents(copy.parent) == before


def test_the_first_start_writes_nothing_into_the_folder(
        launch: Callable[..., Tonmira], folders: Folders, copy: Path,
        unchanged: Callable[[], bool]) -> None:
    program = launch(folders, exe=copy)
    program.window(FIRST_RUN_TITLE).press("Accept")
    restarted = program.successor()
    restarted.wait_for_log(">> Program starting finished")
    restarted.window().close()
    restarted.wait_for_end()
    assert unchanged()
    assert {"tonmira.ini", "userdata.txt"} <= set(folders.names())


@pytest.mark.parametrize("sound_bit", ["256", "64", "32", "16"])
def test_playing_writes_nothing_into_the_folder(
        rig: Rig, launch: Callable[..., Tonmira], folders: Folders, recorder: Recorder,
        copy: Path, unchanged: Callable[[], bool], sound_bit: str) -> None:
    folders.write_settings([line.replace("=128", f"={sound_bit}") for line in GOOD_SETTINGS])
    program = launch(folders, exe=copy)
    window = program.window()
    program.wait_for_log(">> Program starting finished")
    window.press("Low pitch")
    window.press("Play Sound")
    recorder.wait_for_tone(30)
    window.press("Stop Sound")
    program.wait_for_log("#Sound stopped")
    window.close()
    program.wait_for_end()
    wait_for(lambda: not helpers_running(rig), "the end of the helpers", 5)
    assert unchanged()


def test_a_sample_tone_program_writes_nothing_into_the_folder(
        rig: Rig, launch: Callable[..., Tonmira], folders: Folders, copy: Path,
        unchanged: Callable[[], bool]) -> None:
    folders.write_settings(GOOD_SETTINGS)
    sample = copy.parent / "samples" / "scale.tnf"
    program = launch(folders, exe=copy, arguments=rig.windows_path(sample))
    player = program.window()
    wait_until_played(player)
    player.close()
    program.wait_for_end()
    assert unchanged()


def test_the_hearing_test_writes_nothing_into_the_folder(
        driver: Driver, launch: Callable[..., Tonmira], folders: Folders, recorder: Recorder,
        copy: Path, unchanged: Callable[[], bool]) -> None:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders, exe=copy)
    window = program.window()
    program.wait_for_log(">> Program starting finished")
    window.press("Hearing age")
    wait_for(lambda: "Start" in window.texts(), "the mode's caption")
    window.press("Start")
    hearing_test = wait_for_window(driver, "Hearing age", seconds=60)
    hearing_test.press("Start")
    recorder.wait_for_tone(30)
    hearing_test.press("Close")
    wait_for(lambda: not hearing_test.is_open(), "its end")
    window.close()
    program.wait_for_end()
    assert unchanged()
