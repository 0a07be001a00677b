"""A user who does anything at all: clicks, keys, menus, windows opened and closed, devices plugged
and unplugged, other copies started. What he does follows from a seed; when it happens, from the
machine.
"""

import random
import subprocess
import time
from collections import Counter
from collections.abc import Callable

from rig.measuring import RATE
from rig.microphone import Microphone
from rig.program import GOOD_SETTINGS, WINDOW_CLASS, Folders, Tonmira
from rig.rig import Rig
from rig.tone_programs import file_of
from rig.waiting import wait_for
from rig.watched_program import (
    HELP, OPTIONS, PLAY, SLIDER, STOP, BenchError, WatchedProgram, WrongError)
from rig.window import Control, Driver, TopWindow, User

SOUND_MODES = range(1006, 1011)
SETTINGS_MENU = [*SOUND_MODES, 1012, 1013, 1015, 1016]
MICROPHONE_MENU = 1015
OTHER_MENUS = [1001, 1022, 1022]
KEYS = ["Tab", "shift+Tab", "space", "Return", "Escape", "Up", "Down", "Left", "Right", "Prior",
        "Next", "F1", "a", "5", "BackSpace"]
QUIET_MODE = 106  # without a moving picture
LONGEST_LOG = 55  # lines, before it is cut: the program never keeps more than 100
MESSAGE_BOX = "#32770"


def ask_sound_server(change: Callable[[], None]) -> None:
    """It has been seen to crash as a device was taken from it."""
    try:
        change()
    except (subprocess.CalledProcessError, StopIteration) as failure:
        raise BenchError("the sound server does not answer any more") from failure


