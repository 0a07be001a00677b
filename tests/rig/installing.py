"""The installer on the rig: how it is run, and what it leaves in files and registry."""

import contextlib
import os
import re
import shutil
import signal
import subprocess
from collections.abc import Iterator
from contextlib import contextmanager
from dataclasses import dataclass
from hashlib import sha256
from pathlib import Path

from rig.processes import command_of
from rig.program import Folders
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver, Window

APPS_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tonmira"
TYPE_KEY = r"HKCU\Software\Classes\Tonmira.ToneProgram"
ENDING_KEY = r"HKCU\Software\Classes\.tnf"
CHOSEN_KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Explorer\FileExts\.tnf"
OWN_FILES = {"tnf.ico", "uninstall.exe", "uninstall.lst"}
CANCELLED, FAILED, IN_USE, OTHER_SETUP, CUT_OFF = 1, 2, 3, 4, 77

# What Wine notes for itself at any program's start, or when it looks at the network.
OWN_TO_WINE = ("HKEY_CURRENT_USER\\Console", "Software\\Wine\\", "Internet Settings",
               "Explorer\\Shell Folders", "Explorer\\User Shell Folders", "MMDevices",
               "Cryptography\\RNG", "MountPoints2")


def contents(folder: Path) -> dict[str, str]:
    """Every file below a folder, and a digest of it."""
    return {str(path.relative_to(folder)): sha256(path.read_bytes()).hexdigest()
            for path in sorted(folder.rglob("*")) if path.is_file()}


@dataclass
class Command:
    """A program that was started, and how it ended."""
    driver: Driver
    process: int

    def code(self, seconds: float = 30) -> int:
        wait_for(lambda: not self.driver.running(self.process), "the end of a program", seconds)
        return int(self.driver.ask("exit", str(self.process))[0][0])


