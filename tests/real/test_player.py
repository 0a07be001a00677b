"""The player in the real program: what a tone program sounds like, and what its window does."""

from collections.abc import Callable, Iterator

import pytest

from rig.paths import SCREENS
from rig.playing import helpers_running
from rig.program import Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.tone_programs import (EXTRA_MS, PATH, PITCH, PLAYED, TIME, TONES, file_of, hear, label,
                               matches, open_file, tones_in, wait_until_played)
from rig.waiting import wait_for
from rig.window import Driver, User

DOZEN = [440, 880, 660, 1320, 550, 1100, 2200, 4400, 3300, 1650, 990, 495]
# What starting and ending a tone may take; the helpers are processes of their own.
SLOWEST_START_S = {"256": 0.1, "128": 0.1, "64": 0.1, "32": 0.4, "16": 0.8}
SLOWEST_END_S = {"256": 0.1, "128": 0.1, "64": 0.15, "32": 0.4, "16": 0.8}

# A tone that wakes the device lacks 40 ms or more.
AS_LONG_MS = 12

Opener = Callable[..., Tonmira]


@pytest.fixture
def opened(rig: Rig, driver: Driver) -> Iterator[Opener]:
    """Opens a tone program file; what is left running is ended."""
    programs: list[Tonmira] = []

    def open_content(content: bytes, **options: object) -> Tonmira:
        path = rig.new_folder("tones") / "test.tnf"
        path.write_bytes(content)
        programs.append(open_file(rig, driver, path, **options))
        return programs[-1]

    yield open_content
    for program in programs:
        program.finish()


@pytest.mark.parametrize("sound_bit", ["256", "128", "64", "32", "16"])
def test_tones_are_heard_in_order_at_their_pitches_for_their_time(
        opened: Opener, rig: Rig, recorder: Recorder, sound_bit: str) -> None:
    helper = sound_bit in ("32", "16")
    pitches = DOZEN[:4] if helper else DOZEN
    duration_ms = 1000 if helper else 400
    content = file_of([(pitch, duration_ms) for pitch in pitches])
    heard = hear(recorder, lambda: wait_until_played(
        opened(content, sound_bit=sound_bit).window()))
    assert [tone.pitch_hz for tone in heard] == pytest.approx(pitches, rel=1e-3)
    nominal = (duration_ms + EXTRA_MS + (1000 if sound_bit == "16" else 0)) / 1000
    shortest, longest = nominal - SLOWEST_START_S[sound_bit], nominal + SLOWEST_END_S[sound_bit]
    lengths = [tone.length_s for tone in heard]
    assert all(shortest < length < longest for length in lengths), lengths
    periods = [b.start_s - a.start_s for a, b in zip(heard, heard[1:])]
    assert all(shortest < period < longest for period in periods), periods
    wait_for(lambda: not helpers_running(rig), "the end of the helpers", 3)


def test_the_first_tone_is_as_long_as_the_later_ones(opened: Opener, recorder: Recorder) -> None:
    content = file_of([(pitch, 300) for pitch in DOZEN[:4]])
    heard = hear(recorder, lambda: wait_until_played(opened(content).window()))
    lengths_ms = [1000 * tone.length_s for tone in heard]
    assert lengths_ms == pytest.approx([300 + EXTRA_MS] * 4, abs=AS_LONG_MS), lengths_ms


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
    # The start goes on when the file has been played.
    program.wait_for_log(">> Program starting finished")
    assert program.titles() == ["Tonmira"]
    assert program.folders.log()[-2:] == ["> Starting tnf file", ">> Program starting finished"]


def test_stop_ends_the_play_with_the_tone_that_sounds(
        opened: Opener, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    first = recorder.frames()
    program = opened(file_of([(440, 2500), (880, 2500), (1320, 2500)]))
    player = program.window()
    recorder.wait_for_tone()
    # Without the mouse, which may take longer than a tone to be brought there on a busy machine.
    player.press("Stop")
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

    assert matches(hear(recorder, replay), [440, 880])


@pytest.mark.parametrize("sound_bit", ["256", "32", "16"])
@pytest.mark.parametrize("way", ["Exit", "frame"])
def test_leaving_while_it_plays_ends_everything(opened: Opener, rig: Rig, recorder: Recorder,
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
    wait_for(lambda: not helpers_running(rig), "the end of the helpers", 3)
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
    looks = 0
    while program.running():
        assert program.titles() == []
        looks += 1
    assert looks >= 20
    recorder.wait_for_silence()
    assert matches(tones_in(recorder.samples(first)), [440, 880])


def test_a_damaged_file_shows_its_messages_one_after_another(
        rig: Rig, driver: Driver, user: User, recorder: Recorder) -> None:
    lines = file_of([(440, 1000)]).split(b"\r\n")
    lines[0], lines[2], lines[4] = b"invalid", b"{237}", b"{seen}"
    path = rig.new_folder("tones") / "damaged.tnf"
    path.write_bytes(b"\r\n".join(lines))
    program = open_file(rig, driver, path)
    illegal = rig.windows_path(path) + " is not a legal tnf file!"
    for number, text in enumerate(
            [illegal, "Your Tonmira version is not compatible with this file!", illegal]):
        message = program.window("Error")
        wait_for(lambda m=message, t=text: t in m.texts(), text)
        assert program.titles() == ["Error"]
        user.screenshot(message, SCREENS / f"player-message-{number + 1}.png")
        message.press("OK")
        wait_for(lambda m=message: not m.is_open(), "the end of the message")
    recorder.wait_for_tone()
    assert program.titles() == ["Tonmira"]
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
