"""What a run leaves in the user's files."""

import re
import time
from collections.abc import Callable

from rig.program import GOOD_SETTINGS, LOG_OF_START, Folders, Tonmira, play_once
from rig.sound import Recorder
from rig.waiting import wait_for
from rig.window import User

# The number of the entry "Winmm" in the menu, as its position gives it.
MENU_WINMM = 1010


def assert_lines(lines: list[str], patterns: list[str]) -> None:
    for number, (line, pattern) in enumerate(zip(lines, patterns), start=1):
        assert re.fullmatch(pattern, line), f"line {number} is {line!r}, not {pattern!r}"
    assert len(lines) == len(patterns), lines


def test_the_activity_log_tells_a_run_line_by_line(
        launch: Callable[..., Tonmira], folders: Folders, user: User,
        recorder: Recorder) -> None:
    folders.write_settings(GOOD_SETTINGS)
    folders.log_file.write_bytes(b"a log of yesterday\r\n")
    program = launch(folders)
    window = play_once(program, user, "High pitch")
    recorder.wait_for_tone()
    user.click_button(window, "Stop Sound")
    program.wait_for_log("#Sound stopped")
    window.close()
    program.wait_for_end()

    assert_lines(folders.log(), LOG_OF_START + [
        r"#Option 3 Clicked", r"#Pressed Button 2", r"10000", r"#Pressed Button 3",
        r"#Sound stopped"])
    assert folders.names() == ["tonmira.ini", "userdata.txt"]


def test_a_sound_mode_chosen_in_the_menu_is_written_to_the_settings(
        launch: Callable[..., Tonmira], folders: Folders) -> None:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    window = program.window()
    program.wait_for_log(">> Program starting finished")

    window.choose(MENU_WINMM)

    wanted = [*GOOD_SETTINGS]
    wanted[1] = "SoundBit=256"
    expected = "".join(line + "\r\n" for line in wanted).encode()
    wait_for(lambda: folders.settings_file.read_bytes() == expected, "the new settings", 10)
    # The next entry of the log reads this one's commas as ends of lines.
    window.press("Low pitch")
    program.wait_for_log("#Option 1 Clicked")
    assert_lines(folders.log(), LOG_OF_START + [
        r"> Write action", r"Line:  2", r"Value: SoundBit=256", r"#Option 1 Clicked"])


def test_the_menu_is_worked_with_the_keyboard(
        launch: Callable[..., Tonmira], folders: Folders, user: User) -> None:
    folders.write_settings(GOOD_SETTINGS)
    program = launch(folders)
    window = program.window()
    program.wait_for_log(">> Program starting finished")

    def choose() -> bool:
        user.activate(window)
        # Settings; its first entry, Sound mode; there, from the top up, the last one: Winmm.
        user.type_keys("Escape", "F10", "Right", "Down", "Right", "Up", "Return")
        time.sleep(1)
        return b"SoundBit=256\r\n" in folders.settings_file.read_bytes()

    # On a busy display a key may come before the menu that it is meant for.
    wait_for(choose, "the new settings", 20)
