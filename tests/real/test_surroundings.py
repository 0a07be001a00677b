"""Where and how often the program is started, and what it takes there."""

import re
import shutil
from collections.abc import Callable

import pytest

from rig.measuring import measure
from rig.paths import PROGRAM
from rig.program import (GOOD_SETTINGS, LOG_OF_START, MODES, TEMPORARY_WAVE, Folders, Tonmira,
                         play_once)
from rig.rig import Rig, what_is_left_of
from rig.sound import Recorder
from rig.usage import play_and_stop_often, usage
from rig.waiting import wait_for
from rig.window import Driver, User, Window

ENTRY = re.compile("|".join([*LOG_OF_START, "#Option [1-9] Clicked"]))


def stop(program: Tonmira, window: Window, user: User) -> None:
    user.click_button(window, "Stop Sound")
    program.wait_for_buttons(window, playing=False)
    program.wait_for_log("#Sound stopped")


def test_it_starts_from_a_folder_with_blanks_and_from_anywhere(
        rig: Rig, launch: Callable[..., Tonmira], folders: Folders, user: User,
        recorder: Recorder) -> None:
    home = rig.new_folder("My Tools (x64) & more") / "Ton mira"
    shutil.copytree(PROGRAM.parent, home)
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders, exe=home / PROGRAM.name, start_folder=folders.temp)
    window = play_once(program, user, "Low pitch")
    recorder.wait_for_tone()
    tone = measure(recorder.record(1.5))
    assert tone and tone.frequency_hz == pytest.approx(1000, rel=1e-4)
    stop(program, window, user)
    window.close()
    program.wait_for_end()


def test_the_version_is_written_in_the_file_and_in_the_log(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    properties = PROGRAM.read_bytes().decode("utf-16-le", errors="replace")
    assert re.search("FileVersion\0+2[.]3[.]6", properties)
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    assert folders.log()[5] in ("1 . 6 . 1", "1 . 6 . 2")


def test_folders_with_characters_outside_the_code_page_work(
        rig: Rig, launch: Callable[..., Tonmira], user: User, recorder: Recorder) -> None:
    folders = Folders(rig, "Zoë 東京")
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    window = play_once(program, user, "Average pitch")
    recorder.wait_for_tone()
    assert TEMPORARY_WAVE in folders.names()
    tone = measure(recorder.record(1.5))
    assert tone and tone.frequency_hz == pytest.approx(4500, rel=1e-4)
    stop(program, window, user)
    window.close()
    program.wait_for_end()
    assert folders.names() == ["tonmira.ini", "userdata.txt"]
    assert folders.log()[-1] == "#Sound stopped"


def test_two_copies_started_at_once_both_work_and_the_log_stays_readable(
        launch: Callable[..., Tonmira], folders: Folders, recorder: Recorder) -> None:
    folders.write_settings(GOOD_SETTINGS)
    copies = [launch(folders), launch(folders)]
    windows = [copy.window() for copy in copies]
    for round_ in range(5):
        for window in windows:
            window.press(MODES[round_])
    for window in windows:
        wait_for(lambda: window.is_checked(MODES[4]), "the last mode")
    lines = folders.log()
    assert len(lines) > 3
    assert [line for line in lines if not ENTRY.fullmatch(line)] == []
    for copy, window in zip(copies, windows):
        window.close()
        copy.wait_for_end()
    assert folders.settings_file.read_bytes().decode().split("\r\n") == [*GOOD_SETTINGS, ""]


def choose_modes_often(program: Tonmira, window: Window, rounds: int) -> None:
    """A hundred choices a round. Each round is waited for: the program works off its clicks one
    by one, and the system would drop those that pile up."""
    modes = [window.button(mode).handle for mode in MODES]
    for round_ in range(rounds):
        last = 8 + round_ % 2
        program.driver.ask("clicks", "99", *modes[:7])
        program.driver.ask("clicks", "1", modes[last - 1])
        wait_for(lambda: program.folders.log()[-1] == f"#Option {last} Clicked",
                 "the last choice of a round")
    window.press(MODES[1])
    wait_for(lambda: program.folders.log()[-1] == "#Option 2 Clicked", "the mode to play")


def test_ten_thousand_clicks_and_thirty_tones_leave_handles_threads_and_memory_where_they_were(
        launch: Callable[..., Tonmira], folders: Folders, driver: Driver) -> None:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    window = program.window()
    choose_modes_often(program, window, 3)
    play_and_stop_often(program, window, 3)
    before = usage(driver, program)

    choose_modes_often(program, window, 100)
    play_and_stop_often(program, window, 30)

    after = usage(driver, program)
    assert before["handles"] > 0
    assert after["handles"] <= before["handles"] + 5
    assert after["files"] <= before["files"] + 5
    assert after["threads"] <= before["threads"] + 1
    assert after["memory_kb"] <= before["memory_kb"] * 1.1 + 1024
    assert len(folders.log()) == 100


@pytest.mark.listening
def test_a_rig_that_ends_while_a_tone_plays_leaves_nothing_behind() -> None:
    with Rig() as own:
        driver, user, recorder = Driver(own), User(own), Recorder(own)
        folders = Folders(own)
        folders.write_settings(GOOD_SETTINGS)
        play_once(Tonmira(own, driver, folders), user, "High pitch")
        recorder.wait_for_tone()
        assert measure(recorder.record(1)) is not None
        assert len(own.processes()) >= 6
    assert what_is_left_of(own) == []
