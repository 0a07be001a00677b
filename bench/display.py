"""Figures of the moving pictures of the real program, measured on the private test rig:

- the processor time that they take, as a share of one core;
- how many pictures a second reach the screen while a tone plays;
- how long a message to the main window waits for its answer;
- the time from start to visible main window with the microphone on, as a ratio to without.

Run it with /usr/bin/python3 after ./test or "cmake --build --preset windows".
"""

import statistics
import time

from real import PAIRS, PROGRAM, share_of_core, start_up_ms  # noqa: E402
from rig.microphone import Microphone  # noqa: E402
from rig.playing import start  # noqa: E402
from rig.program import GOOD_SETTINGS, MAIN_TITLE, Folders  # noqa: E402
from rig.rig import Rig  # noqa: E402
from rig.screen import Screen  # noqa: E402
from rig.sound import Recorder  # noqa: E402
from rig.window import Driver, Place, Window  # noqa: E402

WATCHED_S = 10
QUESTIONS = 200


def place_of(window: Window, picture: str) -> Place:
    return window.control("TonmiraPicture", picture).place


def longest_answers(window: Window) -> str:
    bar = window.control("msctls_statusbar32").handle
    waits = []
    for _ in range(QUESTIONS):
        begin = time.monotonic()
        window.driver.ask("text", bar)
        waits.append(1000 * (time.monotonic() - begin))
        time.sleep(0.013)
    waits.sort()
    return f"median {statistics.median(waits):.1f} ms, longest {waits[-1]:.1f} ms"


def moving_pictures(rig: Rig, driver: Driver) -> None:
    recorder, microphone, screen = Recorder(rig), Microphone(rig), Screen(rig)
    microphone.feed(503, 1508)
    program = start(rig, driver, "128")
    try:
        window = program.window()
        time.sleep(1)
        process = program.linux_process()
        print(f"Processor time over {WATCHED_S} s, three times, share of one core:")
        print(f"  capturing:                         {share_of_core(process)}")
        window.press("High pitch")
        time.sleep(1)
        print(f"  capturing and animating:           {share_of_core(process)}")
        print(f"Answers while animating: {longest_answers(window)}")
        window.press("Play Sound")
        recorder.wait_for_tone()
        print(f"  capturing, animating and playing:  {share_of_core(process)}")
        print(f"Answers while playing: {longest_answers(window)}")
        microphone.feed(503, 1508)  # the first one may be over
        time.sleep(1)
        for picture in ("Picture1", "picWave"):
            frames = screen.frames(place_of(window, picture), WATCHED_S)
            print(f"{picture} while a tone plays: {frames / WATCHED_S:.1f} pictures a second")
        window.press("Stop Sound")
        program.wait_for_buttons(window, playing=False)
    finally:
        program.finish()
        microphone.silence()
        screen.close()
        recorder.stop()


def start_up_with_microphone(rig: Rig, driver: Driver) -> None:
    folders = {}
    for on in ("y", "n"):
        folders[on] = Folders(rig)
        folders[on].write_settings(["AutoUpdate=n", *GOOD_SETTINGS[1:5], f"MicrophoneON={on}"])
        start_up_ms(rig, driver, folders[on], PROGRAM, MAIN_TITLE)
    times: dict[str, list[float]] = {"y": [], "n": []}
    for _ in range(PAIRS):
        for on, series in times.items():
            series.append(start_up_ms(rig, driver, folders[on], PROGRAM, MAIN_TITLE))
    with_it, without = (statistics.median(series) for series in times.values())
    print(f"Start-up to visible main window, medians of {PAIRS} alternate starts: with the "
          f"microphone {with_it:.1f} ms, without {without:.1f} ms, ratio {with_it / without:.2f}")


def main() -> None:
    with Rig() as rig:
        driver = Driver(rig)
        moving_pictures(rig, driver)
        start_up_with_microphone(rig, driver)


if __name__ == "__main__":
    main()
