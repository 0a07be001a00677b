"""What is left of the program when it ends otherwise than by its own wish: no sound, no process, no
file."""

import os
import signal
import time
from collections.abc import Callable
from pathlib import Path

import numpy as np
import pytest

from rig.measuring import measure
from rig.morse import open_tool
from rig.online import opened
from rig.paths import PROGRAM
from rig.playing import helpers_running
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, Folders, Tonmira, play_once
from rig.rig import Rig
from rig.sound import Recorder
from rig.tone_programs import file_of, open_file, tones_in
from rig.waiting import wait_for
from rig.window import Driver, User

Launch = Callable[..., Tonmira]

SOUND_MODES = ["16", "32", "64", "128", "256"]


def settings(sound_bit: str, send: str = "n") -> list[str]:
    return [GOOD_SETTINGS[0], f"SoundBit={sound_bit}", GOOD_SETTINGS[2], f"SendData={send}",
            *GOOD_SETTINGS[4:]]


@pytest.mark.parametrize("sound_bit", ["16", "32"])
@pytest.mark.parametrize("mode", ["Average pitch", "Low to high"])
def test_a_killed_program_takes_its_helper_and_the_sound_with_it(
        launch: Launch, folders: Folders, rig: Rig, user: User, recorder: Recorder, mode: str,
        sound_bit: str) -> None:
    folders.write_settings(settings(sound_bit))
    program = launch(folders)
    play_once(program, user, mode)
    recorder.wait_for_tone()
    assert helpers_running(rig)
    first = recorder.frames()
    os.kill(program.linux_process(), signal.SIGKILL)
    killed = time.monotonic()
    wait_for(lambda: not helpers_running(rig), "the end of the helper", 2)
    recorder.wait_for_silence()
    last = recorder.moment_of_last_sound(first)
    assert last is None or last - killed < 2


def test_a_player_that_is_killed_takes_its_helper_with_it(
        rig: Rig, driver: Driver, recorder: Recorder) -> None:
    path = rig.new_folder("tones") / "long.tnf"
    path.write_bytes(file_of([(440, 32000)]))
    program = open_file(rig, driver, path, sound_bit="32")
    try:
        recorder.wait_for_tone(30)
        driver.ask("end", str(program.process))
        wait_for(lambda: not helpers_running(rig), "the end of the helper", 2)
        recorder.wait_for_silence(3)
    finally:
        program.finish()


