"""A Windows session: Wine with a prefix of its own, a copy of one that is made once and kept."""

import fcntl
import os
import re
import shutil
import signal
import subprocess
from pathlib import Path

from rig.paths import CACHE
from rig.processes import executable_of
from rig.session import Session

QUIET_WINE = {
    "WINEDEBUG": "-all",
    # No menu entries, no .NET, and no browser engine that asks for a download.
    "WINEDLLOVERRIDES": "winemenubuilder.exe=d;mscoree=d;mshtml=d",
}


class Locked:
    """Holds a lock file, so that two rigs do not prepare the same thing at once."""

    def __init__(self, path: Path):
        path.parent.mkdir(parents=True, exist_ok=True)
        self._file = open(path, "w")

    def __enter__(self) -> None:
        fcntl.flock(self._file, fcntl.LOCK_EX)

    def __exit__(self, *_: object) -> None:
        self._file.close()


def start_wine(session: Session) -> Path:
    """Returns the prefix."""
    prefix = session.folder / "prefix"
    session.env.update({"WINEPREFIX": str(prefix), **QUIET_WINE})
    template = prefix_template(session)
    subprocess.run(["cp", "-a", "--reflink=auto", template, prefix], check=True)
    (prefix / "wineserver").unlink(missing_ok=True)
    make_user_folders(prefix)
    still_the_caret(prefix)
    # Ends every process of the prefix, then waits until the server is gone.
    session.at_end.callback(end_wine, session)
    # A server that outlives its programs keeps later starts short and alike.
    session.run("wineserver", "-p", serves=True)
    return prefix


def prefix_template(session: Session) -> Path:
    """A fresh prefix; making one takes ten seconds, so it is kept between runs."""
    version = session.run("wine", "--version").strip().replace(" ", "-")
    template = CACHE / f"prefix-{version}"
    with Locked(CACHE / "lock"):
        if not template.exists():
            draft = session.folder / "draft"
            env = {**session.env, "WINEPREFIX": str(draft)}
            for command in (["wine", "wineboot", "-i"], ["wineserver", "-w"]):
                subprocess.run(command, env=env, check=True, timeout=180,
                               stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            shutil.move(draft, template.with_suffix(".new"))
            template.with_suffix(".new").rename(template)
    return template


def make_user_folders(prefix: Path) -> None:
    """The desktop and the like are links into the home of the rig that made the template. Without a
    desktop the system's file dialog shows no files and opens none."""
    for folder in (prefix / "drive_c" / "users").glob("*/*"):
        if folder.is_symlink() and not folder.exists():
            folder.unlink()
            folder.mkdir()


def still_the_caret(prefix: Path) -> None:
    """A caret that blinks would make every second picture another one."""
    registry = prefix / "user.reg"
    text, sections = re.subn(rb"(?m)^\[Control Panel\\\\Desktop\].*\n(#.*\n)*",
                             rb'\g<0>"CursorBlinkRate"="-1"\n', registry.read_bytes())
    assert sections == 1
    registry.write_bytes(text)


def end_wine(session: Session) -> None:
    for argument in ("-k", "-w"):
        subprocess.run(["wineserver", argument], env=session.env, timeout=30, check=False,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    for pid in session.processes():
        if executable_of(pid).startswith("wine"):
            os.kill(pid, signal.SIGKILL)
