"""What is heard: every fixed mode and three custom pitches, in the two sound modes that play
through the multimedia player."""

from collections.abc import Iterator
from dataclasses import dataclass

import pytest

from rig.measuring import Tone, measure
from rig.program import GOOD_SETTINGS, MODES, TEMPORARY_WAVE, Folders, Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, User, Window

FIXED = list(zip(MODES[:5], [1000, 4500, 10000, 16600, 21000]))
CUSTOM = [("Custom pitch", 4), ("Custom pitch", 440), ("Custom pitch", 15000)]

SILENT_WITHIN_S = 0.3
# How far the rig's own moments may be off; see Recorder.
RIG_DELAY_S = 0.04


@dataclass
class Round:
    """One Play and Stop, as the user sees and hears it."""

    tone: Tone | None
    status: str
    silent_after_s: float
    files: list[str]

    def is_good(self, pitch: int) -> bool:
        tolerance = 1e-2 if pitch == 4 else 1e-4
        return (self.tone is not None
                and abs(self.tone.frequency_hz / pitch - 1) <= tolerance
                and 29000 <= self.tone.peak <= 30500
                and self.silent_after_s <= SILENT_WITHIN_S + RIG_DELAY_S)


@pytest.fixture(scope="module", params=["128", "256"])
def program(request: pytest.FixtureRequest, rig: Rig, driver: Driver) -> Iterator[Tonmira]:
    folders = Folders(rig)
    settings = list(GOOD_SETTINGS)
    settings[1] = f"SoundBit={request.param}"
    folders.write_settings(settings)
    program = Tonmira(rig, driver, folders)
    program.wait_for_log(">> Program starting finished")
    yield program
    program.finish()


@pytest.fixture
def window(program: Tonmira) -> Iterator[Window]:
    window = program.window()
    yield window
    if window.button("Stop Sound").enabled:
        window.press("Stop Sound")
        program.wait_for_buttons(window, playing=False)


def play_and_stop(program: Tonmira, window: Window, user: User, recorder: Recorder,
                  pitch: int) -> Round:
    user.activate(window)
    recorder.wait_for_silence()
    user.click_button(window, "Play Sound")
    recorder.wait_for_tone()
    tone = measure(recorder.record(5 if pitch == 4 else 1.5))
    status = window.status()
    first = recorder.frames()
    stopped = user.click_button(window, "Stop Sound")
    recorder.wait_for_silence()
    program.wait_for_buttons(window, playing=False)
    last_sound = recorder.moment_of_last_sound(first)
    assert last_sound is not None
    program.wait_for_log("#Sound stopped")
    return Round(tone, status, last_sound - stopped, program.folders.names())


@pytest.mark.parametrize(("mode", "pitch"), FIXED + CUSTOM)
def test_a_tone_is_heard_at_its_pitch_and_ends_with_stop(
        program: Tonmira, window: Window, user: User, recorder: Recorder, mode: str,
        pitch: int) -> None:
    user.activate(window)
    user.click_button(window, mode)
    wait_for(lambda: window.is_checked(mode), f"the mode {mode!r}")
    if mode == "Custom pitch":
        window.slide(pitch)
        wait_for(lambda: str(pitch) in [text.strip() for text in window.texts()],
                 "the selected pitch")

    heard = play_and_stop(program, window, user, recorder, pitch)
    if not heard.is_good(pitch):
        heard = play_and_stop(program, window, user, recorder, pitch)

    assert heard.tone is not None, "no steady tone"
    assert heard.tone.frequency_hz == pytest.approx(pitch, rel=1e-2 if pitch == 4 else 1e-4)
    assert 29000 <= heard.tone.peak <= 30500
    assert heard.status == f"Actual pitch (Hertz): {pitch}"
    assert window.status().strip() == "Actual pitch (Hertz):"
    assert heard.silent_after_s <= SILENT_WITHIN_S + RIG_DELAY_S
    assert TEMPORARY_WAVE not in heard.files
