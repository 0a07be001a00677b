"""The sound modes beside the multimedia player: the helper programs and DirectSound."""

from collections.abc import Iterator

import pytest

from rig.measuring import Tone, measure
from rig.playing import expect_nothing_left, start, stop
from rig.program import Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, User

SILENT_WITHIN_S = 0.5
# How far the rig's own moments may be off; see Recorder.
RIG_DELAY_S = 0.04


@pytest.fixture(scope="module", params=["16", "32", "64"])
def program(request: pytest.FixtureRequest, rig: Rig, driver: Driver) -> Iterator[Tonmira]:
    program = start(rig, driver, request.param)
    yield program
    program.finish()


@pytest.mark.parametrize(("mode", "pitch"), [("Custom pitch", 440), ("High pitch", 10000)])
def test_a_tone_is_heard_at_its_pitch_and_stop_leaves_nothing_running_or_lying_about(
        rig: Rig, program: Tonmira, user: User, recorder: Recorder, mode: str,
        pitch: int) -> None:
    window = program.window()

    def once() -> tuple[Tone | None, float]:
        recorder.wait_for_silence()
        user.activate(window)
        user.click_button(window, mode)
        wait_for(lambda: window.is_checked(mode), f"the mode {mode!r}")
        if mode == "Custom pitch":
            window.slide(pitch)
            wait_for(lambda: f" {pitch}" in window.texts() or str(pitch) in window.texts(),
                     "the selected pitch")
        user.click_button(window, "Play Sound")
        recorder.wait_for_tone()
        recorder.record(0.3)
        tone = measure(recorder.record(2))
        return tone, stop(program, user, window, recorder)

    tone, silent_after = once()
    if (tone is None or abs(tone.frequency_hz / pitch - 1) > 1e-4
            or silent_after > SILENT_WITHIN_S + RIG_DELAY_S):
        tone, silent_after = once()
    assert tone is not None, "no steady tone"
    assert tone.frequency_hz == pytest.approx(pitch, rel=1e-4)
    assert silent_after <= SILENT_WITHIN_S + RIG_DELAY_S
    expect_nothing_left(rig, program)
