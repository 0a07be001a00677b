"""The download page: what ./release has left is offered with its sums, and nothing else."""

import hashlib
import re
import subprocess
import sys
from pathlib import Path

import pytest

from browser import Browser
from rig.paths import PROJECT
from rig.served_site import served_site

# Names with contents of a size whose text is known.
FILES = {
    "tonmira-2.3.6-setup.exe": (b"a" * 1_250_000, "1.2 MB"),
    "tonmira-2.3.6-portable.zip": (b"b" * 999_000, "999 kB"),
    "tonmira-2.3.6-setup-x86.exe": (b"c" * 12_400_000, "12.4 MB"),
    "tonmira-2.3.6-portable-x86.zip": (b"d" * 700, "1 kB"),
}


@pytest.fixture
def dist(tmp_path: Path) -> Path:
    folder = tmp_path / "dist"
    folder.mkdir()
    for name, (content, _) in FILES.items():
        (folder / name).write_bytes(content)
    sums = subprocess.run(["sha256sum", *FILES], cwd=folder, check=True, stdout=subprocess.PIPE)
    (folder / "SHA256SUMS").write_bytes(sums.stdout)
    return folder


def make(site: Path, *options: str | Path) -> subprocess.CompletedProcess:
    return subprocess.run([sys.executable, PROJECT / "site" / "make_site.py", site, *options],
                          stderr=subprocess.PIPE, text=True, check=False)


def test_each_file_is_offered_with_its_size_and_sum_and_is_there(
        tmp_path: Path, dist: Path, browser: Browser) -> None:
    assert make(tmp_path / "made", "--downloads", dist).returncode == 0
    files = {str(path.relative_to(tmp_path / "made")): path.read_bytes()
             for path in (tmp_path / "made").rglob("*") if path.is_file()}
    for name, (content, _) in FILES.items():
        assert files["downloads/" + name] == content
    assert files["downloads/SHA256SUMS"] == (dist / "SHA256SUMS").read_bytes()
    with served_site(tmp_path, {"download/index.html": files["download/index.html"]}) as site:
        browser.open(site.base_url + "/download/")
        links = browser.addresses("main .group a[href*=downloads]", "href")
        assert links == [f"{site.base_url}/downloads/{name}" for name in FILES]
        groups = browser.ask("return [...document.querySelectorAll('main .group')]"
                             ".map(group => group.innerText)")
        assert isinstance(groups, list)
        for text, (name, (content, size)) in zip(groups, FILES.items()):
            assert f"{name}, {size}\n" in text
            assert f"SHA-256: {hashlib.sha256(content).hexdigest()}" in text
            assert ("32-bit Windows" if "x86" in name else "64-bit Windows") in text
        browser.look(360, 740, "light")
        assert browser.ask("return document.documentElement.scrollWidth") == 360
    check = subprocess.run(["tidy", "-e", "-q", "--warn-proprietary-attributes", "no",
                            tmp_path / "made" / "download" / "index.html"],
                           stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=False)
    assert (check.returncode, check.stderr) == (0, "")


def test_without_them_the_page_says_how_they_are_made(tmp_path: Path) -> None:
    assert make(tmp_path / "made").returncode == 0
    assert not (tmp_path / "made" / "downloads").exists()
    page = (tmp_path / "made" / "download" / "index.html").read_text()
    assert "offers no files" in page and "<code>./release</code>" in page
    assert re.findall(r"href=\"[^\"]*downloads", page) == []


@pytest.mark.parametrize("name", FILES)
def test_a_file_that_is_not_the_one_of_its_sum_is_not_offered(
        tmp_path: Path, dist: Path, name: str) -> None:
    (dist / name).write_bytes(FILES[name][0] + b"!")
    refused = make(tmp_path / "made", "--downloads", dist)
    assert refused.returncode == 1
    assert name in refused.stderr and "SHA256SUMS" in refused.stderr
    assert not (tmp_path / "made").exists()


@pytest.mark.parametrize("name", [*FILES, "SHA256SUMS"])
def test_a_missing_file_is_named(tmp_path: Path, dist: Path, name: str) -> None:
    (dist / name).unlink()
    refused = make(tmp_path / "made", "--downloads", dist)
    assert refused.returncode == 1
    assert name in refused.stderr
    assert not (tmp_path / "made").exists()


def test_a_file_without_a_stated_sum_is_not_offered(tmp_path: Path, dist: Path) -> None:
    lines = (dist / "SHA256SUMS").read_text().splitlines(keepends=True)
    (dist / "SHA256SUMS").write_text("".join(lines[1:]))
    refused = make(tmp_path / "made", "--downloads", dist)
    assert refused.returncode == 1
    assert "SHA256SUMS says nothing of tonmira-2.3.6-setup.exe" in refused.stderr


def test_an_existing_folder_is_left_alone(tmp_path: Path) -> None:
    (tmp_path / "made").mkdir()
    assert make(tmp_path / "made").returncode == 2
    assert list((tmp_path / "made").iterdir()) == []
