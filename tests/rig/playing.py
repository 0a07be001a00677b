"""Playing in any sound mode, and what is left of it afterwards."""

from rig.processes import command_of
from rig.program import GOOD_SETTINGS, TEMPORARY_WAVE, Folders, Tonmira
from rig.rig import Rig
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, User, Window

HELPERS = ("tone16.dll", "tone32.dll", "play16.exe")


def start(rig: Rig, driver: Driver, sound_bit: str) -> Tonmira:
    folders = Folders(rig)
    settings = list(GOOD_SETTINGS)
    settings[1] = f"SoundBit={sound_bit}"
    folders.write_settings(settings)
    program = Tonmira(rig, driver, folders)
    program.wait_for_log(">> Program starting finished")
    return program


def helpers_running(rig: Rig) -> list[str]:
    return [name for pid in rig.processes() for name in HELPERS
            if name in command_of(pid).lower()]


def pick(user: User, window: Window, mode: str, pitch: int) -> None:
    """Picks a mode with the mouse; its slider gets the pitch where it has one."""
    user.activate(window)
    user.click_button(window, mode)
    wait_for(lambda: window.is_checked(mode), f"the mode {mode!r}")
    if mode == "Custom pitch":
        window.slide(pitch)
        wait_for(lambda: str(pitch) in [text.strip() for text in window.texts()],
                 "the selected pitch")


def press_play(user: User, window: Window, mode: str) -> None:
    user.activate(window)
    user.click_button(window, mode)
    wait_for(lambda: window.is_checked(mode), f"the mode {mode!r}")
    user.click_button(window, "Play Sound")


def stop(program: Tonmira, user: User, window: Window, recorder: Recorder) -> float:
    """Presses Stop; returns how long a sound was heard after it."""
    first = recorder.frames()
    stopped = user.click_button(window, "Stop Sound")
    recorder.wait_for_silence()
    program.wait_for_buttons(window, playing=False)
    last_sound = recorder.moment_of_last_sound(first)
    return 0.0 if last_sound is None else last_sound - stopped


def expect_nothing_left(rig: Rig, program: Tonmira) -> None:
    """No helper process, and none of the files that a tone needs."""
    wait_for(lambda: not helpers_running(rig), "the end of the helpers", 3)
    names = program.folders.names()
    assert "sound.ini" not in names
    assert TEMPORARY_WAVE not in names
