"""The samples of every pitch from 1 to 32000 Hz: the plain formula's, the same on every build."""

import subprocess
from pathlib import Path

from rig.paths import PROJECT
from rig.rig import Rig

SOURCES = ["tests/tone/digest.cpp", "tone/sine.cpp", "base/numbers.cpp", "base/errors.cpp"]
FLAGS = ["-std=c++20", "-O3", "-I."]
BUILDS = {
    "native": ["g++"],
    "native, 32 bits": ["g++", "-m32", "-msse2", "-mfpmath=sse"],
    "Windows": ["x86_64-w64-mingw32-g++-win32", "-static"],
}


def output(command: list[str], **options: object) -> str:
    """What a command prints that computes for a long time. It does not go ahead of others, as what
    else runs on a rig does: another one may be listening to something at this moment."""
    done = subprocess.run(command, check=True, text=True, timeout=600, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, **options)
    return done.stdout.strip()


def test_every_build_makes_the_samples_of_the_plain_formula(rig: Rig, tmp_path: Path) -> None:
    digests = {}
    for name, compiler in BUILDS.items():
        program = tmp_path / f"{name.replace(' ', '')}.exe"
        subprocess.run([*compiler, *FLAGS, *SOURCES, "-o", str(program)], cwd=PROJECT, check=True)
        if name == "Windows":
            digests[name] = output(["wine", str(program)], env=rig.env)
        else:
            compare = ["compare"] if name == "native" else []
            digests[name] = output([str(program), *compare])
    assert len(digests["native"]) == 16
    assert set(digests.values()) == {digests["native"]}, digests
