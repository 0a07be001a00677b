"""What a recording holds: pitch, peak and length of its longest steady tone, and its end.

A recording is an array of samples of one channel, full scale 32768. A tone is its longest stretch
whose phase advances evenly.
"""

from dataclasses import dataclass

import numpy as np

RATE = 44100
# Below this nothing is heard; the quietest tone wanted is far above.
LOUD = 1000
CHUNK = RATE // 100
# A dropped sample moves the phase by far more than the small step at the joints of a looped tone.
PHASE_TOLERANCE = 0.25


@dataclass(frozen=True)
class Tone:
    frequency_hz: float
    peak: int
    start_s: float
    length_s: float


def loud_stretches(samples: np.ndarray, chunk: int = CHUNK) -> list[tuple[int, int]]:
    """First and past-the-last sample of every stretch that is loud throughout, to a chunk's length;
    a chunk must hold a peak of the tone."""
    chunks = len(samples) // chunk
    if chunks == 0:
        return []
    peaks = np.abs(samples[: chunks * chunk].reshape(chunks, chunk)).max(axis=1)
    loud = np.concatenate(([False], peaks > LOUD, [False]))
    edges = np.flatnonzero(loud[1:] != loud[:-1])
    return [(int(a) * chunk, int(b) * chunk) for a, b in zip(edges[::2], edges[1::2])]


def short_pitch(samples: np.ndarray) -> float:
    """The pitch of a short steady tone, by a line through its upward zero crossings."""
    part = samples[RATE // 200 : -RATE // 200].astype(float)  # without its ends
    before = np.flatnonzero((part[:-1] < 0) & (part[1:] >= 0))
    if len(before) < 3:
        return 0.0
    moments = before - part[before] / (part[before + 1] - part[before])
    return RATE / np.polyfit(np.arange(len(moments)), moments, 1)[0]


def last_loud_sample(samples: np.ndarray, above: int = LOUD) -> int | None:
    loud = np.flatnonzero(np.abs(samples) > above)
    return int(loud[-1]) if len(loud) else None


def rough_frequency(samples: np.ndarray) -> float:
    """The strongest frequency, to a fraction of the spectrum's grain."""
    part = samples[: 4 * RATE] - samples[: 4 * RATE].mean()
    spectrum = np.abs(np.fft.rfft(part * np.hanning(len(part))))
    top = int(spectrum[1:-1].argmax()) + 1
    below, at, above = np.log(spectrum[top - 1 : top + 2] + 1e-9)
    shift = 0.5 * (below - above) / (below - 2 * at + above)
    return (top + shift) * RATE / len(part)


def block_phases(samples: np.ndarray, frequency: float, block: int, hop: int) -> np.ndarray:
    """How far the phase is ahead of a tone of `frequency`, in radians, once per hop."""
    starts = np.arange(0, len(samples) - block + 1, hop)
    window = np.hanning(block)
    turning = np.exp(-2j * np.pi * frequency / RATE * np.arange(block))
    sums = np.array([(samples[s : s + block] * window * turning).sum() for s in starts])
    ahead = np.angle(sums * np.exp(-2j * np.pi * frequency / RATE * starts))
    return np.unwrap(ahead)


def longest_even_run(phases: np.ndarray) -> tuple[int, int]:
    """First and past-the-last index of the longest run of phases on one straight line."""
    steps = np.diff(phases)
    even = np.abs(steps - np.median(steps)) < PHASE_TOLERANCE
    edges = np.flatnonzero(np.diff(np.concatenate(([0], even.astype(int), [0]))))
    runs = list(zip(edges[::2], edges[1::2]))
    if not runs:
        return 0, 0
    first, last = max(runs, key=lambda run: run[1] - run[0])
    return int(first), int(last) + 1


def measure(samples: np.ndarray) -> Tone | None:
    """The longest steady tone, or nothing when none lasts three of its blocks."""
    best: Tone | None = None
    for first, end in loud_stretches(samples):
        if best and (end - first) / RATE <= best.length_s:
            continue
        tone = _measure_stretch(samples, first, end)
        if tone and (best is None or tone.length_s > best.length_s):
            best = tone
    return best


def _measure_stretch(samples: np.ndarray, first: int, end: int) -> Tone | None:
    part = samples[first:end].astype(float)
    if len(part) < RATE // 10:
        return None
    frequency = rough_frequency(part)
    block = int(max(0.05, 4 / max(frequency, 1.0)) * RATE)
    hop = block // 4
    if len(part) < block + 2 * hop:
        return None
    phases = block_phases(part, frequency, block, hop)
    a, b = longest_even_run(phases)
    if b - a < 3:
        return None
    slope = np.polyfit(np.arange(b - a) * hop / RATE, phases[a:b], 1)[0]
    begin, past = a * hop, (b - 1) * hop + block
    return Tone(
        frequency_hz=float(frequency + slope / (2 * np.pi)),
        peak=int(np.abs(part[begin:past]).max()),
        start_s=(first + begin) / RATE,
        length_s=(past - begin) / RATE,
    )


def steady_pitches(samples: np.ndarray, grid_hz: int) -> list[int]:
    """The pitches of a stepped tone in the order in which they sound, to the nearest of a grid."""
    return [pitch for pitch, _ in steps(samples, grid_hz)]


def steps(samples: np.ndarray, grid_hz: int) -> list[tuple[int, float]]:
    """Pitch, to the nearest of a grid, and beginning in seconds, to 10 ms, of each step of a tone.

    A piece counts when it lies close to the grid and the next piece agrees with it.
    """
    piece, hop = RATE // 40, RATE // 100
    found: list[tuple[int, float]] = []
    before = 0
    for start in range(0, len(samples) - piece + 1, hop):
        part = samples[start : start + piece].astype(float)
        if np.abs(part).max() <= LOUD:
            before = 0
            continue
        frequency = rough_frequency(part)
        nearest = int(round(frequency / grid_hz)) * grid_hz
        agrees = nearest > 0 and abs(frequency - nearest) < grid_hz / 4
        if agrees and nearest == before and (not found or found[-1][0] != nearest):
            found.append((nearest, (start - hop) / RATE))
        before = nearest if agrees else 0
    return found


def deviation(samples: np.ndarray, frequency_hz: float) -> float:
    """How far a sample lies at most from the one even sine that fits them best, as a part of its
    amplitude. A hole, a click or a moment more or less between two samples makes it large."""
    turned = 2 * np.pi * frequency_hz / RATE * np.arange(len(samples))
    waves = np.stack((np.sin(turned), np.cos(turned)), axis=1)
    amplitudes = np.linalg.lstsq(waves, samples, rcond=None)[0]
    residue = np.abs(samples - waves @ amplitudes).max()
    return float(residue / np.hypot(*amplitudes))
