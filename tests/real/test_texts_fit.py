"""No caption is cut off in its control, in either language, at 96 and 144 DPI."""

from collections.abc import Iterator
from itertools import combinations

import pytest

from bench import PROJECT, Bench, wait_for
from program import (FIRST_RUN_TITLE, GOOD_SETTINGS, MENU_ABOUT, MODES, Folders,
                     Tonmira)
from window import Driver, Place, User, Window

SCREENS = PROJECT / "out" / "screens"
DUTCH_MODES = ["Lage toon", "Gemiddelde toon", "Hoge toon", "Extreme toon", "Spooktoon",
               "Laag naar hoog", "Eigen toonhoogte", "Morsetool", "Gehoorleeftijd"]


def set_dpi(bench: Bench, dpi: int) -> None:
    bench.run("wine", "reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t",
              "REG_DWORD", "/d", str(dpi), "/f", timeout=60)


@pytest.fixture(params=[96, 144])
def driver_at_dpi(request: pytest.FixtureRequest, bench: Bench) -> Iterator[tuple[Driver, int]]:
    set_dpi(bench, request.param)
    yield Driver(bench), request.param
    set_dpi(bench, 96)


def start(bench: Bench, driver: Driver, folders: Folders, dpi: int) -> Tonmira:
    """Starts the program; past the warning of a screen that is not of 96 DPI."""
    program = Tonmira(bench, driver, folders)
    try:
        if dpi != 96:
            program.window("Warning").press("OK")
        program.wait_for_log(">> Program starting finished")
    except BaseException:
        program.finish()
        raise
    return program


def cut_off(driver: Driver, window: Window) -> list[str]:
    return [line[0] for line in driver.ask("cut", window.handle)]


@pytest.mark.parametrize(("language", "modes", "custom", "help_button", "play", "tool"), [
    ("EN", MODES, "Custom pitch", "Help", "Start", "Morse tool"),
    ("NL", DUTCH_MODES, "Eigen toonhoogte", "Help", "Starten", "Morsetool"),
])
def test_no_caption_is_cut_off(bench: Bench, user: User, driver_at_dpi: tuple[Driver, int],
                               language: str, modes: list[str], custom: str, help_button: str,
                               play: str, tool: str) -> None:
    driver, dpi = driver_at_dpi
    folders = Folders(bench)
    settings = list(GOOD_SETTINGS)
    settings[2] = f"Language={language}"
    folders.write_settings(settings)
    program = start(bench, driver, folders, dpi)

    def look_at(window: Window, name: str) -> None:
        user.screenshot(window, SCREENS / f"{name}-{language.lower()}-{dpi}.png")
        assert cut_off(driver, window) == [], name

    try:
        main = program.window()
        assert cut_off(driver, main) == []
        for mode in modes:
            main.press(mode)
            wait_for(lambda mode=mode: main.is_checked(mode), mode)
            assert cut_off(driver, main) == [], mode
        look_at(main, "main")
        main.press(custom)
        wait_for(lambda: main.button(help_button).enabled, "the help button")
        main.press(help_button)
        look_at(program.window("Help"), "help")
        main.press(tool)
        wait_for(lambda: main.is_checked(tool), tool)
        main.press(play)
        look_at(program.window(tool), "morse")
        main.choose(MENU_ABOUT)
        look_at(program.window("About Tonmira"), "about")
    finally:
        program.finish()


def lies_in(inner: Place, outer: Place) -> bool:
    return (outer.x <= inner.x and inner.x + inner.width <= outer.x + outer.width
            and outer.y <= inner.y and inner.y + inner.height <= outer.y + outer.height)


def overlap(a: Place, b: Place) -> bool:
    return (a.x < b.x + b.width and b.x < a.x + a.width
            and a.y < b.y + b.height and b.y < a.y + a.height)


@pytest.mark.parametrize(("language", "index", "refusal"), [
    ("en", 0, "I don't want to send anonymous data"),
    ("nl", 1, "Ik wil geen anonieme data verzenden"),
])
def test_the_first_run_dialog_shows_all_of_its_texts(
        bench: Bench, user: User, driver_at_dpi: tuple[Driver, int], language: str, index: int,
        refusal: str) -> None:
    driver, dpi = driver_at_dpi
    program = start(bench, driver, Folders(bench), dpi)
    try:
        dialog = program.window(FIRST_RUN_TITLE)
        dialog.select(index)
        wait_for(lambda: refusal in dialog.texts(), "the language")
        user.activate(dialog)
        user.screenshot(dialog, SCREENS / f"first-run-{language}-{dpi}.png")
        assert cut_off(driver, dialog) == []
        places = [control.place for control in dialog.controls()]
        assert all(lies_in(place, dialog.place()) for place in places)
        assert not any(overlap(a, b) for a, b in combinations(places, 2))
    finally:
        program.finish()
