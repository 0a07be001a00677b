"""The start-up against hosts that do not do what they should."""

import time
from collections.abc import Callable

import pytest

from rig import bad_hosts
from rig.bad_hosts import closed_port, host, make_certificate
from rig.online import PATIENCE_S, good_site, nothing_is_left, opened
from rig.program import MAIN_TITLE, Folders, Tonmira
from rig.rig import Rig
from rig.waiting import wait_for


def size_of_cache(rig: Rig) -> int:
    """What the system keeps of the web, in bytes."""
    return sum(path.stat().st_size for path in rig.prefix.rglob("INetCache/**/*")
               if path.is_file())


def answers_until_main_window(program: Tonmira) -> int:
    """How often the status window answered before the main window came."""
    answers = 0
    end = time.monotonic() + PATIENCE_S
    while time.monotonic() < end:
        shown = {w.title: w for w in program.driver.windows()
                 if w.process == program.process and w.visible}
        if MAIN_TITLE in shown:
            return answers
        if "Starting Tonmira" in shown:
            # Comes back only when the program handles its messages, or fails as the window goes.
            try:
                program.driver.ask("checked", shown["Starting Tonmira"].handle)
                answers += 1
            except RuntimeError:
                program.window(seconds=1)
        time.sleep(0.05)
    raise TimeoutError("the main window")


def expect_start_without_update(program: Tonmira, began: float) -> None:
    window = program.window(seconds=PATIENCE_S)
    print(f"main window after {time.monotonic() - began:.1f} s")
    program.wait_for_log(">> Program starting finished")
    wait_for(lambda: program.titles() == [MAIN_TITLE], "the main window alone", 5)
    assert "> Update error" in program.folders.log()
    wait_for(lambda: nothing_is_left(program.folders), f"a clean folder: {program.folders.names()}",
             10)
    window.close()
    program.wait_for_end()
    assert nothing_is_left(program.folders), program.folders.names()


@pytest.mark.parametrize("behaviour", [
    bad_hosts.silent, bad_hosts.resetting, bad_hosts.redirecting_in_a_circle,
    bad_hosts.redirecting_to_a_file, bad_hosts.a_byte_a_second, bad_hosts.endless,
    bad_hosts.endless_in_pieces, bad_hosts.breaking_off, bad_hosts.talking_nonsense,
    bad_hosts.a_gigabyte, bad_hosts.asking_for_a_password, bad_hosts.missing,
    bad_hosts.failing], ids=lambda behaviour: behaviour.__name__)
def test_a_bad_host_delays_the_main_window_but_leaves_nothing(
        begin: Callable[..., Tonmira], rig: Rig, behaviour: bad_hosts.Behaviour) -> None:
    before = size_of_cache(rig)
    with host(behaviour) as bad:
        began = time.monotonic()
        expect_start_without_update(begin(bad.site), began)
        assert bad.visits
        assert size_of_cache(rig) - before < 4 << 20


def test_a_host_that_refuses(begin: Callable[..., Tonmira]) -> None:
    began = time.monotonic()
    expect_start_without_update(begin(f"http://127.0.0.1:{closed_port()}"), began)


def test_a_host_whose_certificate_no_one_vouches_for_brings_no_dialog(
        begin: Callable[..., Tonmira], rig: Rig) -> None:
    certificate = make_certificate(rig.new_folder("certificate"))
    with host(good_site(b"999\r\nhttp://a\r\n"), certificate) as bad:
        began = time.monotonic()
        expect_start_without_update(begin(bad.site), began)
        assert not bad.visits


def test_the_program_answers_while_it_waits_for_a_silent_host(
        begin: Callable[..., Tonmira]) -> None:
    with host(bad_hosts.silent) as bad:
        program = begin(bad.site)
        program.window("Starting Tonmira")
        assert answers_until_main_window(program) >= 10


def test_a_silent_host_is_asked_for_both_files_before_either_is_given_up(
        begin: Callable[..., Tonmira]) -> None:
    with host(bad_hosts.silent) as bad:
        program = begin(bad.site)
        status = program.window("Starting Tonmira")
        wait_for(lambda: len(bad.visits) == 2, "both requests", 2.5)
        assert MAIN_TITLE not in program.titles()
        assert sorted(v.path for v in bad.visits) == ["/testcon.dat", "/updatetonmira.txt"]
        wait_for(lambda: "Waiting for the web site..." in status.texts(), "a word about it", 2)
        program.window(seconds=PATIENCE_S)


def test_with_updates_off_a_silent_host_is_asked_for_the_test_file_alone(
        begin: Callable[..., Tonmira]) -> None:
    with host(bad_hosts.silent) as bad:
        program = begin(bad.site, update="n")
        program.window(seconds=PATIENCE_S)
        assert [v.path for v in bad.visits] == ["/testcon.dat"]


def test_an_update_that_is_accepted_leaves_nothing_of_a_test_file_that_has_arrived(
        begin: Callable[..., Tonmira], browser: str, folders: Folders) -> None:
    with host(good_site(bad_hosts.UPDATE)) as good:
        program = begin(good.site)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        wait_for(lambda: any(name.startswith("testcon.dat.") for name in folders.names()),
                 "the test file under its first name")
        dialog.press("Update")
        program.wait_for_end()
        wait_for(lambda: opened(folders), "the browser")
        assert folders.names() == ["links.txt", "tonmira.ini", "userdata.txt"]


def test_the_program_can_be_ended_while_a_download_that_it_gave_up_goes_on(
        begin: Callable[..., Tonmira]) -> None:
    with host(bad_hosts.silent) as bad:
        program = begin(bad.site)
        program.window(seconds=PATIENCE_S).close()
        program.wait_for_end()
        assert nothing_is_left(program.folders), program.folders.names()


def test_a_captive_portal_brings_no_update(begin: Callable[..., Tonmira]) -> None:
    page = b"<!DOCTYPE html>\n<html>\n<title>Log in</title>\n<p>999</p>\n</html>\n"
    with host(bad_hosts.answering(page, "text/html")) as portal:
        program = begin(portal.site)
        program.window(seconds=PATIENCE_S)
        program.wait_for_log(">> Program starting finished")
        assert "Update found" not in program.titles()
        wait_for(lambda: nothing_is_left(program.folders), "a clean folder", 10)


def test_nonsense_for_a_site_falls_back_to_the_built_in_one(begin: Callable[..., Tonmira]) -> None:
    with host(good_site(b"999\r\nhttp://a\r\n")) as good:
        program = begin(good.site.replace("http:", "gopher:"))
        program.window(seconds=PATIENCE_S)
        program.wait_for_log(">> Program starting finished")
        assert not good.visits
        wait_for(lambda: program.titles() == [MAIN_TITLE], "the main window alone", 5)
