"""The mode "Low to high", played by the multimedia player and by a helper program."""

import numpy as np
import pytest

from rig.measuring import steady_pitches
from rig.playing import expect_nothing_left, press_play, start, stop
from rig.rig import Rig
from rig.sound import Recorder
from rig.window import Driver, User


@pytest.mark.parametrize(("sound_bit", "seconds", "highest"), [("256", 12, 9000), ("32", 5, 3000)])
def test_low_to_high_climbs_by_200_hz_a_step(rig: Rig, driver: Driver, user: User,
                                             recorder: Recorder, sound_bit: str, seconds: int,
                                             highest: int) -> None:
    program = start(rig, driver, sound_bit)
    try:
        window = program.window()

        def heard_pitches() -> list[int]:
            recorder.wait_for_silence()
            first = recorder.frames()
            press_play(user, window, "Low to high")
            recorder.wait_for_tone()
            recorder.record(seconds)
            samples = recorder.samples(first)
            stop(program, user, window, recorder)
            return steady_pitches(samples, 200)

        pitches = heard_pitches()
        if not climbs(pitches, highest):
            pitches = heard_pitches()
        assert climbs(pitches, highest), " ".join(map(str, pitches))
        expect_nothing_left(rig, program)
    finally:
        program.finish()


def climbs(pitches: list[int], highest: int) -> bool:
    """Steps of 200 Hz up to `highest`; a gap in the recording may hide one here and there."""
    wanted = [p for p in pitches if p <= highest]
    steps = np.diff(wanted)
    missing = len(range(200, highest + 1, 200)) - len(wanted)
    return len(wanted) > 0 and bool((steps > 0).all()) and wanted[-1] == highest and missing <= 3
