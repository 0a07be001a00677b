"""The 32-bit program on the versions of Windows that only it is for. Run by
scripts/other_windows.sh; a 64-bit Wine is never one of these."""

import subprocess
from collections.abc import Callable, Iterator

import pytest

from rig.paths import BUILD, PROJECT
from rig.program import GOOD_SETTINGS, MAIN_TITLE, Folders, Tonmira
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver, User

OLD_WARNING = "Warning: Windows 2000 detected! Classic sound mode will NOT work!"
NUMBERS = {"win2k": "1 . 5 . 0", "winxp": "1 . 5 . 1", "win10": "1 . 6 . 2"}


@pytest.fixture
def version(request: pytest.FixtureRequest, rig: Rig) -> Iterator[str]:
    rig.run("wine", "reg", "add", r"HKCU\Software\Wine", "/v", "Version", "/d", request.param, "/f")
    yield request.param
    rig.run("wine", "reg", "delete", r"HKCU\Software\Wine", "/v", "Version", "/f")


@pytest.mark.parametrize("version", NUMBERS, indirect=True)
def test_it_starts_and_tells_the_version(
        launch: Callable[..., Tonmira], folders: Folders, driver: Driver, user: User,
        version: str) -> None:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    if version == "win2k":
        for _ in range(2):
            warning = program.window("Windows version")
            assert OLD_WARNING in warning.texts()
            user.activate(warning)
            user.click_button(warning, "OK")
            wait_for(lambda handle=warning.handle:
                     handle not in [w.handle for w in driver.windows()], "the end of the warning")
    program.wait_for_log(">> Program starting finished")
    window = program.window(MAIN_TITLE)
    assert NUMBERS[version] in folders.log()
    wait_for(lambda: program.titles() == [MAIN_TITLE], "the main window alone")
    window.close()
    program.wait_for_end()


def test_it_computes_the_same_samples_as_the_native_program(rig: Rig) -> None:
    native = subprocess.run([PROJECT / "build" / "native" / "digest"], check=True, timeout=300,
                            stdout=subprocess.PIPE, text=True).stdout.split()
    assert rig.run("wine", str(BUILD / "digest.exe"), timeout=300).split() == native
