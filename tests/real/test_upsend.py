"""The program that sends the logs: what it sends, and what it does not."""

import os
import shutil
import time
from pathlib import Path

import pytest

from rig.program import Folders
from rig.rig import Rig
from rig.served_site import ServedSite
from rig.uploading import ACTIVITY, ERROR, MIB, NOT_SENT, SENT, UPSEND, Upsend
from rig.window import Driver


def test_the_activity_log_arrives_byte_for_byte(upsend: Upsend, site: ServedSite) -> None:
    upsend.hand_over(upsend.temp + "\\userdata.txt", "4711.txt")
    assert upsend.run(site.base_url) == SENT
    assert site.received() == {"4711.txt": ACTIVITY}
    assert site.requests() == [("PUT", "/usage/4711.txt", 201)]


def test_the_error_log_arrives_byte_for_byte(upsend: Upsend, site: ServedSite) -> None:
    upsend.hand_over("error.log", "1error.log")
    assert upsend.run(site.base_url + "/") == SENT
    assert site.received() == {"1error.log": ERROR}


def test_any_bytes_of_up_to_one_mebibyte_arrive(upsend: Upsend, site: ServedSite) -> None:
    content = os.urandom(MIB)
    (upsend.folders.temp / "userdata.txt").write_bytes(content)
    upsend.hand_over(upsend.temp + "\\userdata.txt", "32767.txt")
    assert upsend.run(site.base_url) == SENT
    assert site.received() == {"32767.txt": content}


@pytest.mark.parametrize("content", [b"", b"x" * (MIB + 1)], ids=["empty", "too large"])
def test_of_a_log_that_is_empty_or_too_large_nothing_is_sent(
        upsend: Upsend, site: ServedSite, content: bytes) -> None:
    (upsend.folders.temp / "userdata.txt").write_bytes(content)
    upsend.hand_over(upsend.temp + "\\userdata.txt", "4711.txt")
    assert upsend.run(site.base_url) == NOT_SENT
    assert site.requests() == []


@pytest.mark.parametrize("file", [
    "{temp}\\secret.txt", "{temp}\\sub\\userdata.txt", "{temp}\\..\\userdata.txt",
    "{temp}\\sub\\..\\userdata.txt", "Z:\\etc\\passwd", "C:\\windows\\win.ini", "snd.ini",
    "..\\error.log", "NUL", "{temp}\\userdata.txt:stream", "*.txt",
])
def test_no_other_file_is_sent(upsend: Upsend, site: ServedSite, file: str) -> None:
    temp = upsend.folders.temp
    (temp / "sub").mkdir()
    for path in (temp / "secret.txt", temp / "sub" / "userdata.txt", temp.parent / "userdata.txt",
                 temp.parent / "error.log"):
        path.write_bytes(b"secret")
    for name in ("4711.txt", "4711error.log"):
        upsend.hand_over(file.format(temp=upsend.temp), name)
        assert upsend.run(site.base_url) == NOT_SENT
    assert site.requests() == []


@pytest.mark.parametrize("name", ["../index.html", "..\\1.txt", "index.html", "1.txt.exe", ".txt",
                                  "1/2.txt", "http://127.0.0.1/1.txt", "4711error.log"])
def test_no_other_name_is_used_on_the_server(
        upsend: Upsend, site: ServedSite, name: str) -> None:
    upsend.hand_over(upsend.temp + "\\userdata.txt", name)
    assert upsend.run(site.base_url) == NOT_SENT
    assert site.requests() == []


def test_a_link_is_not_followed_and_a_folder_is_no_log(upsend: Upsend, site: ServedSite) -> None:
    secret = upsend.folders.temp.parent / "secret.txt"
    secret.write_bytes(b"secret")
    log = upsend.folders.temp / "userdata.txt"
    log.unlink()
    os.link(secret, log)
    upsend.hand_over(upsend.temp + "\\userdata.txt", "4711.txt")
    assert upsend.run(site.base_url) == NOT_SENT
    log.unlink()
    log.mkdir()
    assert upsend.run(site.base_url) == NOT_SENT
    assert site.requests() == []


def test_without_a_hand_over_file_or_a_log_it_just_ends(
        upsend: Upsend, site: ServedSite) -> None:
    assert upsend.run(site.base_url) == NOT_SENT
    (upsend.folders.temp / "error.log").unlink()
    upsend.hand_over("error.log", "4711error.log")
    assert upsend.run(site.base_url) == NOT_SENT
    assert site.requests() == []


@pytest.mark.parametrize("text", [
    pytest.param(b"", id="empty"), pytest.param(b"\0" * 100, id="zeroes"),
    pytest.param(b"error.log\r\n", id="one line"),
    pytest.param(b"error.log" * 100_000, id="overlong"),
    pytest.param("error.log\r\n4711error.log\r\n".encode("utf-16"), id="utf-16")])
def test_a_damaged_hand_over_file_sends_nothing(
        upsend: Upsend, site: ServedSite, text: bytes) -> None:
    (upsend.folders.temp / "snd.ini").write_bytes(text)
    assert upsend.run(site.base_url) == NOT_SENT
    assert site.requests() == []


def test_folders_with_any_characters_work(
        rig: Rig, driver: Driver, site: ServedSite) -> None:
    folders = Folders(rig, "Zo\u00eb \u6771\u4eac & (x86)")
    upsend = Upsend(rig, driver, folders)
    home = rig.new_folder("My Tools (x64) & more")
    upsend.exe = Path(shutil.copy(UPSEND, home))
    (folders.temp / "userdata.txt").write_bytes(ACTIVITY)
    # The program writes a question mark for what its code page lacks.
    upsend.hand_over(upsend.temp.replace("\u6771\u4eac", "??") + "\\userdata.txt", "4711.txt")
    assert upsend.run(site.base_url) == SENT
    assert site.received() == {"4711.txt": ACTIVITY}


def test_a_log_that_is_empty_because_it_is_just_rewritten_is_waited_for(
        upsend: Upsend, site: ServedSite) -> None:
    log = upsend.folders.temp / "userdata.txt"
    log.write_bytes(b"")
    upsend.hand_over(upsend.temp + "\\userdata.txt", "4711.txt")
    process = upsend.start(site.base_url)
    time.sleep(0.6)
    log.write_bytes(ACTIVITY)
    assert upsend.wait(process) == SENT
    assert site.received() == {"4711.txt": ACTIVITY}


def test_two_uploads_in_quick_succession_send_one_log_whole_or_each(
        upsend: Upsend, site: ServedSite) -> None:
    upsend.hand_over(upsend.temp + "\\userdata.txt", "4711.txt")
    first = upsend.start(site.base_url)
    upsend.hand_over("error.log", "4712error.log")
    second = upsend.start(site.base_url)
    upsend.wait(first)
    assert {upsend.wait(second)} <= {SENT, NOT_SENT}
    received = site.received()
    assert received["4712error.log"] == ERROR
    assert received.get("4711.txt", ACTIVITY) == ACTIVITY
    assert set(received) <= {"4711.txt", "4712error.log"}
