"""The help beside the built program: the guide as it is now, with its pictures."""

import subprocess
from pathlib import Path

import pytest

from rig.paths import PROGRAM, PROJECT

HELP = PROGRAM.parent / "help"
GUIDE = PROJECT / "guide"


@pytest.mark.parametrize("language", ["en", "nl"])
def test_the_help_is_the_guide(tmp_path: Path, language: str) -> None:
    made = tmp_path / "guide.html"
    subprocess.run(
        ["cmake", f"-DGUIDE={GUIDE}", f"-DSTYLE={PROJECT / 'site' / 'style.css'}",
         f"-DLANGUAGE={language}", "-DVERSION=2.3.6", f"-DTARGET={made}",
         "-P", PROJECT / "cmake" / "make_help.cmake"], check=True)
    assert (HELP / f"guide_{language}.html").read_bytes() == made.read_bytes()
    # Nothing is lost on the way from the text to the page.
    text = (GUIDE / f"{language}.html").read_text().replace("${pictures}", "pictures/")
    assert text.replace("${version}", "2.3.6") in made.read_text()
    assert (PROJECT / "site" / "style.css").read_text() in made.read_text()


def test_its_pictures_are_the_guides_and_nothing_else_is_there() -> None:
    shipped = {str(path.relative_to(HELP)): path.read_bytes()
               for path in HELP.rglob("*") if path.is_file() and path.suffix != ".html"}
    assert shipped == {f"pictures/{path.name}": path.read_bytes()
                       for path in (GUIDE / "pictures").iterdir()}
    assert {path.name for path in HELP.iterdir()} == {
        "guide_en.html", "guide_nl.html", "pictures"}
