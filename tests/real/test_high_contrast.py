"""The windows in a high-contrast scheme of the system: every text stands out from its ground."""

from collections.abc import Callable, Iterator

import numpy as np
import pytest

from rig.contrast import best_contrast
from rig.hearing import Listener, start_hearing_test
from rig.paths import SCREENS
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.rig import Rig
from rig.screen import Screen
from rig.waiting import wait_for
from rig.window import Control, Driver, Place, User, Window

# The system's scheme "High Contrast Black".
BLACK, WHITE, GREEN, PURPLE = "0 0 0", "255 255 255", "0 255 0", "128 0 128"
SCHEME = {
    **dict.fromkeys(["AppWorkspace", "Background", "ButtonAlternateFace", "ButtonFace",
                     "InfoWindow", "Menu", "MenuBar", "Scrollbar", "Window"], BLACK),
    **dict.fromkeys(["ActiveBorder", "ButtonDkShadow", "ButtonHilight", "ButtonLight",
                     "ButtonShadow", "ButtonText", "HilightText", "InactiveBorder",
                     "InactiveTitleText", "InfoText", "MenuText", "TitleText", "WindowFrame",
                     "WindowText"], WHITE),
    **dict.fromkeys(["GradientInactiveTitle", "GrayText", "InactiveTitle"], GREEN),
    **dict.fromkeys(["ActiveTitle", "GradientActiveTitle", "Hilight", "MenuHilight"], PURPLE),
}
COLOURS = r"HKEY_CURRENT_USER\Control Panel\Colors"
THEMES = r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\ThemeManager"
# What readable text needs (W3C, Web Content Accessibility Guidelines 2.1, level AA).
READABLE = 4.5


def put(rig: Rig, values: dict[str, str], active: str) -> None:
    """Writes colours as they stand in a registry file, and whether controls are themed."""
    colours = [f'"{name}"={value}' for name, value in values.items()]
    lines = ["REGEDIT4", "", f"[{COLOURS}]", *colours,
             "", f"[{THEMES}]", f'"ThemeActive"="{active}"', ""]
    path = rig.new_folder("colours") / "colours.reg"
    path.write_text("\r\n".join(lines))
    rig.run("wine", "regedit", "/S", rig.windows_path(path))


@pytest.fixture(scope="module", params=["0", "1"], ids=["plain", "themed"])
def high_contrast(rig: Rig, driver: Driver, request: pytest.FixtureRequest) -> Iterator[None]:
    """Also with a visual style that takes no notice of the scheme."""
    before = rig.prefix / "before.reg"
    rig.run("wine", "regedit", "/E", rig.windows_path(before), COLOURS)
    put(rig, {name: f'"{colour}"' for name, colour in SCHEME.items()},
        active=request.param)
    yield
    put(rig, dict.fromkeys(SCHEME, "-"), active="1")
    rig.run("wine", "regedit", "/S", rig.windows_path(before))


@pytest.fixture
def started(high_contrast: None, launch: Callable[..., Tonmira], folders: Folders) -> Tonmira:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    return program


PUSH_BUTTON, DEFAULT_PUSH_BUTTON, GROUP_BOX = 0, 1, 7  # BS_..., the lower four bits of a style
SHOWS_TEXT = ("Static", "Button", "Edit", "ListBox", "msctls_statusbar32")


def text_place(control: Control, style: int) -> Place:
    """Where the control's text stands, without frames and marks, which would stand out for it."""
    x, y, width, height = (control.place.x, control.place.y, control.place.width,
                           control.place.height)
    if control.kind == "Static":
        return control.place
    if control.kind == "Button" and style & 15 == GROUP_BOX:
        # The caption interrupts the frame's upper line; the shortest letters are 3 pixels wide.
        return Place(x + 10, y + 1, max(12, 3 * len(control.text)), 14)
    if control.kind == "Button" and style & 15 not in (PUSH_BUTTON, DEFAULT_PUSH_BUTTON):
        return Place(x + 18, y + 2, width - 20, height - 4)
    if control.kind == "ComboBox":
        return Place(x + 4, y + 4, width - 28, height - 8)
    if control.kind == "msctls_statusbar32":
        return Place(x + 4, y + 4, width - 40, height - 6)
    return Place(x + 5, y + 5, width - 10, height - 10)


def unreadable(screen: Screen, window: Window) -> dict[str, float]:
    """The texts that do not stand out enough, with their contrast."""
    styles = window.styles()
    # The sign of this button is smaller than a letter; its neighbour "+" is drawn alike.
    looked_at = [c for c in window.controls() if c.visible and c.kind in SHOWS_TEXT
                 and c.text not in ("", "-")]
    if any(c.kind == "ComboBox" for c in window.controls()) and window.chosen():
        looked_at.append(window.control("ComboBox"))
    found = {f"{c.kind} {c.text}": best_contrast(screen.look(text_place(c, styles[c.id])))
             for c in looked_at}
    assert found
    return {text: contrast for text, contrast in found.items() if contrast < READABLE}


def look_at(user: User, screen: Screen, window: Window, name: str) -> None:
    user.activate(window)
    user.screenshot(window, SCREENS / f"contrast-{name}.png", moving=True)
    wait_for(lambda: not unreadable(screen, window),
             f"readable texts in {name}: {unreadable(screen, window)}", 3)


def test_every_text_of_the_windows_is_readable(
        started: Tonmira, user: User, screen: Screen) -> None:
    main = started.window()
    look_at(user, screen, main, "main")
    main.press("Custom pitch")
    wait_for(lambda: main.button("Help").enabled, "the help button")
    look_at(user, screen, main, "chosen")
    main.press("Help")
    help_window = started.window("Help")
    look_at(user, screen, help_window, "help")
    help_window.close()
    main.choose(MENU_ABOUT)
    box = started.window("About Tonmira")
    look_at(user, screen, box, "about")
    box.press("OK")
    main.press("Morse tool")
    wait_for(lambda: main.is_checked("Morse tool"), "the mode")
    main.press("Start")
    look_at(user, screen, started.window("Morse tool"), "morse")


def test_the_first_run_dialog_is_readable(
        high_contrast: None, launch: Callable[..., Tonmira], folders: Folders, user: User,
        screen: Screen) -> None:
    program = launch(folders)
    dialog = program.window(FIRST_RUN_TITLE)
    program.wait_for_log(">> Program starting finished")
    look_at(user, screen, dialog, "first-run")


def test_the_hearing_test_is_readable(
        high_contrast: None, rig: Rig, driver: Driver, folders: Folders, user: User,
        screen: Screen) -> None:
    program, window = start_hearing_test(rig, driver, folders)
    try:
        look_at(user, screen, window, "hearing")
        Listener(window, None, 0).press_start()
        look_at(user, screen, window, "hearing-listen")
    finally:
        program.finish()


def test_the_pictures_take_the_systems_colours(
        started: Tonmira, user: User, screen: Screen) -> None:
    window = started.window()
    user.activate(window)
    user.click_button(window, "Low pitch")
    wait_for(lambda: best_contrast(screen.look(window.numbered(126).place))
             == 21, "the microphone's picture", 15)
    user.screenshot(window, SCREENS / "high-contrast.png", moving=True)
    for number in (126, 124):
        colours = set(np.unique(screen.look(window.numbered(number).place)))
        assert {0x000000, 0xFFFFFF} <= colours
