"""The same builds are packed into the same bytes, whenever and wherever that is done."""

import shutil
import subprocess
from pathlib import Path

import pytest

from conftest import DIST, KINDS, PACKAGING, files_of

UMASK = 0o077


def moved(folder: Path, place: Path) -> Path:
    """A copy with another order, other times and other modes of its files."""
    place.mkdir(parents=True)
    for path in sorted(folder.rglob("*"), reverse=True):
        if path.is_file():
            copy = place / path.relative_to(folder)
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(path, copy)
            copy.chmod(0o600)
    return place


@pytest.fixture(scope="module")
def packed_again(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """The same builds packed at another place, by a user with other habits."""
    folder = tmp_path_factory.mktemp("again")
    builds = [moved(kind.build, folder / name) for name, kind in KINDS.items()]
    temporary = folder / "a-longer-name-for-the-folder-of-temporary-files"
    temporary.mkdir()
    subprocess.run(
        [PACKAGING / "pack.sh", *builds, folder / "out"], check=True, cwd="/", umask=UMASK,
        env={"PATH": "/usr/bin:/bin", "HOME": "/nonexistent", "TZ": "Asia/Tokyo",
             "LANG": "nl_NL.UTF-8", "TMPDIR": str(temporary)})
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
