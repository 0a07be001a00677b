"""What is heard of a continuous tone, in every sound mode: one steady stretch without a hole,
however often its loop begins anew, at its pitch and loudness, until Stop."""

from collections.abc import Iterator

import numpy as np
import pytest

from rig.measuring import Tone, deviation, measure
from rig.playing import expect_nothing_left, pick, start, stop
from rig.program import MODES, Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.streams import directsound, is_directsound, record_stream, streams
from rig.window import Driver, User

FIXED = list(zip(MODES[:5], [1000, 4500, 10000, 16600, 21000]))
CUSTOM = [("Custom pitch", 4), ("Custom pitch", 440), ("Custom pitch", 15000)]
SOME = [("Custom pitch", 440), ("High pitch", 10000)]
CASES = [(bit, *case) for bits, cases in (("128 256".split(), FIXED + CUSTOM),
                                          ("16 32 64".split(), SOME))
         for bit in bits for case in cases]

# A loop of one second begins anew at least three times.
HEARD_S = 3.4
SILENT_WITHIN_S = {"128": 0.3, "256": 0.3, "16": 0.5, "32": 0.5, "64": 0.5}
# The helpers' modes show no number.
WITH_STATUS = ("64", "128", "256")
# How far the rig's own moments may be off; see Recorder.
RIG_DELAY_S = 0.04


@pytest.fixture(scope="module")
def programs(rig: Rig, driver: Driver) -> Iterator[dict[str, Tonmira]]:
    """The program in the sound modes that were asked for so far, but only one at a time."""
    running: dict[str, Tonmira] = {}
    yield running
    for program in running.values():
        program.finish()


@pytest.fixture
def program(programs: dict[str, Tonmira], rig: Rig, driver: Driver,
            sound_bit: str) -> Iterator[Tonmira]:
    if sound_bit not in programs:
        for bit in list(programs):
            programs.pop(bit).finish()
        programs[sound_bit] = start(rig, driver, sound_bit)
    program = programs[sound_bit]
    yield program
    window = program.window()
    if window.button("Stop Sound").enabled:
        window.press("Stop Sound")
        program.wait_for_buttons(window, playing=False)


def assert_one_steady_tone(heard: np.ndarray, pitch: int) -> None:
    tone = measure(heard)
    assert isinstance(tone, Tone), "no steady tone"
    assert tone.frequency_hz == pytest.approx(pitch, rel=1e-2 if pitch == 4 else 1e-4)
    assert tone.length_s > HEARD_S - (0.5 if pitch == 4 else 0.1)
    assert 29000 <= tone.peak <= 30500
    assert deviation(heard, pitch) < 0.01


@pytest.mark.parametrize(("sound_bit", "mode", "pitch"), CASES)
def test_a_tone_is_heard_at_its_pitch_without_a_hole_and_ends_with_stop(
        rig: Rig, program: Tonmira, user: User, recorder: Recorder, sound_bit: str, mode: str,
        pitch: int) -> None:
    window = program.window()
    recorder.wait_for_silence()
    pick(user, window, mode, pitch)
    user.click_button(window, "Play Sound")
    recorder.wait_for_tone()
    recorder.record(0.2)
    if sound_bit == "64":
        assert_one_steady_tone(record_stream(rig, directsound(rig), HEARD_S), pitch)
    else:
        assert_one_steady_tone(recorder.record(HEARD_S), pitch)
    if sound_bit in WITH_STATUS:
        assert window.status() == f"Actual pitch (Hertz): {pitch}"

    assert stop(program, user, window, recorder) <= SILENT_WITHIN_S[sound_bit] + RIG_DELAY_S
    program.wait_for_log("#Sound stopped")
    assert window.status().strip() == "Actual pitch (Hertz):"
    expect_nothing_left(rig, program)


@pytest.mark.parametrize("sound_bit", ["128", "256", "16", "32"])
def test_above_half_the_rate_the_default_sounds_lower_and_the_helpers_are_silent(
        program: Tonmira, user: User, recorder: Recorder, sound_bit: str) -> None:
    window = program.window()
    recorder.wait_for_silence()
    pick(user, window, "Custom pitch", 32000)
    user.click_button(window, "Play Sound")
    program.wait_for_buttons(window, playing=True)
    if sound_bit in WITH_STATUS:
        recorder.wait_for_tone()
        # 44100 samples a second hold 44100 - 32000 Hz in the place of 32000 Hz.
        assert_one_steady_tone(recorder.record(HEARD_S), 12100)
        assert window.status() == "Actual pitch (Hertz): 32000"
    else:
        # The rig's card takes 44100, too.
        assert np.abs(recorder.record(3)).max() < 10


@pytest.mark.parametrize("sound_bit", ["64", "128", "256"])
def test_only_the_directsound_mode_plays_through_directsound_too(
        rig: Rig, program: Tonmira, user: User, recorder: Recorder, sound_bit: str) -> None:
    window = program.window()
    pick(user, window, "Custom pitch", 440)
    user.click_button(window, "Play Sound")
    recorder.wait_for_tone()
    # What plays once only has ended.
    recorder.record(1.5)
    sounding = [stream for stream in streams(rig) if measure(record_stream(rig, stream, 0.5))]
    # The DirectSound mode starts the tone both ways.
    assert [is_directsound(stream) for stream in sounding].count(True) == (sound_bit == "64")
    assert [is_directsound(stream) for stream in sounding].count(False) == 1
