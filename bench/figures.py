"""The figures of the program, each beside its anchor in the same run, as a table: what bench/run
prints. Takes less than five minutes.
"""

import json
import os
import re
import statistics
import subprocess
import time
from collections.abc import Iterator
from pathlib import Path

import latency
import morse
import player
import real
from growth import growth
from real import BARE, PROGRAM, PROJECT, start_up_ms
from rig import bad_hosts
from rig.microphone import Microphone
from rig.playing import start
from rig.program import GOOD_SETTINGS, MAIN_TITLE, Folders
from rig.rig import Rig
from rig.sound import Recorder
from rig.window import Driver

Row = tuple[str, str, str]  # what it is, the figure, its anchor

STARTS = 8
ROUNDS = 9
WATCHED_S = 5
PITCHES = [440, 880, 660, 1320, 550]
PORTABLE = PROJECT / "build" / "bench" / "bench" / "portable_bench"


def start_up(rig: Rig, driver: Driver, where: str) -> Row:
    folders = Folders(rig)
    folders.write_settings(GOOD_SETTINGS)
    programs = [(PROGRAM, MAIN_TITLE), (BARE, "Bare")]
    rounds = [[start_up_ms(rig, driver, folders, *program) for program in programs]
              for _ in range(1 + STARTS)][1:]  # the first start reads the files from the disk
    own, bare = (statistics.median(series) for series in zip(*rounds))
    return (f"Start to visible main window, default settings, site refusing, on {where}",
            f"{own:.0f} ms ({own / bare:.2f}x)", f"bare window {bare:.0f} ms")


def start_up_on_one_processor() -> Row:
    processors = os.sched_getaffinity(0)
    os.sched_setaffinity(0, {min(processors)})  # for the rig's processes, too
    try:
        with Rig() as rig:
            return start_up(rig, Driver(rig), "one processor")
    finally:
        os.sched_setaffinity(0, processors)


def silent_site(rig: Rig, driver: Driver) -> Row:
    folders = Folders(rig)
    folders.write_settings(GOOD_SETTINGS)
    refused = start_up_ms(rig, driver, folders, PROGRAM, MAIN_TITLE)
    with bad_hosts.host(bad_hosts.silent) as silent:
        driver.ask("set", "TONMIRA_SITE", silent.site)
        waited = start_up_ms(rig, driver, folders, PROGRAM, MAIN_TITLE)
    driver.ask("set", "TONMIRA_SITE", rig.env["TONMIRA_SITE"])
    return ("Start to visible main window, a site that answers nothing", f"{waited / 1000:.1f} s",
            f"a site that refuses {refused / 1000:.1f} s")


def plays_and_stops(rig: Rig, driver: Driver, recorder: Recorder) -> Iterator[Row]:
    bare = latency.of_the_bare_player(rig, driver, recorder, ROUNDS)
    start_ms = latency.of_a_start(rig, driver, recorder, ROUNDS)
    for sound_mode in latency.SOUND_MODES:
        play, stop = latency.of_tonmira(rig, driver, recorder, sound_mode, ROUNDS)
        helper = sound_mode in latency.HELPER_MODES
        begun, anchor = (start_ms, "started") if helper else (bare[0], "player")
        yield (f"Play to first sound, Stop to last sound, sound mode {sound_mode}",
               f"{play:.1f} ms ({play / begun:.1f}x) and {stop:.1f} ms",
               f"bare {anchor} {begun:.1f} and {bare[1]:.1f} ms")


def first_tones(rig: Rig, driver: Driver, recorder: Recorder) -> Row:
    duration_ms = 200
    heard = player.play(rig, driver, recorder, "256", [(hz, duration_ms) for hz in PITCHES])
    lengths = [1000 * tone.length_s for tone in heard]
    nominal = player.nominal_ms("256", duration_ms)
    return ("First tone of a tone program", f"{lengths[0]:.0f} of {nominal} ms",
            f"later tones {statistics.median(lengths[1:]):.0f} of {nominal} ms")


def morse_errors(tones: morse.Tones, nominal: list[int], dash_ms: int) -> str:
    """Medians of measured minus nominal: dots, dashes, pauses within and between characters."""
    pairs = morse.measured_with_nominal(tones, nominal)
    pauses = pairs[1::2]
    within_ms = min(n for _, n in pauses)

    def median(chosen: list[tuple[float, int]]) -> str:
        return f"{statistics.median(m - n for m, n in chosen):+.1f}"

    dots, dashes = ([(m, n) for m, n in pairs[::2] if n == length] for length in (100, dash_ms))
    within, between = ([pause for pause in pauses if (pause[1] == within_ms) == inside]
                       for inside in (True, False))
    return (f"dot {median(dots)}, dash {median(dashes)}, pause within a character "
            f"{median(within)} (nominal {within_ms}), between {median(between)} ms")