def test_a_helper_leaves_when_the_hand_over_file_is_another_ones(
        rig: Rig, driver: Driver, folders: Folders, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    hand_over = folders.temp / "sound.ini"
    hand_over.write_bytes(b" 440 \r\n")
    helper = Tonmira(rig, driver, folders, exe=PROGRAM.parent / "tone32.dll")
    try:
        recorder.wait_for_tone()
        time.sleep(1)
        assert helper.running()
        # Stop and Play in one blink: the file is there, and is not the one that it read.
        hand_over.unlink()
        hand_over.write_bytes(b" 880 \r\n")
        helper.wait_for_end(2)
        recorder.wait_for_silence(3)
    finally:
        helper.finish()


@pytest.mark.parametrize("sound_bit", SOUND_MODES)
def test_the_end_of_the_session_silences_everything_and_starts_nothing(
        launch: Launch, driver: Driver, folders: Folders, rig: Rig, user: User,
        recorder: Recorder, copy_with_noting_upload_program: Path, sound_bit: str) -> None:
    folders.write_settings(settings(sound_bit, send="y"))
    program = launch(folders, exe=copy_with_noting_upload_program)
    window = play_once(program, user, "Average pitch")
    recorder.wait_for_tone()
    driver.ask("logoff", window.handle)
    program.wait_for_end(3)
    recorder.wait_for_silence(3)
    assert not helpers_running(rig)
    assert opened(folders) == []
    assert folders.names() == ["tonmira.ini", "userdata.txt"]


def test_the_end_of_the_session_is_not_held_by_a_play_without_a_window(
        rig: Rig, driver: Driver, recorder: Recorder) -> None:
    path = rig.new_folder("tones") / "long.tnf"
    path.write_bytes(file_of([(440, 32000)], visibility="invisible"))
    program = open_file(rig, driver, path)
    try:
        recorder.wait_for_tone(30)
        handle = next(w.handle for w in driver.windows()
                      if w.process == program.process and w.kind == "TonmiraWindow")
        driver.ask("logoff", handle)
        program.wait_for_end(3)
        recorder.wait_for_silence(3)
        assert "tnfwinmmtmp.wav" not in program.folders.names()
    finally:
        program.finish()


def block_wave_file(folders: Folders) -> None:
    """A folder in its place can be neither deleted nor written, and its name is taken."""
    (folders.temp / "tnfwinmmtmp.wav").mkdir()


@pytest.mark.parametrize("sound_bit", ["64", "256"])
def test_a_tone_whose_file_cannot_be_written_plays_nothing(
        launch: Launch, folders: Folders, user: User, recorder: Recorder, sound_bit: str) -> None:
    folders.write_settings(settings(sound_bit))
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    block_wave_file(folders)
    recorder.wait_for_silence()
    window = play_once(program, user, "Average pitch")
    program.wait_for_log("#Pressed Button 2")
    samples = recorder.record(3)
    assert np.abs(samples).max() < 100
    user.click_button(window, "Stop Sound")
    program.wait_for_log("#Sound stopped")


def test_the_next_start_clears_what_a_kill_left(launch: Launch, folders: Folders) -> None:
    folders.write_settings(GOOD_SETTINGS)
    left = ["tnfwinmmtmp.wav", "tnfwinmmtmp.wav.16c.tmp", "sound.ini", "testcon.dat",
            "testcon.dat.4711-2.tmp", "updatetonmira.txt.4711-1.tmp", "error.log.16c.tmp",
            "testhearing.ini"]
    for name in left:
        (folders.temp / name).write_bytes(b"left")
    (folders.appdata / "tonmira.ini.16c.tmp").write_bytes(b"left")
    (folders.temp / "a.tmp").write_bytes(b"another program's")
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    wait_for(lambda: folders.names() == ["a.tmp", "tonmira.ini", "userdata.txt"],
             "an end of what was left", 5)


def test_a_folder_in_place_of_the_settings_counts_as_none(
        launch: Launch, folders: Folders) -> None:
    folders.settings_file.mkdir()
    program = launch(folders)
    program.window(FIRST_RUN_TITLE)
    program.wait_for_log(">> Program starting finished")
    assert program.titles() == [FIRST_RUN_TITLE]
    assert not (folders.temp / "error.log").exists()


def test_a_damaged_file_is_played_with_its_window_and_stop_ends_it(
        rig: Rig, driver: Driver, user: User, recorder: Recorder) -> None:
    path = rig.new_folder("tones") / "later.tnf"
    path.write_bytes(file_of([(440, 3000)] * 900).replace(b"{236}", b"{237}"))
    program = open_file(rig, driver, path)
    try:
        message = program.window("Error")
        message.press("OK")
        player = program.window()
        recorder.wait_for_tone(30)
        heard = measure(recorder.record(1))
        assert heard is not None and round(heard.frequency_hz) == 440
        user.activate(player)
        user.click_button(player, "Stop")
        program.wait_for_end(10)
        recorder.wait_for_silence(3)
    finally:
        program.finish()


def test_a_player_without_its_helper_shows_where_it_ended(
        rig: Rig, driver: Driver, folders: Folders) -> None:
    folder = rig.new_folder("Tonmira")
    for name in ("tonmira.exe", "tone16.dll"):
        (folder / name).write_bytes((PROGRAM.parent / name).read_bytes())
    path = rig.new_folder("tones") / "two.tnf"
    path.write_bytes(file_of([(440, 500), (880, 500)]))
    for sound_bit in ("16", "32"):
        folders.write_settings(settings(sound_bit))
        program = Tonmira(rig, driver, folders, exe=folder / "tonmira.exe",
                          arguments=rig.windows_path(path))
        try:
            player = program.window()
            wait_for(lambda p=player: p.button("(Re)play").enabled, "the end of the play")
            captions = {c.id: c.caption for c in player.controls()}
            assert (captions[102], captions[104]) == ("0", "2")
            assert any(line.startswith(">>> Tone 1 cannot be played")
                       for line in folders.log())
        finally:
            program.finish()


def test_what_another_program_puts_into_the_fields_is_what_plays(
        launch: Launch, driver: Driver, folders: Folders, user: User,
        recorder: Recorder) -> None:
    folders.write_settings(settings("256"))
    tool = open_tool(launch(folders), user)
    fields = {c.id: c.handle for c in tool.controls() if c.kind.lower() == "edit"}
    driver.ask("put", fields[101], "t")
    driver.ask("put", fields[105], "880")
    driver.ask("put", fields[103], "500")
    recorder.wait_for_silence()
    first = recorder.frames()
    tool.press("Play sound")
    recorder.wait_for_tone()
    recorder.wait_for_silence()
    tool.press("Stop sound")
    # One dash: 200 ms and what the speed adds.
    heard = tones_in(recorder.samples(first))
    assert [round(tone.pitch_hz) for tone in heard] == [880]
    assert 0.5 < heard[0].length_s < 0.9


def test_what_another_program_chooses_in_the_first_run_is_written(
        launch: Launch, driver: Driver, folders: Folders) -> None:
    program = launch(folders)
    dialog = program.window(FIRST_RUN_TITLE)
    program.wait_for_log(">> Program starting finished")
    driver.ask("put-choice", dialog.control("ComboBox").handle, "1")
    driver.ask("put-choice",
               dialog.button("I don't want to send anonymous data").handle, "1")
    dialog.press("Accept")
    program.successor()
    program.wait_for_end()
    lines = folders.settings_file.read_bytes().decode().split("\r\n")
    assert lines[2:4] == ["Language=NL", "SendData=n"]
