"""The online services of the real program, against good and bad hosts on this machine."""

import contextlib
import re
import shutil
import subprocess
import time
from collections.abc import Callable, Iterator
from pathlib import Path

import pytest

import bad_hosts
from bad_hosts import closed_port, host, make_certificate
from bench import CACHE, PROGRAM, Bench, wait_for
from conftest import SCREENS
from program import GOOD_SETTINGS, MAIN_TITLE, Folders, Tonmira
from test_texts_fit import cut_off, driver_at_dpi  # noqa: F401
from window import Driver, User, Window

PATIENCE_S = 60  # for a busy machine; how long it took is printed
NEWS_TITLES = {"EN": "Tonmira online news", "NL": "Tonmira online nieuws (engels)"}
WEBSITE, CONTACT, DONATE = 1018, 1019, 1020  # ids of the menu's entries
LINK_TAKER_SOURCE = Path(__file__).parent / "link_taker.cpp"

Launch = Callable[..., Tonmira]


def site_of(pages: dict[str, bytes]) -> bad_hosts.Behaviour:
    """A host of these pages and no others."""
    def serve(visit: bad_hosts.Visit) -> None:
        path = visit.path
        if path in pages:
            kind = "text/html" if path.endswith(".html") else "text/plain"
            visit.answer("200 OK", f"Content-Type: {kind}", "Cache-Control: no-store",
                         f"Content-Length: {len(pages[path])}", body=pages[path])
        else:
            bad_hosts.missing(visit)

    return serve


def good_site(update_file: bytes = b"236\r\n") -> bad_hosts.Behaviour:
    return site_of({"/updatetonmira.txt": update_file, "/testcon.dat": b"ok",
                    "/information.html": b"<!DOCTYPE html><title>News</title><p>News</p>"})


@pytest.fixture
def begin(driver: Driver, launch: Launch, folders: Folders) -> Iterator[Callable[..., Tonmira]]:
    """Starts the program with a site of its own."""
    def start(site: str, language: str = "EN", update: str = "y", send: str = "n") -> Tonmira:
        settings = list(GOOD_SETTINGS)
        settings[0], settings[2], settings[3] = (
            f"AutoUpdate={update}", f"Language={language}", f"SendData={send}")
        folders.write_settings(settings)
        driver.ask("set", "TONMIRA_SITE", site)
        return launch(folders)

    yield start
    driver.ask("set", "TONMIRA_SITE", f"http://{bad_hosts.ADDRESS}:{closed_port()}")


def nothing_is_left(folders: Folders) -> bool:
    return folders.names() == ["tonmira.ini", "userdata.txt"]


def size_of_cache(bench: Bench) -> int:
    """What the system keeps of the web, in bytes."""
    return sum(path.stat().st_size for path in bench.prefix.rglob("INetCache/**/*")
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
        begin: Callable[..., Tonmira], bench: Bench, behaviour: bad_hosts.Behaviour) -> None:
    before = size_of_cache(bench)
    with host(behaviour) as bad:
        began = time.monotonic()
        expect_start_without_update(begin(bad.site), began)
        assert bad.visits
        assert size_of_cache(bench) - before < 4 << 20


def test_a_host_that_refuses(begin: Callable[..., Tonmira]) -> None:
    began = time.monotonic()
    expect_start_without_update(begin(f"http://127.0.0.1:{closed_port()}"), began)


def test_a_host_whose_certificate_no_one_vouches_for_brings_no_dialog(
        begin: Callable[..., Tonmira], bench: Bench) -> None:
    certificate = make_certificate(bench.new_folder("certificate"))
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


