"""Tone program files, and what is heard of them."""

from dataclasses import dataclass
from pathlib import Path

import numpy as np

from bench import Bench
from measuring import RATE, loud_stretches, measure
from program import GOOD_SETTINGS, Folders, Tonmira
from window import Driver

# Tones follow each other after a pause of some 15 ms.
CHUNK = RATE // 500
EXTRA_MS = 50

Entries = list[tuple[int, int]]  # pitch in Hz, duration in ms


def file_of(entries: Entries, visibility: str = "visible", extra_ms: int = EXTRA_MS) -> bytes:
    lines = ["%valid%", "[info]", "{236}", "{Test}", "{" + visibility + "}", "[sound]",
             "{" + str(extra_ms) + "}"]
    for pitch, duration in entries:
        lines += [f"<{pitch}>", f"\\{duration}"]
    return "".join(line + "\r\n" for line in lines).encode()


def open_file(bench: Bench, driver: Driver, path: Path, sound_bit: str = "256",
              quoted: bool = False, folders: Folders | None = None,
              start_folder: Path | None = None, name: str | None = None) -> Tonmira:
    """Starts the program with the file as its argument, under `name` where one is given."""
    folders = folders or Folders(bench)
    settings = list(GOOD_SETTINGS)
    settings[1] = f"SoundBit={sound_bit}"
    folders.write_settings(settings)
    argument = name or bench.windows_path(path)
    return Tonmira(bench, driver, folders, start_folder=start_folder,
                   arguments=f'"{argument}"' if quoted else argument)


@dataclass
class Heard:
    pitch_hz: float
    start_s: float
    length_s: float


def tones_in(samples: np.ndarray, chunk: int = CHUNK) -> list[Heard]:
    """Every tone that stands by itself; parts of one that a gap in the recording cut apart count
    as one."""
    tones: list[Heard] = []
    for first, end in loud_stretches(samples, chunk):
        steady = measure(samples[first:end])
        if steady is None:
            continue
        tone = Heard(steady.frequency_hz, first / RATE, (end - first) / RATE)
        if tones and abs(tones[-1].pitch_hz / max(tone.pitch_hz, 1) - 1) < 5e-3:
            tones[-1].length_s = tone.start_s + tone.length_s - tones[-1].start_s
        else:
            tones.append(tone)
    return tones
