"""What a running program has of the machine, and using it for long."""

import re
import time
from pathlib import Path

from rig.program import Tonmira
from rig.window import Driver, Window


def usage(driver: Driver, program: Tonmira) -> dict[str, int]:
    process = Path(f"/proc/{program.linux_process()}")
    status = (process / "status").read_text()
    found = dict(re.findall(r"^(Threads|VmRSS):\s+(\d+)", status, re.MULTILINE))
    return {"handles": driver.handles(program.process),
            "files": len(list((process / "fd").iterdir())), "threads": int(found["Threads"]),
            "memory_kb": int(found["VmRSS"])}


def play_and_stop_often(program: Tonmira, window: Window, rounds: int) -> None:
    for _ in range(rounds):
        window.press("Play Sound")
        program.wait_for_buttons(window, playing=True)
        window.press("Stop Sound")
        program.wait_for_buttons(window, playing=False)
    # The loop itself ends a tick after its Stop.
    time.sleep(0.5)
