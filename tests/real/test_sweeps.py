"""The mode "Low to high", played by the multimedia player and by the helper programs: what is heard
at which time."""

from collections.abc import Callable, Iterator

import numpy as np
import pytest

from rig.measuring import steps
from rig.playing import expect_nothing_left, press_play, start, stop
from rig.program import Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, User

TOP_HZ, STEP_HZ = 32000, 200
# The highest pitch that a recording can hold.
HEARD_HZ = 21800
# Nominal 75 ms and the time to make the next tone; a helper's steps are counted in samples.
STEP_S = {"256": (0.075, 0.13), "16": (0.198, 0.202), "32": (0.198, 0.202)}


@pytest.fixture
def begin(rig: Rig, driver: Driver) -> Iterator[Callable[[str], Tonmira]]:
    """Starts the program in a sound mode."""
    started: list[Tonmira] = []

    def start_in(sound_bit: str) -> Tonmira:
        started.append(start(rig, driver, sound_bit))
        return started[-1]

    yield start_in
    for program in started:
        program.finish()


def assert_climbs(heard: list[tuple[int, float]], last_hz: int, sound_bit: str) -> None:
    """From the first step to the last one, in order, none left out, each for its time."""
    assert [pitch for pitch, _ in heard] == list(range(STEP_HZ, last_hz + 1, STEP_HZ))
    times = np.array([begin for _, begin in heard])
    shortest, longest = STEP_S[sound_bit]
    mean = (times[-1] - times[0]) / (len(times) - 1)
    assert shortest - 0.002 <= mean <= longest + 0.002
    assert np.diff(times).max() < 2 * longest


@pytest.mark.parametrize("sound_bit", ["16", "32"])
def test_a_helper_climbs_by_200_hz_each_200_ms(
        begin: Callable[[str], Tonmira], rig: Rig, user: User, recorder: Recorder,
        sound_bit: str) -> None:
    program = begin(sound_bit)
    window = program.window()
    recorder.wait_for_silence()
    first = recorder.frames()
    press_play(user, window, "Low to high")
    recorder.wait_for_tone()
    recorder.record(4.3)
    heard = steps(recorder.samples(first), STEP_HZ)
    stop(program, user, window, recorder)
    assert_climbs([step for step in heard if step[0] <= 4000], 4000, sound_bit)
    expect_nothing_left(rig, program)


def test_the_players_sweep_climbs_to_the_top_and_begins_again(
        begin: Callable[[str], Tonmira], rig: Rig, user: User, recorder: Recorder) -> None:
    program = begin("256")
    window = program.window()
    recorder.wait_for_silence()
    first = recorder.frames()
    press_play(user, window, "Low to high")
    recorder.wait_for_tone()
    recorder.record(STEP_S["256"][0] * TOP_HZ / STEP_HZ)

    def second_climb() -> int:
        """Where the pitch of the bottom is heard again, or nothing."""
        pitches = [pitch for pitch, _ in steps(recorder.samples(first), STEP_HZ)]
        again = [i for i in range(1, len(pitches)) if pitches[i : i + 3] == [200, 400, 600]]
        return again[0] if again else 0

    wait_for(second_climb, "the bottom again", 15)
    heard = steps(recorder.samples(first), STEP_HZ)
    again = second_climb()
    stop(program, user, window, recorder)
    climbing = [step for step in heard[:again] if step[0] <= HEARD_HZ][: HEARD_HZ // STEP_HZ]
    assert_climbs(climbing, HEARD_HZ, "256")
    # What lies above is heard as something else, but for its time.
    unheard = (TOP_HZ - HEARD_HZ) // STEP_HZ
    shortest, longest = STEP_S["256"]
    assert shortest < (heard[again][1] - climbing[-1][1]) / (unheard + 1) < longest
    expect_nothing_left(rig, program)


@pytest.mark.parametrize("sound_bit", ["256", "32"])
def test_quick_stops_and_plays_leave_one_sweep_that_begins_at_the_bottom(
        begin: Callable[[str], Tonmira], rig: Rig, user: User, driver: Driver, recorder: Recorder,
        sound_bit: str) -> None:
    program = begin(sound_bit)
    window = program.window()
    press_play(user, window, "Low to high")
    recorder.wait_for_tone()
    for _ in range(4):
        window.press("Stop Sound")
        program.wait_for_buttons(window, playing=False)
        window.press("Play Sound")
        program.wait_for_buttons(window, playing=True)
    window.press("Stop Sound")
    program.wait_for_buttons(window, playing=False)
    recorder.wait_for_silence()
    first = recorder.frames()
    window.press("Play Sound")
    recorder.wait_for_tone()
    recorder.record(2.2)
    heard = steps(recorder.samples(first), STEP_HZ)
    assert stop(program, user, window, recorder) < 0.5
    last_hz = 1800
    assert_climbs(heard[: last_hz // STEP_HZ], last_hz, sound_bit)
    expect_nothing_left(rig, program)
