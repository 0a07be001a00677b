"""Figures of the real program, measured on the private test rig:

- the time from start to visible main window, as a ratio to a bare program with one empty window,
  the two started alternately;
- the size of the program's file;
- its processor time, idle and while it plays, as a share of one core;
- the length of the steps of the mode "Low to high", against the nominal 75 ms.

Run it with /usr/bin/python3 after ./test or "cmake --build --preset windows".
"""

import os
import statistics
import sys
import time
from pathlib import Path

PROJECT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(PROJECT / "tests"))

from rig.measuring import CHUNK, RATE, loud_stretches  # noqa: E402
from rig.paths import PROGRAM  # noqa: E402
from rig.playing import press_play, start, stop  # noqa: E402
from rig.program import GOOD_SETTINGS, Folders, Tonmira, play_once  # noqa: E402
from rig.rig import Rig  # noqa: E402
from rig.sound import Recorder  # noqa: E402
from rig.waiting import wait_for  # noqa: E402
from rig.window import Driver, User, wait_for_window  # noqa: E402

BARE_SWEEP = PROJECT / "build" / "windows" / "rig" / "bare_sweep.exe"
BARE = PROJECT / "build" / "windows" / "rig" / "bare_window.exe"
PAIRS = 20
WATCHED_S = 10
NOMINAL_STEP_MS = 75


def start_up_ms(rig: Rig, driver: Driver, folders: Folders, exe: Path, title: str) -> float:
    answer = driver.ask("launch", rig.windows_path(exe), title,
                        rig.windows_path(folders.temp), rig.windows_path(folders.appdata))
    time_ms, process = float(answer[0][0]), int(answer[0][1])
    time.sleep(0.3)
    wait_for_window(driver, title, process).close()
    wait_for(lambda: not driver.running(process), f"the end of {title!r}")
    return time_ms


def start_up(rig: Rig, driver: Driver, folders: Folders, where: str) -> None:
    programs = [(PROGRAM, "Tonmira"), (BARE, "Bare")]
    for program in programs:  # the first start of each reads its file from the disk
        start_up_ms(rig, driver, folders, *program)
    times: list[list[float]] = [[], []]
    for _ in range(PAIRS):
        for series, program in zip(times, programs):
            series.append(start_up_ms(rig, driver, folders, *program))
    own, bare = (statistics.median(series) for series in times)
    print(f"Start-up to visible main window, {where}, medians of {PAIRS} alternate starts: "
          f"Tonmira {own:.1f} ms, bare window {bare:.1f} ms, ratio {own / bare:.2f}")
    for name, series in zip(("Tonmira", "bare"), times):
        print(f"  {name}: {min(series):.1f} to {max(series):.1f} ms")


def processor_share(process: int) -> float:
    """Share of one core in percent that a process takes over the watched time."""

    def ticks() -> int:
        fields = Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()
        return int(fields[11]) + int(fields[12])

    before, begin = ticks(), time.monotonic()
    time.sleep(WATCHED_S)
    used_s = (ticks() - before) / os.sysconf("SC_CLK_TCK")
    return 100 * used_s / (time.monotonic() - begin)


def share_of_core(process: int) -> str:
    shares = sorted(processor_share(process) for _ in range(3))
    return f"{shares[1]:.2f} % (of {shares[0]:.2f} to {shares[2]:.2f})"


def processor_time(rig: Rig, driver: Driver, folders: Folders) -> None:
    user, recorder = User(rig), Recorder(rig)
    program = Tonmira(rig, driver, folders)
    try:
        program.wait_for_log(">> Program starting finished")
        program.window()
        time.sleep(1)
        process = program.linux_process()
        print(f"Processor time over {WATCHED_S} s, three times, share of one core:")
        print(f"  idle:    {share_of_core(process)}")
        window = play_once(program, user, "High pitch")
        recorder.wait_for_tone()
        time.sleep(1)
        print(f"  playing: {share_of_core(process)}")
        window.press("Stop Sound")
        program.wait_for_buttons(window, playing=False)
    finally:
        program.finish()
        recorder.stop()


def steps_ms(recorder: Recorder, seconds: float) -> list[float]:
    """From the beginning of one tone to that of the next, over so long from now, sorted. The pause
    between two may be as short as 2 ms."""
    first = recorder.frames()
    recorder.wait_for_tone()
    recorder.record(seconds)
    begins = [begin / RATE for begin, _ in loud_stretches(recorder.samples(first), CHUNK // 5)]
    return sorted(1000 * (b - a) for a, b in zip(begins, begins[1:]))


def steps_of_the_sweep(rig: Rig, driver: Driver, recorder: Recorder,
                       seconds: float = 8) -> list[float]:
    user = User(rig)
    program = start(rig, driver, "256")
    try:
        window = program.window()
        press_play(user, window, "Low to high")
        steps = steps_ms(recorder, seconds)
        stop(program, user, window, recorder)
        return steps
    finally:
        program.finish()


def steps_of_the_bare_sweep(rig: Rig, driver: Driver, recorder: Recorder,
                            seconds: float = 8) -> list[float]:
    program = Tonmira(rig, driver, Folders(rig), exe=BARE_SWEEP)
    try:
        return steps_ms(recorder, seconds)
    finally:
        program.finish()
        recorder.wait_for_silence()


def sweep_steps(rig: Rig, driver: Driver) -> None:
    recorder = Recorder(rig)
    steps = steps_of_the_sweep(rig, driver, recorder)
    recorder.stop()
    print(f"Low to high, {len(steps)} steps from one beginning to the next: median "
          f"{statistics.median(steps) / NOMINAL_STEP_MS:.2f}, worst "
          f"{steps[-1] / NOMINAL_STEP_MS:.2f} of the nominal {NOMINAL_STEP_MS} ms")


def start_up_on_one_processor() -> None:
    """Here a start takes what it works; on several processors of a busy machine, most of its time
    is waiting for Wine's server to be woken."""
    processors = os.sched_getaffinity(0)
    os.sched_setaffinity(0, {min(processors)})  # for the rig's processes, too
    with Rig() as rig:
        driver, folders = Driver(rig), Folders(rig)
        folders.write_settings(GOOD_SETTINGS)
        start_up(rig, driver, folders, "on one processor")
    os.sched_setaffinity(0, processors)


def main() -> None:
    print(f"Size of tonmira.exe: {PROGRAM.stat().st_size} bytes")
    start_up_on_one_processor()
    with Rig() as rig:
        driver, folders = Driver(rig), Folders(rig)
        folders.write_settings(GOOD_SETTINGS)
        start_up(rig, driver, folders, "on all processors")
        processor_time(rig, driver, folders)
        sweep_steps(rig, driver)


if __name__ == "__main__":
    main()
