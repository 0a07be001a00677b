"""A place of its own on this machine: one temporary folder, one environment, and processes that end
with it. Several can stand side by side; nothing outside the folder is written."""

import os
import re
import shutil
import subprocess
import tempfile
from contextlib import ExitStack
from pathlib import Path

from rig.processes import all_processes, end_process, environment_of

# What runs here does not wait for other work of this machine, where the system lets us say so. What
# its programs wait for does not wait for them; and the sound card, as a real one, waits for nobody.
AHEAD = ["chrt", "--rr", "1"]
AHEAD_OF_THOSE = ["chrt", "--rr", "2"]
FIRST_OF_ALL = ["chrt", "--rr", "5"]


# What a session's folder holds lies there if there is so much room: a disk that others keep busy
# lets a program wait that only reads or writes some bytes, such as the sound that it loops.
MEMORY = "/dev/shm"
ROOM_BYTES = 4 << 30


def memory_has_room() -> bool:
    if "TMPDIR" in os.environ or not os.access(MEMORY, os.W_OK):
        return False
    system = os.statvfs(MEMORY)
    memory = re.search(r"MemAvailable:\s+(\d+) kB", Path("/proc/meminfo").read_text())
    room = min(system.f_bavail * system.f_frsize, int(memory[1]) * 1024 if memory else 0)
    return room >= ROOM_BYTES and not system.f_flag & os.ST_NOEXEC


def make_folder(at_end: ExitStack) -> Path:
    """A new folder that goes at the end. It stands among other temporary ones in any case: below
    "/dev" Wine lists no files."""
    folder = Path(tempfile.mkdtemp(prefix="tonmira-rig-"))
    if memory_has_room():
        folder.rmdir()
        folder.symlink_to(tempfile.mkdtemp(prefix="tonmira-rig-", dir=MEMORY))
        at_end.callback(folder.unlink)
    at_end.callback(shutil.rmtree, folder.resolve(), ignore_errors=True)
    return folder


def allowed(prefix: list[str]) -> list[str]:
    """The prefix of a command, or nothing where this user may not use it."""
    tried = subprocess.run([*prefix, "true"], check=False, stdout=subprocess.DEVNULL,
                           stderr=subprocess.DEVNULL)
    return prefix if tried.returncode == 0 else []


def undisturbed() -> bool:
    """Whether what runs here can go before all other work, and waits for no disk."""
    return bool(allowed(AHEAD)) and memory_has_room()


class Session:
    def __init__(self) -> None:
        self.at_end = ExitStack()
        self.closed = False
        self.folder = make_folder(self.at_end)
        self._ahead, self._first_of_all = allowed(AHEAD), allowed(FIRST_OF_ALL)
        self._ahead_of_those = allowed(AHEAD_OF_THOSE)
        for name in ("home", "runtime", "tmp"):
            (self.folder / name).mkdir(mode=0o700)
        kept = {name: os.environ[name] for name in ("PATH", "USER") if name in os.environ}
        self.env = {
            **kept,
            "LANG": "C.UTF-8",
            "HOME": str(self.folder / "home"),
            "TMPDIR": str(self.folder / "tmp"),
            "XDG_RUNTIME_DIR": str(self.folder / "runtime"),
            "TONMIRA_RIG": str(self.folder),
        }

    def close(self) -> None:
        self.closed = True
        self.at_end.close()

    def new_folder(self, name: str) -> Path:
        """A new, empty folder whose name begins with `name`."""
        return Path(tempfile.mkdtemp(prefix=name + "-", dir=self.folder))

    def run(self, *command: str, timeout: float = 60, stderr: int | None = None,
            serves: bool = False) -> str:
        """Runs a tool here and returns what it prints; or what goes on and `serves` the others."""
        prefix = self._ahead_of_those if serves else self._ahead
        return subprocess.run([*prefix, *command], env=self.env, stdin=subprocess.DEVNULL,
                              check=True, timeout=timeout, stdout=subprocess.PIPE, stderr=stderr,
                              text=True).stdout

    def start(self, *command: str, first_of_all: bool = False,
              **options: object) -> subprocess.Popen:
        """Starts a process that ends with the session."""
        options = {"stdin": subprocess.DEVNULL, "env": self.env, **options}
        prefix = self._first_of_all if first_of_all else self._ahead
        process = subprocess.Popen([*prefix, *command], start_new_session=True, **options)
        self.at_end.callback(end_process, process)
        return process

    def put_first(self, process: subprocess.Popen) -> None:
        """Does again for all threads of a process what it undid of `first_of_all` at its start."""
        if self._first_of_all:
            command, policy, priority = self._first_of_all
            subprocess.run([command, "--all-tasks", policy, "--pid", priority, str(process.pid)],
                           check=True)

    def processes(self) -> list[int]:
        """Every process that runs here, found by its environment."""
        mark = f"TONMIRA_RIG={self.folder}".encode()
        return [pid for pid in all_processes() if mark in environment_of(pid)]
