"""The moving pictures while nobody can see them."""

import time
from collections.abc import Callable
from pathlib import Path
from statistics import median

import pytest

from rig.microphone import Microphone
from rig.paths import BARE_WINDOW
from rig.program import Folders, Tonmira
from rig.screen import Screen
from rig.waiting import wait_for
from rig.window import User, Window
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


@pytest.fixture(name="moving")
def moving_window(launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen,
                  microphone: Microphone) -> tuple[Tonmira, Window]:
    """Both of its pictures move."""
    microphone.feed(503, 1508)
    program, window = start(launch, folders, user)
    window.press("High pitch")
    wait_for_movement(window, screen)
    return program, window


def wait_for_movement(window: Window, screen: Screen) -> None:
    for picture in PICTURES:
        place = inside(window, picture)
        wait_for(lambda place=place: screen.frames(place, 1) >= 5, "a moving picture", 15)


def assert_it_works_less(program: Tonmira, than: float) -> None:
    # What else the machine does adds to some seconds, and takes from others what was to be drawn.
    still = min(work_of_seconds(program))
    print(f"the program's thread: {than:.4f} s a second, unseen {still:.4f} s")
    assert still < 0.8 * than


def test_minimized_it_stands_still_and_restored_it_moves_again(
        moving: tuple[Tonmira, Window], user: User, screen: Screen) -> None:
    program, window = moving
    work = median(work_of_seconds(program))
    own = user.x_window(window)  # a minimized one is not found
    user.xdotool("windowminimize", "--sync", own)
    assert_it_works_less(program, work)
    user.xdotool("windowmap", own)
    user.activate(window)
    wait_for_movement(window, screen)


def test_covered_it_stands_still_and_uncovered_it_moves_again(
        moving: tuple[Tonmira, Window], launch: Callable[..., Tonmira],
        folders: Folders, user: User, screen: Screen) -> None:
    program, window = moving
    work = median(work_of_seconds(program))
    other = launch(folders, exe=BARE_WINDOW).window("Bare")
    cover(user, other, window)
    assert_it_works_less(program, work)
    other.close()
    wait_for_movement(window, screen)


def test_covered_in_part_it_goes_on_moving(
        moving: tuple[Tonmira, Window], launch: Callable[..., Tonmira], folders: Folders,
        user: User, screen: Screen) -> None:
    _, window = moving
    other = launch(folders, exe=BARE_WINDOW).window("Bare")
    cover(user, other, window)
    place = max((inside(window, picture) for picture in PICTURES), key=lambda place: place.y)
    user.move(other, window.place().x - 50, place.y + place.height - 5 - other.place().height)
    wait_for(lambda: screen.frames(place, 1) >= 5, "what is left of a moving picture", 15)


def cover(user: User, other: Window, window: Window) -> None:
    """Puts the other window over the whole of this one."""
    place = window.place()
    user.xdotool("windowsize", "--sync", user.x_window(other), str(place.width + 100),
                 str(place.height + 100))
    user.move(other, place.x - 50, place.y - 50)
