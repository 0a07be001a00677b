"""What the tests of the real program stand on. One rig serves the whole run."""

import contextlib
import re
import shutil
import signal
import subprocess
import sys
from collections.abc import Callable, Iterator
from pathlib import Path

import pytest

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from rig.bad_hosts import ADDRESS, closed_port  # noqa: E402
from rig.installing import Desktop  # noqa: E402
from rig.microphone import Microphone  # noqa: E402
from rig.paths import FAILURES, LINK_TAKER, NAME_SERVICE, PROGRAM  # noqa: E402
from rig.processes import command_of  # noqa: E402
from rig.program import GOOD_SETTINGS, Folders, Tonmira  # noqa: E402
from rig.resolution import set_dpi, use_wide_fonts  # noqa: E402
from rig.rig import Rig, what_is_left_of  # noqa: E402
from rig.retakes import (  # noqa: E402, F401
    RIG, pytest_runtest_call, pytest_runtest_protocol, pytest_runtest_setup,
    pytest_terminal_summary)
from rig.screen import Screen  # noqa: E402
from rig.served_site import ServedSite, served_site  # noqa: E402
from rig.setups import Setups  # noqa: E402
from rig.sound import Recorder, save_wav  # noqa: E402
from rig.uploading import ACTIVITY, ERROR, Upsend  # noqa: E402
from rig.waiting import wait_for  # noqa: E402
from rig.window import Driver, User  # noqa: E402


def pytest_configure(config: pytest.Config) -> None:
    config.addinivalue_line("markers", "listening: what the program plays is listened to")


@pytest.hookimpl(tryfirst=True)
def pytest_collection_modifyitems(items: list[pytest.Item]) -> None:
    for item in items:
        if "recorder" in getattr(item, "fixturenames", ()):
            item.add_marker(pytest.mark.listening)


@pytest.fixture(scope="session")
def rig() -> Iterator[Rig]:
    assert PROGRAM.exists(), f"not built: {PROGRAM}"
    # A test run that is asked to end takes its rig down, too.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    with Rig() as rig:
        yield rig
    assert what_is_left_of(rig) == []


@pytest.fixture(scope="session")
def driver(rig: Rig) -> Driver:
    return Driver(rig)


@pytest.fixture(scope="session")
def user(rig: Rig) -> User:
    return User(rig)


@pytest.fixture(scope="session")
def recorder(rig: Rig) -> Recorder:
    return Recorder(rig)


@pytest.fixture(scope="session")
def screen(rig: Rig) -> Iterator[Screen]:
    with Screen(rig) as screen:
        yield screen


@pytest.fixture
def microphone(rig: Rig) -> Iterator[Microphone]:
    microphone = Microphone(rig)
    yield microphone
    microphone.silence()


@pytest.fixture
def folders(rig: Rig) -> Folders:
    return Folders(rig)


@pytest.fixture(scope="session")
def setups(rig: Rig) -> Setups:
    return Setups(rig)


@pytest.fixture
def desktop(rig: Rig, driver: Driver, folders: Folders) -> Iterator[Desktop]:
    """A user's desktop without Tonmira, which is looked at again afterwards."""
    folders.write_settings(GOOD_SETTINGS)
    desktop = Desktop(rig, driver, folders)
    with desktop.left_as_before():
        yield desktop


@pytest.fixture
def upsend(rig: Rig, driver: Driver, folders: Folders) -> Upsend:
    (folders.temp / "userdata.txt").write_bytes(ACTIVITY)
    (folders.temp / "error.log").write_bytes(ERROR)
    return Upsend(rig, driver, folders)


@pytest.fixture
def site(rig: Rig) -> Iterator[ServedSite]:
    with served_site(rig.folder) as site:
        yield site


@pytest.fixture
def launch(rig: Rig, driver: Driver) -> Iterator[Callable[..., Tonmira]]:
    """Starts the program; what a test leaves running is ended."""
    started: list[Tonmira] = []

    def start(folders: Folders, **options: Path) -> Tonmira:
        started.append(Tonmira(rig, driver, folders, **options))
        return started[-1]

    yield start
    for program in started:
        program.finish()


