"""The same builds are packed into the same bytes, whenever and wherever that is done."""

import shutil
import subprocess
from pathlib import Path

import pytest

from conftest import DIST, KINDS, PROJECT, files_of

UMASK = 0o077
# What the packing reads of a checkout.
READ = ["online", "packaging", "resources", "site"]


def moved(folder: Path, place: Path) -> Path:
    """A copy with another order and other times of its files."""
    place.mkdir(parents=True)
    for path in sorted(folder.rglob("*"), reverse=True):
        if path.is_file():
            copy = place / path.relative_to(folder)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(path, copy)
            copy.chmod(path.stat().st_mode & 0o700)
    return place


@pytest.fixture(scope="module")
def packed_again(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """The same builds packed in another checkout, by a user with other habits."""
    folder = tmp_path_factory.mktemp("again")
    for name in READ:
        moved(PROJECT / name, folder / "checkout" / name)
    shutil.copyfile(PROJECT / "CMakeLists.txt", folder / "checkout" / "CMakeLists.txt")
    commit = subprocess.run(
        ["git", "-c", f"safe.directory={PROJECT}", "log", "-1", "--format=%ct"], cwd=PROJECT,
        check=True, stdout=subprocess.PIPE, text=True).stdout.strip()
    builds = [moved(kind.build, folder / name) for name, kind in KINDS.items()]
    temporary = folder / "a-longer-name-for-the-folder-of-temporary-files"
    temporary.mkdir()
    subprocess.run(
        [folder / "checkout" / "packaging" / "pack.sh", *builds, folder / "out"], check=True,
        cwd="/", umask=UMASK,
        env={"PATH": "/usr/bin:/bin", "HOME": "/nonexistent", "TZ": "Asia/Tokyo",
             "LANG": "nl_NL.UTF-8", "TMPDIR": str(temporary), "SOURCE_DATE_EPOCH": commit})
    return folder / "out"


def test_the_same_builds_give_the_same_bytes(packed_again: Path) -> None:
    again = files_of(packed_again)
    assert {name.split("/")[0] for name in again} == {"SHA256SUMS", "winget", *(
        name for kind in KINDS.values() for name in (kind.archive, kind.setup))}
    assert [name for name, content in again.items() if content != (DIST / name).read_bytes()] == []


def test_no_program_bears_the_time_of_its_link() -> None:
    for kind in KINDS.values():
        for name in ("tonmira.exe", "tone32.dll"):
            program = (kind.build / name).read_bytes()
            header = int.from_bytes(program[0x3C:0x40], "little")
            assert program[header + 8:header + 12] == bytes(4)