class RandomUser(WatchedProgram):
    def __init__(self, rig: Rig, driver: Driver, seed: int):
        super().__init__(rig, driver)
        self.seed, self.random = seed, random.Random(seed)
        self.user = User(rig)
        self.microphone = Microphone(rig)
        self.microphone_there = self.loudspeaker_there = True
        self.done: Counter[str] = Counter()
        self.last: list[str] = []
        self.copies: list[Tonmira] = []
        # What cannot be done while a dialog lies before that window.
        self.in_main_window = (self.click, self.mode, self.play, self.stop, self.slide, self.menu,
                               self.other_menu)
        self.tones = rig.new_folder("tones") / "a.tnf"
        self.tones.write_bytes(file_of([(440, 300), (880, 300)]))

    def helpers(self) -> list[str]:
        """Copies play for themselves."""
        return [] if self.copies else super().helpers()

    # What he does.

    def press(self, control: Control) -> None:
        self.driver.ask("press", control.handle)

    def click(self) -> None:
        self.press(self.control(self.random.choice([*OPTIONS, PLAY, PLAY, PLAY, STOP, HELP])))

    def mode(self) -> None:
        self.press(self.control(self.random.choice(OPTIONS[:8])))

    def play(self) -> None:
        self.press(self.control(PLAY))

    def stop(self) -> None:
        self.press(self.control(STOP))

    def slide(self) -> None:
        if self.control(SLIDER).enabled:
            self.window.slide(self.random.randrange(4, 32001))

    def menu(self) -> None:
        # While a tone plays the settings are grey.
        if not self.playing():
            self.window.choose(self.random.choice(SETTINGS_MENU))

    def other_menu(self) -> None:
        self.window.choose(self.random.choice(OTHER_MENUS))

    def keys(self) -> None:
        chosen = [self.random.choice(KEYS) for _ in range(self.random.randrange(1, 5))]
        self.user.type_keys(*chosen)

    def open_menu(self) -> None:
        self.user.type_keys("alt", "Right", "Down", "Down", "Escape", "Escape", "Escape")

    def other_window(self) -> None:
        """Presses something in another window of the program, or closes it."""
        others = self.others()
        if not others:
            self.other_menu()
            return
        other = self.random.choice(others)
        buttons = [c for c in self.driver.controls(other.handle)
                   if c.kind.lower() == "button" and c.enabled and c.visible]
        if other.kind == MESSAGE_BOX or not buttons or self.random.random() < 0.5:
            self.leave(other)
        else:
            self.press(self.random.choice(buttons))

    def leave(self, other: TopWindow) -> None:
        self.driver.ask("close", other.handle)

    def copy(self) -> None:
        """Starts another copy, or ends one."""
        if self.copies:
            self.copies.pop().finish()
            return
        file = self.rig.windows_path(self.tones) if self.random.random() < 0.5 else ""
        self.copies.append(Tonmira(self.rig, self.driver, self.folders_of_copy(), exe=self.exe,
                                   arguments=file))

    def folders_of_copy(self) -> Folders:
        folders = Folders(self.rig, "copy")
        folders.write_settings(GOOD_SETTINGS)
        return folders

    def plug(self) -> None:
        if self.random.random() < 0.5:
            self.plug_microphone(not self.microphone_there)
        else:
            self.plug_loudspeaker(not self.loudspeaker_there)

    def plug_microphone(self, there: bool) -> None:
        if there != self.microphone_there:
            ask_sound_server(self.microphone.plug_in if there else self.microphone.unplug)
        self.microphone_there = there

    def plug_loudspeaker(self, there: bool) -> None:
        if there != self.loudspeaker_there:
            ask_sound_server(self.plug_in_loudspeaker if there else self.unplug_loudspeaker)
        self.loudspeaker_there = there

    def unplug_loudspeaker(self) -> None:
        modules = self.rig.run("pactl", "list", "short", "modules").splitlines()
        number = next(line.split("\t")[0] for line in modules if "sink_name=out" in line)
        self.rig.run("pactl", "unload-module", number)

    def plug_in_loudspeaker(self) -> None:
        self.rig.run("pactl", "load-module", "module-remap-sink", "sink_name=out", "master=card",
                     "channels=2", "remix=no", "channel_map=front-left,front-right",
                     "master_channel_map=front-left,front-right", f"rate={RATE}")
        self.rig.run("pactl", "set-default-sink", "out")

    def idle_devices(self) -> None:
        self.plug_microphone(True)
        self.plug_loudspeaker(True)

    def idle(self) -> None:
        """Ends what plays, closes every other window, and plugs everything in."""
        while self.copies:
            self.copies.pop().finish()
        self.idle_devices()
        wait_for(self.is_idle, "an idle program", 60)

    def is_idle(self) -> bool:
        self.check()
        for other in self.driver.windows():
            mine = other.process == self.program.process
            if other.visible and other.title and other.handle != self.window.handle and (
                    mine or other.kind == WINDOW_CLASS):
                self.leave(other)
        if self.playing():
            self.stop()
        time.sleep(0.3)
        return not self.playing() and not self.others()

    def cut_log(self) -> None:
        """While nothing happens: what was looked at is taken out."""
        if not self.folders.log_file.exists() or len(self.folders.log()) < LONGEST_LOG:
            return
        self.idle()
        time.sleep(0.5)
        self.look_at_log()
        lines = self.folders.log()[:3]
        self.folders.log_file.write_bytes("".join(line + "\r\n" for line in lines).encode())

    # His day.

    def warm_up(self) -> None:
        """Does everything once, so that what is made at its first use is there; then anything."""
        for sound_mode in SOUND_MODES:
            self.window.choose(sound_mode)
            self.press(self.control(OPTIONS[6]))
            self.play()
            wait_for(self.playing, "a play")
            time.sleep(0.5)
            self.stop()
            wait_for(lambda: not self.playing(), "the end of the play")
        for command in (1001, 1022, MICROPHONE_MENU, MICROPHONE_MENU, 1012):
            self.window.choose(command)
            time.sleep(1)
            wait_for(self.is_idle, "an idle program", 60)
        self.press(self.control(OPTIONS[7]))
        self.play()
        time.sleep(0.5)
        self.user.activate(self.window)
        self.user.type_keys("F1")
        time.sleep(0.5)
        for there in (False, True):
            self.plug_microphone(there)
            self.plug_loudspeaker(there)
            time.sleep(0.5)
        own = random.Random(0)
        own, self.random = self.random, own
        for _ in range(40):
            self.step()
        self.random = own
        self.done.clear()

    def settle(self) -> dict[str, int]:
        """What the program has of the machine when it does nothing, always in the same state."""
        self.idle()
        if self.folders.settings_file.read_text().split()[5] == "MicrophoneON=n":
            self.window.choose(MICROPHONE_MENU)
        self.window.choose(SOUND_MODES[-1])
        self.window.choose(1012)
        self.press(self.control(QUIET_MODE))
        time.sleep(2)
        self.idle()
        time.sleep(2)
        return self.usage()

    def step(self) -> None:
        actions = [(self.click, 10), (self.mode, 8), (self.play, 10), (self.stop, 10),
                   (self.slide, 4), (self.menu, 8), (self.other_menu, 2), (self.keys, 8),
                   (self.open_menu, 1), (self.other_window, 8), (self.copy, 0.5), (self.plug, 1)]
        action = self.random.choices([a for a, _ in actions], [w for _, w in actions])[0]
        if action in self.in_main_window and any(w.kind == MESSAGE_BOX for w in self.others()):
            action = self.other_window
        self.done[action.__name__] += 1
        self.last = [*self.last[-14:], action.__name__]
        # A window may go while he reaches for it, and nobody answers while a menu is open.
        try:
            action()
        except BenchError:
            raise
        except (RuntimeError, StopIteration, LookupError, subprocess.CalledProcessError):
            pass
        time.sleep(self.random.random() * 0.4)
        self.check()
        self.cut_log()

    def go_on_for(self, seconds: float) -> None:
        end = time.monotonic() + seconds
        try:
            while time.monotonic() < end:
                self.step()
            self.idle()
            self.look_at_log()
        except WrongError as wrong:
            raise WrongError(f"seed {self.seed}, after {sum(self.done.values())} steps, the last "
                             f"of them {', '.join(self.last)}: {wrong}") from wrong

    def close(self) -> None:
        for copy in self.copies:
            copy.finish()
        self.program.finish()
