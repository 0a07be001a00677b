"""When a recording counts: pauses of the sound server and of the machine are told from those of
what plays."""

import signal
import subprocess
import threading
import time
from collections.abc import Iterator

import numpy as np
import pytest

from rig.measuring import RATE, loud_stretches
from rig.session import Session
from rig.sound import Flaw, Recorder
from rig.sound_card import RAW, start_sound_card, why_ended

PAUSE_S = 0.3
# The machine may stand still by itself while a test looks for something else.
TRIES = 5


class Bench:
    """A sound card that plays a tone, and a recorder."""

    def __init__(self, session: Session, peak: int = 30000):
        self._peak = peak
        self._session = session
        self.server = start_sound_card(session)
        self.recorder = Recorder(session)
        self._play()

    def start_again(self) -> None:
        self.server = start_sound_card(self._session)
        self.recorder.begin_again()
        self._play()

    def _play(self) -> None:
        session = self._session
        tone = session.folder / "tone"
        samples = self._peak * np.sin(2 * np.pi * 1000 / RATE * np.arange(60 * RATE))
        tone.write_bytes(samples.astype("<i2").tobytes())
        self.player = session.start("pacat", "--playback", *RAW, "--channels=1", "--device=out",
                                    "--latency-msec=100", str(tone), stderr=subprocess.DEVNULL)
        self.recorder.wait_for_tone()
        self.recorder.record(0.3)

    def pause(self, process: subprocess.Popen) -> tuple[list[Flaw], bool]:
        """What is wrong with the recording of a pause of this process, and whether the tone has a
        hole then."""
        first = self.recorder.frames()
        process.send_signal(signal.SIGSTOP)
        time.sleep(PAUSE_S)
        process.send_signal(signal.SIGCONT)
        self.recorder.record(1)
        holed = len(loud_stretches(self.recorder.samples(first), RATE // 500)) > 1
        return self.recorder.flaws(first), holed


def late_by_ms(flaw: Flaw) -> int:
    return int(flaw.what.split()[3])


@pytest.fixture(scope="module")
def bench() -> Iterator[Bench]:
    session = Session()
    try:
        yield Bench(session)
    finally:
        session.close()


def test_a_pause_of_the_sound_server_breaks_the_pilot(bench: Bench) -> None:
    flaws, _ = bench.pause(bench.server)
    broken = [flaw for flaw in flaws if flaw.what == "the pilot breaks"]
    assert 1 <= len(broken) <= 5
    assert all(flaw.lost for flaw in broken)


def test_a_pause_of_those_who_wait_for_a_processor_is_a_flaw_of_its_length(bench: Bench) -> None:
    first = bench.recorder.frames()
    flaws, _ = bench.pause(bench.recorder.watch.process)
    late = [flaw for flaw in flaws if flaw.what.startswith("a processor came")]
    assert not any(flaw.lost for flaw in late)
    late_ms = max(map(late_by_ms, late))
    assert 1000 * PAUSE_S - 20 <= late_ms <= 1000 * PAUSE_S + 500
    at_s = min(flaw.at_s for flaw in bench.recorder.flaws(first) if str(late_ms) in flaw.what)
    assert -0.1 <= at_s <= 0.5
    # It belongs to no later recording.
    later = bench.recorder.frames()
    assert str(late_ms) not in " ".join(flaw.what for flaw in bench.recorder.flaws(later))


def test_a_stall_that_is_not_over_is_waited_for(bench: Bench) -> None:
    process = bench.recorder.watch.process
    first = bench.recorder.frames()
    process.send_signal(signal.SIGSTOP)
    threading.Timer(PAUSE_S, process.send_signal, [signal.SIGCONT]).start()
    assert "a processor came" in " ".join(f.what for f in bench.recorder.flaws(first))


def test_a_pause_of_what_plays_is_a_hole_and_no_flaw(bench: Bench) -> None:
    takes = [bench.pause(bench.player) for _ in range(TRIES)]
    # What the machine adds on a busy day is shorter.
    assert any(holed and not any(flaw.lost or late_by_ms(flaw) > 500 * PAUSE_S for flaw in flaws)
               for flaws, holed in takes), takes


def test_what_two_streams_that_all_but_cancel_each_other_leave_is_a_tone() -> None:
    session = Session()
    try:
        bench = Bench(session, peak=43)
        first = bench.recorder.frames()
        with pytest.raises(TimeoutError):
            bench.recorder.wait_for_silence(1)
        waited = time.monotonic()
        bench.player.terminate()
        bench.recorder.wait_for_silence()
        last = bench.recorder.moment_of_last_sound(first)
        assert last == pytest.approx(waited, abs=0.5)
    finally:
        session.close()


def test_after_the_end_of_the_sound_server_another_one_is_heard() -> None:
    session = Session()
    try:
        bench = Bench(session)
        assert why_ended(session, bench.server) == ""
        bench.server.kill()
        bench.server.wait(timeout=10)
        assert why_ended(session, bench.server).startswith("the sound server ended with -9")
        bench.start_again()
        assert why_ended(session, bench.server) == ""
        first = bench.recorder.frames()
        bench.recorder.record(1)
        assert np.abs(bench.recorder.samples(first)).max() > 20000
        assert not any(flaw.lost for flaw in bench.recorder.flaws(first))
    finally:
        session.close()