def test_online_the_news_window_is_filled_by_a_browser_that_was_sent_to_the_page(
        begin: Callable[..., Tonmira]) -> None:
    with host(good_site()) as good:
        program = begin(good.site)
        main = program.window(seconds=PATIENCE_S)
        program.wait_for_log(">> Program starting finished")
        assert "> Update error" not in program.folders.log()
        wait_for(lambda: sorted(program.titles()) == sorted([MAIN_TITLE, NEWS_TITLES["EN"]]),
                 "the main window and the news", 5)
        assert nothing_is_left(program.folders), program.folders.names()
        news = program.window(NEWS_TITLES["EN"])
        wait_for(lambda: any(v.path == "/information.html" for v in good.visits), "the news page")
        # The system's browser object has put its own windows into the place it was given.
        own = news.control("TonmiraBrowser")
        embedded = wait_for(lambda: [c for c in news.controls() if c.kind == "Shell Embedding"],
                            "the browser object's window")
        assert isinstance(embedded, list) and embedded[0].place == own.place
        assert (own.place.width, own.place.height) == (800, 560)
        main.close()
        program.wait_for_end()
        assert [v.path for v in good.visits] == [
            "/updatetonmira.txt", "/testcon.dat", "/information.html"]


@pytest.mark.parametrize("chunked", [False, True])
def test_a_host_that_does_not_say_how_much_it_sends_offers_its_update(
        begin: Callable[..., Tonmira], chunked: bool) -> None:
    body = b"237\r\nhttp://a.example/\r\n"

    def serve(visit: bad_hosts.Visit) -> None:
        if chunked:
            visit.answer("200 OK", "Transfer-Encoding: chunked",
                         body=b"%x\r\n%s\r\n0\r\n\r\n" % (len(body), body))
        else:
            visit.answer("200 OK", body=body)

    with host(serve) as plain:
        program = begin(plain.site)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        dialog.press("Don't update")
        wait_for(lambda: NEWS_TITLES["EN"] in program.titles(), "the news window", PATIENCE_S)
        wait_for(lambda: nothing_is_left(program.folders), "a clean folder", 10)


def test_the_browser_grows_with_the_news_window_and_closing_that_leaves_the_main_window(
        begin: Callable[..., Tonmira], user: User) -> None:
    with host(good_site()) as good:
        program = begin(good.site, update="n")
        main = program.window(seconds=PATIENCE_S)
        news = program.window(NEWS_TITLES["EN"])
        user.xdotool("windowsize", "--sync", user.x_window(news), "900", "640")

        def fits() -> bool:
            inner = news.control("Shell Embedding").place
            return (inner.width, inner.height) == (900, 640)

        wait_for(fits, "a browser of the window's size")
        news.close()
        wait_for(lambda: program.titles() == [MAIN_TITLE], "the main window alone")
        assert main.button("Play Sound").enabled


def build_link_taker() -> Path:
    exe = CACHE / "link_taker.exe"
    subprocess.run(["x86_64-w64-mingw32-g++-win32", "-std=c++20", "-O2", "-static", "-Wall",
                    "-Wextra", "-Werror", "-mwindows", LINK_TAKER_SOURCE, "-o", exe], check=True)
    return exe


@pytest.fixture
def browser(bench: Bench) -> Iterator[str]:
    """A program that opens web addresses and takes note of them; its path, without blanks."""
    exe = bench.windows_path(build_link_taker())
    assert " " not in exe

    def add(scheme: str, program: str) -> bool:
        # Starting a program by its bare name fails once in a while.
        with contextlib.suppress(subprocess.CalledProcessError):
            bench.run("wine", "reg", "add", rf"HKCR\{scheme}\shell\open\command", "/ve", "/d",
                      f'"{program}" "%1"', "/f")
            return True
        return False

    def use(program: str) -> None:
        for scheme in ("http", "https"):
            wait_for(lambda scheme=scheme: add(scheme, program), "a registry entry")

    use(exe)
    yield exe
    use(r"C:\windows\system32\winebrowser.exe")


def opened(folders: Folders) -> list[str]:
    """What the user's browser was started with."""
    try:
        return (folders.temp / "links.txt").read_text().splitlines()
    except FileNotFoundError:
        return []


def accept_update(program: Tonmira) -> Window:
    dialog = program.window("Update found", seconds=PATIENCE_S)
    assert program.titles().count(MAIN_TITLE) == 0
    dialog.press("Update")
    program.wait_for_end()
    return dialog


