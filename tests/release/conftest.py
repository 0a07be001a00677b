"""What the tests of a release stand on: dist/, which ./release has made, and the builds that it was
made of."""

import os
import subprocess
import sys
import zipfile
from dataclasses import dataclass
from pathlib import Path

import pytest

PROJECT = Path(__file__).resolve().parents[2]
sys.path.append(str(PROJECT / "tests"))

DIST = PROJECT / "dist"
VERSION = "2.3.6"
PACKAGING = PROJECT / "packaging"
TEST_CERTIFICATE = PROJECT / "build" / "test-certificate" / "certificate.pem"
OWN_PLUGINS = "$PLUGINSDIR"  # what the installer unpacks for itself while it runs


@dataclass(frozen=True)
class Kind:
    """Of Windows. `mark` is what its names end in."""
    mark: str
    build: Path  # the portable folder that was built
    objdump: str

    @property
    def archive(self) -> str:
        return f"tonmira-{VERSION}-portable{self.mark}.zip"

    @property
    def setup(self) -> str:
        return f"tonmira-{VERSION}-setup{self.mark}.exe"


KINDS = {
    "x64": Kind("", PROJECT / "build/windows/tonmira", "x86_64-w64-mingw32-objdump"),
    "x86": Kind("-x86", PROJECT / "build/windows-x86/tonmira", "i686-w64-mingw32-objdump"),
}


@pytest.fixture(params=KINDS)
def kind(request: pytest.FixtureRequest) -> Kind:
    return KINDS[request.param]


@pytest.fixture
def portable(kind: Kind, tmp_path: Path) -> Path:
    """The folder of the portable archive, unpacked."""
    with zipfile.ZipFile(DIST / kind.archive) as archive:
        archive.extractall(tmp_path)
    return tmp_path / "tonmira"


@pytest.fixture
def installed(kind: Kind, tmp_path: Path) -> Path:
    """What the installer holds for the user's machine."""
    subprocess.run(["7zz", "x", "-y", f"-o{tmp_path}", f"-x!{OWN_PLUGINS}", DIST / kind.setup],
                   check=True, stdout=subprocess.DEVNULL)
    return tmp_path


def files_of(folder: Path) -> dict[str, bytes]:
    return {path.relative_to(folder).as_posix(): path.read_bytes()
            for path in folder.rglob("*") if path.is_file()}


def programs_of(folder: Path) -> list[Path]:
    return sorted(path for path in folder.rglob("*")
                  if path.is_file() and path.read_bytes()[:2] == b"MZ")


def script(name: str, *arguments: str | Path, **variables: str) -> subprocess.CompletedProcess:
    """The finished run of one of the scripts of packaging/."""
    return subprocess.run([PACKAGING / name, *arguments], env=os.environ | variables, text=True,
                          capture_output=True, check=False)


def signed_by(certificate: Path, program: Path) -> bool:
    return subprocess.run(["osslsigncode", "verify", "-CAfile", certificate, "-in", program],
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          check=False).returncode == 0
