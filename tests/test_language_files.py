"""How the build encodes the texts of a language: what a single-byte file can hold, and a refusal of
the rest."""

import subprocess
from pathlib import Path

import pytest

PROJECT = Path(__file__).resolve().parents[1]


def encode(folder: Path, text: str) -> tuple[subprocess.CompletedProcess, Path]:
    source, target = folder / "xx.txt", folder / "lng_xx.dll"
    source.write_text(text, encoding="utf-8")
    done = subprocess.run(
        ["cmake", f"-DSOURCE={source}", f"-DTARGET={target}",
         "-P", PROJECT / "cmake" / "encode_language.cmake"],
        stderr=subprocess.PIPE, encoding="utf-8", check=False)
    return done, target


def test_latin_1_becomes_one_byte_each_and_comments_go(tmp_path: Path) -> None:
    done, target = encode(tmp_path, "# once\n%valid%\n\nlang=xx\n# twice\né, Ü ÿ; [x]\n")
    assert done.returncode == 0, done.stderr
    assert target.read_bytes() == b"%valid%\r\nlang=xx\r\n\xe9, \xdc \xff; [x]\r\n"


@pytest.mark.parametrize("text", ["żółty", "Χαμηλός", "низкий", "€ 5", "“so”", "日本"])
def test_other_characters_are_refused_with_the_file_and_the_reason(
        tmp_path: Path, text: str) -> None:
    done, target = encode(tmp_path, f"%valid%\n{text}\n")
    assert done.returncode != 0
    said = " ".join(done.stderr.split())
    assert "xx.txt holds what the code page has not: " + text[0] in said
    assert "docs/languages.md" in said
    assert not target.exists()


@pytest.mark.parametrize("language", ["en", "nl"])
def test_what_ships_is_right_in_every_code_page(language: str) -> None:
    assert (PROJECT / "resources" / "languages" / f"{language}.txt").read_bytes().isascii()
