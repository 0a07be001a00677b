"""The player's tones in a recording: measured length against nominal, and time from one tone's
beginning to the next one's, in each sound mode; and how far a program of 200 tones drifts.

Nominal is duration + extra time, in sound mode 16 one second more. Run it with /usr/bin/python3
after "cmake --build --preset windows"; sound mode codes as arguments choose some of the modes.
"""

import statistics
import sys
from pathlib import Path

import numpy as np

PROJECT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(PROJECT / "tests"))

from rig.rig import Rig  # noqa: E402
from rig.sound import Recorder  # noqa: E402
from rig.tone_programs import EXTRA_MS, Entries, Heard, file_of, open_file, tones_in  # noqa: E402
from rig.waiting import wait_for  # noqa: E402
from rig.window import Driver  # noqa: E402

PITCHES = [440, 880, 660, 1320, 550, 1100, 2200, 4400, 3300, 1650, 990, 495]
MODES = ["256", "128", "64", "32", "16"]
MANY = 200


def play(rig: Rig, driver: Driver, recorder: Recorder, sound_bit: str,
         entries: Entries) -> list[Heard]:
    path = rig.new_folder("tones") / "bench.tnf"
    path.write_bytes(file_of(entries))
    recorder.wait_for_silence()
    first = recorder.frames()
    program = open_file(rig, driver, path, sound_bit=sound_bit)
    try:
        player = program.window()
        wait_for(lambda: player.button("(Re)play").enabled, "the end of the play", 600)
        recorder.record(0.5)
        return tones_in(recorder.samples(first))
    finally:
        program.finish()


def nominal_ms(sound_bit: str, duration_ms: int) -> int:
    return duration_ms + EXTRA_MS + (1000 if sound_bit == "16" else 0)


def spread(name: str, values_ms: np.ndarray) -> str:
    worst = values_ms[np.abs(values_ms).argmax()]
    return f"{name} {statistics.median(values_ms):+.1f} ms, worst {worst:+.1f} ms"


def lengths(rig: Rig, driver: Driver, recorder: Recorder, sound_bit: str) -> None:
    duration_ms = 700
    heard = play(rig, driver, recorder, sound_bit, [(pitch, duration_ms) for pitch in PITCHES])
    if len(heard) != len(PITCHES):
        print(f"sound mode {sound_bit}: {len(heard)} of {len(PITCHES)} tones were told apart")
        return
    nominal = nominal_ms(sound_bit, duration_ms)
    length = np.array([1000 * tone.length_s for tone in heard]) - nominal
    period = 1000 * np.diff([tone.start_s for tone in heard]) - nominal
    pitch = max(abs(tone.pitch_hz / wanted - 1) for tone, wanted in zip(heard, PITCHES))
    print(f"sound mode {sound_bit}: nominal {nominal} ms; {spread('length median', length)}; "
          f"{spread('beginning to beginning median', period)}; "
          f"pitch off by at most {1e6 * pitch:.1f} ppm")


def drift(rig: Rig, driver: Driver, recorder: Recorder) -> None:
    duration_ms = 200
    entries = [(PITCHES[i % len(PITCHES)], duration_ms) for i in range(MANY)]
    heard = play(rig, driver, recorder, "256", entries)
    nominal = nominal_ms("256", duration_ms)
    print(f"{MANY} tones of {nominal} ms in sound mode 256: {len(heard)} heard")
    if len(heard) < 2:
        return
    starts = 1000 * np.array([tone.start_s for tone in heard])
    steps = np.diff(starts)
    late = starts[-1] - starts[0] - nominal * (len(heard) - 1)
    slope, begin = np.polyfit(np.arange(len(starts)), starts, 1)
    uneven = np.abs(starts - (begin + slope * np.arange(len(starts)))).max()
    print(f"  last begins {late:+.0f} ms after its nominal moment, "
          f"{late / (len(heard) - 1):+.2f} ms a tone; {spread('step median', steps - nominal)}; "
          f"off an even pace by at most {uneven:.1f} ms")


def main() -> None:
    modes = sys.argv[1:] or MODES
    with Rig() as rig:
        driver, recorder = Driver(rig), Recorder(rig)
        for sound_bit in modes:
            lengths(rig, driver, recorder, sound_bit)
        if "256" in modes:
            drift(rig, driver, recorder)
        recorder.stop()


if __name__ == "__main__":
    main()
