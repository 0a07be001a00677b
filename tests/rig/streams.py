"""The streams that programs play through the sound card, each for itself."""

import re
import subprocess
from dataclasses import dataclass

import numpy as np

from rig.measuring import RATE
from rig.processes import end_process
from rig.session import Session
from rig.sound_card import PIECE_MS, RAW


@dataclass(frozen=True)
class Stream:
    index: int
    application: str
    samples: str  # their format, such as "s16le"


def streams(session: Session) -> list[Stream]:
    """What is being played on "out" by programs."""
    found = []
    for block in session.run("pactl", "list", "sink-inputs").split("Sink Input #")[1:]:
        application = re.search(r'application\.name = "(.*)"', block)
        samples = re.search(r"Sample \w+: (\S+)", block)
        if application and samples and application[1] != "pacat":
            found.append(Stream(int(block.split("\n")[0]), application[1], samples[1]))
    return found


def directsound(session: Session) -> Stream:
    """The one stream that is played through DirectSound."""
    stream, = [stream for stream in streams(session) if is_directsound(stream)]
    return stream


def record_stream(session: Session, stream: Stream, seconds: float) -> np.ndarray:
    """The left channel of one stream alone."""
    process = session.start("parec", f"--monitor-stream={stream.index}", *RAW, "--channels=2",
                            f"--latency-msec={PIECE_MS}", stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, first_of_all=True)
    assert process.stdout
    try:
        data = process.stdout.read(int(seconds * RATE) * 4)
    finally:
        end_process(process)
    return np.frombuffer(data, "<i2").reshape(-1, 2)[:, 0].astype(np.int32)


def is_directsound(stream: Stream) -> bool:
    """Wine mixes DirectSound in floating point; the player keeps a file's own samples."""
    return stream.samples == "float32le"
