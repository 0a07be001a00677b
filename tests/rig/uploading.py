"""upsend.exe on the rig, with logs that it may send."""

from rig.paths import PROGRAM
from rig.program import Folders
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver

UPSEND = PROGRAM.parent / "upsend.exe"
SENT, NOT_SENT, TOO_SLOW = 0, 1, 2
MIB = 1024 * 1024
ACTIVITY = b"11/21/2026\r\n3:04 AM\r\n\r\n>> Program started\r\n#Option 3 Clicked\r\n"
ERROR = (b"Error number:  11,   Error value:  103\r\n<Division by zero>\r\n"
         b"Resolution: 1920 x 1080,   DPI: 96\r\nTime: 3:04 AM, Date: 11/21/2026\r\n")
# The program's own limit is 19 s; the machine may be busy.
END_S = 60


class Upsend:
    """Starts upsend.exe with the hand-over file that a test wants, and waits for its end."""

    def __init__(self, rig: Rig, driver: Driver, folders: Folders):
        self.rig = rig
        self.driver = driver
        self.folders = folders
        self.exe = UPSEND

    @property
    def temp(self) -> str:
        return self.rig.windows_path(self.folders.temp)

    def hand_over(self, file: str, name: str) -> None:
        (self.folders.temp / "snd.ini").write_bytes(f"{file}\r\n{name}\r\n".encode("cp1252"))

    def start(self, site: str) -> int:
        self.driver.ask("set", "TONMIRA_SITE", site)
        try:
            return int(self.driver.ask(
                "start", self.rig.windows_path(self.exe),
                self.rig.windows_path(self.exe.parent), self.temp,
                self.rig.windows_path(self.folders.appdata))[0][0])
        finally:
            self.driver.ask("set", "TONMIRA_SITE", "")

    def wait(self, process: int) -> int:
        wait_for(lambda: not self.driver.running(process), "the end of upsend", END_S)
        return int(self.driver.ask("exit", str(process))[0][0])

    def run(self, site: str) -> int:
        """Returns the exit code."""
        return self.wait(self.start(site))
