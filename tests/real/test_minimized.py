"""The moving pictures while nobody can see them."""

import time
from collections.abc import Callable
from pathlib import Path
from statistics import median

from rig.microphone import Microphone
from rig.program import Folders, Tonmira
from rig.screen import Screen
from rig.waiting import wait_for
from rig.window import User
from test_display import PICTURES, inside, start


def work_of_seconds(program: Tonmira) -> list[float]:
    """Processor seconds that the program's own thread takes in each of five."""
    schedule = Path(f"/proc/{program.linux_process()}/schedstat")

    def spent() -> float:
        return int(schedule.read_text().split()[0]) / 1e9

    work = []
    for _ in range(5):
        before = spent()
        time.sleep(1)
        work.append(spent() - before)
    return work


def test_minimized_it_stands_still_and_restored_it_moves_again(
        launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen,
        microphone: Microphone) -> None:
    microphone.feed(503, 1508)
    program, window = start(launch, folders, user)
    window.press("High pitch")
    places = [inside(window, picture) for picture in PICTURES]
    for place in places:
        wait_for(lambda place=place: screen.frames(place, 1) >= 5, "a moving picture", 15)
    # What else the machine does adds to some seconds, and takes from others what was to be drawn.
    moving = median(work_of_seconds(program))
    own = user.x_window(window)  # a minimized one is not found
    user.xdotool("windowminimize", "--sync", own)
    still = min(work_of_seconds(program))
    print(f"the program's thread: {moving:.4f} s a second, minimized {still:.4f} s")
    assert still < 0.8 * moving
    user.xdotool("windowmap", own)
    user.activate(window)
    for place in places:
        wait_for(lambda place=place: screen.frames(place, 1) >= 5, "a picture that moves again", 15)