@pytest.fixture
def begin(driver: Driver, launch: Callable[..., Tonmira],
          folders: Folders) -> Iterator[Callable[..., Tonmira]]:
    """Starts the program with a site of its own."""
    def start(site: str, language: str = "EN", update: str = "y", send: str = "n") -> Tonmira:
        settings = list(GOOD_SETTINGS)
        settings[0], settings[2], settings[3] = (
            f"AutoUpdate={update}", f"Language={language}", f"SendData={send}")
        folders.write_settings(settings)
        driver.ask("set", "TONMIRA_SITE", site)
        return launch(folders)

    yield start
    driver.ask("set", "TONMIRA_SITE", f"http://{ADDRESS}:{closed_port()}")


@pytest.fixture
def browser(rig: Rig) -> Iterator[str]:
    """A program that opens web addresses and takes note of them; its path, without blanks."""
    exe = rig.windows_path(LINK_TAKER)
    assert " " not in exe

    def add(scheme: str, program: str) -> bool:
        # Starting a program by its bare name fails once in a while.
        with contextlib.suppress(subprocess.CalledProcessError):
            rig.run("wine", "reg", "add", rf"HKCR\{scheme}\shell\open\command", "/ve", "/d",
                    f'"{program}" "%1"', "/f")
            return True
        return False

    def use(program: str) -> None:
        for scheme in ("http", "https"):
            wait_for(lambda scheme=scheme: add(scheme, program), "a registry entry")

    use(exe)
    yield exe
    use(r"C:\windows\system32\winebrowser.exe")


@pytest.fixture(scope="session")
def name_service(rig: Rig) -> Iterator[None]:
    """The system's service for names of controls; Wine's own keeps none."""
    key = r"HKCR\CLSID\{B5F8350B-0548-48B1-A6EE-88BD00B4A5E7}\InProcServer32"
    rig.run("wine", "reg", "add", key, "/ve", "/d", rig.windows_path(NAME_SERVICE), "/f")
    yield
    rig.run("wine", "reg", "add", key, "/ve", "/d", r"C:\windows\system32\oleacc.dll", "/f")


@pytest.fixture(params=[96, 144])
def driver_at_dpi(request: pytest.FixtureRequest, rig: Rig) -> Iterator[tuple[Driver, int]]:
    set_dpi(rig, request.param)
    use_wide_fonts(rig, True)
    yield Driver(rig), request.param
    use_wide_fonts(rig, False)
    set_dpi(rig, 96)


@pytest.fixture
def copy_with_noting_upload_program(rig: Rig) -> Path:
    """A copy of the program in a folder whose name the command interpreter acts on; in place of
    the upload program stands one that takes note of its start."""
    folder = rig.new_folder("Tom & (Jerry)") / "Tonmira"
    shutil.copytree(PROGRAM.parent, folder)
    shutil.copy(LINK_TAKER, folder / "upsend.exe")
    return folder / PROGRAM.name


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item: pytest.Item) -> Iterator[None]:
    """Keeps what the screen showed and what was heard when a test failed, and names the windows."""
    outcome = yield
    report = outcome.get_result()
    fixtures = getattr(item, "funcargs", {})
    driver, recorder = fixtures.get("driver"), fixtures.get("recorder")
    rig = item.session.stash.get(RIG, None)  # also of a test whose first fixture failed
    if not (report.failed and rig):
        return
    name = re.sub("[^A-Za-z0-9]+", "-", item.name)[:80]
    FAILURES.mkdir(parents=True, exist_ok=True)
    lines = [f"screen: {FAILURES / name}.png"]
    if recorder and report.when == "call":
        save_wav(FAILURES / f"{name}.wav", recorder.all_channels(item.first_frame))
        lines.append(f"recording: {FAILURES / name}.wav (its third channel is the pilot)")
    try:
        rig.run("import", "-window", "root", f"{FAILURES / name}.png")
        shown = [w.title for w in driver.windows() if w.visible and w.title] if driver else []
        lines += [f"windows: {shown}", "processes:", *map(command_of, rig.processes())]
    except (OSError, RuntimeError, subprocess.SubprocessError) as failure:
        lines.append(f"gives no picture: {failure}")
    report.sections.append(("rig", "\n".join(lines)))
