"""How soon a tone sounds and ends, measured on the private test rig: the time from the press of
Play to the first loud sample and from the press of Stop to the last one, for every sound mode, as
a ratio to a minimal program that only calls PlaySound on a ready file.

With --endurance also a thousand plays and stops: handles, threads and memory before and after.

Run it with /usr/bin/python3 after ./test or "cmake --build --preset windows".
"""

import statistics
import sys
import time
from collections.abc import Callable
from pathlib import Path

import numpy as np

PROJECT = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(PROJECT / "tests"))

from rig.measuring import LOUD, RATE  # noqa: E402
from rig.playing import start  # noqa: E402
from rig.program import Folders, Tonmira  # noqa: E402
from rig.rig import Rig  # noqa: E402
from rig.sound import Recorder, save_wav  # noqa: E402
from rig.usage import play_and_stop_often, usage  # noqa: E402
from rig.waiting import wait_for  # noqa: E402
from rig.window import Driver, Window, wait_for_window  # noqa: E402

BARE = PROJECT / "build" / "windows" / "rig" / "bare_player.exe"
SOUND_MODES = ("256", "128", "64", "32", "16")
HELPER_MODES = ("32", "16")  # a program is started for the tone
ROUNDS = 9
ENDURANCE_ROUNDS = 1000


def moment_of_first_sound(recorder: Recorder, first_frame: int) -> float:
    """When the first loud sample since `first_frame` arrived (time.monotonic)."""
    def found() -> list[int]:
        return np.flatnonzero(np.abs(recorder.samples(first_frame)) > LOUD)[:1].tolist()

    return recorder.moment_of(first_frame + wait_for(found, "a tone")[0])


def one_round(recorder: Recorder, play: Callable[[], None],
              stop: Callable[[], None]) -> tuple[float, float]:
    """Milliseconds from Play to the first sound, and from Stop to the last one."""
    recorder.wait_for_silence()
    first = recorder.frames()
    pressed = time.monotonic()
    play()
    begun = moment_of_first_sound(recorder, first) - pressed
    recorder.record(0.5)
    pressed = time.monotonic()
    stop()
    recorder.wait_for_silence()
    ended = recorder.moment_of_last_sound(first)
    return 1000 * begun, 1000 * max(0.0, (ended or pressed) - pressed)


def presser(window: Window, text: str) -> Callable[[], None]:
    """What presses a button that is found now: to find it, the program is asked for every text of
    the window, and that is not the program's delay."""
    button = window.button(text).handle

    def press() -> None:
        window.driver.ask("press", button)

    return press


def medians(recorder: Recorder, play: Callable[[], None], stop: Callable[[], None],
            count: int = ROUNDS) -> tuple[float, float]:
    one_round(recorder, play, stop)
    rounds = [one_round(recorder, play, stop) for _ in range(count)]
    begun, ended = zip(*rounds)
    return statistics.median(begun), statistics.median(ended)


def folders_with_a_tone(rig: Rig) -> Folders:
    folders = Folders(rig)
    wave = (30000 * np.sin(2 * np.pi * 1000 / RATE * np.arange(RATE))).astype(np.int16)
    save_wav(folders.temp / "tone.wav", np.column_stack((wave, wave)))
    return folders


def of_the_bare_player(rig: Rig, driver: Driver, recorder: Recorder,
                       count: int = ROUNDS) -> tuple[float, float]:
    program = Tonmira(rig, driver, folders_with_a_tone(rig), exe=BARE)
    try:
        window = wait_for_window(driver, "Bare player", program.process)
        wait_for(lambda: len(window.controls()) == 2, "the buttons")
        return medians(recorder, presser(window, "Play"), presser(window, "Stop"), count)
    finally:
        program.finish()


def of_a_start(rig: Rig, driver: Driver, recorder: Recorder, count: int = ROUNDS) -> float:
    """Milliseconds from the start of the bare player to its first sound, where it plays at once:
    what a helper program takes at least."""
    folders = folders_with_a_tone(rig)
    started = []

    def one_start() -> float:
        begun, _ = one_round(
            recorder, lambda: started.append(Tonmira(rig, driver, folders, BARE, arguments="play")),
            lambda: started.pop().finish())
        return begun

    one_start()
    return statistics.median(one_start() for _ in range(count))


def of_tonmira(rig: Rig, driver: Driver, recorder: Recorder,
               sound_mode: str, count: int = ROUNDS) -> tuple[float, float]:
    program = start(rig, driver, sound_mode)
    try:
        window = program.window()
        window.press("Low pitch")
        wait_for(lambda: window.is_checked("Low pitch"), "the mode")

        press_stop = presser(window, "Stop Sound")

        def stop() -> None:
            press_stop()
            program.wait_for_buttons(window, playing=False)

        return medians(recorder, presser(window, "Play Sound"), stop, count)
    finally:
        program.finish()


def endurance(rig: Rig, driver: Driver) -> None:
    program = start(rig, driver, "128")
    try:
        window: Window = program.window()
        window.press("Low pitch")
        play_and_stop_often(program, window, 5)
        before = usage(driver, program)
        play_and_stop_often(program, window, ENDURANCE_ROUNDS)
        after = usage(driver, program)
        print(f"{ENDURANCE_ROUNDS} plays and stops: {before} before, {after} after")
    finally:
        program.finish()


def main() -> None:
    with Rig() as rig:
        driver, recorder = Driver(rig), Recorder(rig)
        bare = of_the_bare_player(rig, driver, recorder)
        start_ms = of_a_start(rig, driver, recorder)
        print(f"Bare player, medians of {ROUNDS}: Play to first sound {bare[0]:.0f} ms, "
              f"Stop to last sound {bare[1]:.0f} ms; its start to first sound {start_ms:.0f} ms")
        for sound_mode in SOUND_MODES:
            own = of_tonmira(rig, driver, recorder, sound_mode)
            print(f"Sound mode {sound_mode}: Play {own[0]:.0f} ms, ratio {own[0] / bare[0]:.2f}; "
                  f"Stop {own[1]:.0f} ms, ratio {own[1] / max(bare[1], 1):.2f}")
        if "--endurance" in sys.argv[1:]:
            endurance(rig, driver)


if __name__ == "__main__":
    main()
