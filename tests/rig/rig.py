"""The test rig: a display, a sound card with ears and a Wine prefix, all private.

Everything lives in one temporary folder and ends with the rig; several rigs can run side by
side. Nothing outside the folder is written, except the cache of prepared things under build/.
"""

import fcntl
import os
import shutil
import signal
import subprocess
import tempfile
from contextlib import ExitStack
from pathlib import Path

from rig.paths import CACHE
from rig.processes import all_processes, end_process, environment_of, executable_of
from rig.waiting import wait_for

SCREEN = "1280x1024x24"
QUIET_WINE = {
    "WINEDEBUG": "-all",
    # No menu entries, no .NET, and no browser engine that asks for a download.
    "WINEDLLOVERRIDES": "winemenubuilder.exe=d;mscoree=d;mshtml=d",
}
SOUND_CARD = """
load-module module-native-protocol-unix auth-anonymous=1 socket={socket}
load-module module-null-sink sink_name=out rate=44100 channels=2 format=s16le
load-module module-null-sink sink_name=mic rate=44100 channels=2 format=s16le
set-default-sink out
set-default-source mic.monitor
"""


class Locked:
    """Holds a lock file, so that two rigs do not prepare the same thing at once."""

    def __init__(self, path: Path):
        path.parent.mkdir(parents=True, exist_ok=True)
        self._file = open(path, "w")

    def __enter__(self) -> None:
        fcntl.flock(self._file, fcntl.LOCK_EX)

    def __exit__(self, *_: object) -> None:
        self._file.close()


