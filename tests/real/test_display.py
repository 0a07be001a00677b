"""The moving pictures of the main window: what the microphone hears, and the sine preview."""

import time
from collections.abc import Callable

import numpy as np
import pytest

from rig.measuring import measure
from rig.microphone import Microphone
from rig.paths import SCREENS
from rig.program import GOOD_SETTINGS, MODES, Folders, Tonmira
from rig.rig import Rig
from rig.screen import Screen, drawn, periods
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import Driver, Place, User, Window

MICROPHONE_MENU = 1015
FIXED_MODES = MODES[:5]
PICTURES = {"Picture1": 124, "picWave": 126}  # their ids


def inside(window: Window, picture: str) -> Place:
    """Where a picture stands on the screen, without its border."""
    place = window.numbered(PICTURES[picture]).place
    return Place(place.x + 1, place.y + 1, place.width - 2, place.height - 2)


def marks_of(screen: Screen, window: Window, picture: str) -> np.ndarray:
    return drawn(screen.look(inside(window, picture)))


def start(launch: Callable[..., Tonmira], folders: Folders, user: User, *,
          microphone_on: str = "y") -> tuple[Tonmira, Window]:
    folders.write_settings([*GOOD_SETTINGS[:5], f"MicrophoneON={microphone_on}"])
    program = launch(folders)
    program.wait_for_log(">> Program starting finished")
    window = program.window()
    user.activate(window)
    return program, window


def halves(marks: np.ndarray) -> tuple[np.ndarray, np.ndarray]:
    middle = marks.shape[0] // 2
    return marks[:middle], marks[middle:]


