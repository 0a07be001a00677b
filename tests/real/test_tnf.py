"""tnf.exe: names and arguments of any language, exit codes, and the same bytes as everywhere."""

import subprocess
import sys
from pathlib import Path

import pytest

from rig.paths import PROGRAM
from rig.rig import Rig

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tools"))

from tnf import program, sine, wave_header  # noqa: E402

TNF = PROGRAM.with_name("tnf.exe")


def lines(output: bytes) -> str:
    """Text, however its lines end: standard output may be a sound file, and is never changed."""
    return output.decode().replace("\r\n", "\n")


@pytest.fixture
def tnf(rig: Rig, tmp_path: Path):
    """Runs it in a folder of its own."""
    def run(*arguments: str, **options) -> subprocess.CompletedProcess:
        # Output goes to files: a pipe stays open as long as any process of Wine lives.
        with open(tmp_path / "stdout", "wb") as out, open(tmp_path / "stderr", "wb") as err:
            code = subprocess.run(["wine", TNF, *arguments], cwd=tmp_path, env=rig.env,
                                  stdin=subprocess.DEVNULL, stdout=out, stderr=err, check=False,
                                  timeout=120, **options).returncode
        return subprocess.CompletedProcess(arguments, code, (tmp_path / "stdout").read_bytes(),
                                           (tmp_path / "stderr").read_bytes())
    return run


def test_names_in_any_language(tnf, tmp_path: Path) -> None:
    (tmp_path / "müsik ♪ 音.tnf").write_bytes(program([(440, 490), (0, 490)]))
    result = tnf("check", "müsik ♪ 音.tnf")
    assert result.returncode == 1
    assert lines(result.stdout).startswith("müsik ♪ 音.tnf:10:2: error: expected a pitch above 1")
    result = tnf("check", "fehlt ♪.tnf")
    assert result.returncode == 2
    assert lines(result.stderr) == "tnf: fehlt ♪.tnf: No such file or directory\n"


def test_the_file_is_what_the_formula_says(tnf, tmp_path: Path) -> None:
    (tmp_path / "ton ♪.tnf").write_bytes(program([(440, 1490), (32000, 90)]))
    (tmp_path / "töne 音.wav").write_bytes(b"old")
    result = tnf("render", "ton ♪.tnf", "-o", "töne 音.wav")
    assert (result.returncode, result.stdout, result.stderr) == (0, b"", b"")
    wave = wave_header(4 * 70560) + sine(440, 66150) + sine(32000, 4410)
    assert (tmp_path / "töne 音.wav").read_bytes() == wave
    assert tnf("render", "ton ♪.tnf", "-o", "-").stdout == wave
    assert not list(tmp_path.glob("*.part"))


def test_a_folder_as_output(tnf, tmp_path: Path) -> None:
    (tmp_path / "a.tnf").write_bytes(program([(440, 490)]))
    (tmp_path / "folder").mkdir()
    result = tnf("render", "a.tnf", "-o", "folder")
    assert result.returncode == 2
    assert lines(result.stderr) == "tnf: folder: Is a directory\n"


def test_morse_of_an_argument_in_any_language(tnf, tmp_path: Path) -> None:
    result = tnf("import", "morse", "Ä ö", "--textbook", "-o", "a.tnf")
    assert result.returncode == 1
    result = tnf("import", "morse", "E é", "-o", "a.tnf")
    assert result.returncode == 0
    assert lines(result.stderr) == 'tnf: warning: there is no Morse code for "é"\n'
    assert (tmp_path / "a.tnf").read_bytes().split(b"\r\n")[3] == b"{Morse code: E \xe9}"
    assert tnf("check", "a.tnf").returncode == 0