class Rig:
    """Starts everything on construction; `close` ends it, also after a failed start."""

    def __init__(self) -> None:
        self.folder = Path(tempfile.mkdtemp(prefix="tonmira-rig-"))
        self._stack = ExitStack()
        self._stack.callback(shutil.rmtree, self.folder, ignore_errors=True)
        self.env = self._private_environment()
        self.display_number = ""
        try:
            self._start_display()
            self._start_sound()
            self._start_wine()
        except BaseException:
            self.close()
            raise

    def close(self) -> None:
        self._stack.close()

    def __enter__(self) -> "Rig":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    @property
    def prefix(self) -> Path:
        return self.folder / "prefix"

    def new_folder(self, name: str) -> Path:
        """A new, empty folder whose name begins with `name`."""
        return Path(tempfile.mkdtemp(prefix=name + "-", dir=self.folder))

    def windows_path(self, path: Path) -> str:
        return "Z:" + str(path).replace("/", "\\")

    def run(self, *command: str, timeout: float = 60, stderr: int | None = None) -> str:
        """Runs a tool on the rig and returns what it prints."""
        return subprocess.run(command, env=self.env, stdin=subprocess.DEVNULL, check=True,
                              timeout=timeout, stdout=subprocess.PIPE, stderr=stderr,
                              text=True).stdout

    def start(self, *command: str, **options: object) -> subprocess.Popen:
        """Starts a process that ends with the rig."""
        process = subprocess.Popen(command, env=self.env, start_new_session=True,
                                   **{"stdin": subprocess.DEVNULL, **options})
        self._stack.callback(end_process, process)
        return process

    def processes(self) -> list[int]:
        """Every process that runs on this rig, found by its environment."""
        mark = f"TONMIRA_RIG={self.folder}".encode()
        return [pid for pid in all_processes() if mark in environment_of(pid)]

    def _private_environment(self) -> dict[str, str]:
        for name in ("home", "runtime", "tmp"):
            (self.folder / name).mkdir(mode=0o700)
        kept = {name: os.environ[name] for name in ("PATH", "USER") if name in os.environ}
        return {
            **kept,
            "LANG": "C.UTF-8",
            "HOME": str(self.folder / "home"),
            "TMPDIR": str(self.folder / "tmp"),
            "XDG_RUNTIME_DIR": str(self.folder / "runtime"),
            "PULSE_RUNTIME_PATH": str(self.folder / "runtime" / "pulse"),
            "PULSE_SERVER": f"unix:{self.folder}/runtime/sound",
            "WINEPREFIX": str(self.prefix),
            "TONMIRA_RIG": str(self.folder),
            # Nobody listens there: a test that wants a site names another.
            "TONMIRA_SITE": "http://127.0.0.1:1",
            **QUIET_WINE,
        }

    def _start_display(self) -> None:
        reading, writing = os.pipe()
        with os.fdopen(reading) as answer:
            self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN,
                       "-nolisten", "tcp", "-noreset", pass_fds=[writing],
                       stderr=subprocess.DEVNULL)
            os.close(writing)
            self.display_number = answer.readline().strip()
        if not self.display_number:
            raise RuntimeError("the virtual display did not start")
        self.env["DISPLAY"] = ":" + self.display_number
        self.start("openbox", "--sm-disable", stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)
        wait_for(self._windows_are_managed, "the window manager")

    def _windows_are_managed(self) -> bool:
        # Only a window manager tells the number of desktops.
        return subprocess.run(["xdotool", "get_num_desktops"], env=self.env, check=False,
                              stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode == 0

    def _start_sound(self) -> None:
        socket = self.folder / "runtime" / "sound"
        script = self.folder / "sound.pa"
        script.write_text(SOUND_CARD.format(socket=socket))
        self.start("pulseaudio", "-n", "--file", str(script), "--daemonize=no", "--system=no",
                   "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no",
                   "--high-priority=no", "--disallow-exit", "--log-level=error",
                   stderr=subprocess.DEVNULL)
        wait_for(socket.exists, "the sound server")

    def _start_wine(self) -> None:
        template = self._prefix_template()
        subprocess.run(["cp", "-a", "--reflink=auto", template, self.prefix], check=True)
        (self.prefix / "wineserver").unlink(missing_ok=True)
        self._make_user_folders()
        # Ends every process of the prefix, then waits until the server is gone.
        self._stack.callback(self._end_wine)
        # A server that outlives its programs keeps later starts short and alike.
        self.run("wineserver", "-p")

    def _make_user_folders(self) -> None:
        """The desktop and the like are links into the home of the rig that made the template.
        Without a desktop the system's file dialog shows no files and opens none."""
        for folder in (self.prefix / "drive_c" / "users").glob("*/*"):
            if folder.is_symlink() and not folder.exists():
                folder.unlink()
                folder.mkdir()

    def _end_wine(self) -> None:
        for argument in ("-k", "-w"):
            subprocess.run(["wineserver", argument], env=self.env, timeout=30, check=False,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        for pid in self.processes():
            if executable_of(pid).startswith("wine"):
                os.kill(pid, signal.SIGKILL)

    def _prefix_template(self) -> Path:
        """A fresh prefix; making one takes ten seconds, so it is kept between runs."""
        version = self.run("wine", "--version").strip().replace(" ", "-")
        template = CACHE / f"prefix-{version}"
        with Locked(CACHE / "lock"):
            if not template.exists():
                draft = self.folder / "draft"
                env = {**self.env, "WINEPREFIX": str(draft)}
                for command in (["wine", "wineboot", "-i"], ["wineserver", "-w"]):
                    subprocess.run(command, env=env, check=True, timeout=180,
                                   stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                shutil.move(draft, template.with_suffix(".new"))
                template.with_suffix(".new").rename(template)
        return template


def what_is_left_of(rig: Rig) -> list[str]:
    """Processes, folders and displays of a closed rig that are still there; should be nothing."""
    number = rig.display_number
    left = [f"process {pid}" for pid in rig.processes()]
    left += [str(path) for path in (rig.folder, Path(f"/tmp/.X{number}-lock"),
                                    Path(f"/tmp/.X11-unix/X{number}")) if path.exists()]
    return left
