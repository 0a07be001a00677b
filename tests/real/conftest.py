"""What the tests of the real program stand on. One bench serves the whole run."""

import re
import signal
import subprocess
import sys
from collections.abc import Callable, Iterator
from pathlib import Path

import pytest

from bench import PROGRAM, PROJECT, Bench, command_of
from microphone import Microphone
from program import Folders, Tonmira
from screen import Screen
from served_site import ServedSite, served_site
from sound import Recorder
from uploading import ACTIVITY, ERROR, Upsend
from window import Driver, User

SCREENS = PROJECT / "out" / "screens"
FAILURES = PROJECT / "out" / "failures"


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


@pytest.fixture(scope="session")
def screen(bench: Bench) -> Iterator[Screen]:
    with Screen(bench) as screen:
        yield screen


@pytest.fixture
def microphone(bench: Bench) -> Iterator[Microphone]:
    microphone = Microphone(bench)
    yield microphone
    microphone.silence()


@pytest.fixture
def folders(bench: Bench) -> Folders:
    return Folders(bench)


@pytest.fixture
def upsend(bench: Bench, driver: Driver, folders: Folders) -> Upsend:
    (folders.temp / "userdata.txt").write_bytes(ACTIVITY)
    (folders.temp / "error.log").write_bytes(ERROR)
    return Upsend(bench, driver, folders)


@pytest.fixture
def site(bench: Bench) -> Iterator[ServedSite]:
    with served_site(bench.folder) as site:
        yield site


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


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item: pytest.Item) -> Iterator[None]:
    """Keeps what the screen showed when a test failed, and names the windows in the report."""
    outcome = yield
    report = outcome.get_result()
    bench = getattr(item, "funcargs", {}).get("bench")
    driver = getattr(item, "funcargs", {}).get("driver")
    if not (report.when == "call" and report.failed and bench):
        return
    picture = FAILURES / f"{re.sub('[^A-Za-z0-9]+', '-', item.name)[:80]}.png"
    try:
        picture.parent.mkdir(parents=True, exist_ok=True)
        bench.run("import", "-window", "root", str(picture))
        shown = [w.title for w in driver.windows() if w.visible and w.title] if driver else []
        processes = [command_of(pid) for pid in bench.processes()]
        report.sections.append(("bench", "\n".join([
            f"screen: {picture}", f"windows: {shown}", "processes:", *processes])))
    except (OSError, RuntimeError, subprocess.SubprocessError) as failure:
        report.sections.append(("bench", f"gives no picture: {failure}"))
