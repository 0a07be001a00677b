"""One long run of the program, and what must hold all the time: it lives, plays once at most, and
says nothing of an error. It leaves with what it came."""

import contextlib
import re
import shutil
from pathlib import Path

from rig.paths import LINK_TAKER, PROGRAM
from rig.program import GOOD_SETTINGS, WINDOW_CLASS, Folders, Tonmira
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Control, Driver, TopWindow

# The main window's controls by their ids: a change of the language does not move them.
OPTIONS, SLIDER, PLAY, STOP, HELP = range(101, 110), 117, 119, 120, 121


class WrongError(AssertionError):
    """The program does not do what it should."""


class BenchError(RuntimeError):
    """The machine has failed, and the run tells nothing of the program."""


class WatchedProgram:
    def __init__(self, rig: Rig, driver: Driver):
        self.rig, self.driver = rig, driver
        self.plays = self.file_dialogs = 0
        self.choosing = False  # whether one was open when we looked last
        self.folders = Folders(rig)
        self.folders.write_settings(GOOD_SETTINGS)
        self.exe = program_with_hearing_test(rig)
        self.program = Tonmira(rig, driver, self.folders, exe=self.exe)
        self.window = self.program.window(seconds=60)
        self.program.wait_for_log(">> Program starting finished", 60)
        self.process = Path(f"/proc/{self.program.linux_process()}")

    def windows(self) -> list[TopWindow]:
        return [w for w in self.driver.windows()
                if w.process == self.program.process and w.visible and w.title]

    def others(self) -> list[TopWindow]:
        """Windows that lie before the main one, or beside it."""
        return [w for w in self.windows() if w.handle != self.window.handle]

    def control(self, number: int) -> Control:
        return next(c for c in self.window.controls() if c.id == number)

    def playing(self) -> bool:
        return self.control(STOP).enabled

    def usage(self) -> dict[str, int]:
        status = (self.process / "status").read_text()
        found = dict(re.findall(r"^(Threads|VmRSS):\s+(\d+)", status, re.MULTILINE))
        # Wine keeps one for each file dialog, of any program.
        return {"handles": self.driver.handles(self.program.process) - self.file_dialogs,
                "files": len(list((self.process / "fd").iterdir())),
                "threads": int(found["Threads"]), "memory_kb": int(found["VmRSS"])}

    def check(self) -> None:
        if not self.program.running():
            raise WrongError("the program has ended")
        windows = self.windows()
        choosing = any(window.title == "Select File" for window in windows)
        self.file_dialogs += choosing and not self.choosing
        self.choosing = choosing
        for window in windows:
            if window.title == "Error" or window.kind == WINDOW_CLASS and "Error" in window.title:
                texts = [c.caption for c in self.driver.controls(window.handle)]
                raise WrongError(f"an error is shown: {texts}")
        helpers = self.helpers()
        if len(helpers) > 1:
            # The one may just be ending.
            with contextlib.suppress(TimeoutError):
                wait_for(lambda: len(self.helpers()) <= 1, "one helper", 5)
                return
            raise WrongError(f"sounds more than once: {helpers}")

    def helpers(self) -> list[str]:
        """The tone helpers that run."""
        listed = self.rig.run("ps", "-eo", "pid=,args=").splitlines()
        return [line for line in listed
                if re.search(r"tone(16|32)\.dll", line) and str(self.rig.folder) in line]

    def look_at_log(self) -> None:
        """No play begins before the one before it is over."""
        lines = self.folders.log()
        plays = False
        for line, following in zip(lines, [*lines[1:], ""]):
            if line == "#Sound stopped":
                plays = False
            elif line == "#Pressed Button 2" and re.fullmatch(r"\d+", following):
                if following == "3":
                    continue
                if plays:
                    raise WrongError("a play within a play: " + " | ".join(lines[-40:]))
                plays = True
                self.plays += 1
        if len(lines) >= 100:
            raise WrongError("the log was not looked at in time")

    def leave_for_good(self) -> None:
        self.window.close()
        self.program.wait_for_end(30)
        # The stand-in of the hearing test leaves the last of them.
        left = [name for name in self.folders.names()
                if name not in ("userdata.txt", "tonmira.ini", "links.txt")]
        if left:
            raise WrongError(f"left behind: {left}")


def program_with_hearing_test(rig: Rig) -> Path:
    """A copy of the program; in place of the hearing test stands one that ends at once."""
    folder = rig.new_folder("program") / "Tonmira"
    shutil.copytree(PROGRAM.parent, folder)
    shutil.copy(LINK_TAKER, folder / "hearage.dll")
    return folder / PROGRAM.name


def grown(before: dict[str, int], after: dict[str, int]) -> list[str]:
    """What the program keeps more of than it had; memory may rise by what its allocators keep."""
    slack = {"handles": 10, "files": 10, "threads": 2, "memory_kb": 8192}
    return [f"{name}: {before[name]}, then {after[name]}" for name in before
            if after[name] > before[name] + slack[name]]
