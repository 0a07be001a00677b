"""Listening to what the rig's sound card plays."""

import threading
import time
import wave
from dataclasses import dataclass
from pathlib import Path

import numpy as np

from rig.measuring import RATE, last_loud_sample
from rig.pilot import breaks
from rig.session import Session
from rig.sound_card import start_recording
from rig.waiting import wait_for
from rig.watch import Watch

# The third channel is the pilot.
CHANNELS = 3
FRAME_BYTES = 2 * CHANNELS
# Nothing louder is silence. It is far less than a tone, since two streams of one tone, as the sound
# mode of DirectSound plays, may all but cancel each other: 440 Hz leave 43 of 30000.
SILENT = 20


@dataclass(frozen=True)
class Flaw:
    """What is wrong with a recording for reasons of the rig's own, and where; whether some of what
    was played is `lost`."""
    at_s: float
    what: str
    lost: bool


class Recorder:
    """Records everything that reaches the sound card, and when.

    A moment told by this class is within some 40 ms of what a listener would hear: the sound card
    takes its samples before they are due, and hands them on in pieces.
    """

    def __init__(self, rig: Session):
        self.watch = Watch(rig)
        self._rig = rig
        self._lock = threading.Lock()
        self._begin()

    def _begin(self) -> None:
        self._process = start_recording(self._rig)
        self._bytes = bytearray()
        self._first_moment = float("inf")
        self._excused: list[tuple[int, int]] = []
        self._thread = threading.Thread(target=self._read, daemon=True)
        self._thread.start()
        self._wait_for_pilot()

    def stop(self) -> None:
        self._process.terminate()
        self._process.wait(timeout=10)
        self._thread.join(timeout=10)
        if self._process.stdout:
            self._process.stdout.close()

    def begin_again(self) -> None:
        """Forgets what was recorded: for a sound card that was started again."""
        self.stop()
        self._begin()

    def frames(self) -> int:
        with self._lock:
            return len(self._bytes) // FRAME_BYTES

    def samples(self, first_frame: int = 0) -> np.ndarray:
        """The left channel from `first_frame` on."""
        return self.all_channels(first_frame)[:, 0].astype(np.int32)

    def stereo(self, first_frame: int = 0) -> np.ndarray:
        return self.all_channels(first_frame)[:, :2]

    def all_channels(self, first_frame: int = 0) -> np.ndarray:
        """Left, right and the pilot."""
        with self._lock:
            end = len(self._bytes) // FRAME_BYTES * FRAME_BYTES
            data = bytes(self._bytes[first_frame * FRAME_BYTES : end])
        return np.frombuffer(data, dtype="<i2").reshape(-1, CHANNELS)

    def flaws(self, first_frame: int) -> list[Flaw]:
        """What is wrong with the recording since `first_frame` for reasons of the rig's own, in
        seconds from there. Nothing that a program plays or leaves unplayed can cause one."""
        pilot = self.all_channels(first_frame)[:, 2]
        broken = [first_frame + frame for frame in beginnings(breaks(pilot))]
        found = [Flaw((frame - first_frame) / RATE, "the pilot breaks", lost=True)
                 for frame in broken if not any(a <= frame <= b for a, b in self._excused)]
        begin = self.moment_of(first_frame)
        for stall in self.watch.stalls(begin):
            what = f"a processor came {1000 * stall.seconds:.0f} ms late"
            found.append(Flaw(stall.begin - begin, what, lost=False))
        return sorted(found, key=lambda flaw: flaw.at_s)

    def excuse(self, first_frame: int) -> None:
        """Where the pilot breaks from there up to now is the test's own doing."""
        self._excused.append((first_frame, self.frames() + RATE // 2))

    def record(self, seconds: float) -> np.ndarray:
        """The left channel of the next `seconds`."""
        first = self.frames()
        self._wait_for_frames(first + int(seconds * RATE), seconds + 20)
        return self.samples(first)

    def wait_for_tone(self, seconds: float = 15) -> None:
        """Returns once a tone is heard."""
        self._wait(lambda recent: np.abs(recent).max(initial=0) > SILENT, seconds, "a tone")

    def wait_for_silence(self, seconds: float = 15) -> None:
        """Returns once nothing was heard for half a second."""
        self._wait(
            lambda recent: len(recent) >= RATE // 2 and np.abs(recent).max(initial=0) <= SILENT,
            seconds, "silence")

    def moment_of_last_sound(self, first_frame: int) -> float | None:
        """When the last sample with a sound since `first_frame` arrived (time.monotonic)."""
        last = last_loud_sample(self.samples(first_frame), SILENT)
        if last is None:
            return None
        return self.moment_of(first_frame + last)

    def moment_of(self, frame: int) -> float:
        """When this frame was played (time.monotonic): the card's clock is the system's, and the
        piece that was least late tells the difference between the two."""
        with self._lock:
            return self._first_moment + frame / RATE

    def _wait_for_pilot(self) -> None:
        """Its first samples may come seconds after the recorder's start; what sounds till then is
        lost."""
        wait_for(lambda: self.all_channels()[-1:, 2].any(), "the pilot", 20)

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
                count = len(self._bytes) // FRAME_BYTES
                self._first_moment = min(self._first_moment, time.monotonic() - count / RATE)


def beginnings(frames: list[int]) -> list[int]:
    """The first one of each run of frames that are less than 100 ms apart."""
    return [frame for before, frame in zip([-RATE, *frames], frames)
            if frame - before > RATE // 10]


def save_wav(path: Path, frames: np.ndarray) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    with wave.open(str(path), "wb") as out:
        out.setnchannels(frames.shape[1])
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(frames.astype("<i2").tobytes())
