"""The real program, its upload helper and the real site together."""

import re
import time
from collections.abc import Callable

from rig.online import NEWS_TITLES, PATIENCE_S
from rig.program import MAIN_TITLE, Folders, Tonmira
from rig.rig import Rig
from rig.served_site import ServedSite, served_site
from rig.waiting import wait_for


def start(begin: Callable[..., Tonmira], site: ServedSite, **settings: str) -> Tonmira:
    program = begin(site.base_url, **settings)
    program.window(seconds=PATIENCE_S)
    program.wait_for_log(">> Program starting finished")
    return program


def test_a_start_asks_the_site_for_the_update_the_connection_test_and_the_news(
        begin: Callable[..., Tonmira], site: ServedSite) -> None:
    program = start(begin, site)
    wait_for(lambda: sorted(program.titles()) == sorted([MAIN_TITLE, NEWS_TITLES["EN"]]),
             "the main window and the news")
    site.wait_for_request("GET", "/information.html")
    # Both are asked for at once, before the news.
    assert sorted(site.requests()[:2]) == [
        ("GET", "/testcon.dat", 200), ("GET", "/updatetonmira.txt", 200)]
    assert "> Update error" not in program.folders.log()
    assert program.folders.names() == ["tonmira.ini", "userdata.txt"]


def test_a_newer_version_on_the_site_is_offered(
        rig: Rig, begin: Callable[..., Tonmira]) -> None:
    update = {"updatetonmira.txt": b"237\r\nhttps://www.tonmira.example/get\r\n"}
    with served_site(rig.folder, update) as site:
        program = begin(site.base_url)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        dialog.press("Don't update")
        program.window()


def test_with_consent_the_log_arrives_at_the_site_byte_for_byte_when_the_program_ends(
        begin: Callable[..., Tonmira], site: ServedSite, folders: Folders) -> None:
    program = start(begin, site, send="y")
    program.window().close()
    program.wait_for_end()
    wait_for(site.received, "the upload", 30)
    (name, content), = site.received().items()
    assert re.fullmatch(r"\d{1,5}\.txt", name)
    assert content == folders.log_file.read_bytes()
    assert b">> Program starting finished\r\n" in content


def test_without_consent_nothing_is_sent(
        begin: Callable[..., Tonmira], site: ServedSite, folders: Folders) -> None:
    program = start(begin, site, send="n")
    program.window().close()
    program.wait_for_end()
    time.sleep(3)
    assert site.received() == {}
    assert not any(method == "PUT" for method, _, _ in site.requests())
    assert "snd.ini" not in folders.names()
