"""A virtual display with a window manager."""

import os
import subprocess

from rig.session import Session
from rig.waiting import wait_for

SCREEN = "1280x1024x24"


def start_display(session: Session) -> tuple[str, subprocess.Popen]:
    """Starts it for everything that runs in the session; returns its number and the window
    manager."""
    reading, writing = os.pipe()
    with os.fdopen(reading) as answer:
        session.start("Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN, "-nolisten",
                      "tcp", "-noreset", pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        number = answer.readline().strip()
    if not number:
        raise RuntimeError("the virtual display did not start")
    session.env["DISPLAY"] = ":" + number
    manager = session.start("openbox", "--sm-disable", stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL)
    wait_for(lambda: windows_are_managed(session), "the window manager")
    return number, manager


def windows_are_managed(session: Session) -> bool:
    # Only a window manager tells the number of desktops.
    return subprocess.run(["xdotool", "get_num_desktops"], env=session.env, check=False,
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0
