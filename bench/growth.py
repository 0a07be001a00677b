"""How the cost of using the program grows: with the tones of a tone program, with plays, with the
lines of the log, and with time. With --hour as its argument: an hour of playing.

Run it with /usr/bin/python3 after "cmake --build --preset windows".
"""

import statistics
import sys
import time
from collections.abc import Callable, Iterator
from pathlib import Path

from latency import moment_of_first_sound, one_round, presser
from rig.playing import start
from rig.program import Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.tone_programs import file_of, open_file
from rig.usage import play_and_stop_often, usage
from rig.waiting import wait_for
from rig.window import Driver, Window

Row = tuple[str, str, str]

TONES = (2, 200, 996)  # 996 are the most that a legal file has
TOO_MANY = 2000
PLAYS = (1, 10, 100)
LOG_LINES = 100
CLICKS = 10
HOUR_S = 3600
PIECES = 6


def spent_ms(program: Tonmira) -> float:
    """Processor time of the program's own thread so far."""
    schedule = Path(f"/proc/{program.linux_process()}/schedstat").read_text()
    return int(schedule.split()[0]) / 1e6


def opening_ms(rig: Rig, driver: Driver, recorder: Recorder, count: int,
               moment: Callable[[Tonmira, int], float]) -> float:
    """From the start with a file of so many tones to a moment; median of three."""
    path = rig.new_folder("tones") / "bench.tnf"
    path.write_bytes(file_of([(440 + i % 400, 2000) for i in range(count)]))
    times = []
    for _ in range(3):
        recorder.wait_for_silence()
        first, began = recorder.frames(), time.monotonic()
        program = open_file(rig, driver, path)
        try:
            times.append(1000 * (moment(program, first) - began))
        finally:
            program.finish()
    return statistics.median(times)


def moment_of_a_window(program: Tonmira, _: int) -> float:
    wait_for(program.titles, "a window")
    return time.monotonic()


def tones(rig: Rig, driver: Driver, recorder: Recorder) -> Iterator[Row]:
    def first_sound(_: Tonmira, first: int) -> float:
        return moment_of_first_sound(recorder, first)

    for count in TONES:
        yield (f"Opening a tone program of {count} tones, to its first sound",
               f"{opening_ms(rig, driver, recorder, count, first_sound):.0f} ms", "")
    yield (f"Opening one of {TOO_MANY} tones, to the report that these are too many",
           f"{opening_ms(rig, driver, recorder, TOO_MANY, moment_of_a_window):.0f} ms", "")


def plays(rig: Rig, driver: Driver, recorder: Recorder) -> Iterator[Row]:
    program = start(rig, driver, "128")
    try:
        window = program.window()
        window.press("High pitch")
        wait_for(lambda: window.is_checked("High pitch"), "the mode")
        played = 0

        press_play, press_stop = presser(window, "Play Sound"), presser(window, "Stop Sound")

        def stop() -> None:
            press_stop()
            program.wait_for_buttons(window, playing=False)

        for count in PLAYS:
            play_and_stop_often(program, window, count - played - 1)
            begun, _ = one_round(recorder, press_play, stop)
            played = count
            used = usage(driver, program)
            yield (f"After {count} plays", f"{used['handles']} handles, {used['threads']} threads, "
                   f"{used['memory_kb'] / 1024:.1f} MB", f"Play to first sound {begun:.0f} ms")
    finally:
        program.finish()
        recorder.wait_for_silence()


def log_of(program: Tonmira) -> int:
    return len(program.folders.log())


def click_modes(program: Tonmira, window: Window, clicks: int) -> float:
    """Processor ms of the program for each click, which is one entry."""
    before = spent_ms(program)
    for i in range(clicks):
        mode = ("Low pitch", "High pitch")[i % 2]
        window.press(mode)
        wait_for(lambda mode=mode: window.is_checked(mode), "the mode")
    return (spent_ms(program) - before) / clicks


def log(rig: Rig, driver: Driver) -> Iterator[Row]:
    program = start(rig, driver, "128")
    try:
        window = program.window()
        click_modes(program, window, 2)
        lines = log_of(program)
        short = click_modes(program, window, CLICKS)
        click_modes(program, window, LOG_LINES)
        assert log_of(program) == LOG_LINES
        full = click_modes(program, window, CLICKS)
        yield (f"Choosing a mode, an entry in a log of {lines} lines (as short as it gets)",
               f"{short:.1f} ms of processor", f"in one of {LOG_LINES} lines {full:.1f} ms")
    finally:
        program.finish()


def growth(rig: Rig, driver: Driver, recorder: Recorder) -> Iterator[Row]:
    yield from tones(rig, driver, recorder)
    yield from plays(rig, driver, recorder)
    yield from log(rig, driver)


def hour(rig: Rig, driver: Driver, recorder: Recorder) -> None:
    program = start(rig, driver, "128")
    try:
        window = program.window()
        window.press("High pitch")
        play_and_stop_often(program, window, 2)
        window.press("Play Sound")
        for piece in range(PIECES + 1):
            recorder.wait_for_tone()
            print(f"after {piece * HOUR_S // PIECES // 60} minutes: {usage(driver, program)}",
                  flush=True)
            if piece < PIECES:
                time.sleep(HOUR_S / PIECES)
    finally:
        program.finish()


def main() -> None:
    with Rig() as rig:
        driver, recorder = Driver(rig), Recorder(rig)
        if "--hour" in sys.argv[1:]:
            hour(rig, driver, recorder)
        else:
            for row in growth(rig, driver, recorder):
                print(": ".join(part for part in row if part))
        recorder.stop()


if __name__ == "__main__":
    main()
