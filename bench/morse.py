"""Lengths of dots, dashes and pauses of the Morse tool in a recording, against their nominal
values, beside the same message from ebook2cw (Debian's packages ebook2cw, sox and libsox-fmt-mp3),
measured the same way. Run it with /usr/bin/python3 after "cmake --build --preset windows".
"""

import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

import numpy as np

PROJECT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(PROJECT / "tests"))

from rig.measuring import RATE, loud_stretches  # noqa: E402
from rig.morse import CHUNK, CODES, MESSAGE, open_tool, symbols, write  # noqa: E402
from rig.playing import start  # noqa: E402
from rig.rig import Rig  # noqa: E402
from rig.sound import Recorder  # noqa: E402
from rig.waiting import wait_for  # noqa: E402
from rig.window import Driver, User  # noqa: E402

TEXTBOOK = {**CODES, "O": "---"}
Tones = list[tuple[float, float]]  # beginning and length in seconds


def of_the_tool(rig: Rig, driver: Driver, recorder: Recorder) -> Tones:
    user = User(rig)
    program = start(rig, driver, "256")
    try:
        tool = open_tool(program, user)
        write(user, tool, MESSAGE)
        first = recorder.frames()
        user.click_button(tool, "Play sound")
        count = sum(len(CODES[c]) for c in MESSAGE if c != " ")
        wait_for(lambda: len(symbols(recorder, first)) >= count, "the message", 40)
        recorder.record(0.5)
        return symbols(recorder, first)
    finally:
        program.finish()


def of_ebook2cw() -> Tones:
    """At 12 words a minute, where a dot has 100 ms, too."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["ebook2cw", "-w", "12", "-f", "700", "-o", f"{folder}/out"],
                       input=MESSAGE + "\n", text=True, check=True, capture_output=True)
        sound = next(Path(folder).glob("out*.mp3"))
        raw = subprocess.run(["sox", str(sound), "-r", str(RATE), "-c", "1", "-b", "16", "-e",
                              "signed", "-t", "raw", "-"], check=True, capture_output=True).stdout
        samples = np.frombuffer(raw, dtype="<i2").astype(np.int32)
        return [(a / RATE, (b - a) / RATE) for a, b in loud_stretches(samples, CHUNK)]


def nominal_lengths(codes: dict[str, str], dash_ms: int, within_ms: int, between_ms: int,
                    word_ms: int) -> list[int]:
    """In the order of the message: every symbol and the pause after it."""
    lengths: list[int] = []
    for word in MESSAGE.split(" "):
        for index, character in enumerate(word):
            for place, symbol in enumerate(codes[character]):
                lengths.append(100 if symbol == "." else dash_ms)
                last = place == len(codes[character]) - 1
                end_of_word = last and index == len(word) - 1
                lengths.append(word_ms if end_of_word else between_ms if last else within_ms)
    return lengths


def measured_with_nominal(tones: Tones, nominal: list[int]) -> list[tuple[float, int]]:
    """Every symbol and the pause after it, in ms."""
    measured: list[float] = []
    for (begin, length), following in zip(tones, [*tones[1:], None]):
        measured.append(1000 * length)
        if following:
            measured.append(1000 * (following[0] - begin - length))
    return list(zip(measured, nominal))


def report(name: str, tones: Tones, nominal: list[int]) -> None:
    print(f"{name}: measured minus nominal, in ms")
    pairs = measured_with_nominal(tones, nominal)
    symbols_by_length = {length: [m - n for m, n in pairs[::2] if n == length]
                         for length in sorted(set(nominal[::2]))}
    pauses_by_length = {length: [m - n for m, n in pairs[1::2] if n == length]
                        for length in sorted(set(nominal[1:-1:2]))}
    for what, table in (("tone", symbols_by_length), ("pause", pauses_by_length)):
        for length, errors in table.items():
            print(f"  {what} of {length} ms: median {statistics.median(errors):+.1f}, worst "
                  f"{max(errors, key=abs):+.1f} (of {len(errors)})")


NOMINAL_OF_THE_TOOL = nominal_lengths(CODES, 200, 0, 95, 690)
NOMINAL_OF_EBOOK2CW = nominal_lengths(TEXTBOOK, 300, 100, 300, 700)


def main() -> None:
    with Rig() as rig:
        recorder = Recorder(rig)
        report("Morse tool, speed 0", of_the_tool(rig, Driver(rig), recorder), NOMINAL_OF_THE_TOOL)
        recorder.stop()
    report("ebook2cw, 12 words a minute", of_ebook2cw(), NOMINAL_OF_EBOOK2CW)


if __name__ == "__main__":
    main()
