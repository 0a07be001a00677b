"""The pilot: a signal that goes through the rig's sound card beside what the program plays, on a
channel of its own, so that a recording tells by itself whether it is whole.

It is a ramp: every sample is one more than the one before, and after the last value comes the first
one. Where that does not hold, the recorder has lost samples, or the sound card has stood still for
so long that it had nothing to play. Silence (0) is no value of the ramp.
"""

import sys

import numpy as np

FIRST, PAST = 1, 30001
CHANNEL = "aux0"


def ramp() -> bytes:
    """One round of the ramp, mono, 16 bits."""
    return np.arange(FIRST, PAST).astype("<i2").tobytes()


def breaks(pilot: np.ndarray) -> list[int]:
    """The samples that do not follow from the ones before."""
    steps = np.diff(pilot.astype(np.int32))
    broken = (steps != 1) & (steps != FIRST - PAST + 1)
    # Silence follows from nothing, not even from silence, and nothing follows from it.
    broken |= (pilot[1:] < FIRST) | (pilot[:-1] < FIRST)
    return (np.flatnonzero(broken) + 1).tolist()


def feed() -> None:
    """Writes the ramp for as long as somebody reads."""
    rounds = ramp() * 2
    try:
        while True:
            sys.stdout.buffer.write(rounds)
    except BrokenPipeError:
        pass


if __name__ == "__main__":
    feed()
