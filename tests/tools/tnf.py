"""tnf as a process, and tone programs for it."""

import math
import os
import struct
import subprocess
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[2]
TNF = os.environ.get("TNF", str(PROJECT / "build" / "tools" / "tnf"))
HEAD = ["%valid%", "[info]", "{236}", "{My tune}", "{visible}", "[sound]"]
EXTRA_TIME = 10


def program(tones: list[tuple[int, int]], extra_time: int = EXTRA_TIME) -> bytes:
    lines = HEAD + [f"{{{extra_time}}}"]
    for pitch, duration in tones:
        lines += [f"<{pitch}>", f"\\{duration}"]
    return "".join(line + "\r\n" for line in lines).encode()


def run(*arguments: str | Path, **options) -> subprocess.CompletedProcess:
    """The finished process, with its output as bytes."""
    return subprocess.run([TNF, *map(str, arguments)], capture_output=True, check=False,
                          timeout=300, **options)


def wave_header(data_bytes: int) -> bytes:
    """Of 16-bit stereo at 44100 Hz."""
    return struct.pack("<4sI8sIHHIIHH4sI", b"RIFF", data_bytes + 36, b"WAVEfmt ", 16, 1, 2, 44100,
                       176400, 4, 16, b"data", data_bytes)


def sine(pitch: int, frames: int) -> bytes:
    """Frames from the second of a tone, looped; the factor is 2 pi / 44100 in single precision."""
    samples = [round(math.sin(pitch * (i % 44100) * 0.00014247585204429924) * 30000)
               for i in range(frames)]
    return struct.pack(f"<{2 * frames}h", *(sample for s in samples for sample in (s, s)))
