"""At home on the desktop: other resolutions, fonts and colours while it runs, names for screen
readers, places of the windows, a slider that reaches every number."""

import re
import xml.etree.ElementTree as ET
from collections.abc import Callable, Iterator

import numpy as np
import pytest

from rig.bad_hosts import host
from rig.online import PATIENCE_S, good_site, opened
from rig.paths import NAME_SERVICE, PROGRAM, SCREENS
from rig.program import FIRST_RUN_TITLE, GOOD_SETTINGS, MENU_ABOUT, Folders, Tonmira
from rig.resolution import cut_off, set_dpi
from rig.rig import Rig
from rig.screen import Screen
from rig.tone_programs import file_of, open_file
from rig.waiting import wait_for
from rig.window import Driver, Place, User, Window

Launch = Callable[..., Tonmira]
SCREEN_WIDTH, SCREEN_HEIGHT = 1280, 1024
MAIN = (640, 486)  # client area at 96 DPI
DUTCH = {"Custom pitch": "Eigen toonhoogte", "Morse tool": "Morsetool", "Start": "Starten"}


def start(launch: Launch, folders: Folders, language: str = "EN", **options: object) -> Tonmira:
    settings = list(GOOD_SETTINGS)
    settings[2] = f"Language={language}"
    folders.write_settings(settings)
    program = launch(folders, **options)
    program.wait_for_log(">> Program starting finished")
    return program


def tell_resolution(program: Tonmira, window: Window, dpi: int, place: Place) -> None:
    program.driver.ask("resolution", str(program.process), window.handle, str(dpi), str(place.x),
                       str(place.y), str(place.width), str(place.height))


def resolution_of(window: Window, design_width: int) -> int:
    """The resolution that a window's controls are laid out for."""
    return round(window.client().width * 96 / design_width)


def open_windows(program: Tonmira, language: str) -> dict[str, tuple[Window, int]]:
    """Everything that opens from the main window, with its width at 96 DPI."""
    def text(english: str) -> str:
        return DUTCH.get(english, english) if language == "NL" else english

    main = program.window()
    main.press(text("Custom pitch"))
    wait_for(lambda: main.button("Help").enabled, "the help button")
    main.press("Help")
    found = {"main": (main, 640), "help": (program.window("Help"), 560)}
    main.choose(MENU_ABOUT)
    found["about"] = (program.window("About Tonmira"), 420)
    main.press(text("Morse tool"))
    wait_for(lambda: main.is_checked(text("Morse tool")), "the mode")
    main.press(text("Start"))
    found["morse"] = (program.window(text("Morse tool")), 480)
    return found


@pytest.mark.parametrize("language", ["EN", "NL"])
def test_every_window_follows_the_resolution_of_the_screen_it_comes_to(
        launch: Launch, folders: Folders, driver: Driver, user: User, language: str) -> None:
    program = start(launch, folders, language)
    for name, (window, width) in open_windows(program, language).items():
        before = window.client()
        assert before.width == width, name
        for dpi in (120, 144, 192, 96):
            scale = dpi / 96
            place = Place(40, 30, round(before.width * scale) + 10,
                          round(before.height * scale) + 40)
            tell_resolution(program, window, dpi, place)
            client, outer = window.client(), window.place()
            own = resolution_of(window, width)
            # The screen of the rig is too small for the main window at 192 DPI.
            assert own == dpi or (own < dpi and outer.width > SCREEN_WIDTH - 20), (name, dpi, own)
            assert client.height == pytest.approx(before.height * own / 96, abs=1)
            assert 0 <= outer.x and outer.x + outer.width <= SCREEN_WIDTH
            assert 0 <= outer.y and outer.y + outer.height <= SCREEN_HEIGHT
            assert cut_off(driver, window, own) == [], (name, dpi)
            for control in window.controls():
                inner = control.place
                assert inner.x >= client.x and inner.y >= client.y, (name, dpi, control)
                assert inner.x + inner.width <= client.x + client.width, (name, dpi, control)
            if dpi == 144:
                user.activate(window)
                user.screenshot(window, SCREENS / f"moved-{name}-{language.lower()}.png",
                                moving=True)
        assert window.client().width == before.width
        assert window.client().height == before.height


@pytest.mark.parametrize("dpi", [96, 120, 144, 192])
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
            assert dpi != 192 or 180 <= own < 192
            assert 0 <= place.x and place.x + place.width <= SCREEN_WIDTH
            assert 0 <= place.y and place.y + place.height <= SCREEN_HEIGHT
            assert cut_off(driver, main, own) == []
        finally:
            program.finish()
    finally:
        set_dpi(rig, 96)


