"""The player in the real program: what a tone program file sounds like, and what its window does."""

import shutil
import time
from collections.abc import Callable, Iterator
from pathlib import Path

import numpy as np
import pytest

from bench import PROGRAM, Bench, wait_for
from conftest import SCREENS
from measuring import RATE
from playing import helpers_running, press_play, start
from program import Folders, Tonmira
from sound import Recorder
from test_texts_fit import cut_off, set_dpi
from tone_programs import CHUNK, EXTRA_MS, Entries, Heard, file_of, open_file, tones_in
from window import Driver, User, Window

DOZEN = [440, 880, 660, 1320, 550, 1100, 2200, 4400, 3300, 1650, 990, 495]
OPEN_COMMAND = 1001  # the id of the menu entry "Open tone program..."
# What starting and ending a tone may take; the helpers are processes of their own.
SLOWEST_START_S = {"256": 0.35, "128": 0.35, "64": 0.35, "32": 1.5, "16": 2.5}

Opener = Callable[..., Tonmira]


@pytest.fixture
def opened(bench: Bench, driver: Driver) -> Iterator[Opener]:
    """Opens a tone program file; what is left running is ended."""
    programs: list[Tonmira] = []

    def open_content(content: bytes, **options: object) -> Tonmira:
        path = bench.new_folder("tones") / "test.tnf"
        path.write_bytes(content)
        programs.append(open_file(bench, driver, path, **options))
        return programs[-1]

    yield open_content
    for program in programs:
        program.finish()


def label(player: Window, number: int) -> str:
    """The text of a label by its place in the tab order."""
    return next(c for c in player.controls() if c.id == 100 + number).caption


PATH, PLAYED, TONES, PITCH, TIME = 1, 2, 4, 6, 8


def wait_until_played(player: Window, seconds: float = 60) -> None:
    wait_for(lambda: player.button("(Re)play").enabled, "the end of the play", seconds)


def hear(recorder: Recorder, wanted: list[int], play: Callable[[], None]) -> list[Heard]:
    """What is heard while `play` runs; taken again when it is not what is wanted."""
    heard: list[Heard] = []
    for _ in range(3):
        recorder.wait_for_silence()
        first = recorder.frames()
        play()
        recorder.record(0.5)
        heard = tones_in(recorder.samples(first), CHUNK)
        if matches(heard, wanted):
            break
    return heard


def matches(heard: list[Heard], wanted: list[int]) -> bool:
    return len(heard) == len(wanted) and all(
        abs(tone.pitch_hz / pitch - 1) < 1e-3 for tone, pitch in zip(heard, wanted))


@pytest.mark.parametrize("sound_bit", ["256", "128", "64", "32", "16"])
def test_a_dozen_tones_are_heard_in_order_at_their_pitches(
        opened: Opener, bench: Bench, recorder: Recorder, sound_bit: str) -> None:
    duration_ms = 400 if sound_bit in ("256", "128", "64") else 700
    program = opened(file_of([(pitch, duration_ms) for pitch in DOZEN]), sound_bit=sound_bit)
    player = program.window()

    # The first play starts by itself while the recording cannot be prepared: the second counts.
    wait_until_played(player)

    def play_again() -> None:
        player.press("(Re)play")
        wait_for(lambda: not player.button("(Re)play").enabled, "the play")
        wait_until_played(player)

    heard = hear(recorder, DOZEN, play_again)
    assert [round(tone.pitch_hz) for tone in heard] == DOZEN
    assert [tone.pitch_hz for tone in heard] == pytest.approx(DOZEN, rel=1e-3)
    nominal = (duration_ms + EXTRA_MS + (1000 if sound_bit == "16" else 0)) / 1000
    late = SLOWEST_START_S[sound_bit]
    lengths = [tone.length_s for tone in heard]
    assert all(nominal - late < length < nominal + late for length in lengths), lengths
    periods = [b.start_s - a.start_s for a, b in zip(heard, heard[1:])]
    assert all(nominal - late < period < nominal + late for period in periods), periods
    wait_for(lambda: not helpers_running(bench), "the end of the helpers", 3)


def test_the_window_tells_what_is_played(opened: Opener, user: User) -> None:
    program = opened(file_of([(440, 4000), (880, 500)]))
    player = program.window()
    wait_for(lambda: label(player, PITCH) == "440", "the pitch")
    assert label(player, TIME) == "4000"
    assert label(player, PLAYED) == "0"
    assert label(player, TONES) == "2"
    assert label(player, PATH).endswith("\\test.tnf")
    assert not player.button("(Re)play").enabled
    user.screenshot(player, SCREENS / "player-playing.png")
    wait_until_played(player)
    assert (label(player, PITCH), label(player, TIME)) == ("", "")
    assert label(player, PLAYED) == "2"
    assert program.titles() == ["Tonmira"]
    assert program.folders.log()[-2:] == ["> Starting tnf file", ">> Program starting finished"]


