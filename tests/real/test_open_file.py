"""Opening tone program files: by the command line and by the main window's menu."""

import shutil
import time
from pathlib import Path

import numpy as np
import pytest

from rig.measuring import RATE
from rig.paths import PROGRAM, SCREENS
from rig.playing import press_play, start
from rig.program import Folders, Tonmira
from rig.resolution import cut_off, set_dpi
from rig.rig import Rig
from rig.sound import Recorder
from rig.streams import directsound, record_stream
from rig.tone_programs import (PATH, PITCH, TIME, TONES, Entries, file_of, label, matches,
                               open_file, tones_in, wait_until_played)
from rig.waiting import wait_for
from rig.window import Driver, User, Window

OPEN_COMMAND = 1001  # the id of the menu entry "Open tone program..."


@pytest.mark.parametrize("name", ["a name with blanks.tnf", "\u6f22\u5b57 \u0430\u0431\u0432.tnf",
                                  "(odd) & 100% ^name'.tnf"])
@pytest.mark.parametrize("quoted", [True, False])
def test_any_name_reaches_the_player_whole(rig: Rig, driver: Driver, name: str,
                                           quoted: bool) -> None:
    path = rig.new_folder("tones") / name
    path.write_bytes(file_of([(440, 100)]))
    program = open_file(rig, driver, path, quoted=quoted)
    try:
        wait_for(lambda: label(program.window(), PATH) == rig.windows_path(path), "the path")
    finally:
        program.finish()


def test_a_path_longer_than_older_programs_know_is_played(rig: Rig, driver: Driver) -> None:
    folder = rig.new_folder("tones") / ("a" * 120) / ("b" * 120)
    folder.mkdir(parents=True)
    path = folder / "long.tnf"
    path.write_bytes(file_of([(440, 100)]))
    program = open_file(rig, driver, path)
    try:
        player = program.window()
        wait_until_played(player)
        assert label(player, PATH) == rig.windows_path(path)
        assert label(player, TONES) == "1"
    finally:
        program.finish()


def test_a_relative_path_is_looked_for_where_the_program_was_started(
        rig: Rig, driver: Driver) -> None:
    folder = rig.new_folder("tones")
    (folder / "a b.tnf").write_bytes(file_of([(440, 100)]))
    program = open_file(rig, driver, folder, name="a b.tnf", start_folder=folder)
    try:
        expected = rig.windows_path(folder / "a b.tnf")
        wait_for(lambda: label(program.window(), PATH) == expected, "the path")
    finally:
        program.finish()


@pytest.mark.parametrize("name", [r"Q:\gone\a.tnf", r"\\nowhere\share\a.tnf", "NUL", "COM1",
                                  r"C:\windows"])
def test_what_is_no_file_starts_the_program_with_its_main_window(
        rig: Rig, driver: Driver, name: str) -> None:
    program = open_file(rig, driver, PROGRAM, name=name)
    try:
        program.wait_for_log(">> Program starting finished")
        assert "> Starting tnf file" not in program.folders.log()
        assert program.window().button("Play Sound").enabled
    finally:
        program.finish()


def test_a_folder_with_special_characters_plays_in_sound_mode_16(
        rig: Rig, driver: Driver, recorder: Recorder) -> None:
    folder = rig.new_folder("special") / "Tones (x86) & more"
    shutil.copytree(PROGRAM.parent, folder)
    path = rig.new_folder("tones") / "a.tnf"
    path.write_bytes(file_of([(440, 1000)]))
    folders = Folders(rig)
    recorder.wait_for_silence()
    first = recorder.frames()
    folders.write_settings(["AutoUpdate=n", "SoundBit=16", "Language=EN", "SendData=n",
                            "Microphone=1", "MicrophoneON=n"])
    program = Tonmira(rig, driver, folders, exe=folder / "tonmira.exe",
                      arguments=rig.windows_path(path))
    try:
        wait_until_played(program.window())
        assert matches(tones_in(recorder.samples(first)), [440])
    finally:
        program.finish()


def copies(driver: Driver, program: Tonmira) -> list[Window]:
    """The players that other copies of the program show."""
    return [Window(driver, w.handle, w.title) for w in driver.windows()
            if w.visible and w.title == "Tonmira" and w.process != program.process
            and any(c.text == "(Re)play" for c in driver.controls(w.handle))]


def open_by_dialog(program: Tonmira, user: User, path: str) -> None:
    program.window().choose(OPEN_COMMAND)
    dialog = program.window("Select File")
    user.activate(dialog)
    user.screenshot(dialog, SCREENS / "open-dialog.png")
    user.type_keys("alt+n")
    user.xdotool("type", "--delay", "30", path)
    user.type_keys("Return")
    wait_for(lambda: not dialog.is_open(), "the end of the dialog")


