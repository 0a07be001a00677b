"""The hearing test, a program of its own: its windows, keys and sound."""

import time
from collections.abc import Callable, Iterator

import numpy as np
import pytest

from rig.hearing import (
    AGES, CLOSE, HEARING_TEST, NO, PAGE, RESULT, SCALE, START, STATE, TITLES, YES, Listener,
    edge_ms, hand_over, start_hearing_test, text_of)
from rig.paths import SCREENS
from rig.program import GOOD_SETTINGS, Folders, Tonmira
from rig.resolution import cut_off, set_dpi, use_wide_fonts
from rig.rig import Rig
from rig.screen import Screen
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, User, Window

Start = Callable[..., tuple[Tonmira, Window]]


@pytest.fixture
def start(rig: Rig, driver: Driver, folders: Folders) -> Iterator[Start]:
    started: list[Tonmira] = []

    def begin(language: str = "en") -> tuple[Tonmira, Window]:
        program, window = start_hearing_test(rig, driver, folders, language)
        started.append(program)
        return program, window

    yield begin
    for program in started:
        program.finish()


def test_a_listener_gets_the_pitch_that_he_hears_up_to(
        start: Start, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    _, window = start()
    quiet = recorder.record(1.5)
    assert abs(quiet).max() < 10
    assert "low volume" in text_of(window, PAGE)
    listener = Listener(window, recorder, 13400)
    first = recorder.frames()
    listener.answer_all(listener.press)
    assert text_of(window, RESULT) == "Highest pitch heard: 13400 Hz"
    assert text_of(window, AGES).startswith("That is typical of ages between 35 and 54.")
    assert window.numbered(SCALE).visible

    pitches = listener.pitches()
    assert abs(pitches[0] - 1000) < 1
    assert len(pitches) <= 30
    assert pitches.count(0) * 5 >= len(pitches)
    assert all(pitch == 0 or 7999 < pitch < 20001 for pitch in pitches[1:])
    assert all(abs(pitch - round(pitch, -2)) < 1 for pitch in pitches)
    assert abs(pitches[1:].count(0) - len(pitches) / 4) <= 2
    # 20 dB below full scale, and the edges of the tone of 1000 Hz.
    assert 3000 < listener.peak <= 3280
    assert 20 <= edge_ms(recorder.samples(first)[: 2 * 44100]) <= 30


def test_the_result_in_dutch_fits_at_any_resolution(
        start: Start, driver: Driver, user: User, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    program, window = start("nl")
    assert [text_of(window, number) for number in (START, YES, NO, CLOSE)] == [
        "Start", "Ja", "Nee", "Sluiten"]
    listener = Listener(window, recorder, 16200, "nl")
    # A test before this one, without leaving.
    listener.answer_all(lambda _: listener.press(False))
    listener.answer_all(listener.press)
    assert text_of(window, RESULT) == "Hoogste toon gehoord: 16200 Hz"
    user.screenshot(window, SCREENS / "hearing-result-nl.png")
    for dpi in (120, 144, 192, 96):
        move_to(user, program, window, dpi)
        assert_all_is_in_view(driver, window, dpi)


def test_three_times_no_ends_it_and_tells_why(start: Start, recorder: Recorder) -> None:
    recorder.wait_for_silence()
    _, window = start()
    listener = Listener(window, recorder, 0)
    listener.answer_all(lambda _: listener.press(False))
    assert [round(pitch) for pitch in listener.pitches()] == [1000] * 3
    assert "did not hear 1000 Hz three times" in text_of(window, PAGE)
    recorder.wait_for_silence()
    assert abs(recorder.record(4)).max() < 10


@pytest.mark.parametrize(("language", "yes", "no"), [("en", "y", "n"), ("nl", "j", "n")])
def test_keys_answer_and_esc_leaves(start: Start, user: User, recorder: Recorder, language: str,
                                    yes: str, no: str) -> None:
    program, window = start(language)
    user.activate(window)
    user.type_keys("Return")
    listener = Listener(window, recorder, 0, language)
    listener.wait_for_question()
    user.type_keys(no)
    wait_for(lambda: "1000 Hz" not in text_of(window, PAGE)
             and text_of(window, STATE) == "", "the pause after No")
    listener.wait_for_question()
    user.type_keys(yes)
    wait_for(lambda: text_of(window, STATE) in ("Listen...", "Luister..."), "the next trial")
    # Before the question, keys answer nothing.
    user.type_keys(yes, no, "space")
    listener.wait_for_question()
    assert window.numbered(YES).enabled
    user.type_keys("Escape")
    program.wait_for_end()


def test_the_main_programs_ninth_mode_starts_it(
        launch: Callable[..., Tonmira], folders: Folders, driver: Driver) -> None:
    settings = list(GOOD_SETTINGS)
    settings[2] = "Language=NL"
    folders.write_settings(settings)
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    main = program.window()
    main.press("Gehoorleeftijd")
    wait_for(lambda: main.is_checked("Gehoorleeftijd"), "the mode")
    main.press("Starten")

    def find() -> Window | None:
        return next((Window(driver, w.handle, w.title) for w in driver.windows()
                     if w.visible and w.title == "Gehoorleeftijd"), None)

    window = wait_for(find, "the hearing test", 20)
    assert isinstance(window, Window)
    assert not (folders.temp / "testhearing.ini").exists()
    assert main.button("Starten").enabled
    window.press("Sluiten")
    wait_for(lambda: find() is None, "its end")
    assert program.running()


@pytest.mark.parametrize("text", [None, b"", b"128\r\n", b"\xff\xfe\r\nnl\r\n", b"nl"])
def test_without_a_usable_file_it_is_english(rig: Rig, driver: Driver, folders: Folders,
                                             text: bytes | None) -> None:
    if text is not None:
        hand_over(folders, text)
    program = Tonmira(rig, driver, folders, exe=HEARING_TEST)
    try:
        program.window(TITLES["en"]).press("Close")
        program.wait_for_end()
        assert folders.names() == []
    finally:
        program.finish()


def test_a_second_start_brings_the_first_to_the_front(
        start: Start, rig: Rig, driver: Driver, user: User, screen: Screen,
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    first, window = start()
    user.activate(window)
    user.screenshot(window, SCREENS / "hearing-first.png")
    text = window.numbered(PAGE).place
    shown = screen.look(text)
    assert len(np.unique(shown)) > 1
    folders.write_settings(GOOD_SETTINGS)
    main = launch(folders)
    main.wait_for_log(">> Program starting finished")
    user.activate(main.window())
    wait_for(lambda: not np.array_equal(screen.look(text), shown), "the main window in front")
    hand_over(folders, b"128\r\nnl\r\n")
    second = Tonmira(rig, driver, folders, exe=HEARING_TEST)
    try:
        second.wait_for_end()
        wait_for(lambda: np.array_equal(screen.look(text), shown), "the first test in front")
        assert [w.process for w in driver.windows()
                if w.visible and w.title in TITLES.values()] == [first.process]
        assert "testhearing.ini" not in folders.names()
    finally:
        second.finish()


def test_without_a_sound_device_it_says_so_and_tries_again(
        start: Start, rig: Rig, recorder: Recorder) -> None:
    drivers = r"HKCU\Software\Wine\Drivers"
    rig.run("wine", "reg", "add", drivers, "/v", "Audio", "/d", "", "/f")
    try:
        program, window = start()
        for _ in range(2):
            window.press("Start")
            wait_for(lambda: "No sound device was found" in text_of(window, PAGE), "the reason")
            assert window.numbered(START).enabled
    finally:
        rig.run("wine", "reg", "delete", drivers, "/v", "Audio", "/f")
    program.finish()
    _, window = start()
    Listener(window, recorder, 0).press_start()
    recorder.wait_for_tone()


NAMES = {
    "en": {START: "Start", YES: "Yes", NO: "No", CLOSE: "Close",
           SCALE: "Pitches that each age typically hears at most, and yours"},
    "nl": {START: "Start", YES: "Ja", NO: "Nee", CLOSE: "Sluiten",
           SCALE: "De hoogste tonen die elke leeftijd meestal hoort, en de uwe"},
}


@pytest.mark.parametrize("language", ["en", "nl"])
def test_screen_readers_have_a_name_for_each_control(
        name_service: None, start: Start, language: str) -> None:
    _, window = start(language)
    names = {number: name.replace("&", "") for number, name in window.names().items()}
    assert {number: names[number] for number in NAMES[language]} == NAMES[language]
    assert all(names[c.id] for c in window.controls() if c.visible and c.text)


@pytest.fixture(params=[96, 120, 144, 192])
def wide_driver(request: pytest.FixtureRequest, rig: Rig) -> Iterator[tuple[Driver, int]]:
    set_dpi(rig, request.param)
    use_wide_fonts(rig, True)
    yield Driver(rig), request.param
    use_wide_fonts(rig, False)
    set_dpi(rig, 96)


def move_to(user: User, program: Tonmira, window: Window, dpi: int) -> None:
    """To a screen of this resolution."""
    # A late answer of the window manager to what was before would undo what comes now.
    wait_for(lambda: user.has_its_size(window), "a window at rest")
    size = round(484 * dpi / 96), round(430 * dpi / 96)
    program.driver.ask("resolution", str(program.process), window.handle, str(dpi), "40", "30",
                       *map(str, size))


def assert_all_is_in_view(driver: Driver, window: Window, dpi: int) -> None:
    assert cut_off(driver, window, dpi) == [], dpi
    place = window.client()
    assert (place.width, place.height) == (472 * dpi / 96, 396 * dpi / 96)
    for control in window.controls():
        inner = control.place
        assert inner.x >= place.x and inner.y >= place.y, control
        assert inner.x + inner.width <= place.x + place.width, control
        assert inner.y + inner.height <= place.y + place.height, control


def test_it_starts_at_every_resolution(
        wide_driver: tuple[Driver, int], rig: Rig, folders: Folders) -> None:
    driver, dpi = wide_driver
    for language in ("en", "nl"):
        program, window = start_hearing_test(rig, driver, folders, language)
        try:
            assert_all_is_in_view(driver, window, dpi)
            window.numbered(CLOSE)
            window.close()
            program.wait_for_end()
        finally:
            program.finish()


@pytest.mark.parametrize("language", ["en", "nl"])
def test_no_page_is_cut_off_at_any_resolution(
        start: Start, driver: Driver, user: User, language: str) -> None:
    program, window = start(language)
    listener = Listener(window, None, 0, language)

    def look(name: str) -> None:
        for dpi in (120, 144, 192, 96):
            move_to(user, program, window, dpi)
            assert_all_is_in_view(driver, window, dpi)
        user.screenshot(window, SCREENS / f"hearing-{name}-{language}.png")

    look("first")
    listener.press_start()
    listener.wait_for_question()
    look("question")
    for name in ("louder", "louder", "no-check"):
        listener.press(False)
        if name == "no-check":
            look(name)
        else:
            listener.wait_for_question()
    listener.press_start()
    while not listener.over():
        listener.wait_for_question()
        listener.press(True)
    look("not-reliable")
    assert text_of(window, RESULT) in ("Not reliable", "Niet betrouwbaar")


@pytest.mark.parametrize("way", ["close", "button"])
def test_closing_it_in_a_tone_silences_it(start: Start, driver: Driver, recorder: Recorder,
                                          way: str) -> None:
    recorder.wait_for_silence()
    program, window = start()
    window.press("Start")
    recorder.wait_for_tone()
    if way == "button":
        window.press("Close")
    else:
        driver.ask("close", window.handle)
    program.wait_for_end(5)
    time.sleep(0.5)
    assert abs(recorder.record(1)).max() < 10