def test_an_accepted_update_is_opened_in_the_users_browser_and_ends_the_program(
        begin: Callable[..., Tonmira], browser: str, folders: Folders) -> None:
    link = "http://a.example/setup.exe?from=2.3.6"
    with host(good_site(f"237\r\n{link}\r\n".encode())) as good:
        program = begin(good.site)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        assert "An update is found! Would you like to download the update?" in dialog.texts()
        assert not (folders.temp / "updatetonmira.txt").exists()
        accept_update(program)
        wait_for(lambda: opened(folders), "the browser")
        assert opened(folders) == [f'<"{link}">']


def test_a_declined_update_lets_the_start_go_on(
        begin: Callable[..., Tonmira], browser: str, folders: Folders) -> None:
    with host(good_site(b"237\r\nhttp://a.example/\r\n")) as good:
        program = begin(good.site)
        program.window("Update found", seconds=PATIENCE_S).press("Don't update")
        program.window()
        program.wait_for_log(">> Program starting finished")
        assert opened(folders) == []


@pytest.mark.parametrize(("link", "address"), [
    ("http://a.example/b?c=1,2;3=4&d=%20e%26f#g", "http://a.example/b?c=1,2;3=4&d=%20e%26f#g"),
    ("http://a.example/^&|<>(x)!y!", "http://a.example/^&|<>(x)!y!"),
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


def test_a_link_that_is_no_web_address_starts_nothing(
        begin: Callable[..., Tonmira], browser: str, folders: Folders) -> None:
    with host(good_site(f"237\r\n{browser}\r\n".encode())) as good:
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


@pytest.mark.parametrize("language", ["EN", "NL"])
def test_the_update_dialog_and_the_news_window_show_all_of_their_texts(
        bench: Bench, user: User, driver_at_dpi: tuple[Driver, int],  # noqa: F811
        language: str) -> None:
    driver, dpi = driver_at_dpi
    folders = Folders(bench)
    settings = list(GOOD_SETTINGS)
    settings[2] = f"Language={language}"
    folders.write_settings(settings)
    title = {"EN": "Update found", "NL": "Update gevonden"}[language]
    decline = {"EN": "Don't update", "NL": "Niet updaten"}[language]
    with host(good_site(b"237\r\nhttp://a.example/tonmira-2.3.7.exe\r\n")) as good:
        driver.ask("set", "TONMIRA_SITE", good.site)
        program = Tonmira(bench, driver, folders)
        try:
            if dpi != 96:
                program.window("Warning").press("OK")
            dialog = program.window(title, seconds=PATIENCE_S)
            user.activate(dialog)
            user.screenshot(dialog, SCREENS / f"update-{language.lower()}-{dpi}.png")
            assert cut_off(driver, dialog) == []
            dialog.press(decline)
            news = program.window(NEWS_TITLES[language], seconds=PATIENCE_S)
            program.wait_for_log(">> Program starting finished")
            user.activate(news)
            user.screenshot(news, SCREENS / f"news-{language.lower()}-{dpi}.png")
            place = news.control("TonmiraBrowser").place
            assert (place.width, place.height) == (800 * dpi // 96, 560 * dpi // 96)
        finally:
            program.finish()


@pytest.fixture
def copy_with_noting_upload_program(bench: Bench) -> Path:
    """A copy of the program in a folder whose name the command interpreter acts on; in place of
    the upload program stands one that takes note of its start."""
    folder = bench.new_folder("Tom & (Jerry)") / "Tonmira"
    shutil.copytree(PROGRAM.parent, folder)
    shutil.copy(build_link_taker(), folder / "upsend.exe")
    return folder / PROGRAM.name


@pytest.mark.parametrize(("send", "starts"), [("y", ["<>"]), ("n", [])])
def test_the_log_is_handed_to_the_upload_program_at_the_end_only_with_consent(
        launch: Launch, folders: Folders, copy_with_noting_upload_program: Path, send: str,
        starts: list[str]) -> None:
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
        temp = program.bench.windows_path(folders.temp)
        lines = (folders.temp / "snd.ini").read_bytes().decode().split("\r\n")
        assert lines[0] == temp + "\\userdata.txt"
        assert re.fullmatch(r"\d+\.txt", lines[1]) and lines[2:] == [""]
    else:
        assert not (folders.temp / "snd.ini").exists()