def message(rig: Rig, driver: Driver, recorder: Recorder) -> Iterator[Row]:
    tones = morse.of_the_tool(rig, driver, recorder)
    lengths = [1000 * length for _, length in tones]
    yield ("First dot of a message", f"{lengths[0]:.0f} of 100 ms",
           f"the two dots after it {lengths[1]:.0f} and {lengths[2]:.0f} of 100 ms")
    textbook = morse_errors(morse.of_ebook2cw(), morse.NOMINAL_OF_EBOOK2CW, 300)
    yield ("Morse: medians, measured minus nominal",
           morse_errors(tones, morse.NOMINAL_OF_THE_TOOL, 200), f"ebook2cw: {textbook}")


def sweep(rig: Rig, driver: Driver, recorder: Recorder) -> Row:
    own = statistics.median(real.steps_of_the_sweep(rig, driver, recorder, 5))
    bare = statistics.median(real.steps_of_the_bare_sweep(rig, driver, recorder, 5))
    return ("Step of a sweep, median", f"{own:.1f} ms ({own / bare:.2f}x)",
            f"bare sweep {bare:.1f} ms, nominal {real.NOMINAL_STEP_MS} ms")


def one_second_of_samples() -> Row:
    names = ("SineImage", "PlainFormula", "CopyOfFinishedBytes")
    printed = subprocess.run([PORTABLE, f"--benchmark_filter=^({'|'.join(names)})$",
                              "--benchmark_format=json"], check=True, capture_output=True).stdout
    times = {found["name"]: found["real_time"] for found in json.loads(printed)["benchmarks"]}
    own, plain, copy = (times[name] for name in names)
    return ("One second of samples in its WAV image", f"{own:.0f} us",
            f"plain formula {plain:.0f} us, copying {copy:.1f} us")


def processor_shares(process: int) -> tuple[float, float]:
    """Per cent of one core over the watched time: all threads, and the program's own."""
    def spent() -> dict[str, float]:
        return {thread.name: int((thread / "schedstat").read_text().split()[0]) / 1e9
                for thread in Path(f"/proc/{process}/task").iterdir()}

    before, began = spent(), time.monotonic()
    time.sleep(WATCHED_S)
    after, seconds = spent(), time.monotonic() - began
    used = {thread: after[thread] - before.get(thread, 0) for thread in after}
    return 100 * sum(used.values()) / seconds, 100 * used[str(process)] / seconds


def microphone_on(rig: Rig, driver: Driver, recorder: Recorder) -> Iterator[Row]:
    microphone = Microphone(rig)
    microphone.feed(503, 1508)
    program = start(rig, driver, "128")
    try:
        window, process = program.window(), program.linux_process()
        time.sleep(1)

        def row(what: str) -> Row:
            whole, own = processor_shares(process)
            return (f"Processor, microphone on, {what}", f"{whole:.1f} %",
                    f"of that the program's own thread {own:.1f} %, the rest the system's sound")

        yield row("idle")
        window.press("High pitch")
        window.press("Play Sound")
        recorder.wait_for_tone()
        time.sleep(1)
        yield row("playing")
        user = real.User(rig)
        user.xdotool("windowminimize", "--sync", user.x_window(window))
        yield row("playing, minimized")
    finally:
        program.finish()
        microphone.silence()
        recorder.wait_for_silence()


def machine() -> str:
    names = re.findall(r"model name\s*:\s*(.*)", Path("/proc/cpuinfo").read_text())
    wine = subprocess.run(["wine", "--version"], capture_output=True, text=True).stdout
    version = re.search(r"wine-\S+", wine)
    return (f"{os.cpu_count()} cores, {names[0].strip() if names else 'an unknown processor'}, "
            f"{version[0] if version else 'an unknown Wine'}")


def show(rows: Iterator[Row] | list[Row]) -> None:
    for row in rows:
        print("| " + " | ".join(row) + " |", flush=True)


def main() -> None:
    began = time.monotonic()
    print(f"Taken on {machine()}, {time.strftime('%Y-%m-%d')}.\n")
    print("| Figure | Measured | Anchor in the same run |\n|---|---|---|")
    show([start_up_on_one_processor()])
    with Rig() as rig:
        driver, recorder = Driver(rig), Recorder(rig)
        show([start_up(rig, driver, "all processors"), silent_site(rig, driver)])
        show(plays_and_stops(rig, driver, recorder))
        show([first_tones(rig, driver, recorder)])
        show(message(rig, driver, recorder))
        show([sweep(rig, driver, recorder), one_second_of_samples()])
        show(microphone_on(rig, driver, recorder))
        print("\nHow the cost grows:\n\n| What | Measured | |\n|---|---|---|")
        show(growth(rig, driver, recorder))
        recorder.stop()
    print(f"\nIn {time.monotonic() - began:.0f} s.")


if __name__ == "__main__":
    main()
