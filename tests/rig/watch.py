"""The watch: tells when the machine let what runs on a rig wait for a processor.

For each processor a thread that only it may run sleeps and wakes, over and over, with the same
precedence as the programs that are listened to, and notes where it was woken late: what is heard of
that time may be the machine's doing. A program that sleeps when it should play delays nobody here.
"""

import mmap
import os
import struct
import sys
import threading
import time
from dataclasses import dataclass
from pathlib import Path

from rig.session import Session
from rig.waiting import wait_for

PERIOD_S = 0.005
# As long as the shortest thing that is listened to, the player's pause between two tones.
LATE_S = 0.01
BEAT = struct.Struct("d")


@dataclass(frozen=True)
class Stall:
    begin: float  # time.monotonic
    seconds: float


class Watch:
    """Runs until its session ends."""

    def __init__(self, session: Session):
        folder = session.new_folder("watch")
        self._stalls, self._beats = folder / "stalls", folder / "beats"
        self.process = session.start(sys.executable, "-m", "rig.watch", str(self._stalls),
                                     str(self._beats), cwd=Path(__file__).parents[1])
        wait_for(lambda: self._beats.exists() and self._last_look() > 0, "the watch")

    def stalls(self, since: float) -> list[Stall]:
        """Those that were not over by `since`, up to now."""
        now = time.monotonic()
        # A stall is known when it is over.
        wait_for(lambda: self._last_look() > now, "the watch")
        found = [Stall(*map(float, line.split()))
                 for line in self._stalls.read_text().splitlines()]
        return [stall for stall in found if since <= stall.begin + stall.seconds]

    def _last_look(self) -> float:
        """When the processor that was looked at least recently was."""
        return min((moment for moment, in BEAT.iter_unpack(self._beats.read_bytes())), default=0)


def keep_watch(stalls: Path, beats: Path) -> None:
    """Writes a line for each stall, and for each processor when it was last looked at."""
    processors = sorted(os.sched_getaffinity(0))
    beats.write_bytes(bytes(BEAT.size * len(processors)))
    with open(beats, "r+b") as file, open(stalls, "ab", buffering=0) as out:
        seen = mmap.mmap(file.fileno(), 0)

        def look(index: int) -> None:
            os.sched_setaffinity(0, {processors[index]})
            before = time.monotonic()
            while True:
                time.sleep(PERIOD_S)
                now = time.monotonic()
                late = now - before - PERIOD_S
                if late > LATE_S:
                    out.write(f"{before + PERIOD_S:.4f} {late:.4f}\n".encode())
                BEAT.pack_into(seen, index * BEAT.size, now)
                before = now

        threads = [threading.Thread(target=look, args=(i,)) for i in range(len(processors))]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()


if __name__ == "__main__":
    keep_watch(*map(Path, sys.argv[1:]))
