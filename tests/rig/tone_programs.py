"""Tone program files, and what is heard of them."""

from collections.abc import Callable
from dataclasses import dataclass
from pathlib import Path

import numpy as np

from rig.measuring import RATE, loud_stretches, measure
from rig.program import GOOD_SETTINGS, Folders, Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, Window

# Tones follow each other after a pause of some 15 ms.
CHUNK = RATE // 500
EXTRA_MS = 50

# Labels of the player by their place in the tab order.
PATH, PLAYED, TONES, PITCH, TIME = 1, 2, 4, 6, 8

Entries = list[tuple[int, int]]  # pitch in Hz, duration in ms


def file_of(entries: Entries, visibility: str = "visible", extra_ms: int = EXTRA_MS) -> bytes:
    lines = ["%valid%", "[info]", "{236}", "{Test}", "{" + visibility + "}", "[sound]",
             "{" + str(extra_ms) + "}"]
    for pitch, duration in entries:
        lines += [f"<{pitch}>", f"\\{duration}"]
    return "".join(line + "\r\n" for line in lines).encode()


def open_file(rig: Rig, driver: Driver, path: Path, sound_bit: str = "256",
              quoted: bool = False, folders: Folders | None = None,
              start_folder: Path | None = None, name: str | None = None,
              language: str = "EN") -> Tonmira:
    """Starts the program with the file as its argument, under `name` where one is given."""
    folders = folders or Folders(rig)
    settings = list(GOOD_SETTINGS)
    settings[1], settings[2] = f"SoundBit={sound_bit}", f"Language={language}"
    folders.write_settings(settings)
    argument = name or rig.windows_path(path)
    return Tonmira(rig, driver, folders, start_folder=start_folder,
                   arguments=f'"{argument}"' if quoted else argument)


@dataclass
class Heard:
    pitch_hz: float
    start_s: float
    length_s: float


def tones_in(samples: np.ndarray, chunk: int = CHUNK) -> list[Heard]:
    """Every tone that stands by itself. One without a steady pitch has the pitch 0."""
    tones: list[Heard] = []
    for first, end in loud_stretches(samples, chunk):
        steady = measure(samples[first:end])
        tones.append(Heard(steady.frequency_hz if steady else 0.0, first / RATE,
                           (end - first) / RATE))
    return tones


def label(player: Window, number: int) -> str:
    """The text of a label by its place in the tab order."""
    return next(c for c in player.controls() if c.id == 100 + number).caption


def wait_until_played(player: Window, seconds: float = 60) -> None:
    wait_for(lambda: player.button("(Re)play").enabled, "the end of the play", seconds)


def hear(recorder: Recorder, play: Callable[[], None]) -> list[Heard]:
    """What is heard while `play` runs."""
    recorder.wait_for_silence()
    first = recorder.frames()
    play()
    recorder.record(0.5)
    return tones_in(recorder.samples(first))


def matches(heard: list[Heard], wanted: list[int]) -> bool:
    return len(heard) == len(wanted) and all(
        abs(tone.pitch_hz / pitch - 1) < 1e-3 for tone, pitch in zip(heard, wanted))