COLOR_WINDOWTEXT, COLOR_3DFACE, COLOR_BTNTEXT = 8, 15, 18


def inside(program: Tonmira, function: str, number: int) -> None:
    program.driver.ask("inside", str(program.process), function, str(number))


def test_new_colours_of_the_system_are_shown_at_once(
        name_service: None, launch: Launch, folders: Folders, driver: Driver, screen: Screen,
        user: User) -> None:
    program = start(launch, folders)
    main = program.window()
    user.activate(main)
    frame, play = main.numbered(100).place, main.numbered(119).place

    def shown(place: Place) -> set[int]:
        return set(np.unique(screen.look(place)))

    def change(index: int, colour: int) -> None:
        inside(program, "ChangeColour", index << 32 | colour)

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
        name_service: None, launch: Launch, folders: Folders, user: User) -> None:
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


# What screen readers call the controls; by their ids, without those that are labels or lines.
NAMES = {
    "EN": {
        100: "Choices", 101: "Low pitch", 102: "Average pitch", 103: "High pitch",
        104: "Extreme pitch", 105: "Spooky pitch", 106: "Low to high", 107: "Custom pitch",
        108: "Morse tool", 109: "Hearing age", 110: "Info", 117: "Custom pitch (Hz)",
        119: "Play Sound", 120: "Stop Sound", 121: "Help", 122: "Sound waves",
        124: "Wave of the chosen tone", 125: "Microphone input, sensitivity: 1",
        126: "Wave of the microphone input", 127: "Raise the microphone sensitivity",
        128: "Lower the microphone sensitivity", 129: "Actual pitch (Hertz):"},
    "NL": {
        107: "Eigen toonhoogte", 117: "Eigen toonhoogte (Hz)", 124: "Golf van de gekozen toon",
        126: "Golf van de microfooninvoer", 127: "Microfoongevoeligheid verhogen",
        128: "Microfoongevoeligheid verlagen"},
}


@pytest.fixture(scope="module")
def name_service(rig: Rig) -> Iterator[None]:
    """The system's service for names of controls; Wine's own keeps none."""
    key = r"HKCR\CLSID\{B5F8350B-0548-48B1-A6EE-88BD00B4A5E7}\InProcServer32"
    rig.run("wine", "reg", "add", key, "/ve", "/d", rig.windows_path(NAME_SERVICE), "/f")
    yield
    rig.run("wine", "reg", "add", key, "/ve", "/d", r"C:\windows\system32\oleacc.dll", "/f")


def without_marks(names: dict[int, str]) -> dict[int, str]:
    return {number: re.sub("&(.)", r"\1", name) for number, name in names.items()}


def assert_all_are_named(window: Window, silent: set[int]) -> None:
    """Every control that is no line and no empty label has a name that says something."""
    names = without_marks(window.names())
    for control in window.controls():
        name = names[control.id]
        if control.id in silent or control.kind.startswith("tooltips"):
            continue
        assert re.search("[a-z]", name) or name in ("OK", " 4"), (window.title, control)
        assert not re.fullmatch("[A-Za-z]+[0-9]+|pic[A-Z].*", name), (window.title, control)


@pytest.mark.parametrize("language", ["EN", "NL"])
def test_every_control_has_the_name_that_a_screen_reader_should_say(
        name_service: None, launch: Launch, folders: Folders, language: str) -> None:
    program = start(launch, folders, language)
    main = program.window()
    names = without_marks(main.names())
    assert {number: names[number] for number in NAMES[language]} == NAMES[language]
    windows = open_windows(program, language)
    lines = {"main": {123, 115}, "help": set(), "about": {104}, "morse": {106, 108}}
    for name, (window, _) in windows.items():
        assert_all_are_named(window, lines[name])
    morse = without_marks(windows["morse"][0].names())
    assert [morse[number] for number in (101, 103, 105)] == {
        "EN": ["Text:", "Speed (normal + this (ms)) (higher is slower):", "Pitch (Hertz):"],
        "NL": [morse[100], morse[102], morse[104]]}[language]
    # The buttons show what they have always shown.
    assert main.button("+").id == 127 and main.button("-").id == 128


def test_the_player_and_the_first_run_dialog_have_names_too(
        name_service: None, rig: Rig, driver: Driver, launch: Launch, folders: Folders) -> None:
    path = rig.new_folder("tones") / "test.tnf"
    path.write_bytes(file_of([(440, 3000)]))
    player = open_file(rig, driver, path)
    try:
        window = player.window()
        assert window.names()[103] == "Tones played"
        assert_all_are_named(window, {102, 104, 106, 108})
    finally:
        player.finish()
    dialog = launch(folders).window(FIRST_RUN_TITLE)
    assert dialog.names()[101] == dialog.names()[100]
    assert_all_are_named(dialog, set())