def is_flat(marks: np.ndarray) -> bool:
    """Two lines, one in the middle of each half, from edge to edge."""
    rows = np.flatnonzero(marks.any(axis=1))
    wanted = [marks.shape[0] // 4, marks.shape[0] * 3 // 4]
    return rows.tolist() == wanted and bool(marks[rows, :-2].all())


def shows_tones(marks: np.ndarray) -> bool:
    """Half a block, 50 ms: 25 periods of 500 Hz above, 75 of 1500 Hz below."""
    upper, lower = halves(marks)
    return abs(periods(upper) - 25) < 0.5 and abs(periods(lower) - 75) < 1


def test_both_channels_are_seen_the_left_one_above(
        launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen,
        microphone: Microphone) -> None:
    microphone.feed(500, 1500)
    _, window = start(launch, folders, user)
    wait_for(lambda: shows_tones(marks_of(screen, window, "picWave")), "both traces", 15)
    user.screenshot(window, SCREENS / "microphone.png", moving=True)
    # Every block holds whole periods of those tones and looks like the one before; of these not.
    microphone.feed(503, 1508)
    wait_for(lambda: screen.frames(inside(window, "picWave"), 2) >= 10, "blocks that differ", 15)


def test_silence_is_two_flat_lines(launch: Callable[..., Tonmira], folders: Folders, user: User,
                                   screen: Screen) -> None:
    _, window = start(launch, folders, user)
    wait_for(lambda: is_flat(marks_of(screen, window, "picWave")), "two flat lines", 15)
    user.screenshot(window, SCREENS / "silence.png")


def test_the_sensitivity_buttons_change_picture_caption_and_settings(
        launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen,
        microphone: Microphone) -> None:
    microphone.feed(500, 500, amplitude=2000)
    _, window = start(launch, folders, user)

    def height() -> int:
        upper, _ = halves(marks_of(screen, window, "picWave"))
        return int(upper.any(axis=1).sum())

    # 2000 of 20000 half-heights of 44 pixels, up and down from the middle.
    wait_for(lambda: 8 <= height() <= 10, "a small wave", 15)
    for level in (2, 3):
        user.click_button(window, "+")
        wait_for(lambda: f"Microphone input, sensitivity: {level}" in window.texts(), "its caption")
    wait_for(lambda: 25 <= height() <= 28, "a wave three times as high", 15)
    assert folders.settings_file.read_text().split("\n")[4] == "Microphone= 3"
    user.screenshot(window, SCREENS / "sensitivity-3.png", moving=True)
    user.click_button(window, "-")
    wait_for(lambda: 16 <= height() <= 19, "a wave twice as high", 15)
    assert "Microphone input, sensitivity: 2" in window.texts()
    assert folders.settings_file.read_text().split("\n")[4] == "Microphone= 2"


def test_the_menu_turns_it_off_and_on(launch: Callable[..., Tonmira], folders: Folders, user: User,
                                      screen: Screen, microphone: Microphone) -> None:
    microphone.feed(500, 1500)
    _, window = start(launch, folders, user)
    wait_for(lambda: shows_tones(marks_of(screen, window, "picWave")), "both traces", 15)
    window.choose(MICROPHONE_MENU)
    wait_for(lambda: not marks_of(screen, window, "picWave").any(), "an empty picture")
    assert not window.button("+").enabled and not window.button("-").enabled
    assert folders.settings_file.read_text().split("\n")[5] == "MicrophoneON=n"
    window.choose(MICROPHONE_MENU)
    wait_for(lambda: shows_tones(marks_of(screen, window, "picWave")), "both traces again", 15)
    assert window.button("+").enabled and window.button("-").enabled
    assert folders.settings_file.read_text().split("\n")[5] == "MicrophoneON=y"


def test_turning_it_on_and_off_a_hundred_times_leaves_no_handles(
        launch: Callable[..., Tonmira], folders: Folders, user: User, driver: Driver,
        screen: Screen) -> None:
    program, window = start(launch, folders, user)

    def toggle(times: int) -> int:
        for _ in range(times):
            window.choose(MICROPHONE_MENU)
        wait_for(lambda: window.button("+").enabled, "the last one", 60)
        wait_for(lambda: is_flat(marks_of(screen, window, "picWave")), "two flat lines", 15)
        return driver.handles(program.process)

    before = toggle(10)
    after = toggle(190)
    assert after <= before + 5, f"{before} handles, then {after}"
    assert program.titles() == [window.title]


def test_without_a_recording_device_it_says_so_and_stays_off(
        rig: Rig, folders: Folders, user: User, screen: Screen,
        monkeypatch: pytest.MonkeyPatch) -> None:
    # What this driver starts finds no sound server, so neither a loudspeaker nor a microphone.
    monkeypatch.setitem(rig.env, "PULSE_SERVER", "unix:/nowhere")
    folders.write_settings(GOOD_SETTINGS)
    program = Tonmira(rig, Driver(rig), folders)
    try:
        message = program.window("DirectSound Error")
        assert "No recording device was found." in message.texts()
        assert program.titles() == ["DirectSound Error"]
        user.screenshot(message, SCREENS / "no-microphone.png")
        assert len(np.unique(screen.look(message.place()))) >= 8
        message.press("OK")
        window = program.window()
        assert folders.settings_file.read_text().split("\n")[5] == "MicrophoneON=n"
        window.choose(MICROPHONE_MENU)
        program.window("DirectSound Error").press("OK")
        wait_for(lambda: program.titles() == [window.title], "the main window alone")
        # Written once the message is gone.
        wait_for(lambda: folders.settings_file.read_text().split("\n")[5] == "MicrophoneON=n",
                 "the display that stays off, in the settings")
    finally:
        program.finish()


def test_a_tone_goes_on_when_the_microphone_is_unplugged(
        launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen,
        microphone: Microphone, recorder: Recorder) -> None:
    microphone.feed(500, 1500)
    program, window = start(launch, folders, user)
    wait_for(lambda: shows_tones(marks_of(screen, window, "picWave")), "both traces", 15)
    window.press("High pitch")
    window.press("Play Sound")
    recorder.wait_for_tone()
    first = recorder.frames()
    microphone.unplug()
    try:
        tone = measure(recorder.record(2))
        assert tone and tone.frequency_hz == pytest.approx(10000, rel=1e-4)
        assert tone.length_s > 1
    finally:
        # The server moves every recording with its default source, the rig's own, too.
        microphone.plug_in()
        recorder.excuse(first)
    window.press("Stop Sound")
    recorder.wait_for_silence()
    program.wait_for_buttons(window, playing=False)
    microphone.feed(500, 1500)
    for _ in range(2):
        window.choose(MICROPHONE_MENU)
    wait_for(lambda: shows_tones(marks_of(screen, window, "picWave")), "both traces again", 15)
    assert program.titles() == [window.title]


@pytest.mark.parametrize(("mode", "pitch", "wanted"), [
    # 4170 twips of pitch / 500000 radians each.
    ("Low pitch", 1000, 1.33), ("High pitch", 10000, 13.27)])
def test_the_preview_of_a_mode_moves(
        launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen, mode: str,
        pitch: int, wanted: float) -> None:
    _, window = start(launch, folders, user)
    user.click_button(window, mode)
    wait_for(lambda: marks_of(screen, window, "Picture1").any(), "a wave")
    place = inside(window, "Picture1")
    first = screen.look(place)
    time.sleep(0.2)
    assert not np.array_equal(screen.look(place), first)
    user.screenshot(window, SCREENS / f"preview-{pitch}.png", moving=True)
    if wanted > 5:
        assert abs(periods(without_line(marks_of(screen, window, "Picture1"))) - wanted) < 0.5


@pytest.mark.parametrize(("value", "wanted"), [(4, 0), (32000, 42.5)])
def test_the_preview_of_the_slider_stands_still(
        launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen, value: int,
        wanted: float) -> None:
    _, window = start(launch, folders, user)
    user.click_button(window, "Custom pitch")
    wait_for(lambda: window.is_checked("Custom pitch"), "the mode")
    assert not without_line(marks_of(screen, window, "Picture1")).any()
    window.slide(value)
    wait_for(lambda: f" {value}" in window.texts(), "the pitch")
    wait_for(lambda: without_line(marks_of(screen, window, "Picture1")).any(), "a wave")
    user.screenshot(window, SCREENS / f"preview-{value}.png")
    marks = without_line(marks_of(screen, window, "Picture1"))
    time.sleep(0.2)
    assert np.array_equal(without_line(marks_of(screen, window, "Picture1")), marks)
    if wanted:
        assert abs(periods(marks) - wanted) < 1
    else:
        rows = np.flatnonzero(marks.any(axis=1))
        assert rows.min() >= 43 and rows.max() <= 46


def without_line(marks: np.ndarray) -> np.ndarray:
    """The preview without the line that stands across its middle."""
    left = marks.copy()
    left[marks.all(axis=1)] = False
    return left


def test_the_preview_moves_on_while_its_tone_plays_and_ends_with_another_mode(
        launch: Callable[..., Tonmira], folders: Folders, user: User, screen: Screen,
        recorder: Recorder) -> None:
    program, window = start(launch, folders, user)
    window.press("Average pitch")
    window.press("Play Sound")
    recorder.wait_for_tone()
    place = inside(window, "Picture1")
    assert screen.frames(place, 2) > 20
    window.press("Stop Sound")
    program.wait_for_buttons(window, playing=False)
    assert screen.frames(place, 2) > 20
    window.press("Low to high")
    wait_for(lambda: not without_line(marks_of(screen, window, "Picture1")).any(), "nothing")
    assert screen.frames(place, 1) == 0
    recorder.wait_for_silence()


def test_a_thousand_choices_leave_one_animation_and_a_program_that_answers(
        launch: Callable[..., Tonmira], folders: Folders, user: User, driver: Driver,
        screen: Screen) -> None:
    program, window = start(launch, folders, user)
    options = [window.button(mode).handle for mode in FIXED_MODES]

    def choose(times: int) -> int:
        driver.ask("clicks", str(times), *options[:-1])
        driver.ask("clicks", "1", options[-1])
        # It works off its clicks one by one, and each draws a picture.
        wait_for(lambda: folders.log()[-1] == f"#Option {len(options)} Clicked",
                 "the last choice", 60)
        return driver.handles(program.process)

    before = choose(50)
    after = choose(1000)
    assert after <= before + 5, f"{before} handles, then {after}"
    assert screen.frames(inside(window, "Picture1"), 2) <= 2 * 21
    window.close()
    program.wait_for_end()