class Desktop:
    """The user whose desktop it is: installs, starts from the menu, opens files."""

    def __init__(self, rig: Rig, driver: Driver, folders: Folders):
        self.rig = rig
        self.driver = driver
        self.folders = folders
        self.drive = rig.prefix / "drive_c"
        self.user = next(path for path in (self.drive / "users").iterdir()
                         if path.name != "Public")
        self.programs = self.user / "AppData" / "Local" / "Programs"
        self.folder = self.programs / "Tonmira"
        self.menu = (self.user / "AppData" / "Roaming" / "Microsoft" / "Windows" / "Start Menu"
                     / "Programs")

    @contextmanager
    def left_as_before(self) -> Iterator[None]:
        """Whatever is installed meanwhile is removed, and no file, key or value is left of it."""
        for key in (TYPE_KEY, APPS_KEY, CHOSEN_KEY):
            key = key.rpartition("\\")[0]
            self.rig.run("wine", "reg", "add", key, "/f")  # as on every Windows
        files, values = self.files(), self.registry("HKEY_CURRENT_USER")
        try:
            yield
            self.close_all()
            if self.value(APPS_KEY, "UninstallString"):
                self.uninstall()
            left = sorted((self.files() - self.files_of_the_program()) ^ files)
            left += sorted(map(str, self.registry("HKEY_CURRENT_USER") ^ values))
            assert left == [], left
        finally:
            self.tidy()

    def files_of_the_program(self) -> set[str]:
        """Settings and logs, which stay."""
        return {str(self.folders.temp / name) for name in ("userdata.txt", "error.log")}

    def tidy(self) -> None:
        """By force what a failed test has left."""
        for process in self.rig.processes():
            if re.search(r"\\(tonmira|uninstall|Un|tonmira-\S+-setup).exe", command_of(process)):
                with contextlib.suppress(ProcessLookupError):
                    os.kill(process, signal.SIGKILL)
        shutil.rmtree(self.folder, ignore_errors=True)
        with contextlib.suppress(OSError):
            self.programs.rmdir()
        (self.menu / "Tonmira.lnk").unlink(missing_ok=True)
        for key in (APPS_KEY, TYPE_KEY, ENDING_KEY, CHOSEN_KEY):
            self.delete(key)

    def windows_path(self, path: Path) -> str:
        if path.is_relative_to(self.drive):
            return "C:\\" + str(path.relative_to(self.drive)).replace("/", "\\")
        return self.rig.windows_path(path)

    def start(self, program: str, arguments: str = "", driver: Driver | None = None) -> Command:
        driver = driver or self.driver
        answer = driver.ask("start", program, "C:\\",
                            self.rig.windows_path(self.folders.temp),
                            self.rig.windows_path(self.folders.appdata), arguments)
        return Command(driver, int(answer[0][0]))

    def run(self, program: Path, arguments: str = "/S", seconds: float = 30) -> int:
        return self.start(self.windows_path(program), arguments).code(seconds)

    def open(self, path: Path, driver: Driver | None = None) -> None:
        """As by a double click."""
        self.start(r"C:\windows\system32\start.exe", f'"{self.windows_path(path)}"', driver)

    @contextmanager
    def users_classes_shown(self) -> Iterator[None]:
        """While it lasts, the user's file types are among those of the machine: Windows shows the
        two as one, this Wine only the latter."""
        export = self.rig.new_folder("classes") / "classes.reg"
        path = self.rig.windows_path(export)
        keys = [TYPE_KEY, ENDING_KEY]
        for key in keys:
            self.rig.run("wine", "reg", "export", key, path, "/y")
            text = export.read_text("utf-16").replace("HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE")
            export.write_text(text, "utf-16")
            self.rig.run("wine", "reg", "import", path)
        yield
        for key in keys:
            self.delete(key.replace("HKCU", "HKLM"))

    def open_from_menu(self) -> None:
        self.open(self.menu / "Tonmira.lnk")

    def uninstall(self, switches: str = "") -> None:
        """By the line that the system keeps for it, to the end of its last helper."""
        command = self.value(APPS_KEY, "QuietUninstallString")
        program, arguments = re.fullmatch(r'"([^"]+)" (.*)', command).groups()
        self.start(program, f"{arguments} {switches}".strip())
        self.wait_until_uninstalled()

    def wait_until_uninstalled(self) -> None:
        wait_for(lambda: not self.value(APPS_KEY, "UninstallString"), "the end of the entry")
        wait_for(lambda: not list(self.folders.temp.glob("~nsu*")), "the end of the uninstaller")

    def query(self, key: str) -> list[str]:
        done = subprocess.run(["wine", "reg", "query", key, "/s"], env=self.rig.env, check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True)
        return [line.strip() for line in done.stdout.splitlines()
                if line.strip() and done.returncode == 0]

    def value(self, key: str, name: str = "") -> str:
        """A value of the registry, or nothing."""
        which = ["/v", name] if name else ["/ve"]
        done = subprocess.run(["wine", "reg", "query", key, *which], env=self.rig.env, check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True)
        found = re.search(r"REG_\w+ {4}(.*)", done.stdout)
        return found[1].strip().replace("(value not set)", "") if found else ""

    def store(self, key: str, name: str, value: str) -> None:
        which = ["/v", name] if name else ["/ve"]
        self.rig.run("wine", "reg", "add", key, *which, "/d", value, "/f")

    def delete(self, key: str) -> None:
        subprocess.run(["wine", "reg", "delete", key, "/f"], env=self.rig.env, check=False,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)

    def files(self) -> set[str]:
        """Names of everything on the drive and in the user's folders, but what Wine keeps of pages
        that were fetched."""
        places = (self.drive, self.folders.temp, self.folders.appdata)
        return {str(path) for place in places for path in place.rglob("*")
                if "INetC" not in str(path) and "Microsoft/Windows/History" not in str(path)}

    def registry(self, root: str) -> set[tuple[str, str]]:
        """Every value below a root, as key and line; a key without any as itself."""
        export = self.rig.new_folder("registry") / "all.reg"
        self.rig.run("wine", "regedit", "/E", self.rig.windows_path(export), root)
        text = export.read_text("utf-16").replace("\\\n  ", "")
        export.unlink()
        key, values = "", set()
        for line in text.splitlines()[1:]:
            if line.startswith("["):
                key = line[1:-1]
            if line and not any(own in key for own in OWN_TO_WINE):
                values.add((key, line))
        return values

    def main_windows(self) -> list[Window]:
        return [Window(self.driver, w.handle, w.title) for w in self.driver.windows()
                if w.visible and w.kind == "TonmiraWindow"]

    def processes(self) -> list[int]:
        """The copies of the program that run, as Linux numbers them."""
        return [process for process in self.rig.processes()
                if re.match(r"\S.*\\tonmira.exe", command_of(process))]

    def running(self) -> list[str]:
        """Their command lines."""
        return list(map(command_of, self.processes()))

    def start_idle(self) -> Window:
        """The main window, once the program that the menu started waits for its user."""
        self.folders.log_file.unlink(missing_ok=True)
        self.open_from_menu()
        wait_for(lambda: self.folders.log_file.exists()
                 and b">> Program starting finished" in self.folders.log_file.read_bytes(),
                 "a finished start")
        wait_for(self.main_windows, "the main window")
        return self.main_windows()[0]

    def start_playing(self) -> Window:
        window = self.start_idle()
        window.press("High pitch")
        wait_for(lambda: window.is_checked("High pitch"), "the mode")
        window.press("Play Sound")
        wait_for(lambda: window.button("Stop Sound").enabled, "a playing window")
        return window

    def close_all(self) -> None:
        """A window that comes while another goes is closed, too."""
        def all_ended() -> bool:
            for window in self.main_windows():
                with contextlib.suppress(RuntimeError):  # gone by now
                    window.close()
            return not self.processes()

        wait_for(all_ended, "the end of the program")
