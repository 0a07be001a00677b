"""The online services of the real program, against good and bad hosts on this machine."""

from collections.abc import Callable

import pytest

from rig import bad_hosts
from rig.bad_hosts import host
from rig.online import NEWS_TITLES, PATIENCE_S, accept_update, good_site, nothing_is_left, opened
from rig.paths import SCREENS
from rig.program import GOOD_SETTINGS, MAIN_TITLE, Folders, Tonmira
from rig.resolution import cut_off
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver, User


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
        asked = [v.path for v in good.visits]
        assert sorted(asked[:2]) == ["/testcon.dat", "/updatetonmira.txt"]
        assert asked[2:] == ["/information.html"]


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
        program.wait_for_log(">> Program starting finished")

        def fits() -> bool:
            # A size given while the window is still being put up is lost: the user pulls on.
            user.xdotool("windowsize", user.x_window(news), "900", "640")
            inner = news.control("Shell Embedding").place
            return (inner.width, inner.height) == (900, 640)

        wait_for(fits, "a browser of the window's size")
        news.close()
        wait_for(lambda: program.titles() == [MAIN_TITLE], "the main window alone")
        assert main.button("Play Sound").enabled


def test_an_accepted_update_is_opened_in_the_users_browser_and_ends_the_program(
        begin: Callable[..., Tonmira], browser: str, folders: Folders) -> None:
    link = "http://a.example/setup.exe?from=2.3.6"
    with host(good_site(f"237\r\n{link}\r\n".encode())) as good:
        program = begin(good.site)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        assert "An update is found! Would you like to download the update?" in dialog.texts()
        assert dialog.items() == ["Current version: 2.3.6", "New version: 2.3.7", "Link: " + link]
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


@pytest.mark.parametrize("language", ["EN", "NL"])
def test_the_update_dialog_and_the_news_window_show_all_of_their_texts(
        rig: Rig, user: User, driver_at_dpi: tuple[Driver, int], language: str) -> None:
    driver, dpi = driver_at_dpi
    folders = Folders(rig)
    settings = list(GOOD_SETTINGS)
    settings[2] = f"Language={language}"
    folders.write_settings(settings)
    title = {"EN": "Update found", "NL": "Update gevonden"}[language]
    decline = {"EN": "Don't update", "NL": "Niet updaten"}[language]
    with host(good_site(b"237\r\nhttp://a.example/tonmira-2.3.7.exe\r\n")) as good:
        driver.ask("set", "TONMIRA_SITE", good.site)
        program = Tonmira(rig, driver, folders)
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
