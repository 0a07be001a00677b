"""What the tests of the real program stand on. One bench serves the whole run."""

import signal
import sys
from collections.abc import Callable, Iterator
from pathlib import Path

import pytest

from bench import PROGRAM, PROJECT, Bench, all_processes
from program import Folders, Tonmira
from sound import Recorder
from window import Driver, User

SCREENS = PROJECT / "out" / "screens"


def what_is_left_of(bench: Bench) -> list[str]:
    """Processes, folders and displays of a closed bench that are still there; should be nothing."""
    number = bench.display_number
    left = [f"process {pid}" for pid in bench.processes()]
    left += [str(path) for path in (bench.folder, Path(f"/tmp/.X{number}-lock"),
                                    Path(f"/tmp/.X11-unix/X{number}")) if path.exists()]
    return left


@pytest.fixture(scope="session")
def bench() -> Iterator[Bench]:
    assert PROGRAM.exists(), f"not built: {PROGRAM}"
    # A test run that is asked to end takes its bench down, too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    with Bench() as bench:
        yield bench
    assert what_is_left_of(bench) == []


@pytest.fixture(scope="session")
def driver(bench: Bench) -> Driver:
    return Driver(bench)


@pytest.fixture(scope="session")
def user(bench: Bench) -> User:
    return User(bench)


@pytest.fixture(scope="session")
def recorder(bench: Bench) -> Recorder:
    return Recorder(bench)


@pytest.fixture
def folders(bench: Bench) -> Folders:
    return Folders(bench)


@pytest.fixture
def launch(bench: Bench, driver: Driver) -> Iterator[Callable[..., Tonmira]]:
    """Starts the program; what a test leaves running is ended."""
    started: list[Tonmira] = []

    def start(folders: Folders, **options: Path) -> Tonmira:
        started.append(Tonmira(bench, driver, folders, **options))
        return started[-1]

    yield start
    for program in started:
        program.finish()
