"""Power failures during an installation: at every step of it."""

import itertools
import shutil
import struct
from pathlib import Path

import pytest

from rig.installing import CUT_OFF, OWN_FILES, TYPE_KEY, Desktop, contents
from rig.paths import PROGRAM
from rig.rig import Rig
from rig.setups import OLD_VERSION, make_setup
from rig.waiting import wait_for
from rig.window import Driver

# Every so many steps more is looked at: a start, the next installation, the removal.
START_EVERY, FINISH_EVERY, REMOVE_EVERY = 7, 9, 11
COMMAND_KEY = TYPE_KEY + r"\shell\open\command"


def small_version(rig: Rig, name: str) -> Path:
    """A version of few files, each of other bytes than any other version's."""
    folder = rig.new_folder(name) / "Tonmira"
    (folder / "samples").mkdir(parents=True)
    for file in ("tonmira.exe", "lng_en.dll", "samples/scale.tnf"):
        shutil.copy(PROGRAM.parent / file, folder / file)
        with open(folder / file, "ab") as end:
            end.write(f"\r\n{name}".encode())
    (folder / f"only {name}.txt").write_text(name)
    return folder


def target_of(link: Path) -> str:
    """The path that a shell link points to; [MS-SHLLINK] 2.1 to 2.3."""
    data = link.read_bytes()
    flags = struct.unpack_from("<I", data, 20)[0]
    at = 76
    if flags & 1:
        at += 2 + struct.unpack_from("<H", data, at)[0]
    assert flags & 2, "no path in the link"
    start = at + struct.unpack_from("<I", data, at + 16)[0]
    return data[start:data.index(b"\0", start)].decode("cp1252")


class Versions:
    """Two versions, and installers of them that can be cut off."""

    def __init__(self, rig: Rig):
        self.folders = {name: small_version(rig, name) for name in ("old", "new")}
        self.setups = {"old": make_setup(rig, self.folders["old"], OLD_VERSION, cut=True),
                       "new": make_setup(rig, self.folders["new"], cut=True)}


@pytest.fixture(scope="module")
def versions(rig: Rig) -> Versions:
    return Versions(rig)


class Cut:
    def __init__(self, desktop: Desktop, driver: Driver, rig: Rig, versions: Versions):
        self.desktop = desktop
        self.driver = driver
        self.versions = versions.folders
        self.setups = versions.setups
        self.saved = rig.new_folder("saved")

    def install(self, name: str, step: int = 0) -> int:
        """Up to a step, or to the end."""
        self.driver.ask("set", "TONMIRA_CUT", str(step))
        code = self.desktop.run(self.setups[name])
        self.driver.ask("set", "TONMIRA_CUT", "0")
        for left in self.desktop.folders.temp.glob("ns*.tmp"):
            shutil.rmtree(left)  # as after any end by force
        return code

    def save(self) -> None:
        shutil.copytree(self.desktop.folder, self.saved / "folder", symlinks=True)
        shutil.copy(self.desktop.menu / "Tonmira.lnk", self.saved)
        self.command = self.desktop.value(COMMAND_KEY)

    def restore(self) -> None:
        shutil.rmtree(self.desktop.folder)
        shutil.copytree(self.saved / "folder", self.desktop.folder)
        shutil.copy(self.saved / "Tonmira.lnk", self.desktop.menu)
        self.desktop.store(COMMAND_KEY, "", self.command)

    def version_at(self, program: str) -> str:
        """The version that a program is of, with everything that belongs to it beside it."""
        prefix = self.desktop.windows_path(self.desktop.drive)
        folder = self.desktop.drive / program.removeprefix(prefix).removeprefix("C:\\").replace(
            "\\", "/")
        found = contents(folder.parent)
        whole = [name for name, source in self.versions.items()
                 if contents(source).items() <= found.items()]
        assert len(whole) == 1, f"{program}: {whole}"
        return whole[0]

    def what_starts(self) -> tuple[str, str]:
        """The versions that the Start menu and the file type start."""
        command = self.desktop.value(COMMAND_KEY)
        return (self.version_at(target_of(self.desktop.menu / "Tonmira.lnk")),
                self.version_at(command.split('"')[1]))

    def is_whole(self, name: str) -> None:
        installed = contents(self.desktop.folder)
        assert set(installed) - set(contents(self.versions[name])) == OWN_FILES
        assert self.what_starts() == (name, name)


def expect_start(desktop: Desktop, program: str) -> None:
    desktop.open_from_menu()
    wait_for(desktop.main_windows, "the main window")
    assert [program in command for command in desktop.running()] == [True]
    desktop.close_all()


def test_the_old_or_the_new_version_starts_wherever_an_upgrade_is_cut_off(
        desktop: Desktop, driver: Driver, rig: Rig, versions: Versions) -> None:
    cut = Cut(desktop, driver, rig, versions)
    assert cut.install("old") == 0
    cut.is_whole("old")
    cut.save()
    started = []
    for step in itertools.count(1):
        code = cut.install("new", step)
        if code == 0:
            break
        assert code == CUT_OFF, step
        started.append(cut.what_starts())
        if step % START_EVERY == 0:
            expect_start(desktop, target_of(desktop.menu / "Tonmira.lnk"))
        if step % FINISH_EVERY == 0:
            assert cut.install("new") == 0
            cut.is_whole("new")
        if step % REMOVE_EVERY == 0:
            desktop.uninstall()
            assert not desktop.folder.exists(), step
            assert cut.install("old") == 0
        cut.restore()
    cut.is_whole("new")
    # First the old, then the new, and for a moment in between one of each.
    changes = [version for version, _ in itertools.groupby(started)]
    assert changes == [("old", "old"), ("new", "old"), ("new", "new")]
    # Each of the six files is written into two places, and deleted from one.
    assert len(started) > 18


def test_cut_off_again_and_again_it_still_starts_and_the_next_one_finishes(
        desktop: Desktop, driver: Driver, rig: Rig, versions: Versions) -> None:
    cut = Cut(desktop, driver, rig, versions)
    assert cut.install("old") == 0
    for step, name in ((12, "new"), (17, "old"), (3, "new"), (14, "old"), (22, "new"), (9, "new")):
        assert cut.install(name, step) == CUT_OFF
        cut.what_starts()
    assert len(list(desktop.folder.glob("update-*"))) > 1
    assert cut.install("new") == 0
    cut.is_whole("new")
