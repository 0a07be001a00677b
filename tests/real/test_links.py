"""What reaches the user's browser, and what is handed to the upload program."""

import re
import time
from collections.abc import Callable
from pathlib import Path

import pytest

from rig.bad_hosts import closed_port, host
from rig.online import CONTACT, DONATE, PATIENCE_S, WEBSITE, accept_update, good_site, opened
from rig.program import GOOD_SETTINGS, Folders, Tonmira
from rig.waiting import wait_for


@pytest.mark.parametrize(("link", "address"), [
    ("http://a.example/b?c=1,2;3=4&d=%20e%26f#g", "http://a.example/b?c=1,2;3=4&d=%20e%26f#g"),
    ("http://a.example/^&|<>(x)", "http://a.example/^&|<>(x)"),
    ("http://a.example/^", "http://a.example/^"),
    ("http://a.example/%TEMP%/%PATH:~0,5%", "http://a.example/%25TEMP%25/%25PATH:~0,5%25"),
])
def test_what_the_command_interpreter_acts_on_reaches_the_browser_as_part_of_the_address(
        begin: Callable[..., Tonmira], browser: str, folders: Folders, link: str,
        address: str) -> None:
    with host(good_site(f"237\r\n{link}\r\n".encode())) as good:
        accept_update(begin(good.site))
        wait_for(lambda: opened(folders), "the browser")
        assert opened(folders) == [f'<"{address}">']


@pytest.mark.parametrize("between", ["&", "&&", "|", "||", "^&"])
def test_a_link_that_ends_in_a_command_starts_no_second_command(
        begin: Callable[..., Tonmira], browser: str, folders: Folders, between: str) -> None:
    link = f"http://a.example/{between}{browser}"
    with host(good_site(f"237\r\n{link}\r\n".encode())) as good:
        accept_update(begin(good.site))
        wait_for(lambda: opened(folders), "the browser")
        time.sleep(2)
        assert opened(folders) == [f'<"{link}">']


@pytest.mark.parametrize("link", ["", "http://a.example/!x!"], ids=["a-program", "with-marks"])
def test_a_link_that_is_no_web_address_starts_nothing(
        begin: Callable[..., Tonmira], browser: str, folders: Folders, link: str) -> None:
    with host(good_site(f"237\r\n{link or browser}\r\n".encode())) as good:
        program = begin(good.site)
        program.window("Update found", seconds=PATIENCE_S).press("Update")
        program.window()
        program.wait_for_log(">> Program starting finished")
        assert "> Update error" in folders.log()
        assert opened(folders) == []


def test_the_menus_open_the_pages_of_the_site(
        begin: Callable[..., Tonmira], browser: str, folders: Folders) -> None:
    site = f"http://127.0.0.1:{closed_port()}/tonmira"
    program = begin(site, update="n")
    window = program.window(seconds=PATIENCE_S)
    for number, (command, page) in enumerate(
            [(WEBSITE, "/"), (CONTACT, "/contact-us"), (DONATE, "/donate")], start=1):
        window.choose(command)
        wait_for(lambda: len(opened(folders)) == number, page)
        assert opened(folders)[-1] == f'<"{site}{page}">'
    assert program.folders.log()[-3:] == ["> Visiting site", "> Visiting donation page",
                                          "> Visiting donation page"]


@pytest.mark.parametrize(("send", "starts"), [("y", ["<>"]), ("n", [])])
def test_the_log_is_handed_to_the_upload_program_at_the_end_only_with_consent(
        launch: Callable[..., Tonmira], folders: Folders, copy_with_noting_upload_program: Path,
        send: str, starts: list[str]) -> None:
    settings = list(GOOD_SETTINGS)
    settings[3] = f"SendData={send}"
    folders.write_settings(settings)
    program = launch(folders, exe=copy_with_noting_upload_program)
    window = program.window(seconds=PATIENCE_S)
    program.wait_for_log(">> Program starting finished")
    assert not (folders.temp / "snd.ini").exists()
    window.close()
    program.wait_for_end()
    time.sleep(2)
    assert opened(folders) == starts
    if send == "y":
        temp = program.rig.windows_path(folders.temp)
        lines = (folders.temp / "snd.ini").read_bytes().decode().split("\r\n")
        assert lines[0] == temp + "\\userdata.txt"
        assert re.fullmatch(r"\d+\.txt", lines[1]) and lines[2:] == [""]
    else:
        assert not (folders.temp / "snd.ini").exists()
