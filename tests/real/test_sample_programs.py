"""The tone programs that ship with the program, and the rests in them, as they are heard."""

from pathlib import Path

import pytest

from rig.paths import PROGRAM, PROJECT
from rig.rig import Rig
from rig.sound import Recorder
from rig.tone_programs import Heard, file_of, hear, open_file, wait_until_played
from rig.window import Driver

SCALE = [523, 587, 659, 698, 784, 880, 988, 1047, 988, 880, 784, 698, 659, 587, 523]
REST_HZ = 22050


def play(rig: Rig, driver: Driver, recorder: Recorder, path: Path,
         sound_bit: str) -> list[Heard]:
    """What a whole play sounds like."""
    def once() -> None:
        program = open_file(rig, driver, path, sound_bit=sound_bit)
        try:
            wait_until_played(program.window())
        finally:
            program.finish()

    return hear(recorder, once)


def test_they_ship_as_they_are() -> None:
    def contents(folder: Path) -> dict[str, bytes]:
        return {path.name: path.read_bytes() for path in folder.iterdir()}

    samples = contents(PROJECT / "resources" / "samples")
    assert len(samples) == 8
    assert contents(PROGRAM.parent / "samples") == samples


def test_the_scale_is_heard_up_and_down(rig: Rig, driver: Driver, recorder: Recorder) -> None:
    path = PROGRAM.parent / "samples" / "scale.tnf"
    heard = play(rig, driver, recorder, path, "256")
    assert [tone.pitch_hz for tone in heard] == pytest.approx(SCALE, rel=1e-3)


@pytest.mark.parametrize("sound_bit", ["256", "32"])
def test_a_rest_is_silent_for_its_time(rig: Rig, driver: Driver, recorder: Recorder,
                                       sound_bit: str) -> None:
    path = rig.new_folder("tones") / "rest.tnf"
    path.write_bytes(file_of([(659, 600), (REST_HZ, 600), (784, 600)], extra_ms=10))
    heard = play(rig, driver, recorder, path, sound_bit)
    assert [tone.pitch_hz for tone in heard] == pytest.approx([659, 784], rel=1e-3)
    pause_s = heard[1].start_s - heard[0].start_s - heard[0].length_s
    assert 0.5 < pause_s < 2.5