def test_stop_ends_the_play_with_the_tone_that_sounds(
        opened: Opener, user: User, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    first = recorder.frames()
    program = opened(file_of([(440, 2500), (880, 2500), (1320, 2500)]))
    player = program.window()
    recorder.wait_for_tone()
    user.activate(player)
    user.click_button(player, "Stop")
    wait_until_played(player)
    recorder.wait_for_silence()
    heard = tones_in(recorder.samples(first))
    assert [round(tone.pitch_hz) for tone in heard] == [440]
    assert heard[0].length_s > 2
    assert label(player, PLAYED) == "3"
    assert program.running()


def test_replay_starts_at_the_first_tone(opened: Opener, user: User, recorder: Recorder) -> None:
    program = opened(file_of([(440, 400), (880, 400)]))
    player = program.window()
    wait_until_played(player)

    def replay() -> None:
        user.activate(player)
        user.click_button(player, "(Re)play")
        wait_for(lambda: not player.button("(Re)play").enabled, "the play")
        wait_until_played(player)

    assert matches(hear(recorder, [440, 880], replay), [440, 880])


@pytest.mark.parametrize("sound_bit", ["256", "32", "16"])
@pytest.mark.parametrize("way", ["Exit", "frame"])
def test_leaving_while_it_plays_ends_everything(opened: Opener, bench: Bench, recorder: Recorder,
                                                sound_bit: str, way: str) -> None:
    program = opened(file_of([(440, 1500)] * 5), sound_bit=sound_bit)
    player = program.window()
    recorder.wait_for_tone(30)
    if way == "Exit":
        player.press("Exit")
    else:
        player.close()
    program.wait_for_end()
    recorder.wait_for_silence()
    wait_for(lambda: not helpers_running(bench), "the end of the helpers", 3)
    assert "tnfwinmmtmp.wav" not in program.folders.names()


def test_leaving_afterwards_ends_the_program(opened: Opener, user: User) -> None:
    program = opened(file_of([(440, 100)]))
    player = program.window()
    wait_until_played(player)
    user.activate(player)
    user.click_button(player, "Exit")
    program.wait_for_end()


def test_an_invisible_file_is_heard_without_a_window_and_ends(
        opened: Opener, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    first = recorder.frames()
    program = opened(file_of([(440, 1200), (880, 1200)], visibility="invisible"))
    recorder.wait_for_tone(30)
    assert program.titles() == []
    program.wait_for_end(30)
    recorder.wait_for_silence()
    assert matches(tones_in(recorder.samples(first)), [440, 880])


def test_a_damaged_file_shows_its_messages_one_after_another(
        bench: Bench, driver: Driver, user: User, recorder: Recorder) -> None:
    lines = file_of([(440, 1000)]).split(b"\r\n")
    lines[0], lines[2], lines[4] = b"invalid", b"{237}", b"{seen}"
    path = bench.new_folder("tones") / "damaged.tnf"
    path.write_bytes(b"\r\n".join(lines))
    program = open_file(bench, driver, path)
    illegal = bench.windows_path(path) + " is not a legal tnf file!"
    for number, text in enumerate(
            [illegal, "Your Tonmira version is not compatible with this file!", illegal]):
        message = program.window("Error")
        wait_for(lambda m=message, t=text: t in m.texts(), text)
        assert program.titles() == ["Error"]
        user.screenshot(message, SCREENS / f"player-message-{number + 1}.png")
        message.press("OK")
        wait_for(lambda m=message: not m.is_open(), "the end of the message")
    recorder.wait_for_tone()
    assert program.titles() == []
    program.wait_for_end(30)


@pytest.mark.parametrize("content", [b"", b"x", b"\0" * 5000, b"x" * (10 << 20)],
                         ids=["empty", "one-byte", "nuls", "ten-megabytes"])
def test_a_file_that_is_none_has_messages_and_ends(opened: Opener, content: bytes) -> None:
    program = opened(content)
    for _ in range(5):
        message = program.window("Error")
        message.press("OK")
        wait_for(lambda m=message: not m.is_open(), "the end of the message")
    program.wait_for_end(30)


@pytest.mark.parametrize("name", ["a name with blanks.tnf", "\u6f22\u5b57 \u0430\u0431\u0432.tnf",
                                  "(odd) & 100% ^name'.tnf"])
@pytest.mark.parametrize("quoted", [True, False])
def test_any_name_reaches_the_player_whole(bench: Bench, driver: Driver, name: str,
                                           quoted: bool) -> None:
    path = bench.new_folder("tones") / name
    path.write_bytes(file_of([(440, 100)]))
    program = open_file(bench, driver, path, quoted=quoted)
    try:
        wait_for(lambda: label(program.window(), PATH) == bench.windows_path(path), "the path")
    finally:
        program.finish()


def test_a_path_longer_than_older_programs_know_is_played(bench: Bench, driver: Driver) -> None:
    folder = bench.new_folder("tones") / ("a" * 120) / ("b" * 120)
    folder.mkdir(parents=True)
    path = folder / "long.tnf"
    path.write_bytes(file_of([(440, 100)]))
    program = open_file(bench, driver, path)
    try:
        player = program.window()
        wait_until_played(player)
        assert label(player, PATH) == bench.windows_path(path)
        assert label(player, TONES) == "1"
    finally:
        program.finish()


def test_a_relative_path_is_looked_for_where_the_program_was_started(
        bench: Bench, driver: Driver) -> None:
    folder = bench.new_folder("tones")
    (folder / "a b.tnf").write_bytes(file_of([(440, 100)]))
    program = open_file(bench, driver, folder, name="a b.tnf", start_folder=folder)
    try:
        expected = bench.windows_path(folder / "a b.tnf")
        wait_for(lambda: label(program.window(), PATH) == expected, "the path")
    finally:
        program.finish()


@pytest.mark.parametrize("name", [r"Q:\gone\a.tnf", r"\\nowhere\share\a.tnf", "NUL", "COM1",
                                  r"C:\windows"])
def test_what_is_no_file_starts_the_program_with_its_main_window(
        bench: Bench, driver: Driver, name: str) -> None:
    program = open_file(bench, driver, PROGRAM, name=name)
    try:
        program.wait_for_log(">> Program starting finished")
        assert "> Starting tnf file" not in program.folders.log()
        assert program.window().button("Play Sound").enabled
    finally:
        program.finish()


def test_a_folder_with_special_characters_plays_in_sound_mode_16(
        bench: Bench, driver: Driver, recorder: Recorder) -> None:
    folder = bench.new_folder("special") / "Tones (x86) & more"
    shutil.copytree(PROGRAM.parent, folder)
    path = bench.new_folder("tones") / "a.tnf"
    path.write_bytes(file_of([(440, 1000)]))
    folders = Folders(bench)
    recorder.wait_for_silence()
    first = recorder.frames()
    folders.write_settings(["AutoUpdate=n", "SoundBit=16", "Language=EN", "SendData=n",
                            "Microphone=1", "MicrophoneON=n"])
    program = Tonmira(bench, driver, folders, exe=folder / "tonmira.exe",
                      arguments=bench.windows_path(path))
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


def drive_path(bench: Bench, entries: Entries, name: str) -> str:
    """A file on drive C:, whose path is easily typed."""
    (bench.prefix / "drive_c" / name).write_bytes(file_of(entries))
    return "C:\\" + name


def test_a_file_chosen_in_the_dialog_is_played_by_another_copy(
        bench: Bench, driver: Driver, user: User) -> None:
    path = drive_path(bench, [(440, 300)], "my tune.tnf")
    program = start(bench, driver, "256")
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
        bench: Bench, driver: Driver, user: User, recorder: Recorder, sound_bit: str) -> None:
    path = drive_path(bench, [(3000, 1500), (6000, 1500)], "over.tnf")
    program = start(bench, driver, sound_bit)
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
        for pitch in (1000, 3000, 6000):
            assert seconds_of(samples, pitch) > 1, pitch
        # The main window's tone still sounds, can be stopped, and was never offered again.
        assert seconds_of(recorder.record(1), 1000) > 0.5
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


def long_folder(bench: Bench) -> Path:
    folder = bench.new_folder("tones") / "Recordings of the year" / "Sirens & signals" / "Summer"
    folder.mkdir(parents=True)
    return folder


def test_pointing_at_a_path_shows_all_of_it(bench: Bench, driver: Driver, user: User) -> None:
    path = long_folder(bench) / "a siren that rises and falls.tnf"
    path.write_bytes(file_of([(440, 100)]))
    program = open_file(bench, driver, path)
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
        bench.run("import", "-window", "root", str(SCREENS / "player-tip.png"))
    finally:
        program.finish()


@pytest.mark.parametrize("dpi", [96, 144])
def test_a_long_path_is_shortened_and_nothing_is_cut_off(
        bench: Bench, user: User, dpi: int) -> None:
    path = long_folder(bench) / "a siren that rises and falls.tnf"
    path.write_bytes(file_of([(32000, 3000), (880, 31000)]))
    set_dpi(bench, dpi)
    driver = Driver(bench)
    program = open_file(bench, driver, path)
    try:
        if dpi != 96:
            program.window("Warning").press("OK")
        player = program.window()
        wait_for(lambda: label(player, PITCH) == "32000", "the first tone")
        assert cut_off(driver, player) == []
        assert label(player, PATH) == bench.windows_path(path)
        user.screenshot(player, SCREENS / f"player-{dpi}.png")
        wait_for(lambda: label(player, TIME) == "31000", "the second tone")
        assert cut_off(driver, player) == []
        user.screenshot(player, SCREENS / f"player-second-{dpi}.png")
    finally:
        program.finish()
        set_dpi(bench, 96)
