"""Listening to what the rig's sound card plays."""

import subprocess
import threading
import time
import wave
from pathlib import Path

import numpy as np

from rig.measuring import LOUD, RATE, last_loud_sample
from rig.rig import Rig

FRAME_BYTES = 4


class Recorder:
    """Records everything that reaches the sound card, and when each sample arrived.

    A moment told by this class is within some 40 ms of what a listener would hear: the sound card
    takes its samples up to 20 ms before they are due, and the recorder hands them over in pieces
    of 20 ms.
    """

    def __init__(self, rig: Rig):
        self._process = rig.start(
            "parec", "--device=out.monitor", "--format=s16le", f"--rate={RATE}", "--channels=2",
            "--latency-msec=20", stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self._bytes = bytearray()
        self._arrivals: list[tuple[float, int]] = []
        self._lock = threading.Lock()
        self._thread = threading.Thread(target=self._read, daemon=True)
        self._thread.start()

    def stop(self) -> None:
        self._process.terminate()
        self._process.wait(timeout=10)
        self._thread.join(timeout=10)
        if self._process.stdout:
            self._process.stdout.close()

    def frames(self) -> int:
        with self._lock:
            return len(self._bytes) // FRAME_BYTES

    def samples(self, first_frame: int = 0) -> np.ndarray:
        """The left channel from `first_frame` on."""
        return self.stereo(first_frame)[:, 0].astype(np.int32)

    def stereo(self, first_frame: int = 0) -> np.ndarray:
        with self._lock:
            end = len(self._bytes) // FRAME_BYTES * FRAME_BYTES
            data = bytes(self._bytes[first_frame * FRAME_BYTES : end])
        return np.frombuffer(data, dtype="<i2").reshape(-1, 2)

    def record(self, seconds: float) -> np.ndarray:
        """The left channel of the next `seconds`."""
        first = self.frames()
        self._wait_for_frames(first + int(seconds * RATE), seconds + 20)
        return self.samples(first)

    def wait_for_tone(self, seconds: float = 15) -> None:
        """Returns once a tone is heard."""
        self._wait(lambda recent: np.abs(recent).max(initial=0) > LOUD, seconds, "a tone")

    def wait_for_silence(self, seconds: float = 15) -> None:
        """Returns once nothing was heard for half a second."""
        self._wait(
            lambda recent: len(recent) >= RATE // 2 and np.abs(recent).max(initial=0) <= LOUD,
            seconds, "silence")

    def moment_of_last_sound(self, first_frame: int) -> float | None:
        """When the last loud sample since `first_frame` arrived (time.monotonic)."""
        last = last_loud_sample(self.samples(first_frame))
        if last is None:
            return None
        return self.moment_of(first_frame + last)

    def moment_of(self, frame: int) -> float:
        """When this frame arrived (time.monotonic)."""
        with self._lock:
            return next(when for when, count in self._arrivals if count > frame)

    def _wait(self, condition, seconds: float, what: str) -> None:
        first = self.frames()
        end = time.monotonic() + seconds
        while not condition(self.samples(max(first, self.frames() - RATE // 2))):
            if time.monotonic() > end:
                raise TimeoutError(f"waited {seconds} s in vain for {what}")
            time.sleep(0.02)

    def _wait_for_frames(self, frames: int, seconds: float) -> None:
        end = time.monotonic() + seconds
        while self.frames() < frames:
            if time.monotonic() > end:
                raise TimeoutError("the recorder stands still")
            time.sleep(0.02)

    def _read(self) -> None:
        stream = self._process.stdout
        while stream and (data := stream.read1(65536)):
            with self._lock:
                self._bytes += data
                self._arrivals.append((time.monotonic(), len(self._bytes) // FRAME_BYTES))


def save_wav(path: Path, frames: np.ndarray) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    with wave.open(str(path), "wb") as out:
        out.setnchannels(frames.shape[1])
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(frames.astype("<i2").tobytes())