def drive_path(rig: Rig, entries: Entries, name: str) -> str:
    """A file on drive C:, whose path is easily typed."""
    (rig.prefix / "drive_c" / name).write_bytes(file_of(entries))
    return "C:\\" + name


def test_a_file_chosen_in_the_dialog_is_played_by_another_copy(
        rig: Rig, driver: Driver, user: User) -> None:
    path = drive_path(rig, [(440, 300)], "my tune.tnf")
    program = start(rig, driver, "256")
    try:
        open_by_dialog(program, user, path)
        wait_for(lambda: len(copies(driver, program)) == 1, "the player")
        player = copies(driver, program)[0]
        assert label(player, PATH) == path
        wait_until_played(player)
        player.press("Exit")
        wait_for(lambda: not player.is_open(), "the end of the player")
        assert program.window().button("Play Sound").enabled
    finally:
        program.finish()


@pytest.mark.parametrize("sound_bit", ["256", "128", "64"])
def test_a_file_is_heard_while_the_main_window_plays(
        rig: Rig, driver: Driver, user: User, recorder: Recorder, sound_bit: str) -> None:
    path = drive_path(rig, [(3000, 1500), (6000, 1500)], "over.tnf")
    program = start(rig, driver, sound_bit)
    main = program.window()
    try:
        press_play(user, main, "Low pitch")
        program.wait_for_buttons(main, playing=True)
        recorder.wait_for_tone()
        first = recorder.frames()
        open_by_dialog(program, user, path)
        wait_for(lambda: len(copies(driver, program)) == 1, "the player")
        player = copies(driver, program)[0]
        wait_until_played(player)
        samples = recorder.samples(first)
        player.press("Exit")
        wait_for(lambda: not player.is_open(), "the end of the player")
        for pitch in (3000, 6000):
            assert seconds_of(samples, pitch) > 1, pitch
        # The main window's tone still sounds, can be stopped, and was never offered again. In the
        # DirectSound mode it is started twice, and what is heard of both together is chance.
        if sound_bit == "64":
            heard = record_stream(rig, directsound(rig), 1)
        else:
            assert seconds_of(samples, 1000) > 1
            heard = recorder.record(1)
        assert seconds_of(heard, 1000) > 0.5
        assert not main.button("Play Sound").enabled
        main.press("Stop Sound")
        recorder.wait_for_silence()
    finally:
        program.finish()


def seconds_of(samples: np.ndarray, pitch: int) -> float:
    """How long a pitch is to be heard, be it among others."""
    piece = RATE // 10
    turning = np.exp(-2j * np.pi * pitch / RATE * np.arange(piece)) * np.hanning(piece)
    pieces = samples[: len(samples) // piece * piece].reshape(-1, piece)
    amplitudes = np.abs(pieces @ turning) * 4 / piece
    return float((amplitudes > 5000).sum()) * 0.1


def long_folder(rig: Rig) -> Path:
    folder = rig.new_folder("tones") / "Recordings of the year" / "Sirens & signals" / "Summer"
    folder.mkdir(parents=True)
    return folder


def test_pointing_at_a_path_shows_all_of_it(rig: Rig, driver: Driver, user: User) -> None:
    path = long_folder(rig) / "a siren that rises and falls.tnf"
    path.write_bytes(file_of([(440, 100)]))
    program = open_file(rig, driver, path)
    try:
        player = program.window()
        wait_until_played(player)
        user.activate(player)
        user.point_at(next(c for c in player.controls() if c.id == 100 + PATH))

        def tip_is_shown() -> bool:
            user.xdotool("mousemove_relative", "--", "1", "0")
            time.sleep(1)
            return any(w.kind == "tooltips_class32" and w.visible for w in driver.windows())

        wait_for(tip_is_shown, "the tool tip")
        rig.run("import", "-window", "root", str(SCREENS / "player-tip.png"))
    finally:
        program.finish()


@pytest.mark.parametrize("dpi", [96, 144])
def test_a_long_path_is_shortened_and_nothing_is_cut_off(
        rig: Rig, user: User, dpi: int) -> None:
    path = long_folder(rig) / "a siren that rises and falls.tnf"
    path.write_bytes(file_of([(32000, 3000), (880, 31000)]))
    set_dpi(rig, dpi)
    driver = Driver(rig)
    program = open_file(rig, driver, path)
    try:
        if dpi != 96:
            program.window("Warning").press("OK")
        player = program.window()
        wait_for(lambda: label(player, PITCH) == "32000", "the first tone")
        assert cut_off(driver, player) == []
        assert label(player, PATH) == rig.windows_path(path)
        user.screenshot(player, SCREENS / f"player-{dpi}.png")
        wait_for(lambda: label(player, TIME) == "31000", "the second tone")
        assert cut_off(driver, player) == []
        user.screenshot(player, SCREENS / f"player-second-{dpi}.png")
    finally:
        program.finish()
        set_dpi(rig, 96)
