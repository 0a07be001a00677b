"""Shows, where there is no display, what the program does: starts it on a virtual one for the first
time, accepts, picks "High pitch" and presses "Play Sound" with the mouse, records, takes pictures,
stops and leaves.
"""

import signal
import sys

from rig.measuring import measure
from rig.paths import PROJECT
from rig.program import FIRST_RUN_TITLE, Folders, Tonmira, play_once
from rig.rig import Rig
from rig.sound import Recorder, save_wav
from rig.window import Driver, User

FIRST_PICTURE = PROJECT / "out" / "first-run.png"
PICTURE = PROJECT / "out" / "tonmira.png"
TONE = PROJECT / "out" / "tone.wav"
MODE, PITCH_HZ = "High pitch", 10000


def pass_first_run(program: Tonmira, user: User) -> Tonmira:
    """Refuses the upload of data and accepts; returns the copy that has the main window."""
    dialog = program.window(FIRST_RUN_TITLE)
    program.wait_for_log(">> Program starting finished")
    user.activate(dialog)
    user.screenshot(dialog, FIRST_PICTURE)
    user.click_button(dialog, "I don't want to send anonymous data")
    user.click_button(dialog, "Accept")
    return program.successor()


def show(rig: Rig) -> bool:
    driver, user = Driver(rig), User(rig)
    recorder = Recorder(rig)
    first = Tonmira(rig, driver, Folders(rig))
    try:
        program = pass_first_run(first, user)
        print(f'Tonmira is open on the virtual display :{rig.display_number}. '
              f'Playing "{MODE}" ...')
        window = play_once(program, user, MODE)
        recorder.wait_for_tone()
        begin = recorder.frames()
        tone = measure(recorder.record(3))
        save_wav(TONE, recorder.stereo(begin))
        user.screenshot(window, PICTURE, moving=True)
        user.click_button(window, "Stop Sound")
        recorder.wait_for_silence()
        program.wait_for_buttons(window, playing=False)
        window.close()
        program.wait_for_end()
    finally:
        first.finish()
        recorder.stop()
    if tone is None:
        print("No steady tone was heard.")
        return False
    print(f"Measured pitch: {tone.frequency_hz:.3f} Hz, peak {tone.peak} of 32767, "
          f"steady for {tone.length_s:.2f} s")
    for picture in (FIRST_PICTURE, PICTURE):
        print(f"Picture: {picture.relative_to(PROJECT)}")
    print(f"Sound:   {TONE.relative_to(PROJECT)}")
    return abs(tone.frequency_hz / PITCH_HZ - 1) < 1e-4


def main() -> int:
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    with Rig() as rig:
        good = show(rig)
    return 0 if good else 1


if __name__ == "__main__":
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit(130)
