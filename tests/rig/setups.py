"""Installers for the tests, made by the script that the release uses."""

import os
import re
import shutil
import stat
import subprocess
from functools import cached_property
from pathlib import Path

from rig.paths import PROGRAM, PROJECT
from rig.rig import Rig

COMPILER = "makensis"
SIGNATURE = "signed-for-the-tests"
VERSION = str(re.findall(r"project\(Tonmira VERSION ([0-9.]+)",
                         (PROJECT / "CMakeLists.txt").read_text())[0])
OLD_VERSION = "2.3.5"


def architecture() -> str:
    """What kind of Windows the program under test is for."""
    image = PROGRAM.read_bytes()
    header = int.from_bytes(image[60:64], "little")
    return {0x8664: "x64", 0x14C: "x86"}[int.from_bytes(image[header + 4:header + 6], "little")]


def make_setup(rig: Rig, folder: Path, version: str = VERSION, cut: bool = False) -> Path:
    """Compiles an installer of a folder, by the script that the release uses. Only the number of
    the version, and where it can be cut off, are changed on the way to the compiler. What signs the
    uninstaller puts a mark at its end, where a signature stands, too."""
    place = rig.new_folder("setup")
    compiler = place / COMPILER
    real = shutil.which(COMPILER)
    assert real, "nsis is not installed"
    compiler.write_text(f'#!/bin/bash\nexec {real} {"-DCUT" if cut else ""} '
                        f'"${{@/#-DVERSION=*/-DVERSION={version}}}"\n')
    signer = place / "sign"
    signer.write_text(f'#!/bin/bash\nprintf {SIGNATURE} >>"$1"\n')
    for tool in (compiler, signer):
        tool.chmod(tool.stat().st_mode | stat.S_IXUSR)
    out = place / f"tonmira-{version}-setup.exe"
    command = [PROJECT / "packaging" / "make_setup.sh", architecture(), folder, out,
               signer]
    subprocess.run(command, check=True, timeout=120, stdout=subprocess.DEVNULL,
                   env={**os.environ, "PATH": f"{place}:{os.environ['PATH']}",
                        "SOURCE_DATE_EPOCH": "1767225600"})
    return out


def old_copy(rig: Rig) -> Path:
    """The folder of an older version: a file that the new one has not, and not one that it has."""
    folder = rig.new_folder("portable") / "Tonmira"
    shutil.copytree(PROGRAM.parent, folder)
    (folder / "old").mkdir()
    (folder / "old" / "gone.txt").write_text("only here\r\n")
    (folder / "samples" / "siren.tnf").unlink()
    with open(folder / "tonmira.exe", "ab") as program:
        program.write(OLD_VERSION.encode())  # no other program, but other bytes
    return folder


class Setups:
    """Installers of the program and of an older one, made when they are asked for."""

    def __init__(self, rig: Rig):
        self.rig = rig
        self.folder = PROGRAM.parent

    @cached_property
    def new(self) -> Path:
        return make_setup(self.rig, self.folder)

    @cached_property
    def old_folder(self) -> Path:
        return old_copy(self.rig)

    @cached_property
    def old(self) -> Path:
        return make_setup(self.rig, self.old_folder, OLD_VERSION)
