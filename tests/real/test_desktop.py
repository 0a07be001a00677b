"""At home on the desktop: other resolutions, fonts and colours while it runs, and where its windows
stand."""

import signal
import time
import xml.etree.ElementTree as ET
from collections.abc import Callable, Iterator

import numpy as np
import pytest

from rig.bad_hosts import host
from rig.desktop import open_windows, start
from rig.online import PATIENCE_S, good_site
from rig.paths import PROGRAM, SCREENS
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.resolution import cut_off, set_dpi
from rig.rig import Rig
from rig.screen import Screen
from rig.tone_programs import file_of, open_file, wait_until_played
from rig.waiting import wait_for
from rig.window import Driver, Place, User, Window

Launch = Callable[..., Tonmira]
SCREEN_WIDTH, SCREEN_HEIGHT = 1280, 1024
MAIN = (640, 486)  # client area at 96 DPI


def tell_resolution(program: Tonmira, window: Window, dpi: int, place: Place) -> None:
    program.driver.ask("resolution", str(program.process), window.handle, str(dpi), str(place.x),
                       str(place.y), str(place.width), str(place.height))


def resolution_of(window: Window, design_width: int) -> int:
    """The resolution that a window's controls are laid out for."""
    return round(window.client().width * 96 / design_width)


def assert_inside(window: Window, client: Place) -> None:
    for control in window.controls():
        if not control.visible:
            continue
        inner = control.place
        assert inner.x >= client.x and inner.y >= client.y, control
        assert inner.x + inner.width <= client.x + client.width, control
        assert inner.y + inner.height <= client.y + client.height, control


class Mover:
    """Moves windows from one screen to another, and looks at what they make of it there."""

    def __init__(self, driver: Driver, user: User, language: str):
        self._driver = driver
        self._user = user
        self._language = language

    def move(self, program: Tonmira, name: str, window: Window) -> None:
        before = window.client()
        for dpi in (120, 144, 192, 96):
            self._move_to(program, name, window, before, dpi)
        after = window.client()
        assert (after.width, after.height) == (before.width, before.height), name

    @staticmethod
    def _wait_for(holds: Callable[[], bool], what: str) -> None:
        """The window manager has its say, too, and may be late with it: so it holds five times."""
        wait_for(lambda: all(holds() for _ in range(5)), what)

    def _move_to(self, program: Tonmira, name: str, window: Window, before: Place,
                 dpi: int) -> None:
        scale = dpi / 96
        place = Place(40, 30, round(before.width * scale) + 10, round(before.height * scale) + 40)
        # A late answer of the window manager to what was before would undo what comes now.
        self._wait_for(lambda: self._user.has_its_size(window), f"{name} at rest")
        tell_resolution(program, window, dpi, place)

        def follows() -> bool:
            own = resolution_of(window, before.width)
            # The screen of the rig is too small for the main window at 192 DPI.
            limited = own < dpi and window.place().width > SCREEN_WIDTH - 20
            return (own == dpi or limited) and self._user.has_its_size(window)

        self._wait_for(follows, f"{name} at {dpi} DPI")
        client, outer = window.client(), window.place()
        own = resolution_of(window, before.width)
        assert client.height == pytest.approx(before.height * own / 96, abs=1)
        assert 0 <= outer.x and outer.x + outer.width <= SCREEN_WIDTH
        assert 0 <= outer.y and outer.y + outer.height <= SCREEN_HEIGHT
        assert cut_off(self._driver, window, own) == [], (name, dpi)
        assert_inside(window, client)
        if dpi == 144:
            self._user.activate(window)
            self._user.screenshot(window, SCREENS / f"moved-{name}-{self._language.lower()}.png",
                                  moving=name in ("main", "morse"))


@pytest.fixture(params=["EN", "NL"])
def language(request: pytest.FixtureRequest) -> str:
    return request.param


@pytest.fixture
def mover(driver: Driver, user: User, language: str) -> Mover:
    return Mover(driver, user, language)


def test_every_window_follows_the_resolution_of_the_screen_it_comes_to(
        launch: Launch, folders: Folders, mover: Mover, language: str) -> None:
    program = start(launch, folders, language)
    for name, (window, width) in open_windows(program, language).items():
        assert window.client().width == width, name
        mover.move(program, name, window)


def test_the_player_follows_the_resolution_of_the_screen_it_comes_to(
        rig: Rig, driver: Driver, mover: Mover, language: str) -> None:
    path = rig.new_folder("tones") / "test.tnf"
    path.write_bytes(file_of([(440, 100)]))
    program = open_file(rig, driver, path, language=language)
    try:
        player = program.window()
        wait_until_played(player)
        mover.move(program, "player", player)
    finally:
        program.finish()


def test_the_first_run_dialog_follows_the_resolution_of_the_screen_it_comes_to(
        launch: Launch, folders: Folders, mover: Mover, language: str) -> None:
    program = launch(folders)
    dialog = program.window(FIRST_RUN_TITLE)
    dialog.select(["EN", "NL"].index(language))
    refusal = {"EN": "Don't accept", "NL": "Niet accepteren"}[language]
    wait_for(lambda: refusal in dialog.texts(), "the language")
    mover.move(program, "first-run", dialog)


def test_the_update_dialog_follows_the_resolution_of_the_screen_it_comes_to(
        begin: Callable[..., Tonmira], mover: Mover, language: str) -> None:
    title = {"EN": "Update found", "NL": "Update gevonden"}[language]
    with host(good_site(b"237\r\nhttp://a.example/tonmira-2.3.7.exe\r\n")) as good:
        program = begin(good.site, language)
        mover.move(program, "update", program.window(title, seconds=PATIENCE_S))