def pitch_of(window: Window) -> str:
    return window.numbered(115).text


@pytest.fixture
def slider(launch: Launch, folders: Folders, user: User) -> Window:
    """The main window with its slider in use and focused."""
    window = start(launch, folders).window()
    user.activate(window)
    window.press("Custom pitch")
    wait_for(lambda: window.is_checked("Custom pitch"), "the mode")
    user.type_keys("alt+" + window.button("Custom pitch").access_key, "Tab")
    return window


def test_ctrl_and_shift_make_the_sliders_steps_smaller(slider: Window, user: User) -> None:
    for keys, pitch in [("Right", " 1100"), ("shift+Right", " 1110"), ("ctrl+Right", " 1111"),
                        ("Left", " 1011"), ("shift+Left", " 1001"), ("ctrl+Left", " 1000"),
                        ("Next", " 2000"), ("Prior", " 1000")]:
        user.type_keys(keys)
        wait_for(lambda pitch=pitch: pitch_of(slider) == pitch, f"{pitch} after {keys}")


def test_the_wheel_moves_the_slider_by_the_same_steps(slider: Window, user: User) -> None:
    user.point_at(slider.control("ScrollBar"))
    for key, button, pitch in [("", "4", " 1100"), ("ctrl", "4", " 1101"), ("ctrl", "5", " 1100"),
                               ("shift", "5", " 1090"), ("", "5", " 990")]:
        if key:
            user.xdotool("keydown", key)
        user.xdotool("click", button)
        if key:
            user.xdotool("keyup", key)
        wait_for(lambda pitch=pitch: pitch_of(slider) == pitch, f"{pitch} after {key} {button}")


def test_digits_typed_on_the_slider_set_its_number(slider: Window, user: User) -> None:
    user.type_keys("4", "4", "0")
    wait_for(lambda: pitch_of(slider) == " 440", "440")
    user.type_keys("BackSpace")
    wait_for(lambda: pitch_of(slider) == " 44", "44")
    user.type_keys("Left", "5", "0", "0", "0", "0")
    wait_for(lambda: pitch_of(slider) == " 32000", "the highest number")
    assert slider.is_checked("Custom pitch")


def test_the_first_text_of_the_morse_tool_is_replaced_by_what_is_typed(
        launch: Launch, folders: Folders, driver: Driver, user: User) -> None:
    program = start(launch, folders)
    main = program.window()
    main.press("Morse tool")
    wait_for(lambda: main.is_checked("Morse tool"), "the mode")
    main.press("Start")
    tool = program.window("Morse tool")
    field = tool.numbered(101)
    user.activate(tool)
    wait_for(lambda: driver.ask("selection", field.handle)
             == [["0", str(len("Type your message here..."))]], "a selected text")
    user.type_keys("s", "o", "s")
    wait_for(lambda: driver.ask("text", field.handle) == [["sos"]], "the typed text")
    # Only the first time.
    for number in (105, 101):
        user.point_at(tool.numbered(number))
        user.xdotool("click", "1")
    user.type_keys("End", "e")
    wait_for(lambda: driver.ask("text", field.handle) == [["sose"]], "a longer text")


def test_enter_in_the_update_dialog_opens_no_link(
        begin: Launch, browser: str, folders: Folders, user: User) -> None:
    with host(good_site(b"237\r\nhttp://a.example/tonmira-2.3.7.exe\r\n")) as good:
        program = begin(good.site)
        dialog = program.window("Update found", seconds=PATIENCE_S)
        user.activate(dialog)
        user.type_keys("Return", "Return")
        # What is typed after it is done after it: the dialog is closed by its other button.
        user.type_keys("Escape")
        wait_for(lambda: not dialog.is_open(), "the end of the dialog")
        program.wait_for_log(">> Program starting finished")
        assert program.running() and opened(folders) == []


def test_the_manifest_names_no_system_and_scales_for_each_monitor() -> None:
    content = PROGRAM.read_bytes()
    begin = content.index(b"<assembly ")
    manifest = ET.fromstring(content[begin:content.index(b"</assembly>") + 11].decode())
    tags = {element.tag.split("}")[1]: element.text for element in manifest.iter()}
    # With one, the system would tell its true version, which the version check refuses.
    assert "supportedOS" not in tags
    assert tags["dpiAware"] == "true/pm"
    assert tags["dpiAwareness"] == "PerMonitorV2, PerMonitor"
