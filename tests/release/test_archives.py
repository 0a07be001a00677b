"""What is released is what was built, complete, with its sums."""

import hashlib
import re
import struct
import subprocess
import zipfile
from pathlib import Path

from check_hardening import header_complaints, library_complaints
from conftest import DIST, PROJECT, VERSION, Kind, files_of

PROGRAMS = {"tonmira.exe", "play16.exe", "tone16.dll", "tone32.dll", "upsend.exe", "hearage.dll",
            "tnf.exe"}
SAMPLES = {f"samples/{name}.tnf" for name in (
    "auld-lang-syne", "glissando", "hearing-sweep", "ode-to-joy", "scale", "siren", "telephone",
    "westminster-chimes")}
TEXTS = {"lng_en.dll", "lng_nl.dll", "readme.txt", "changes.txt"}
RELEASED = {f"tonmira-{VERSION}-{end}" for end in (
    "portable.zip", "setup.exe", "portable-x86.zip", "setup-x86.exe")}


def without_signature(program: bytes) -> bytes:
    """Its bytes with the two fields of the header blank that a signature changes: the check sum and
    the place of the certificates, which follow what was there."""
    header = struct.unpack_from("<I", program, 0x3C)[0] + 24  # the optional header
    wide = struct.unpack_from("<H", program, header)[0] == 0x20B
    certificates = header + (112 if wide else 96) + 4 * 8
    blank = bytearray(program)
    blank[header + 64:header + 68] = bytes(4)
    blank[certificates:certificates + 8] = bytes(8)
    return bytes(blank)


def test_the_sums_are_those_of_the_four_files() -> None:
    lines = (DIST / "SHA256SUMS").read_text().splitlines()
    sums = {name: digest for digest, name in (line.split("  ") for line in lines)}
    assert sums == {name: hashlib.sha256((DIST / name).read_bytes()).hexdigest()
                    for name in RELEASED}


def test_nothing_of_another_version_lies_beside_them() -> None:
    assert {path.name for path in DIST.glob("tonmira-*")} == RELEASED


def test_the_archive_is_the_folder_that_was_built(kind: Kind, portable: Path) -> None:
    built, packed = files_of(kind.build), files_of(portable)
    assert set(packed) == set(built)
    assert set(packed) >= PROGRAMS | SAMPLES | TEXTS
    assert {name for name in packed if packed[name][:2] == b"MZ"} == PROGRAMS
    for name in set(built) - PROGRAMS:
        assert packed[name] == built[name], name
    for name in PROGRAMS:
        whole = without_signature(built[name])
        assert without_signature(packed[name])[:len(whole)] == whole, name


def test_the_archive_holds_one_folder_of_plain_files(kind: Kind) -> None:
    commit = subprocess.run(["git", "-c", f"safe.directory={PROJECT}", "log", "-1",
                             "--date=format-local:%Y %m %d %H %M %S", "--format=%cd"],
                            cwd=PROJECT, env={"TZ": "UTC"}, check=True, stdout=subprocess.PIPE,
                            text=True).stdout
    moment = [int(part) for part in commit.split()]
    moment[5] -= moment[5] % 2  # the format counts in two seconds
    with zipfile.ZipFile(DIST / kind.archive) as archive:
        entries = archive.infolist()
    assert [entry.filename for entry in entries] == sorted(entry.filename for entry in entries)
    assert {entry.filename.split("/")[0] for entry in entries} == {"tonmira"}
    assert {entry.external_attr >> 16 for entry in entries} == {0o100644}
    assert {entry.date_time for entry in entries} == {tuple(moment)}


def test_the_installer_holds_all_of_it(kind: Kind, portable: Path, tmp_path_factory) -> None:
    folder = tmp_path_factory.mktemp("setup")
    subprocess.run(["7zz", "x", "-y", f"-o{folder}", DIST / kind.setup], check=True,
                   stdout=subprocess.DEVNULL)
    contents = set(files_of(folder).values())
    assert [name for name, content in files_of(portable).items() if content not in contents] == []


def test_a_signed_program_keeps_its_protections(kind: Kind, portable: Path) -> None:
    for name in PROGRAMS:
        dump = subprocess.run([kind.objdump, "-p", portable / name], check=True, text=True,
                              stdout=subprocess.PIPE).stdout
        assert header_complaints(dump, wide=kind.mark == "") == [], name
        assert library_complaints(dump) == [], name


def test_the_texts_open_in_any_editor(portable: Path) -> None:
    for name in ("readme.txt", "changes.txt"):
        text = (portable / name).read_bytes()
        assert re.search(rb"[^\r]\n|\r[^\n]", text) is None, name
        assert text.endswith(b"\r\n") and len(text) > 500, name
        assert text.isascii() or text.startswith("\ufeff".encode()), name


def test_the_changes_begin_with_this_version(portable: Path) -> None:
    lines = (portable / "changes.txt").read_text("utf-8-sig").splitlines()
    first = next(line for line in lines if line[:1].isdigit())
    assert re.fullmatch(rf"{re.escape(VERSION)}\b.*", first)
    assert not any("`" in line or line.startswith("#") for line in lines)