def test_a_window_stays_where_it_began_when_the_window_manager_answers_late(
        rig: Rig, launch: Launch, folders: Folders, user: User) -> None:
    program = start(launch, folders)
    rig.window_manager.send_signal(signal.SIGSTOP)
    try:
        program.window().choose(MENU_ABOUT)
        about = program.window("About Tonmira")
        time.sleep(0.2)
        begun = about.client()
    finally:
        rig.window_manager.send_signal(signal.SIGCONT)
    assert (begun.width, begun.height) == (420, 198)
    for _ in range(14):
        time.sleep(0.05)
        assert about.client() == begun
    user.x_window(about)  # it is on the screen


@pytest.mark.parametrize("dpi", [96, 120, 144, 192, 240])
def test_no_window_is_larger_than_the_screen_and_other_resolutions_are_warned_of(
        rig: Rig, launch: Launch, folders: Folders, dpi: int) -> None:
    set_dpi(rig, dpi)
    try:
        driver = Driver(rig)
        folders.write_settings(GOOD_SETTINGS)
        program = Tonmira(rig, driver, folders)
        try:
            if dpi != 96:
                warning = program.window("Warning")
                assert "DPI settings could cause problems!" in warning.texts()
                warning.press("OK")
            program.wait_for_log(">> Program starting finished")
            assert (">>> Bad DPI settings" in folders.log()) == (dpi != 96)
            main = program.window()
            place, own = main.place(), resolution_of(main, MAIN[0])
            assert own == (dpi if dpi < 192 else own)
            assert dpi < 192 or 180 <= own < 192
            assert 0 <= place.x and place.x + place.width <= SCREEN_WIDTH
            assert 0 <= place.y and place.y + place.height <= SCREEN_HEIGHT
            assert cut_off(driver, main, own) == []
            assert_inside(main, main.client())
        finally:
            program.finish()
    finally:
        set_dpi(rig, 96)


COLOR_WINDOWTEXT, COLOR_3DFACE, COLOR_BTNTEXT = 8, 15, 18


def inside(program: Tonmira, function: str, number: int) -> None:
    program.driver.ask("inside", str(program.process), function, str(number))


@pytest.fixture
def passing_settings(rig: Rig) -> Iterator[None]:
    """What programs tell the system of colours and fonts without writing it down is forgotten: it
    would go before what is written down, for the tests to come."""
    yield
    rig.run("wine", "reg", "delete", r"HKCU\Software\Wine\Temporary System Parameters", "/f")


def test_new_colours_of_the_system_are_shown_at_once(
        name_service: None, passing_settings: None, launch: Launch, folders: Folders,
        driver: Driver, screen: Screen, user: User) -> None:
    program = start(launch, folders)
    main = program.window()
    user.activate(main)
    frame, play = main.numbered(100).place, main.numbered(119).place

    def shown(place: Place) -> set[int]:
        return set(np.unique(screen.look(place)))

    def change(index: int, colour: int) -> None:
        inside(program, "ChangeColour", index << 24 | colour)

    before = {index: int(driver.ask("colour", str(index))[0][0])
              for index in (COLOR_WINDOWTEXT, COLOR_3DFACE, COLOR_BTNTEXT)}
    assert 0x203040 not in shown(frame)
    try:
        change(COLOR_3DFACE, 0x403020)  # 0x00BBGGRR
        change(COLOR_BTNTEXT, 0xF0FFFF)
        change(COLOR_WINDOWTEXT, 0xF0FFFF)
        wait_for(lambda: 0x203040 in shown(frame), "the new ground")
        # The text of the visual style does not stand out from that ground.
        wait_for(lambda: 0xFFFFF0 in shown(frame), "captions in the new colour")
        wait_for(lambda: 0xFFFFF0 in shown(play), "buttons in the new colour")
        user.screenshot(main, SCREENS / "new-colours.png", moving=True)
    finally:
        for index, colour in before.items():
            change(index, colour)
    wait_for(lambda: 0x203040 not in shown(frame), "the old ground")


def test_a_larger_font_of_the_system_makes_open_windows_larger(
        name_service: None, passing_settings: None, launch: Launch, folders: Folders,
        user: User) -> None:
    program = start(launch, folders)
    windows = open_windows(program, "EN")
    try:
        for height in (16, 12, 18):
            inside(program, "ChangeFont", height)
            for name, (window, width) in windows.items():
                wanted = pytest.approx(width * height / 12, abs=1)
                wait_for(lambda window=window, wanted=wanted: window.client().width == wanted,
                         f"{name} with a font of {height} pixels")
        user.activate(program.window())
        user.screenshot(program.window(), SCREENS / "larger-font.png", moving=True)
    finally:
        inside(program, "ChangeFont", 0)


def test_a_second_copy_does_not_lie_exactly_over_the_first(
        rig: Rig, launch: Launch, folders: Folders) -> None:
    first = start(launch, folders).window().place()
    second = start(launch, Folders(rig, "second")).window().place()
    assert (second.width, second.height) == (first.width, first.height)
    assert (second.x - first.x, second.y - first.y) == (26, 26)


def test_the_manifest_names_no_system_and_scales_for_each_monitor() -> None:
    content = PROGRAM.read_bytes()
    begin = content.index(b"<assembly ")
    manifest = ET.fromstring(content[begin:content.index(b"</assembly>") + 11].decode())
    tags = {element.tag.split("}")[1]: element.text for element in manifest.iter()}
    # With one, the system would tell its true version, which the version check refuses.
    assert "supportedOS" not in tags
    assert tags["dpiAware"] == "true/pm"
    assert tags["dpiAwareness"] == "PerMonitorV2, PerMonitor"
