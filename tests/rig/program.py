"""One run of Tonmira on the rig, with folders of its own."""

from copy import copy
from pathlib import Path

from rig.paths import PROGRAM
from rig.processes import all_processes, command_of, environment_of
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver, User, Window, wait_for_window

MAIN_TITLE = "Tonmira"
FIRST_RUN_TITLE = "License agreements"
MENU_ABOUT = 1022  # the running number of "About Tonmira" in the menu
WINDOW_CLASS = "TonmiraWindow"
MODES = ["Low pitch", "Average pitch", "High pitch", "Extreme pitch", "Spooky pitch",
         "Low to high", "Custom pitch", "Morse tool", "Hearing age"]
GOOD_SETTINGS = ["AutoUpdate=y", "Soundbit=128", "Language=EN", "SendData=n", "Microphone=1",
                 "MicrophoneON=y"]
TEMPORARY_WAVE = "tnfwinmmtmp.wav"

# The lines of the activity log after a start with good settings, as patterns.
LOG_OF_START = [
    r"\d{1,2}/\d{1,2}/\d{4}",
    r"\d{1,2}:\d{2}(:\d{2})?( [AP]M)?",
    r"",
    r">> Program started",
    r"> Windows version check",
    r"1 \. 6 \. [12]",
    r"> Write test",
    r"> Reading settings",
    r"AutoUpdate=y",
    r"Soundbit=128",
    r"Language=EN",
    r"SendData=n",
    r"Microphone=1",
    r"MicrophoneON=y",
    r"> Bit: 128",
    r"> Update error",
    r">> Program starting finished",
]


class Folders:
    """The user's two folders, TEMP and APPDATA, and the files that the program keeps there."""

    def __init__(self, rig: Rig, name: str = "user"):
        root = rig.new_folder(name)
        self.temp = root / "Temp"
        self.appdata = root / "Roaming"
        self.temp.mkdir()
        self.appdata.mkdir()

    def write_settings(self, lines: list[str]) -> None:
        self.settings_file.write_bytes("".join(line + "\r\n" for line in lines).encode())

    @property
    def settings_file(self) -> Path:
        return self.appdata / "tonmira.ini"

    @property
    def log_file(self) -> Path:
        return self.temp / "userdata.txt"

    def log(self) -> list[str]:
        # The program may be writing its next entry at this very moment.
        text = str(wait_for(self._whole_log, "a log that does not end within a line", 3))
        lines = text.split("\r\n")[:-1]
        assert not any("\r" in line or "\n" in line for line in lines)
        return lines

    def _whole_log(self) -> str:
        text = self.log_file.read_bytes().decode("cp1252")
        return text if text.endswith("\r\n") else ""

    def names(self) -> list[str]:
        return sorted(path.name for path in (*self.temp.iterdir(), *self.appdata.iterdir()))


class Tonmira:
    """The running program. Its process is ended by `finish`, whatever state it is in."""

    def __init__(self, rig: Rig, driver: Driver, folders: Folders, exe: Path = PROGRAM,
                 start_folder: Path | None = None, arguments: str = ""):
        self.rig = rig
        self.driver = driver
        self.folders = folders
        self._successor: Tonmira | None = None
        before = set(all_processes())
        self.process = int(driver.ask(
            "start", rig.windows_path(exe), rig.windows_path(start_folder or exe.parent),
            rig.windows_path(folders.temp), rig.windows_path(folders.appdata),
            arguments)[0][0])
        self._before = before

    def window(self, title: str = MAIN_TITLE, seconds: float = 30) -> Window:
        return wait_for_window(self.driver, title, self.process, seconds)

    def successor(self) -> "Tonmira":
        """The copy that this one started in its place, once its main window is there."""
        def find() -> int | None:
            return next((w.process for w in self.driver.windows()
                         if w.visible and w.title == MAIN_TITLE and w.kind == WINDOW_CLASS
                         and w.process != self.process), None)

        new = copy(self)
        new.process = int(str(wait_for(find, "the main window of a new copy", 30)))
        self.driver.ask("adopt", str(new.process))
        self._successor = new
        return new

    def titles(self) -> list[str]:
        """Titles of the windows that it shows."""
        return [w.title for w in self.driver.windows()
                if w.process == self.process and w.visible and w.title]

    def running(self) -> bool:
        return self.driver.running(self.process)

    def wait_for_end(self, seconds: float = 15) -> None:
        wait_for(lambda: not self.running(), "the end of the program", seconds)

    def finish(self) -> None:
        """Ends it, and what it started in its place."""
        if self._successor:
            self._successor.finish()
        if self.running():
            self.driver.ask("end", str(self.process))
            self.wait_for_end()

    def linux_process(self) -> int:
        """The process as Linux numbers it."""
        mark = f"TONMIRA_RIG={self.rig.folder}".encode()
        found = [pid for pid in all_processes()
                 if pid not in self._before and "tonmira.exe" in command_of(pid).lower()
                 and mark in environment_of(pid)]
        if len(found) != 1:
            raise LookupError(f"{len(found)} new processes of the program")
        return found[0]

    def wait_for_log(self, entry: str, seconds: float = 15) -> None:
        wait_for(lambda: self.folders.log_file.exists()
                 and entry.encode() in self.folders.log_file.read_bytes().split(b"\r\n"),
                 f"{entry!r} in the log", seconds)

    def wait_for_buttons(self, window: Window, playing: bool) -> None:
        def ready() -> bool:
            return (window.button("Stop Sound").enabled == playing
                    and window.button("Play Sound").enabled != playing)

        wait_for(ready, "a playing window" if playing else "an idle window")


def play_once(program: Tonmira, user: User, mode: str) -> Window:
    """Picks a mode and presses "Play Sound", both with the mouse; returns the main window."""
    window = program.window()
    program.wait_for_log(">> Program starting finished")
    user.activate(window)
    user.click_button(window, mode)
    wait_for(lambda: window.is_checked(mode), f"the mode {mode!r}")
    user.click_button(window, "Play Sound")
    return window
