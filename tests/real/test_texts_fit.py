"""No caption is cut off in its control, in either language, at 96 and 144 DPI."""

from itertools import combinations

import pytest

from rig.paths import SCREENS
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, MENU_ABOUT, MODES, Folders
from rig.resolution import cut_off, start_at_dpi
from rig.rig import Rig
from rig.waiting import wait_for
from rig.window import Driver, Place, User, Window

DUTCH_MODES = ["Lage toon", "Gemiddelde toon", "Hoge toon", "Extreme toon", "Spooktoon",
               "Laag naar hoog", "Eigen toonhoogte", "Morsetool", "Gehoorleeftijd"]


SM_CYMENU = 15


def menu_lines(driver: Driver, window: Window, without_menu: Window) -> float:
    """How many lines its menu bar takes, beside a window with the same frame and none."""
    def frame_height(of: Window) -> int:
        return of.place().height - of.client().height

    line_height = int(driver.ask("metric", str(SM_CYMENU))[0][0])
    return (frame_height(window) - frame_height(without_menu)) / line_height


@pytest.mark.parametrize(("language", "modes", "custom", "help_button", "play", "tool"), [
    ("EN", MODES, "Custom pitch", "Help", "Start", "Morse tool"),
    ("NL", DUTCH_MODES, "Eigen toonhoogte", "Help", "Starten", "Morsetool"),
])
def test_no_caption_is_cut_off(rig: Rig, user: User, driver_at_dpi: tuple[Driver, int],
                               language: str, modes: list[str], custom: str, help_button: str,
                               play: str, tool: str) -> None:
    driver, dpi = driver_at_dpi
    folders = Folders(rig)
    settings = list(GOOD_SETTINGS)
    settings[2] = f"Language={language}"
    folders.write_settings(settings)
    program = start_at_dpi(rig, driver, folders, dpi)

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
        morse = program.window(tool)
        look_at(morse, "morse")
        assert menu_lines(driver, main, morse) == 1
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
        rig: Rig, user: User, driver_at_dpi: tuple[Driver, int], language: str, index: int,
        refusal: str) -> None:
    driver, dpi = driver_at_dpi
    program = start_at_dpi(rig, driver, Folders(rig), dpi)
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
